#include "desktop/taking/notes/comment_page.h"

#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/notes/radio_box.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/run_notes.h"
#include "splittaking/course_setup.h"

#include <QAbstractItemDelegate>
#include <QCheckBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr const char* VisibleKey = "coachswordvisible";
constexpr double MostGiveUps = 99;
constexpr int WordsColumn = 1;

/// One beyond the best, as a file may have it, is shown as it is.
void addScore(RecordForm<athletedata031>& scores, Scorer scorer, const char* name,
              const QString& whose, double athletedata031::*score) {
    scores.number(
        {.name = name, .label = {}, .what = CommentPage::tr("score"), .stretch = 1},
        {.most = BestScore, .decimals = 1, .step = 0.5, .before = whose, .showsBeyond = true},
        Access{[score](const athletedata031& run) { return run.*score; },
               [scorer](athletedata031& run, double typed) {
                   setScore(run, scorer, std::clamp(typed, 0.0, BestScore));
               }});
}

} // namespace

CommentPage::CommentPage(NoteDesk& desk)
    : NotePage(desk),
      m_comments(columns(), RowsKnownBy::Number),
      m_form([this](const QString& what, const auto& change) { edit(what, change); }),
      m_scores([this](const QString& what, const auto& change) { edit(what, change); },
               FieldForm::Arrangement::Beside),
      m_isVisible(new QCheckBox(tr("Show the coach's comments"))),
      m_table(filmTable(m_comments, "comments")),
      m_radio(new RadioBox(loudspeaker, microphone)) {
    m_isVisible->setObjectName("commentsVisible");
    connect(m_isVisible, &QCheckBox::toggled, this, [this](bool isVisible) {
        m_desk.workspace.setPreference(VisibleKey, isVisible);
        m_table->setVisible(isVisible);
    });
    makeTable();
    addFields();
    addRadio();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&m_form);
}

std::vector<Column<CommentRow>> CommentPage::columns() {
    const auto take = [this](std::size_t row, const CommentRow&, const QString& typed) {
        edit(tr("comment on split %1").arg(row + 1),
             [&](athletedata031& run) { setSplitComment(run, row + 1, typed.toStdString()); });
    };
    return {textColumn<CommentRow>(tr("Split"), &CommentRow::split),
            Column<CommentRow>{.title = tr("Comment"),
                               .show = [](const CommentRow& row) { return Cell{row.text}; },
                               .take = take}};
}

void CommentPage::makeTable() {
    m_table->stretch({WordsColumn});
    // A letter is a key of the film that was missed, and no comment.
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                             QAbstractItemView::EditKeyPressed);
    connect(m_table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) {
                if (hint == QAbstractItemDelegate::SubmitModelCache) // by Enter
                    QMetaObject::invokeMethod(this, &CommentPage::goOn, Qt::QueuedConnection);
            });
}

void CommentPage::addFields() {
    m_form.layout()->setSpacing(theme::SmallSpacing);
    m_form.addRow({}, m_isVisible);
    m_form.addRow({}, m_table);
    addScore(m_scores, Scorer::Athlete, "athletesScore", tr("athlete"),
             &athletedata031::athletesscore);
    addScore(m_scores, Scorer::Coach, "coachsScore", tr("coach"), &athletedata031::coachsscore);
    m_scores.layout()->setSpacing(0); // its fields stand apart by themselves
    m_form.addRow(tr("Scores"), &m_scores);
    m_form.whole({.name = "giveUps", .label = tr("Give-ups")}, {.most = MostGiveUps},
                 Access{[](const athletedata031& run) { return run.giveups; },
                        [](athletedata031& run, std::int64_t count) {
                            addGiveUps(run, count - run.giveups);
                        }});
    m_form.addRow({}, m_radio);
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
    (void)m_scores.commit();
    (void)m_form.commit();
    NotePage::commit();
}

/// Comments of a file beyond the splits of its course are listed too.
void CommentPage::refresh() {
    const athletedata031* const run = m_desk.record();
    const bool isOther = std::exchange(m_run, m_desk.run) != m_desk.run;
    m_scores.show(run, isOther);
    m_form.show(run, isOther);
    {
        const QSignalBlocker blocked(m_isVisible);
        m_isVisible->setChecked(m_desk.workspace.preferences().boolean(VisibleKey));
    }
    m_table->setVisible(m_isVisible->isChecked());
    m_radio->setRecordings(run ? std::span<const Blob>(run->sectioninfo.teamradio)
                               : std::span<const Blob>());
    QStringList names = sectionNames(m_desk.document.info());
    const std::size_t commented = run ? run->sectioninfo.comments.size() : 0;
    while (std::cmp_less(names.size(), std::min<std::size_t>(commented, MostSplits)))
        names.append('S' + QString::number(names.size() + 1));
    std::vector<CommentRow> rows;
    for (std::size_t split = 1; run && std::cmp_less_equal(split, names.size()); ++split)
        rows.push_back({names[static_cast<qsizetype>(split) - 1],
                        QString::fromStdString(splitComment(*run, split))});
    m_comments.show(std::move(rows));
}

/// Enter leads from one comment to the next: what is typed behind it is text and no key.
void CommentPage::goOn() {
    const int next = m_table->currentPlace() + 1;
    if (next < m_comments.rowCount())
        m_table->edit(next, WordsColumn);
}

} // namespace kavela::desktop
