#include "desktop/watertests/section_form.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/watertests/eight_texts.h"
#include "planning/test_texts.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

QLabel* quietLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

SectionForm::SectionForm(QWidget* parent)
    : QWidget(parent),
      m_setUp([this](const QString& what, const auto& change) { emit edited(what, change); },
              FieldForm::Arrangement::Beside),
      m_description(quietLabel("description")),
      m_sections(sectionColumns(), RowsKnownBy::Number),
      m_turns(turnColumns(), RowsKnownBy::Number),
      m_sectionTable(new EntryTable(m_sections, "sections")),
      m_turnTable(new EntryTable(m_turns, "turns")),
      m_turnTitle(new QLabel(tr("Turns"))),
      m_total(new QLabel) {
    m_total->setObjectName("total");
    makeSetUp();
    m_turns.setRowTitles([](int turn) { return tr("Turn %1").arg(turn + 1); });
    m_sections.setRowTitles([this](int section) {
        return (m_isSprint ? tr("Stretch %1") : tr("Lap %1")).arg(section + 1);
    });
    for (EntryTable* const table : {m_sectionTable, m_turnTable})
        table->verticalHeader()->show();
    layOut();
}

void SectionForm::makeSetUp() {
    m_setUp.whole({.name = "laps", .label = tr("La&ps"), .what = tr("number of laps")},
                  {.least = 1, .most = 100},
                  Access{[](const onWaterTest& test) {
                             return static_cast<std::int64_t>(plannedSections(test));
                         },
                         [](onWaterTest& test, std::int64_t laps) { test.laps = laps; }});
    m_setUp.number(
        {.name = "distance", .label = tr("Distance between the &gates"), .what = tr("distance")},
        {.least = 1, .most = 1000, .decimals = 1, .step = 0.5, .unit = tr("m")},
        Access{[](const onWaterTest& test) { return test.distance; },
               [](onWaterTest& test, double metres) { setDistance(test, metres); }});
    m_setUp.number({.name = "turnLimit",
                    .label = tr("Turn li&mit"),
                    .tip = tr("A faster rotation of the boat is a turn, a slower one straight "
                              "paddling")},
                   {.least = 0.05, .most = 10, .decimals = 2, .step = 0.05, .unit = tr("rad/s")},
                   &onWaterTest::turnLimit);
    m_setUp.addRow({}, new QWidget); // takes the rest of the line
}

std::vector<Column<SectionEntry>> SectionForm::sectionColumns() {
    const auto column = [this](const EntryFacts& facts, double SectionEntry::*member) {
        return entryColumn<SectionEntry>(
            facts, [member](const SectionEntry& row) { return row.*member; },
            [this, member](std::size_t row, double value) { enterSection(row, member, value); });
    };
    const auto ofStrokes = [this](Column<SectionEntry> shown) {
        shown.show = [this, show = shown.show](const SectionEntry& row) {
            Cell cell = show(row);
            cell.isLocked = m_isRecorded;
            if (m_isRecorded)
                cell.tip = tr("Told by the strokes that were recorded");
            return cell;
        };
        return shown;
    };
    return {column({tr("Time\n(s)"), tr(test_help::LapTime), 3600}, &SectionEntry::time),
            column({tr("Straight\n(s)"), tr(test_help::StraightTime), 3600},
                   &SectionEntry::straightTime),
            entryColumn<SectionEntry>({tr("Rotation\n(s)"), tr(test_help::RotationTime)},
                                      [](const SectionEntry& row) {
                                          return row.straightTime > 0 ? row.time - row.straightTime
                                                                      : 0;
                                      }),
            column({tr("Speed\n(m/s)"), tr("Follows from distance and time until it is typed"), 20},
                   &SectionEntry::speed),
            ofStrokes(column({tr("Stroke rate\n(1/min)"), {}, 300}, &SectionEntry::strokeRate)),
            ofStrokes(column({tr("Efficiency\n(m/stroke)"),
                              tr("Follows from speed and stroke rate until typed"), 20},
                             &SectionEntry::strokeEfficiency))};
}

