#include "desktop/watertests/section_form.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/eight_texts.h"
#include "planning/test_texts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

enum SectionColumn {
    TimeColumn,
    StraightColumn,
    RotationColumn,
    SpeedColumn,
    RateColumn,
    EfficiencyColumn
};

std::vector<EntryColumn> sectionColumns() {
    const auto tr = [](const char* text) { return SectionForm::tr(text); };
    return {
        {tr("Time\n(s)"), tr(test_help::LapTime), 3600},
        {tr("Straight\n(s)"), tr(test_help::StraightTime), 3600},
        {tr("Rotation\n(s)"), tr(test_help::RotationTime), 0, true},
        {tr("Speed\n(m/s)"), tr("Follows from distance and time until it is typed"), 20},
        {tr("Stroke rate\n(1/min)"), QString(), 300},
        {tr("Efficiency\n(m/stroke)"), tr("Follows from speed and stroke rate until typed"), 20}};
}

std::vector<EntryColumn> turnColumns() {
    const auto tr = [](const char* text) { return SectionForm::tr(text); };
    const QString help = tr(test_help::RotationPeak);
    return {{tr("Left\n(rad/s)"), help, 50},
            {tr("Left\n(s)"), tr(test_series::LeftRotationDuration), 600},
            {tr("Right\n(rad/s)"), help, 50},
            {tr("Right\n(s)"), tr(test_series::RightRotationDuration), 600}};
}

double SectionEntry::*sectionMember(int column) {
    switch (column) {
    case TimeColumn:
        return &SectionEntry::time;
    case StraightColumn:
        return &SectionEntry::straightTime;
    case SpeedColumn:
        return &SectionEntry::speed;
    case RateColumn:
        return &SectionEntry::strokeRate;
    default:
        return &SectionEntry::strokeEfficiency;
    }
}

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
      m_setUp(new QWidget),
      m_laps(new WholeBox),
      m_distance(new NumberBox),
      m_turnLimit(new NumberBox),
      m_description(quietLabel("description")),
      m_sections(sectionColumns()),
      m_turns(turnColumns()),
      m_sectionTable(new EntryTable(m_sections)),
      m_turnTable(new EntryTable(m_turns)),
      m_turnTitle(new QLabel(tr("Turns"))),
      m_total(new QLabel) {
    makeSetUp();
    makeTables();
    layOut();
    connectParts();
}

void SectionForm::makeSetUp() {
    m_laps->setObjectName("laps");
    m_laps->setRange(1, 100);
    m_laps->setKeyboardTracking(false);
    m_distance->setObjectName("distance");
    m_distance->setRange(1, 1000);
    m_distance->setSingleStep(0.5);
    m_distance->setDecimals(1);
    m_distance->setSuffix(tr(" m"));
    m_distance->setKeyboardTracking(false);
    m_turnLimit->setObjectName("turnLimit");
    m_turnLimit->setRange(0.05, 10);
    m_turnLimit->setSingleStep(0.05);
    m_turnLimit->setSuffix(tr(" rad/s"));
    m_turnLimit->setKeyboardTracking(false);
    m_turnLimit->setToolTip(tr("A faster rotation of the boat is a turn, a slower one straight "
                               "paddling"));
    auto* row = new QHBoxLayout(m_setUp);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    for (const auto& [title, field] : {std::pair<QString, QWidget*>{tr("La&ps"), m_laps},
                                       {tr("Distance between the &gates"), m_distance},
                                       {tr("Turn li&mit"), m_turnLimit}}) {
        auto* label = new QLabel(title);
        label->setBuddy(field);
        row->addWidget(label);
        row->addWidget(field);
        row->addSpacing(theme::LargeSpacing);
    }
    row->addStretch(1);
}

void SectionForm::makeTables() {
    m_sectionTable->setObjectName("sections");
    m_turnTable->setObjectName("turns");
    m_total->setObjectName("total");
}

