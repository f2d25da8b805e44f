#include "desktop/charts/chart_plot.h"
#include "desktop/charts/gap_chart.h"
#include "desktop/charts/gate_chart.h"
#include "desktop/charts/section_chart.h"
#include "desktop/charts/series_labels.h"
#include "desktop/charts/totals_chart.h"
#include "desktop/shell/theme.h"

#include "desktop_charts/chart_races.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include <cmath>

namespace kavela::test {

using namespace kavela::desktop;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// The values of a series from the left to the right.
std::vector<double> valuesOf(const QCPGraph& graph) {
    std::vector<double> values;
    for (const QCPGraphData& point : *graph.data())
        values.push_back(std::round(point.value * 1e6) / 1e6);
    return values;
}

std::vector<std::vector<double>> linesOf(Chart& chart) {
    std::vector<std::vector<double>> lines;
    for (int i = 0; i < chart.plot().graphCount(); ++i)
        lines.push_back(valuesOf(*chart.plot().graph(i)));
    return lines;
}

std::vector<std::vector<double>> barsOf(GateChart& chart) {
    std::vector<std::vector<double>> bars;
    for (int i = 0; i < chart.plot().plottableCount(); ++i) {
        bars.emplace_back();
        for (const QCPBarsData& bar : *dynamic_cast<QCPBars&>(*chart.plot().plottable(i)).data())
            bars.back().push_back(bar.value);
    }
    return bars;
}

std::string emptyMessageOf(Chart& chart) {
    return chart.emptyMessage().toStdString();
}

/// Four charts of one race.
struct AllCharts {
    GapChart gap;
    SectionChart sections;
    GateChart gates;
    TotalsChart totals;

    [[nodiscard]] std::vector<Chart*> list() { return {&gap, &sections, &gates, &totals}; }
};

} // namespace

TEST(GapChart, DrawsALineForEachSelectedRunAsFarAsItWasTimed) {
    GapChart chart;
    chart.setRace(chartRaceSet());
    chart.setSelection({0, 1, 3});
    EXPECT_THAT(linesOf(chart), ElementsAre(ElementsAre(0, 0, 0, 0), ElementsAre(0, 0.5, 0, 1),
                                            ElementsAre(0, 1, 3)));
    chart.setSelection({1});
    EXPECT_EQ(chart.plot().graphCount(), 1);
}

TEST(GapChart, FollowsReferenceAndPenalties) {
    using Kind = CourseReferenceKind;
    struct Row {
        CourseReference reference;
        bool penaltiesIncluded;
        std::vector<double> cyd;
        const char* title;
    };
    GapChart chart;
    chart.setRace(chartRaceSet());
    chart.setSelection({2});
    for (const Row& row : {Row{{Kind::BestRun}, false, {0, 2, 3, 3}, "Gap to the best run: Ann"},
                           Row{{Kind::BestRun}, true, {0, 1.5, 53, 54}, "Gap to the best run: Bea"},
                           Row{{Kind::Median}, false, {0, 1.25, 1.75, 1.75}, "Gap to the median"},
                           Row{{Kind::Ideal}, false, {0, 2, 3.5, 3.5}, "Gap to the ideal run"},
                           Row{{Kind::Run, 3}, false, {0, 1, 0}, "Gap to Dee"},
                           Row{{Kind::Times, 0, "Eve", {11}}, false, {0, 1}, "Gap to Eve"}}) {
        chart.setReference(row.reference);
        chart.setPenaltiesIncluded(row.penaltiesIncluded);
        EXPECT_THAT(linesOf(chart), ElementsAre(row.cyd)) << row.title;
        EXPECT_THAT(chart.plot().title().toStdString(), testing::StartsWith(row.title));
    }
}

TEST(GapChart, ReadsOutEverySplitInTheOrderOfTheRuns) {
    GapChart chart;
    chart.setRace(chartRaceSet());
    chart.setSelection({0, 1, 2, 3});
    (void)chart.plot();
    const std::string text = chart.readOutOf(2).remove(QRegularExpression("<[^>]*>")).toStdString();
    EXPECT_EQ(text, "After PoolGapin Pool■Ann0.000.00■Bea0.00−0.50■Cyd+3.00+1.00■Dee+3.00+2.00");
    EXPECT_THAT(chart.readOutOf(3).toStdString(), testing::Not(HasSubstr("Dee")));
}

