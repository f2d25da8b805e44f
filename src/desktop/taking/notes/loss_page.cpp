#include "desktop/taking/notes/loss_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/annotations/remembered_texts.h"
#include "splittaking/marking.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr const char* ReasonsKey = "savedTLreasons";

bool isOwn(LossMark which) {
    return which == LossMark::OwnStart || which == LossMark::OwnEnd;
}

QString textOf(LossMark which) {
    return which == LossMark::OwnStart || which == LossMark::VersusStart ? LossPage::tr("Start")
                                                                         : LossPage::tr("End");
}

QString signedText(double value) {
    return QString(value > 0 ? "+" : "") + shownHundredths(value);
}

std::vector<Column<timeloss031>> lossColumns() {
    return {
        textColumn<timeloss031>(LossPage::tr("Against"),
                                [](const timeloss031& loss) { return qtText(loss.versus); }),
        numberColumn<timeloss031>(LossPage::tr("Seconds"), &timeloss031::timeloss, signedText),
        numberColumn<timeloss031>(LossPage::tr("Percent"), &timeloss031::timelossper, signedText)};
}

} // namespace

LossPage::LossPage(NoteDesk& desk)
    : NotePage(desk),
      m_losses(lossColumns(), RowsKnownBy::Number),
      m_table(noteTable(m_losses, "losses",
                        [this](int row) { takeInHand(static_cast<std::size_t>(row)); })),
      m_words([this](const QString& what, const auto& act) { change(what, act); }) {
    makeParts();
    makeWords();
    auto* fresh = new QPushButton(tr("New"));
    fresh->setObjectName("lossNew");
    fresh->setToolTip(tr("The next M begins another time loss"));
    connect(fresh, &QPushButton::clicked, this, &LossPage::begin);
    auto* against = new QHBoxLayout;
    against->addWidget(m_versus, 1);
    against->addWidget(fresh);
    auto* form = new QFormLayout;
    form->addRow(tr("Against"), against);
    auto* section = new QHBoxLayout;
    auto* over = new QPushButton(tr("Add over the section"));
    over->setObjectName("lossAdd");
    section->addWidget(m_split, 1);
    section->addWidget(over);
    form->addRow(section);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(form);
    column->addWidget(m_table, 1);
    makeMarks(*column);
    column->addWidget(&m_words, 1);
    connect(over, &QPushButton::clicked, this,
            [this] { add(static_cast<std::size_t>(m_split->currentIndex() + 1)); });
}

void LossPage::takeInHand(std::size_t loss) {
    (void)m_words.commit(); // what is typed belongs to the loss before
    m_loss = loss;
    emit rowChosen();
    refresh();
}

void LossPage::makeParts() {
    m_versus = new QComboBox;
    m_versus->setObjectName("lossVersus");
    m_versus->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_versus->setMinimumContentsLength(8);
    m_split = new QComboBox;
    m_split->setObjectName("lossSplit");
    m_table->setMinimumHeight(grown(*this, 70));
    m_table->setMaximumHeight(grown(*this, 110));
    m_result = new QLabel;
    m_result->setObjectName("lossResult");
    m_result->setWordWrap(true);
    m_reasons = new QListWidget;
    m_reasons->setObjectName("lossReasons");
    m_reasons->setMinimumHeight(grown(*this, 60));
    m_newReason = new QLineEdit;
    m_newReason->setObjectName("lossNewReason");
    m_newReason->setPlaceholderText(tr("Another reason"));
    m_other = new QPushButton(tr("To the other run"));
    m_other->setObjectName("lossOther");
    connect(m_other, &QPushButton::clicked, this, &LossPage::goToOtherRun);
    connect(m_newReason, &QLineEdit::editingFinished, this, &LossPage::addReason);
    connect(m_reasons, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        const std::string reason = item->text().toStdString();
        // Later, as the list is filled anew and the item goes.
        QTimer::singleShot(0, this, [this, reason] {
            change(tr("reason of a time loss"),
                   [&](timeloss031& changed) { toggleReason(changed, reason); });
        });
    });
}

