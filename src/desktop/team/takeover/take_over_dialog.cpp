#include "desktop/team/takeover/take_over_dialog.h"

#include "desktop/people/found_lines_view.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

QDate dateOf(ReferenceDate date) {
    return QDate::fromString(qtText(dayText(date)), "yyyy-MM-dd");
}

FoundTitles titles() {
    return {{TakeOverDialog::tr("Boat"), TakeOverDialog::tr("Phase"), TakeOverDialog::tr("Result")},
            TakeOverDialog::tr("Athlete"),
            TakeOverDialog::tr("not in the team"),
            TakeOverDialog::tr("Leave out"),
            TakeOverDialog::tr("Add %1 to the team")};
}

std::vector<KnownPerson> peopleOf(const myTeamToSaveStruct& team) {
    std::vector<KnownPerson> people;
    for (const myTeamStruct& athlete : team.realMyTeam)
        people.push_back({athlete.name});
    return people;
}

/// A final position has no phase.
std::pair<CrewOfFile, std::string> tickKey(const PlannedResult& planned) {
    return {crewOf(planned.found), planned.found.run ? planned.found.run->phase : std::string()};
}

QString remarkOn(const PlannedResult& planned) {
    if (planned.whose.to == Belonging::To::Nobody)
        return planned.likely.empty()
                   ? QString()
                   : TakeOverDialog::tr("perhaps %1?").arg(qtText(planned.likely));
    if (!planned.canBeTaken())
        return qtText(planned.reason);
    if (planned.addsCategory)
        return TakeOverDialog::tr("%1 is added to the athlete's boats")
            .arg(qtText(planned.found.category));
    return planned.before == resultText(planned.found) ? TakeOverDialog::tr("the same stands there")
                                                       : QString();
}

} // namespace

TakeOverDialog::TakeOverDialog(const myTeamToSaveStruct& team, QWidget* parent)
    : EntryDialog(parent),
      m_team(team),
      m_lines(titles(), peopleOf(team)),
      m_view(new FoundLinesView(m_lines)) {
    setWindowTitle(tr("Take results over"));
    connect(&m_lines, &FoundLines::ticked, this, [this](int line, bool isTicked) {
        tick(static_cast<std::size_t>(line), isTicked);
        plan();
    });
    connect(&m_lines, &FoundLines::chosen, this, [this](int line, const Belonging& whose) {
        choose(crewOf(m_plan.at(static_cast<std::size_t>(line)).found), whose);
    });
}

TakeOverDialog::TakeOverDialog(const myTeamToSaveStruct& team, FoundRace race, QWidget* parent)
    : TakeOverDialog(team, parent) {
    auto* form = new QFormLayout;
    makeRace(*form, race);
    m_read = [race = std::move(race)] { return race; };
    finish(form);
}

TakeOverDialog::TakeOverDialog(const myTeamToSaveStruct& team, ResultsList list,
                               const std::string& category, ReferenceDate present, QWidget* parent)
    : TakeOverDialog(team, parent) {
    auto* form = new QFormLayout;
    FoundRace race;
    race.date = present;
    makeRace(*form, race);
    makeListFacts(*form, category, present);
    m_skipped = list.skipped;
    m_read = [this, list = std::move(list)] {
        return foundInList(
            list, {m_category->currentText().toStdString(), m_phase->currentText().toStdString(),
                   typedDay(m_date->date().toString("yyyy-MM-dd"), {}), m_isFinal->isChecked()});
    };
    finish(form);
}

void TakeOverDialog::makeRace(QFormLayout& form, const FoundRace& race) {
    m_event = new QComboBox;
    m_event->setObjectName("event");
    m_event->setPlaceholderText(tr("Choose the event"));
    for (const char* event : team::Events)
        m_event->addItem(event);
    m_event->setCurrentIndex(race.event.empty() ? -1 : m_event->findText(qtText(race.event)));
    m_location = new QLineEdit(qtText(race.location));
    m_location->setObjectName("location");
    m_year = new WholeBox;
    m_year->setObjectName("year");
    m_year->setRange(1900, 2100);
    m_year->setValue(dateOf(race.date).year());
    form.addRow(tr("&Event"), m_event);
    form.addRow(tr("&Location"), m_location);
    form.addRow(tr("&Season"), m_year);
    connect(m_event, &QComboBox::currentIndexChanged, this, &TakeOverDialog::plan);
    connect(m_location, &QLineEdit::textChanged, this, &TakeOverDialog::plan);
    connect(m_year, &WholeBox::valueChanged, this, &TakeOverDialog::plan);
}

