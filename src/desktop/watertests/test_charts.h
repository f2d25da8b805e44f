#pragma once

#include "desktop/charts/series_chart.h"
#include "desktop/watertests/listed_test.h"
#include "planning/test_texts.h"

/// What the charts of tests show.
namespace kavela::desktop {

/// A test in the charts: its name there, and its place among the colours.
struct ShownTest {
    std::shared_ptr<const ListedTest> test;
    QString name;
    std::size_t slot = 0;
};

/// Names and colours for tests that are laid over each other: what they differ in tells them apart.
[[nodiscard]] std::vector<ShownTest> shownTests(const TestList& tests);

/// What stands under a chart for one test.
struct ChartSummary {
    QString name;
    std::size_t slot = 0;
    QString text; ///< one line for each figure
};

struct TestChart {
    ChartContent content;
    QString help;
    std::vector<ChartSummary> summaries;
};

enum class ChartGroup { Sections, Turns, Strokes };

/// The charts of lap tests or sprints. Values of 0 are gaps: nothing was recorded or typed.
[[nodiscard]] std::vector<TestChart> runCharts(const std::vector<ShownTest>& tests,
                                               ChartGroup group);

/// The charts of eight tests: the peaks of rotation to the right and to the left, the rotation
/// about the vertical axis over time, and the splits.
[[nodiscard]] std::vector<TestChart> eightCharts(const std::vector<ShownTest>& tests);

} // namespace kavela::desktop