TEST(Charts, SayWhatToDoNextWhenThereIsNothingToShow) {
    AllCharts charts;
    for (Chart* chart : charts.list())
        EXPECT_EQ(emptyMessageOf(*chart), "Open a race to see its charts.");

    const RaceSet unfinished = makeRaceSet(raceOf(2, {runOf({0, 20})}), "a.kvx");
    for (Chart* chart : charts.list())
        chart->setRace(unfinished);
    EXPECT_THAT(emptyMessageOf(charts.gap), HasSubstr("Select runs in the table"));
    charts.gap.setSelection({0});
    EXPECT_THAT(emptyMessageOf(charts.gap), HasSubstr("Choose the median or a run"));
    charts.gap.setReference({CourseReferenceKind::Run, 0});
    EXPECT_THAT(emptyMessageOf(charts.gap), HasSubstr("no time in the first section"));
    EXPECT_THAT(emptyMessageOf(charts.gates), HasSubstr("penalties by gate"));
    EXPECT_THAT(emptyMessageOf(charts.totals), HasSubstr("No run has a time"));
    EXPECT_EQ(emptyMessageOf(charts.sections), "") << "one section was timed";

    charts.sections.setRace(makeRaceSet(raceOf(2, {runOf({})}), "a.kvx"));
    EXPECT_THAT(emptyMessageOf(charts.sections), HasSubstr("No section has been timed"));
    EXPECT_EQ(charts.gap.csv(), "");
}

TEST(Charts, KeepTheColourOfARunWhileOthersComeAndGo) {
    GapChart chart;
    chart.setRace(chartRaceSet());
    const auto colours = [&](const std::vector<std::size_t>& selection) {
        chart.setSelection(selection);
        (void)chart.plot();
        std::map<int, QRgb> byRun;
        for (const SeriesLabel& label : chart.labels().labels())
            byRun[label.id] = label.style.colour.rgb();
        return byRun;
    };
    const auto first = colours({1, 3});
    const auto second = colours({0, 3});
    EXPECT_EQ(first.at(3), second.at(3));
    EXPECT_EQ(first.at(1), second.at(0)) << "a colour that is free again is used again";
}

TEST(Charts, TellWhenMoreRunsAreSelectedThanColoursExist) {
    std::vector<athletedata031> runs;
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < MostSeries + 9; ++i) {
        runs.push_back(runOf({10 + static_cast<double>(i)}));
        all.push_back(i);
    }
    GapChart chart;
    chart.setRace(makeRaceSet(raceOf(1, runs), "a.kvx"));
    chart.setSelection(all);
    EXPECT_EQ(chart.plot().graphCount(), MostSeries);
    EXPECT_THAT(chart.plot().subtitle().toStdString(), HasSubstr("21 of 30 selected runs"));
    chart.setSelection({0, 5000});
    EXPECT_EQ(chart.plot().graphCount(), 1) << "a run that the race does not have";
}

TEST(Charts, FollowThePalette) {
    AllCharts charts;
    for (Chart* chart : charts.list()) {
        chart->setPalette(theme::lightPalette());
        chart->setRace(chartRaceSet());
        chart->setSelection({0});
        showNow(*chart);
        const QImage light = chart->grab().toImage();
        chart->setPalette(theme::darkPalette());
        QCoreApplication::processEvents();
        const QImage dark = chart->grab().toImage();
        EXPECT_GT(light.pixelColor(2, 250).lightness(), 200) << chart->name().toStdString();
        EXPECT_LT(dark.pixelColor(2, 250).lightness(), 80) << chart->name().toStdString();
    }
}

TEST(Charts, SurviveTheTimesOfADamagedFile) {
    splittakerdata031 race = raceOf(INT64_MAX, {runOf({1e308, -1e308, 1e308}),
                                                runOf({1e-300, 0, 4}), runOf({-5, 1e250, 1e308})});
    race.info.gates = 1;
    race.athletes[0].sectioninfo.pens = {INT64_MAX};
    AllCharts charts;
    for (const std::int64_t sections : {std::int64_t{3}, INT64_MAX}) {
        race.info.totalsplits = sections;
        for (Chart* chart : charts.list()) {
            chart->setRace(makeRaceSet(race, "a.kvx"));
            chart->setSelection({0, 1, 2});
            showNow(*chart);
            EXPECT_FALSE(chart->grab().isNull());
            (void)chart->csv();
        }
    }
}

TEST(SectionChart, CountsOnlyTheRunsThatWereTimed) {
    SectionChart chart;
    chart.setRace(chartRaceSet());
    chart.setSelection({3});
    chart.setForm(SectionChart::Form::Strip);
    EXPECT_THAT(linesOf(chart)[0], testing::UnorderedElementsAre(0, 0.5, 2, 0.5, 0, 1.5, 0, 1, 0))
        << "behind the best, by section; the selected run is drawn apart";
    EXPECT_THAT(linesOf(chart).back(), ElementsAre(1, 2.5));
    chart.setScale(SectionChart::Scale::Time);
    EXPECT_THAT(linesOf(chart).back(), ElementsAre(11, 22));
    EXPECT_EQ(chart.csv().toStdString(),
              "Section;Title;Runs;Fastest;Lower quartile;Median;Upper quartile;Slowest;Dee\n"
              "1;Start;4;10;10.375;10.75;11.25;12;11\n"
              "2;Pool;4;19.5;19.875;20.5;21.25;22;22\n"
              "3;Finish;3;30;30;30;30.5;31;\n");
}