void SectionForm::layOut() {
    auto* sectionTitle = new QLabel(tr("Sections"));
    sectionTitle->setFont(theme::titleFont(*this));
    m_turnTitle->setFont(theme::titleFont(*this));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(theme::Spacing);
    grid->addWidget(m_setUp, 0, 0, 1, 2);
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

void SectionForm::connectParts() {
    connect(m_laps, &WholeBox::valueChanged, this, [this](int laps) {
        emit edited(tr("number of laps"), [laps](onWaterTest& test) { test.laps = laps; });
    });
    connect(m_distance, &NumberBox::valueChanged, this, [this](double metres) {
        emit edited(tr("distance"), [metres](onWaterTest& test) { setDistance(test, metres); });
    });
    connect(m_turnLimit, &NumberBox::valueChanged, this, [this](double limit) {
        emit edited(tr("turn limit"), [limit](onWaterTest& test) { test.turnLimit = limit; });
    });
    connect(&m_sections, &EntryModel::entered, this, &SectionForm::enterSection);
    connect(&m_turns, &EntryModel::entered, this, &SectionForm::enterTurn);
}

void SectionForm::enterSection(int row, int column, double value) {
    std::vector<SectionEntry> sections = m_shown;
    SectionEntry& section = sections[static_cast<std::size_t>(row)];
    section.*sectionMember(column) = value;
    if (section.time > 0 && section.straightTime > section.time) {
        m_sectionTable->refuse(tr("The time in straight line is part of the time of its section: "
                                  "it cannot be longer."));
        return;
    }
    emit edited(tr("section %1").arg(row + 1),
                [sections](onWaterTest& test) { enterSections(test, sections); });
}

void SectionForm::enterTurn(int row, int column, double value) {
    constexpr double TurnEntry::*Members[] = {&TurnEntry::leftPeak, &TurnEntry::leftTime,
                                              &TurnEntry::rightPeak, &TurnEntry::rightTime};
    emit edited(tr("turn %1").arg(row + 1), [=](onWaterTest& test) {
        std::vector<TurnEntry> turns = turnEntries(test.test);
        turns.resize(std::max(turns.size(), static_cast<std::size_t>(row) + 1));
        turns[static_cast<std::size_t>(row)].*Members[column] = value;
        enterTurns(test.test, turns);
    });
}

void SectionForm::show(const onWaterTest& test) {
    const bool isSprint = test.kind == water_test::Sprint;
    const QSignalBlocker quiet[] = {QSignalBlocker(m_laps), QSignalBlocker(m_distance),
                                    QSignalBlocker(m_turnLimit)};
    m_laps->showValue(static_cast<int>(plannedSections(test)));
    m_distance->showValue(test.distance);
    m_turnLimit->showValue(test.turnLimit);
    m_setUp->setVisible(!isSprint);
    m_turnTitle->setVisible(!isSprint);
    m_turnTable->setVisible(!isSprint);
    m_description->setText(QString::fromStdString(
        isSprint ? SprintTestDescription : lapTestDescription(test.laps, test.distance)));
    showSections(test);
    EntryModel::Rows turns;
    for (const TurnEntry& turn : turnEntries(test.test))
        turns.push_back({turn.leftPeak, turn.leftTime, turn.rightPeak, turn.rightTime});
    turns.resize(std::max(turns.size() + 1, plannedSections(test)));
    const QStringList titles = numbered(tr("Turn %1"), turns.size());
    m_turns.show(std::move(turns), titles);
    m_sectionTable->updateGeometry();
    m_turnTable->updateGeometry();
}

void SectionForm::showSections(const onWaterTest& test) {
    m_shown = sectionEntries(test);
    EntryModel::Rows rows;
    for (const SectionEntry& section : m_shown)
        rows.push_back({section.time, section.straightTime,
                        section.straightTime > 0 ? section.time - section.straightTime : 0,
                        section.speed, section.strokeRate, section.strokeEfficiency});
    const bool isRecorded = hasRecordedStrokes(test.test);
    const QString told = tr("Told by the strokes that were recorded");
    m_sections.setReadOnly(RateColumn, isRecorded, isRecorded ? told : QString());
    m_sections.setReadOnly(EfficiencyColumn, isRecorded,
                           isRecorded ? told
                                      : tr("Follows from speed and stroke rate until typed"));
    const QStringList titles =
        numbered(test.kind == water_test::Sprint ? tr("Stretch %1") : tr("Lap %1"), rows.size());
    m_sections.show(std::move(rows), titles);
    const auto timed = std::ranges::count_if(
        m_shown, [](const SectionEntry& section) { return section.time > 0; });
    const bool isWhole = std::cmp_greater_equal(timed, plannedSections(test));
    QString total =
        isWhole || timed == 0
            ? tr("Total: %1 s").arg(hundredthsOrDash(test.test.totalTime))
            : tr("Total: – · %1 of %2 sections are timed").arg(timed).arg(plannedSections(test));
    if (isRecorded)
        total += tr(" · %1 strokes recorded").arg(test.test.strokeDate.size());
    m_total->setText(total);
}

} // namespace kavela::desktop
