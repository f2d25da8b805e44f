#pragma once

#include "planning/test_records.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// What a test run was like section by section: lap by lap, or stretch by stretch of a sprint.
namespace kavela {

/// The strokes of one section: from `first` up to, not including, `end`.
struct StrokeRange {
    std::size_t first = 0;
    std::size_t end = 0;

    [[nodiscard]] std::size_t count() const { return end - first; }
};

/// The strokes of each section, by their dates; the first section begins at the date of the test.
/// Empty ranges where the dates are not in order or there are none.
[[nodiscard]] std::vector<StrokeRange> strokesBySection(const testData& test);

/// The middle strokes of a section: all but the first and the last quarter, so that neither the
/// way out of a turn nor the way into the next one counts.
[[nodiscard]] StrokeRange middleOf(StrokeRange section);

/// The values of one section; nothing where there is no stroke or no entry to tell them.
struct TestSection {
    double time = 0; ///< seconds
    std::optional<double> straightTime;
    std::optional<double> rotationTime; ///< the rest of the time
    std::optional<double> speed;        ///< m/s
    std::optional<double> strokeRate;   ///< mean over the middle strokes, as are the others below
    std::optional<double> strokeEfficiency;
    std::optional<double> maximumAcceleration; ///< the greatest of them
    std::optional<double> averageAcceleration;
    std::optional<double> averageDeceleration;
    std::optional<double> roll;
};

[[nodiscard]] std::vector<TestSection> testSections(const testData& test);

} // namespace kavela