void LossPage::makeMarks(QVBoxLayout& column) {
    column.addWidget(m_result);
    for (const bool own : {true, false}) {
        auto* row = new QHBoxLayout;
        row->addWidget(new QLabel(own ? tr("This run") : tr("Other run")), 1);
        for (std::size_t i = own ? 0 : 2; i < (own ? 2U : Marks); ++i) {
            auto* button = new QPushButton;
            button->setObjectName(QStringLiteral("lossMark%1").arg(i));
            button->setToolTip(tr("Sets this mark at the frame shown"));
            m_marks[i] = button;
            row->addWidget(button);
            connect(button, &QPushButton::clicked, this, [this, i] {
                emit pressed([this, i](const Stamps& stamps) {
                    setMarkHere(static_cast<LossMark>(i), stamps.front());
                });
            });
        }
        column.addLayout(row);
    }
    column.addWidget(m_other);
}

void LossPage::makeWords() {
    const QString kind = tr("kind of a time loss");
    m_words.code({.name = "lossGates", .label = tr("Gates"), .what = kind},
                 LabelList::LossGateCombination, &timeloss031::gateCombination);
    m_words.code({.name = "lossPart", .label = tr("Part"), .what = kind},
                 LabelList::LossGateDetails, &timeloss031::gateDetails);
    m_words.code({.name = "lossStyle", .label = tr("Style"), .what = kind}, LabelList::LossStyle,
                 &timeloss031::style);
    m_words.code({.name = "lossWater", .label = tr("Water"), .what = kind},
                 LabelList::LossWaterFeature, &timeloss031::waterFeature);
    m_words.addRow({}, m_reasons);
    m_words.addRow({}, m_newReason);
    m_words.remark({.name = "lossComment",
                    .label = {},
                    .what = tr("comment on a time loss"),
                    .placeholder = tr("Comment")},
                   &timeloss031::comments);
    m_words.layout()->setSpacing(theme::SmallSpacing);
}

const timeloss031* LossPage::loss() const {
    if (m_owner < 0 || m_owner >= m_desk.document.runCount() || !m_loss)
        return nullptr;
    const auto& losses = m_desk.document.run(m_owner).timeslosses;
    return *m_loss < losses.size() ? &losses[*m_loss] : nullptr;
}

/// The run that a loss was marked against: the one with its film, or else with its crew.
std::optional<int> LossPage::otherRun() const {
    const timeloss031* const inHand = loss();
    if (!inHand)
        return std::nullopt;
    const std::string film = entryOrZero(inHand->videos, VersusSide);
    for (int run = 0; run < m_desk.document.runCount(); ++run) {
        const athletedata031& record = m_desk.document.run(run);
        const bool isSame = film.empty() ? crewText(record.names) == inHand->versus
                                         : entryOrZero(record.videoname, 0) == film;
        if (run != m_owner && isSame)
            return run;
    }
    return std::nullopt;
}

bool LossPage::isOnOtherRun() const {
    return m_desk.run != m_owner && m_desk.run >= 0 && otherRun() == m_desk.run;
}

/// A reason that is typed is no field of the form.
void LossPage::commit() {
    (void)m_words.commit();
    NotePage::commit();
}

void LossPage::forget() {
    m_owner = -1;
    m_loss.reset();
    m_told.reset();
}

void LossPage::refresh() {
    if (const int run = m_desk.record() ? m_desk.run : -1; run != m_owner && !isOnOtherRun()) {
        m_owner = run;
        m_loss.reset();
    }
    if (!loss())
        m_loss.reset();
    showVersus();
    showLosses();
    showMarks();
    showWords();
}

/// The runs that a new loss can be against, and the sections; what is chosen stays.
void LossPage::showVersus() {
    const QVariant chosen = m_versus->currentData();
    m_versus->clear();
    for (int run = 0; run < m_desk.document.runCount(); ++run)
        if (run != m_owner)
            m_versus->addItem(runName(m_desk.document.run(run)), run);
    m_versus->setCurrentIndex(std::max(0, m_versus->findData(chosen)));
    const int split = m_split->currentIndex();
    m_split->clear();
    m_split->addItems(sectionNames(m_desk.document.info()));
    m_split->setCurrentIndex(std::clamp(split, -1 + (m_split->count() > 0), m_split->count() - 1));
}