TEST(SectionChart, ShowsABoxForEachSectionAndTheRunsFarFromIt) {
    std::vector<athletedata031> runs(8, runOf({10, 20}));
    runs.push_back(runOf({60, 20}));
    SectionChart chart;
    chart.setRace(makeRaceSet(raceOf(2, runs), "a.kvx"));
    showNow(chart);
    const auto* boxes = dynamic_cast<QCPStatisticalBox*>(chart.plot().plottable(0));
    ASSERT_NE(boxes, nullptr);
    EXPECT_EQ(boxes->data()->size(), 2);
    EXPECT_THAT(linesOf(chart), ElementsAre(ElementsAre(50)));

    QSignalSpy activated(&chart, &Chart::runActivated);
    QTest::mouseClick(&chart.plot(), Qt::LeftButton, {}, chart.plot().toPixel(0.5, 50).toPoint());
    ASSERT_EQ(activated.size(), 1);
    EXPECT_EQ(activated[0][0].value<std::size_t>(), 8U);
}

TEST(GateChart, StacksTouchesAndMissedGates) {
    GateChart chart;
    chart.setRace(chartRaceSet());
    EXPECT_THAT(barsOf(chart), ElementsAre(ElementsAre(0, 1, 1, 1), ElementsAre(0, 0, 1, 0)));
    chart.setSelection({2});
    EXPECT_EQ(chart.csv(), "Gate;Upstream;Touches;Missed;Cyd\n"
                           "1;0;0;0;0\n2;0;1;0;0\n3;1;1;1;50\n4;0;1;0;2\n");
    chart.toggleSeries(GateChart::TouchSeries);
    EXPECT_THAT(barsOf(chart), ElementsAre(ElementsAre(0, 0, 1, 0)));
    EXPECT_EQ(chart.csv().section('\n', 0, 0), "Gate;Upstream;Missed;Cyd");
    EXPECT_THAT(chart.readOutOf(3).toStdString(), HasSubstr("Gate 3, upstream"));
}

TEST(GateChart, LeadsFromAMarkToItsRun) {
    GateChart chart;
    chart.setRace(chartRaceSet());
    chart.setSelection({0, 2});
    showNow(chart);
    QSignalSpy activated(&chart, &Chart::runActivated);
    QTest::mouseClick(&chart.plot(), Qt::LeftButton, {}, chart.markOf(2, 3)->toPoint());
    QTest::mouseClick(&chart.plot(), Qt::LeftButton, {}, chart.markOf(0, 3)->toPoint());
    ASSERT_EQ(activated.size(), 2);
    EXPECT_EQ(activated[0][0].value<std::size_t>(), 2U);
    EXPECT_EQ(activated[1][0].value<std::size_t>(), 0U);
    EXPECT_EQ(chart.markOf(0, 1), std::nullopt) << "a clean gate has no mark";
}

TEST(TotalsChart, LeadsFromADotToItsRun) {
    TotalsChart chart;
    chart.setRace(chartRaceSet());
    showNow(chart);
    for (const std::size_t run : {0U, 1U, 2U}) {
        QSignalSpy activated(&chart, &Chart::runActivated);
        QTest::mouseClick(&chart.plot(), Qt::LeftButton, {}, chart.dotOf(run)->toPoint());
        ASSERT_EQ(activated.size(), 1);
        EXPECT_EQ(activated[0][0].value<std::size_t>(), run);
    }
    EXPECT_EQ(chart.dotOf(3), std::nullopt) << "stopped: it has no total";
    QSignalSpy activated(&chart, &Chart::runActivated);
    QTest::mouseClick(&chart.plot(), Qt::LeftButton, {}, chart.dotOf(0)->toPoint() + QPoint(40, 0));
    EXPECT_THAT(activated, IsEmpty()) << "beside the dot";
}

TEST(TotalsChart, DrawsSelectedRunsApartAndTellsTheRanking) {
    TotalsChart chart;
    chart.setRace(chartRaceSet());
    chart.setSelection({1});
    EXPECT_THAT(linesOf(chart),
                ElementsAre(testing::UnorderedElementsAre(60, 63), ElementsAre(61)));
    EXPECT_EQ(chart.csv(), "Place;Run;Time;Penalties;Result;Selected\n"
                           "1;Bea;61;0;61;1\n2;Ann;60;2;62;0\n3;Cyd;63;52;115;0\n");
    EXPECT_THAT(chart.plot().subtitle().toStdString(), HasSubstr("1 run without a total"));
}

TEST(SeriesLabels, MoveApartNoMoreThanNeeded) {
    struct Row {
        const char* name;
        std::vector<double> wanted;
        std::vector<double> placed;
    };
    for (const Row& row :
         {Row{"far apart", {10, 50}, {10, 50}}, Row{"too close", {10, 12, 50}, {10, 20, 50}},
          Row{"at the lower edge", {98, 99}, {90, 100}},
          Row{"above the upper edge", {-5, 0}, {0, 10}}, Row{"none", {}, {}}})
        EXPECT_EQ(spreadLabels(row.wanted, 10, 0, 100), row.placed) << row.name;
}

} // namespace kavela::test