void TakeOverDialog::makeListFacts(QFormLayout& form, const std::string& category,
                                   ReferenceDate present) {
    m_category = new QComboBox;
    m_category->setObjectName("listCategory");
    for (const char* label : team::Categories)
        m_category->addItem(label);
    m_category->setCurrentIndex(std::max(m_category->findText(qtText(category)), 0));
    m_phase = new QComboBox;
    m_phase->setObjectName("listPhase");
    for (const char* phase : team::Phases)
        m_phase->addItem(phase);
    m_phase->setCurrentIndex(m_phase->count() - 1);
    m_date = new QDateEdit(dateOf(present));
    m_date->setCalendarPopup(true);
    m_date->setDisplayFormat("yyyy-MM-dd");
    m_isFinal = new QCheckBox(tr("The positions are the &final ones of the race"));
    m_isFinal->setObjectName("isFinal");
    m_isFinal->setChecked(true);
    form.addRow(tr("&Category"), m_category);
    form.addRow(tr("&Phase"), m_phase);
    form.addRow(tr("&Day"), m_date);
    form.addRow(m_isFinal);
    connect(m_category, &QComboBox::currentIndexChanged, this, &TakeOverDialog::plan);
    connect(m_phase, &QComboBox::currentIndexChanged, this, [this] {
        m_isFinal->setChecked(m_phase->currentText() == "Final");
        plan();
    });
    connect(m_date, &QDateEdit::dateChanged, this, [this](QDate date) {
        m_year->setValue(date.year());
        plan();
    });
    connect(m_isFinal, &QCheckBox::toggled, this, &TakeOverDialog::plan);
}

void TakeOverDialog::finish(QFormLayout* form) {
    m_note = new QLabel;
    m_note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_take = buttons->addButton(tr("Take over"), QDialogButtonBox::AcceptRole);
    QPushButton* all = buttons->addButton(tr("Tick &all"), QDialogButtonBox::ActionRole);
    QPushButton* none = buttons->addButton(tr("Tick &none"), QDialogButtonBox::ActionRole);
    connect(all, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAll(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(form);
    column->addWidget(m_view, 1);
    column->addWidget(m_note);
    column->addWidget(buttons);
    resize(960, 600);
    plan();
    m_view->fitColumns();
    if (m_event->currentIndex() < 0)
        m_event->setFocus();
    else
        m_view->setFocus();
}

RaceName TakeOverDialog::name() const {
    return {m_year->value(), m_event->currentText().toStdString(),
            m_location->text().trimmed().toStdString()};
}

void TakeOverDialog::plan() {
    m_plan = planTakeOver(m_team, m_read(), name(), m_chosen);
    for (PlannedResult& planned : m_plan)
        if (const auto ticked = m_ticks.find(tickKey(planned));
            ticked != m_ticks.end() && planned.canBeTaken())
            planned.isTicked = ticked->second;
    showPlan();
}

void TakeOverDialog::showPlan() {
    std::vector<FoundLine> lines;
    for (const PlannedResult& planned : m_plan)
        lines.push_back(lineOf(planned));
    for (const SkippedLine& skipped : m_skipped)
        lines.push_back(
            {tr("(line %1)").arg(skipped.line), {}, {}, {}, false, {}, {}, qtText(skipped.reason)});
    m_lines.setLines(std::move(lines));
    showCount();
}

FoundLine TakeOverDialog::lineOf(const PlannedResult& planned) const {
    const FoundResult& found = planned.found;
    QString result = qtText(resultText(found));
    if (planned.more > 0)
        result = tr("%1 and %2 more").arg(result).arg(planned.more);
    FoundLine line;
    line.name = qtText(found.crew);
    line.facts = {qtText(found.category),
                  found.run ? qtText(found.run->phase) : tr("Final position"), result};
    line.whose = planned.whose;
    line.isChosenByHand = true;
    if (planned.canBeTaken()) {
        line.tick = planned.isTicked;
        line.was = qtText(planned.before);
        line.now = planned.isTicked ? result : line.was;
    }
    line.remark = remarkOn(planned);
    return line;
}

std::size_t TakeOverDialog::tickedCount() const {
    return static_cast<std::size_t>(std::ranges::count_if(m_plan, &PlannedResult::isTicked));
}

void TakeOverDialog::showCount() {
    const std::size_t count = tickedCount();
    const bool hasRace = m_event->currentIndex() >= 0;
    m_take->setEnabled(count > 0 && hasRace);
    m_take->setText(count == 1 ? tr("&Take over 1 line")
                               : tr("&Take over %n lines", nullptr, static_cast<int>(count)));
    const auto takeable = std::ranges::count_if(m_plan, &PlannedResult::canBeTaken);
    if (!hasRace)
        m_note->setText(tr("Choose the event of the race."));
    else if (takeable == 0)
        m_note->setText(tr("Nothing in the file belongs to an athlete of the team. A click on “not "
                           "in the team” chooses one, or adds the name to the team."));
    else
        m_note->setText(
            tr("%1 of %2 lines are ticked; %3 stay out. A click on an athlete chooses "
               "another one, or adds the name to the team.")
                .arg(count)
                .arg(takeable)
                .arg(static_cast<qlonglong>(m_plan.size() + m_skipped.size()) - takeable));
}

/// What was ticked while the crew was another's is no wish any more.
void TakeOverDialog::choose(const CrewOfFile& crew, const Belonging& whose) {
    m_chosen[crew] = whose;
    std::erase_if(m_ticks, [&](const auto& tick) { return tick.first.first == crew; });
    plan();
}

void TakeOverDialog::tick(std::size_t line, bool isTicked) {
    m_ticks[tickKey(m_plan.at(line))] = isTicked;
}

void TakeOverDialog::tickAll(bool isTicked) {
    for (std::size_t line = 0; line < m_plan.size(); ++line)
        if (m_plan[line].canBeTaken())
            tick(line, isTicked);
    plan();
}

} // namespace kavela::desktop
