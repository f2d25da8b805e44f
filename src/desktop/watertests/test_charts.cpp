#include "desktop/watertests/test_charts.h"

#include "common/text.h"
#include "desktop/shell/shown_number.h"
#include "planning/test_entry.h"
#include "planning/test_sections.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <functional>

namespace kavela::desktop {

namespace {

constexpr double Unknown = std::numeric_limits<double>::quiet_NaN();
constexpr SummaryLabels OtherLabels{KAVELA_TEXT("Average:"), KAVELA_TEXT("Average variation:"),
                                    KAVELA_TEXT("Total variation:")};
constexpr SummaryLabels AverageLabels{KAVELA_TEXT("Average:"), nullptr, nullptr};
constexpr SummaryLabels PowerLabels{KAVELA_TEXT("Average:"), KAVELA_TEXT("Average increase:"),
                                    KAVELA_TEXT("Total increase:")};

struct TestCharts {
    Q_DECLARE_TR_FUNCTIONS(TestCharts)
};

double known(std::optional<double> value) {
    return value && std::isfinite(*value) && *value != 0 ? *value : Unknown;
}

/// A chart of series that are measured in the same way.
struct ChartKind {
    const char* title;
    const char* axis;
    const char* help = "";
    SummaryLabels labels = OtherLabels;
};

using ValuesOf = std::function<std::vector<double>(const ListedTest&)>;

ChartSummary summaryFor(const ShownTest& shown, const std::vector<double>& values,
                        const SummaryLabels& labels) {
    return {shown.name, shown.slot, QString::fromStdString(summaryText(summaryOf(values), labels))};
}

TestChart emptyChart(const ChartKind& kind, const QString& across, const QString& emptyText) {
    TestChart chart;
    chart.content.title = TestCharts::tr(kind.title);
    chart.content.yTitle = TestCharts::tr(kind.axis);
    chart.content.xTitle = across;
    chart.content.emptyText = emptyText;
    chart.help = TestCharts::tr(kind.help);
    return chart;
}

/// A chart of a value by number, such as by lap.
TestChart chartByNumber(const ChartKind& kind, const std::vector<ShownTest>& tests,
                        const QString& across, const ValuesOf& valuesOf) {
    TestChart chart = emptyChart(kind, across, TestCharts::tr("Not recorded, and not entered"));
    chart.content.across = ChartContent::Across::Category;
    std::size_t most = 0;
    for (const ShownTest& shown : tests) {
        const std::vector<double> values = valuesOf(*shown.test);
        ChartSeries series{.name = shown.name, .points = {}, .slot = shown.slot};
        for (std::size_t i = 0; i < values.size(); ++i)
            series.points.emplace_back(static_cast<double>(i), values[i]);
        most = std::max(most, values.size());
        chart.content.series.push_back(std::move(series));
        chart.summaries.push_back(summaryFor(shown, values, kind.labels));
    }
    for (std::size_t i = 1; i <= most; ++i)
        chart.content.categories.append(QString::number(i));
    return chart;
}

struct SectionKind {
    ChartKind kind;
    std::optional<double> (*value)(const TestSection& section);
};

std::optional<double> rotationOf(const TestSection& section) {
    return section.straightTime.value_or(0) > 0 ? section.rotationTime : std::nullopt;
}

std::optional<double> rollOf(const TestSection& section) {
    return section.roll ? std::optional(*section.roll * DegreesPerRadian) : std::nullopt;
}

std::vector<SectionKind> sectionKinds(bool isLap) {
    using Section = TestSection;
    std::vector<SectionKind> kinds;
    if (isLap)
        kinds = {{{KAVELA_TEXT("Lap time"), test_axis::Time, test_help::LapTime},
                  [](const Section& section) { return std::optional(section.time); }},
                 {{KAVELA_TEXT("Time in straight line"), test_axis::Time, test_help::StraightTime},
                  [](const Section& section) { return section.straightTime; }},
                 {{KAVELA_TEXT("Time in rotation"), test_axis::Time, test_help::RotationTime},
                  rotationOf}};
    const auto onLaps = [&](const char* help) { return isLap ? help : ""; };
    const SectionKind others[] = {
        {{KAVELA_TEXT("Average speed"), test_axis::Speed},
         [](const Section& section) { return section.speed; }},
        {{"Stroke rate", test_axis::StrokeRate, onLaps(test_help::StrokeRate), StrokeRateLabels},
         [](const Section& section) { return section.strokeRate; }},
        {{test_series::StrokeEfficiency, test_axis::StrokeEfficiency},
         [](const Section& section) { return section.strokeEfficiency; }},
        {{KAVELA_TEXT("Maximum acceleration"), test_axis::MaximumAcceleration,
          onLaps(test_help::MaximumAcceleration), AccelerationLabels},
         [](const Section& section) { return section.maximumAcceleration; }},
        {{KAVELA_TEXT("Average acceleration"), test_axis::AverageAcceleration,
          onLaps(test_help::AverageAcceleration), AccelerationLabels},
         [](const Section& section) { return section.averageAcceleration; }},
        {{KAVELA_TEXT("Average deacceleration"), test_axis::AverageDeceleration,
          onLaps(test_help::AverageDeceleration), AccelerationLabels},
         [](const Section& section) { return section.averageDeceleration; }},
        {{KAVELA_TEXT("Roll movement"), KAVELA_TEXT("Roll (°)"), onLaps(test_help::Roll),
          RollLabels},
         rollOf}};
    kinds.insert(kinds.end(), std::begin(others), std::end(others));
    return kinds;
}

std::vector<TestChart> sectionCharts(const std::vector<ShownTest>& tests) {
    const bool isLap = tests.front().test->kind() == TestKind::Lap;
    std::vector<TestChart> charts;
    for (const SectionKind& section : sectionKinds(isLap))
        charts.push_back(
            chartByNumber(section.kind, tests,
                          isLap ? TestCharts::tr("Lap") : TestCharts::tr("Stretch of the sprint"),
                          [&](const ListedTest& test) {
                              std::vector<double> values;
                              for (const TestSection& told : testSections(test.run()->test))
                                  values.push_back(known(section.value(told)));
                              return values;
                          }));
    return charts;
}

struct SeriesKind {
    ChartKind kind;
    std::vector<double> testStruct::*series;
    double scale = 1;
};

std::vector<double> scaled(const std::vector<double>& values, double scale) {
    std::vector<double> known;
    for (const double value : values)
        known.push_back(kavela::desktop::known(value * scale));
    return known;
}

std::vector<TestChart> turnCharts(const std::vector<ShownTest>& tests) {
    const SeriesKind kinds[] = {
        {{test_series::LeftRotationPeak, test_axis::LeftRotationPeak, test_help::RotationPeak},
         &testStruct::leftRotations},
        {{test_series::RightRotationPeak, test_axis::RightRotationPeak, test_help::RotationPeak},
         &testStruct::rightRotations},
        {{test_series::LeftRotationDuration, test_axis::LeftRotationTime},
         &testStruct::leftRotationsTime},
        {{test_series::RightRotationDuration, test_axis::RightRotationTime},
         &testStruct::rightRotationsTime}};
    std::vector<TestChart> charts;
    for (const SeriesKind& turn : kinds)
        charts.push_back(
            chartByNumber(turn.kind, tests, TestCharts::tr("Turn"), [&](const ListedTest& test) {
                return scaled(test.run()->test.*turn.series, 1);
            }));
    return charts;
}

/// Seconds from the start of a test for each date; nothing where they are out of order.
std::vector<double> secondsOf(const testStruct& test, const std::vector<ReferenceDate>& dates) {
    std::vector<double> seconds;
    if (std::ranges::is_sorted(dates))
        for (const ReferenceDate& date : dates)
            seconds.push_back(date.seconds - test.date.seconds);
    return seconds;
}

/// A chart of a value over the seconds of a test.
TestChart chartOverTime(const ChartKind& kind, const std::vector<ShownTest>& tests,
                        const ValuesOf& valuesOf,
                        const std::function<std::vector<double>(const ListedTest&)>& momentsOf) {
    TestChart chart = emptyChart(kind, TestCharts::tr("Time from the start (s)"),
                                 TestCharts::tr("Only a recording tells this"));
    for (const ShownTest& shown : tests) {
        const std::vector<double> values = valuesOf(*shown.test);
        const std::vector<double> moments = momentsOf(*shown.test);
        ChartSeries series{
            .name = shown.name, .points = {}, .form = ChartSeries::Form::Line, .slot = shown.slot};
        for (std::size_t i = 0; i < std::min(values.size(), moments.size()); ++i)
            series.points.emplace_back(moments[i], values[i]);
        if (series.points.size() < 2 && !values.empty())
            series.form = ChartSeries::Form::Points;
        chart.content.series.push_back(std::move(series));
        chart.summaries.push_back(summaryFor(shown, values, kind.labels));
    }
    return chart;
}

std::vector<SeriesKind> strokeKinds() {
    return {
        {{"Stroke rate", test_axis::StrokeRate, "", StrokeRateLabels}, &testStruct::strokeRate},
        {{test_series::StrokeEfficiency, test_axis::StrokeEfficiency},
         &testStruct::strokeEfficiency},
        {{KAVELA_TEXT("Maximum force"), test_axis::MaximumForce}, &testStruct::maxForce},
        {{"Power", "Power (W)", "", PowerLabels}, &testStruct::pow},
        {{"Impulse", KAVELA_TEXT("Impulse (N s)")}, &testStruct::impulses},
        {{KAVELA_TEXT("Maximum acceleration"), test_axis::MaximumAcceleration, "",
          AccelerationLabels},
         &testStruct::maxAcce},
        {{KAVELA_TEXT("Average acceleration"), test_axis::AverageAcceleration, "",
          AccelerationLabels},
         &testStruct::aveAcce},
        {{KAVELA_TEXT("Average deacceleration"), test_axis::AverageDeceleration, "",
          AccelerationLabels},
         &testStruct::avedeacce},
        {{KAVELA_TEXT("Largest negative acceleration"), KAVELA_TEXT("Negative acceleration (m/s2)"),
          "", AccelerationLabels},
         &testStruct::maxAcceNeg},
        {{KAVELA_TEXT("Effective water phase"), test_axis::WaterPhase, "", WaterPhaseLabels},
         &testStruct::waterPhase},
        {{"Aerial phase", test_axis::AerialPhase, "", AerialPhaseLabels}, &testStruct::airPhase},
        {{KAVELA_TEXT("Roll movement"), KAVELA_TEXT("Roll (°)"), "", RollLabels},
         &testStruct::roll,
         DegreesPerRadian}};
}

std::vector<TestChart> strokeCharts(const std::vector<ShownTest>& tests) {
    std::vector<TestChart> charts;
    charts.push_back(chartOverTime(
        {"Speed", "Speed (m/s)", "", AverageLabels}, tests,
        [](const ListedTest& test) { return test.run()->test.speed; },
        [](const ListedTest& test) {
            return secondsOf(test.run()->test, test.run()->test.speedDate);
        }));
    for (const SeriesKind& stroke : strokeKinds())
        charts.push_back(chartOverTime(
            stroke.kind, tests,
            [&](const ListedTest& test) {
                return scaled(test.run()->test.*stroke.series, stroke.scale);
            },
            [](const ListedTest& test) {
                return secondsOf(test.run()->test, test.run()->test.strokeDate);
            }));
    return charts;
}

} // namespace

std::vector<ShownTest> shownTests(const TestList& tests) {
    const auto isSame = [&](const auto& fact) {
        return std::ranges::all_of(
            tests, [&](const auto& test) { return fact(*test) == fact(*tests.front()); });
    };
    const bool isOneAthlete = isSame([](const ListedTest& test) { return test.athlete(); });
    const bool isOneDay = isSame([](const ListedTest& test) { return test.day(); });
    std::vector<ShownTest> shown;
    for (const auto& test : tests) {
        QString name = test->title();
        if (isOneAthlete && (!isOneDay || tests.size() == 1))
            name = test->day();
        else if (isOneDay && !isOneAthlete)
            name = test->athlete();
        const auto namesakes = std::ranges::count_if(
            shown, [&](const ShownTest& other) { return other.name.section(" #", 0, 0) == name; });
        if (namesakes > 0)
            name += QString(" #%1").arg(namesakes + 1);
        shown.push_back({test, name, shown.size()});
    }
    return shown;
}

std::vector<TestChart> runCharts(const std::vector<ShownTest>& tests, ChartGroup group) {
    if (tests.empty())
        return {};
    switch (group) {
    case ChartGroup::Sections:
        return sectionCharts(tests);
    case ChartGroup::Turns:
        return turnCharts(tests);
    case ChartGroup::Strokes:
        return strokeCharts(tests);
    }
    return {};
}

std::vector<TestChart> eightCharts(const std::vector<ShownTest>& tests) {
    const auto run = [](const ListedTest& test) -> const datafor8& { return test.eight()->run; };
    std::vector<TestChart> charts;
    charts.push_back(chartByNumber(
        {test_series::RightRotationPeak, test_axis::RightRotationPeak, test_help::RotationPeak},
        tests, TestCharts::tr("Turn"),
        [&](const ListedTest& test) { return scaled(run(test).zrotsubmaxR, 1); }));
    charts.push_back(chartByNumber(
        {test_series::LeftRotationPeak, test_axis::LeftRotationPeak, test_help::RotationPeak},
        tests, TestCharts::tr("Turn"),
        [&](const ListedTest& test) { return scaled(run(test).zrotsubmaxL, 1); }));
    TestChart rotation = chartOverTime(
        {KAVELA_TEXT("Rotation about the vertical axis"), "Rotation (rad/s)",
         KAVELA_TEXT("Turns to the left are above 0, turns to the right below.")},
        tests, [&](const ListedTest& test) { return run(test).zrotation; },
        [&](const ListedTest& test) {
            std::vector<double> seconds;
            for (const ReferenceDate& date : run(test).date)
                seconds.push_back(date.seconds - run(test).date.front().seconds);
            return seconds;
        });
    rotation.summaries.clear();
    charts.push_back(std::move(rotation));
    charts.push_back(chartByNumber({"Splits", test_axis::Time}, tests, TestCharts::tr("Split"),
                                   [&](const ListedTest& test) {
                                       const auto splits = splitsOf(run(test));
                                       return scaled({splits.begin(), splits.end()}, 1);
                                   }));
    return charts;
}

} // namespace kavela::desktop