int LossPage::chosenVersus() const {
    return m_versus->count() > 0 ? m_versus->currentData().toInt() : -1;
}

void LossPage::showLosses() {
    m_losses.show(m_owner >= 0 ? m_desk.document.run(m_owner).timeslosses
                               : std::vector<timeloss031>());
    m_table->choose(m_loss ? static_cast<int>(*m_loss) : -1);
}

void LossPage::showMarks() {
    const timeloss031* const inHand = loss();
    for (std::size_t i = 0; i < Marks; ++i) {
        const auto which = static_cast<LossMark>(i);
        const auto moment = inHand ? markOf(*inHand, which) : std::nullopt;
        m_marks[i]->setText(textOf(which) + ' ' +
                            (moment ? shownHundredths(moment->seconds()) : "–"));
        m_marks[i]->setEnabled(inHand && isOwn(which) != isOnOtherRun());
    }
    m_other->setEnabled(otherRun().has_value());
    m_other->setText(isOnOtherRun() ? tr("Back to the run") : tr("To the other run"));
    if (!inHand) {
        m_result->setText(m_owner >= 0 && !m_desk.document.run(m_owner).timeslosses.empty()
                              ? tr("M marks where the stretch starts and makes another time loss.")
                              : tr("M marks where the stretch starts and makes a time loss."));
        return;
    }
    const auto fault = faultOfMarks(*inHand);
    m_result->setText(tr("%1 s (%2 %) against %3")
                          .arg(signedText(inHand->timeloss))
                          .arg(signedText(inHand->timelossper))
                          .arg(QString::fromStdString(inHand->versus)) +
                      (fault ? '\n' + QString::fromStdString(*fault) : QString()));
}

/// Kinds, reasons and comment: the reasons saved for reuse, and those of the loss.
void LossPage::showWords() {
    const timeloss031* const inHand = loss();
    const auto told = inHand ? std::optional(std::pair(m_owner, *m_loss)) : std::nullopt;
    m_words.show(inHand, std::exchange(m_told, told) != told);
    const timeloss031 shown = inHand ? *inHand : timeloss031{};
    const QSignalBlocker blocked(m_reasons);
    m_reasons->clear();
    for (const std::string& reason :
         withRemembered(shown.reasons, m_desk.workspace.preferences().array(ReasonsKey))) {
        auto* item = new QListWidgetItem(QString::fromStdString(reason), m_reasons);
        const bool isGiven = std::ranges::count(shown.reasons, reason) > 0;
        item->setCheckState(isGiven ? Qt::Checked : Qt::Unchecked);
    }
}

/// Split 0 is a loss without marks.
void LossPage::add(std::size_t split) {
    const int versus = chosenVersus();
    if (!m_desk.record() || m_desk.run != m_owner || versus < 0) {
        emit told(isOnOtherRun() ? tr("Go back to the run that lost the time first.")
                                 : tr("A time loss needs another run to compare with."));
        return;
    }
    const athletedata031& other = m_desk.document.run(versus);
    m_loss = m_desk.record()->timeslosses.size();
    edit(tr("time loss"), [&](athletedata031& run) {
        run.timeslosses.push_back(split > 0 ? lossOverSplit(run, other, split)
                                            : lossAgainst(run, other));
    });
}

/// The losses of the run stay; none of them is in hand.
void LossPage::begin() {
    if (m_desk.run != m_owner) {
        emit told(tr("Go back to the run that lost the time first."));
        return;
    }
    m_loss.reset();
    emit rowChosen();
    refresh();
}

void LossPage::beginAt(const CMTime& moment) {
    const int versus = chosenVersus();
    if (versus < 0) {
        emit refused(tr("A time loss needs another run to compare with."));
        return;
    }
    timeloss031 made = lossAgainst(*m_desk.record(), m_desk.document.run(versus));
    setMark(made, LossMark::OwnStart, moment);
    m_loss = m_desk.record()->timeslosses.size();
    edit(tr("time loss"), [&](athletedata031& run) { run.timeslosses.push_back(made); });
    emit marked(MarkKind::TimeLoss, moment);
    emit flashed(tr("Start"));
}

