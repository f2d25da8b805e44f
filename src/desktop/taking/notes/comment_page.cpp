#include "desktop/taking/notes/comment_page.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/text_table.h"
#include "desktop/taking/notes/radio_box.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/run_notes.h"
#include "splittaking/course_setup.h"

#include <QAbstractItemDelegate>
#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* VisibleKey = "coachswordvisible";

NumberBox* scoreBox(const char* name) {
    auto* box = new NumberBox;
    box->setObjectName(name);
    box->setRange(0, BestScore);
    box->setDecimals(1);
    box->setSingleStep(0.5);
    box->setKeyboardTracking(false);
    return box;
}

/// A score of a file beyond the best one is shown as it is.
void showScore(NumberBox& box, double score) {
    box.setRange(std::min(0.0, score), std::max(BestScore, score));
    box.showValue(score);
}

} // namespace

CommentPage::CommentPage(NoteDesk& desk)
    : NotePage(desk),
      m_isVisible(new QCheckBox(tr("Show the coach's comments"))),
      m_table(textTable({tr("Split"), tr("Comment")})),
      m_athletesScore(scoreBox("athletesScore")),
      m_coachsScore(scoreBox("coachsScore")),
      m_giveUps(new WholeBox),
      m_radio(new RadioBox(loudspeaker, microphone)) {
    m_isVisible->setObjectName("commentsVisible");
    m_table->setObjectName("comments");
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                             QAbstractItemView::EditKeyPressed);
    m_giveUps->setObjectName("giveUps");
    m_giveUps->setKeyboardTracking(false);
    addScores();
    connect(m_isVisible, &QCheckBox::toggled, this, [this](bool isVisible) {
        m_desk.workspace.setPreference(VisibleKey, isVisible);
        m_table->setVisible(isVisible);
    });
    connect(m_table, &QTableWidget::cellChanged, this, &CommentPage::takeComment);
    connect(m_table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) {
                if (hint == QAbstractItemDelegate::SubmitModelCache) // by Enter
                    QMetaObject::invokeMethod(this, &CommentPage::goOn, Qt::QueuedConnection);
            });
}

void CommentPage::addScores() {
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    form->addRow(m_isVisible);
    form->addRow(m_table);
    m_athletesScore->setPrefix(tr("athlete "));
    m_coachsScore->setPrefix(tr("coach "));
    auto* scores = new QHBoxLayout;
    scores->addWidget(m_athletesScore);
    scores->addWidget(m_coachsScore);
    form->addRow(tr("Scores"), scores);
    form->addRow(tr("Give-ups"), m_giveUps);
    form->addRow(m_radio);
    addRadio();
    const auto take = [this](Scorer scorer) {
        return [this, scorer](double score) {
            edit(tr("score"), [&](athletedata031& run) {
                setScore(run, scorer, std::clamp(score, 0.0, BestScore));
            });
        };
    };
    connect(m_athletesScore, &NumberBox::valueChanged, this, take(Scorer::Athlete));
    connect(m_coachsScore, &NumberBox::valueChanged, this, take(Scorer::Coach));
    connect(m_giveUps, &WholeBox::valueChanged, this, [this](int count) {
        edit(tr("give-ups"), [&](athletedata031& run) { addGiveUps(run, count - run.giveups); });
    });
}

void CommentPage::addRadio() {
    connect(m_radio, &RadioBox::added, this, [this](const Blob& recording) {
        edit(tr("team radio"), [&](athletedata031& run) { (void)addTeamRadio(run, recording); });
    });
    connect(m_radio, &RadioBox::removed, this, [this](int recording) {
        edit(tr("team radio removed"), [&](athletedata031& run) {
            removeTeamRadio(run, static_cast<std::size_t>(recording));
        });
    });
    connect(m_radio, &RadioBox::moved, this, [this](int from, int to) {
        edit(tr("team radio moved"), [&](athletedata031& run) {
            moveTeamRadio(run, static_cast<std::size_t>(from), static_cast<std::size_t>(to));
        });
    });
    connect(m_radio, &RadioBox::told, this, &CommentPage::told);
}

void CommentPage::recordRadio() {
    if (m_desk.record())
        m_radio->toggleRecording();
}

void CommentPage::commit() {
    m_radio->finish();
    NotePage::commit();
}

/// Comments of a file beyond the splits of its course are listed too.
void CommentPage::refresh() {
    const athletedata031* const run = m_desk.record();
    setEnabled(run);
    const QSignalBlocker blocks[] = {QSignalBlocker(m_isVisible), QSignalBlocker(m_athletesScore),
                                     QSignalBlocker(m_coachsScore), QSignalBlocker(m_giveUps)};
    m_isVisible->setChecked(m_desk.workspace.preferences().boolean(VisibleKey));
    m_table->setVisible(m_isVisible->isChecked());
    showScore(*m_athletesScore, run ? run->athletesscore : 0);
    showScore(*m_coachsScore, run ? run->coachsscore : 0);
    m_radio->setRecordings(run ? std::span<const Blob>(run->sectioninfo.teamradio)
                               : std::span<const Blob>());
    m_giveUps->showValue(run ? static_cast<int>(std::clamp<std::int64_t>(run->giveups, 0, 99)) : 0);
    std::vector<QStringList> rows;
    QStringList names = sectionNames(m_desk.document.info());
    const std::size_t commented = run ? run->sectioninfo.comments.size() : 0;
    while (std::cmp_less(names.size(), std::min<std::size_t>(commented, MostSplits)))
        names.append('S' + QString::number(names.size() + 1));
    for (qsizetype place = 0; run && place < names.size(); ++place)
        rows.push_back({names[place], QString::fromStdString(splitComment(
                                          *run, static_cast<std::size_t>(place) + 1))});
    fillTable(*m_table, rows);
    const QSignalBlocker blocked(m_table);
    for (int row = 0; row < m_table->rowCount(); ++row)
        m_table->item(row, 0)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
}

/// Enter leads from one comment to the next: what is typed behind it is text and no key.
void CommentPage::goOn() {
    const int next = m_table->currentRow() + 1;
    if (next >= m_table->rowCount())
        return;
    m_table->setCurrentCell(next, 1);
    m_table->editItem(m_table->item(next, 1));
}

void CommentPage::takeComment(int row, int column) {
    const auto split = static_cast<std::size_t>(row) + 1;
    const std::string text = m_table->item(row, column)->text().trimmed().toStdString();
    if (column == 1 && m_desk.record() && text != splitComment(*m_desk.record(), split))
        edit(tr("comment on split %1").arg(split),
             [&](athletedata031& run) { setSplitComment(run, split, text); });
}

} // namespace kavela::desktop
