#include "planning/test_sections.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

std::optional<double> timeAt(const std::vector<double>& values, std::size_t index) {
    if (index >= values.size() || !std::isfinite(values[index]))
        return std::nullopt;
    return values[index];
}

/// The finite values of a series that belong to some strokes.
std::vector<double> valuesOf(const std::vector<double>& series, StrokeRange strokes) {
    std::vector<double> values;
    for (std::size_t i = strokes.first; i < std::min(strokes.end, series.size()); ++i)
        if (std::isfinite(series[i]))
            values.push_back(series[i]);
    return values;
}

std::optional<double> meanOf(const std::vector<double>& series, StrokeRange strokes) {
    const std::vector<double> values = valuesOf(series, strokes);
    if (values.empty())
        return std::nullopt;
    double mean = 0;
    for (const double value : values)
        mean += value / static_cast<double>(values.size());
    return mean;
}

std::optional<double> greatestOf(const std::vector<double>& series, StrokeRange strokes) {
    const std::vector<double> values = valuesOf(series, strokes);
    if (values.empty())
        return std::nullopt;
    return *std::ranges::max_element(values);
}

TestSection sectionAt(const testData& test, std::size_t index, StrokeRange strokes) {
    TestSection section;
    section.time = test.splits[index];
    section.straightTime = timeAt(test.straightTime, index);
    if (section.straightTime)
        section.rotationTime = section.time - *section.straightTime;
    section.speed = timeAt(test.aveSpeed, index);
    section.strokeRate = meanOf(test.strokeRate, strokes);
    section.strokeEfficiency = meanOf(test.strokeEfficiency, strokes);
    section.maximumAcceleration = greatestOf(test.maxAcce, strokes);
    section.averageAcceleration = meanOf(test.aveAcce, strokes);
    section.averageDeceleration = meanOf(test.avedeacce, strokes);
    section.roll = meanOf(test.roll, strokes);
    return section;
}

} // namespace

std::vector<StrokeRange> strokesBySection(const testData& test) {
    std::vector<StrokeRange> ranges(test.splits.size());
    const std::vector<ReferenceDate>& dates = test.strokeDate;
    if (!std::ranges::is_sorted(dates))
        return ranges;
    double end = test.date.seconds;
    auto next = std::ranges::lower_bound(dates, test.date);
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        end += test.splits[i];
        ranges[i].first = static_cast<std::size_t>(next - dates.begin());
        next = std::find_if(next, dates.end(),
                            [&](const ReferenceDate& date) { return !(date.seconds < end); });
        ranges[i].end = static_cast<std::size_t>(next - dates.begin());
    }
    return ranges;
}

StrokeRange middleOf(StrokeRange section) {
    const std::size_t quarter = section.count() / 4;
    return {section.first + quarter, section.end - quarter};
}

std::vector<TestSection> testSections(const testData& test) {
    const std::vector<StrokeRange> ranges = strokesBySection(test);
    std::vector<TestSection> sections;
    for (std::size_t i = 0; i < ranges.size(); ++i)
        sections.push_back(sectionAt(test, i, middleOf(ranges[i])));
    return sections;
}

} // namespace kavela