bool LossPage::isMarked(std::size_t side) const {
    return loss() && stretchSeconds(*loss(), side).has_value();
}

void LossPage::mark(const Stamps& stamps) {
    if (!loss() || (!isOnOtherRun() && isMarked(OwnSide))) {
        beginAt(stamps.front());
        return;
    }
    for (const LossMark which : isOnOtherRun()
                                    ? std::array{LossMark::VersusStart, LossMark::VersusEnd}
                                    : std::array{LossMark::OwnStart, LossMark::OwnEnd})
        if (!markOf(*loss(), which)) {
            setMarkHere(which, stamps.front());
            return;
        }
    emit refused(tr("Start and end are marked here too. Ctrl+T goes back to the run that lost the "
                    "time, where M begins its next loss."));
}

void LossPage::setMarkHere(LossMark which, const CMTime& moment) {
    if (loss() && refuses(refusalOfLossMark(*loss(), which, moment)))
        return;
    change(tr("mark of a time loss"),
           [&](timeloss031& changed) { setMark(changed, which, moment); });
    if (isOwn(which))
        emit marked(MarkKind::TimeLoss, moment);
    emit flashed(textOf(which));
}

void LossPage::choose(const LaneMark& mark) {
    if (mark.handle.record == m_loss && m_owner == m_desk.run)
        return;
    m_owner = m_desk.run;
    m_loss = mark.handle.record;
    refresh();
}

bool LossPage::removeCurrent() {
    if (!loss())
        return false;
    const std::size_t removed = *m_loss;
    m_loss.reset();
    m_desk.document.editRun(m_owner, tr("time loss removed"),
                            [&](athletedata031& run) { removeTimeLoss(run, removed); });
    return true;
}

/// Where the stretch in hand starts on one of its two films; while that is not marked, as long
/// after the start of the run as on the other one.
std::optional<CMTime> LossPage::stretchOn(int run) const {
    const timeloss031* const inHand = loss();
    if (!inHand)
        return std::nullopt;
    const bool isOwner = run == m_owner;
    const auto here = markOf(*inHand, isOwner ? LossMark::OwnStart : LossMark::VersusStart);
    const auto there = markOf(*inHand, isOwner ? LossMark::VersusStart : LossMark::OwnStart);
    const auto start = startOf(m_desk.document.run(run));
    const auto other = isOwner ? otherRun() : std::optional(m_owner);
    if (here || !there || !start || !other)
        return here;
    return later(*start, runSecondsAt(m_desk.document.run(*other), *there));
}

bool LossPage::goToOtherRun() {
    const auto other = m_desk.run == m_owner ? otherRun() : std::optional(m_owner);
    if (!other || *other < 0)
        return false;
    const auto moment = stretchOn(*other);
    emit runRequested(*other);
    if (moment && m_desk.run == *other)
        m_desk.deck.seek(*moment);
    return true;
}

void LossPage::change(const QString& what, const std::function<void(timeloss031&)>& act) {
    if (loss())
        m_desk.document.editRun(m_owner, what,
                                [&](athletedata031& run) { act(run.timeslosses.at(*m_loss)); });
}

/// A new reason is kept for other losses.
void LossPage::addReason() {
    const std::string reason = m_newReason->text().trimmed().toStdString();
    m_newReason->setText({}); // nothing of it is left to undo there
    if (reason.empty() || !loss())
        return;
    const std::vector<std::string> used{reason};
    m_desk.workspace.setPreference(
        ReasonsKey, withRemembered(m_desk.workspace.preferences().array(ReasonsKey), used));
    if (std::ranges::count(loss()->reasons, reason) == 0)
        change(tr("reason of a time loss"),
               [&](timeloss031& changed) { toggleReason(changed, reason); });
}

} // namespace kavela::desktop