std::vector<Column<TurnEntry>> SectionForm::turnColumns() {
    const auto column = [this](const QString& title, const char* tip, double most,
                               double TurnEntry::*member) {
        return entryColumn<TurnEntry>(
            {title, tr(tip), most}, [member](const TurnEntry& row) { return row.*member; },
            [this, member](std::size_t row, double value) { enterTurn(row, member, value); });
    };
    return {
        column(tr("Left\n(rad/s)"), test_help::RotationPeak, 50, &TurnEntry::leftPeak),
        column(tr("Left\n(s)"), test_series::LeftRotationDuration, 600, &TurnEntry::leftTime),
        column(tr("Right\n(rad/s)"), test_help::RotationPeak, 50, &TurnEntry::rightPeak),
        column(tr("Right\n(s)"), test_series::RightRotationDuration, 600, &TurnEntry::rightTime)};
}

void SectionForm::layOut() {
    auto* sectionTitle = new QLabel(tr("Sections"));
    sectionTitle->setFont(theme::titleFont(*this));
    m_turnTitle->setFont(theme::titleFont(*this));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(theme::Spacing);
    grid->addWidget(&m_setUp, 0, 0, 1, 2);
    grid->addWidget(m_description, 1, 0, 1, 2);
    grid->addWidget(sectionTitle, 2, 0);
    grid->addWidget(m_turnTitle, 2, 1);
    grid->addWidget(m_sectionTable, 3, 0);
    grid->addWidget(m_turnTable, 3, 1);
    grid->addWidget(m_total, 4, 0, 1, 2);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
}

void SectionForm::enterSection(std::size_t row, double SectionEntry::*member, double value) {
    std::vector<SectionEntry> sections = m_sections.rows();
    SectionEntry& section = sections[row];
    section.*member = value;
    if (section.time > 0 && section.straightTime > section.time)
        throw RefusedEntry(tr("The time in straight line is part of the time of its section: it "
                              "cannot be longer."));
    emit edited(tr("section %1").arg(row + 1),
                [sections](onWaterTest& test) { enterSections(test, sections); });
}

void SectionForm::enterTurn(std::size_t row, double TurnEntry::*member, double value) {
    emit edited(tr("turn %1").arg(row + 1), [=](onWaterTest& test) {
        std::vector<TurnEntry> turns = turnEntries(test.test);
        turns.resize(std::max(turns.size(), row + 1));
        turns[row].*member = value;
        enterTurns(test.test, turns);
    });
}

void SectionForm::show(const onWaterTest& test, bool isOther) {
    m_isSprint = test.kind == water_test::Sprint;
    m_isRecorded = hasRecordedStrokes(test.test);
    m_setUp.show(&test, isOther);
    m_setUp.setVisible(!m_isSprint);
    m_turnTitle->setVisible(!m_isSprint);
    m_turnTable->setVisible(!m_isSprint);
    m_description->setText(QString::fromStdString(
        m_isSprint ? SprintTestDescription : lapTestDescription(test.laps, test.distance)));
    m_sections.show(sectionEntries(test), isOther);
    std::vector<TurnEntry> turns = turnEntries(test.test);
    turns.resize(std::max(turns.size() + 1, plannedSections(test)));
    m_turns.show(std::move(turns), isOther);
    showTotal(test);
    m_sectionTable->updateGeometry();
    m_turnTable->updateGeometry();
}

void SectionForm::showTotal(const onWaterTest& test) {
    const auto timed = std::ranges::count_if(
        m_sections.rows(), [](const SectionEntry& section) { return section.time > 0; });
    const bool isWhole = std::cmp_greater_equal(timed, plannedSections(test));
    QString total =
        isWhole || timed == 0
            ? tr("Total: %1 s").arg(hundredthsOrDash(test.test.totalTime))
            : tr("Total: – · %1 of %2 sections are timed").arg(timed).arg(plannedSections(test));
    if (m_isRecorded)
        total += tr(" · %1 strokes recorded").arg(test.test.strokeDate.size());
    m_total->setText(total);
}

} // namespace kavela::desktop
