#include "splittaking/expected_split.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela {

namespace {

/// A run that was this much slower or faster in a section had an accident there, or a wrong mark.
constexpr double MostRatio = 2;

bool isTimed(const SectionTimes& run, std::size_t section) {
    return section < run.times.size() && std::isfinite(run.times[section]) &&
           run.times[section] > 0;
}

std::optional<double> median(std::vector<double> values) {
    if (values.empty())
        return std::nullopt;
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    if (values.size() % 2 == 1)
        return *middle;
    return (*middle + *std::max_element(values.begin(), middle)) / 2;
}

std::optional<double> usualTime(const SectionTimes& run, std::size_t section,
                                std::span<const SectionTimes> others) {
    std::vector<double> same;
    std::vector<double> all;
    for (const SectionTimes& other : others) {
        if (!isTimed(other, section))
            continue;
        all.push_back(other.times[section]);
        if (other.category == run.category)
            same.push_back(other.times[section]);
    }
    return median(same.empty() ? std::move(all) : std::move(same));
}

/// How this run stands to the others so far; 1 as long as nothing tells.
double pace(const SectionTimes& run, std::span<const SectionTimes> others) {
    std::vector<double> ratios;
    for (std::size_t section = 0; section < run.times.size(); ++section)
        if (const auto usual = usualTime(run, section, others); usual && isTimed(run, section))
            ratios.push_back(run.times[section] / *usual);
    return std::clamp(median(std::move(ratios)).value_or(1), 1 / MostRatio, MostRatio);
}

} // namespace

SectionTimes timedSections(std::string category, std::vector<double> splitTimes) {
    for (std::size_t split = splitTimes.size(); split-- > 1;)
        if (splitTimes[split - 1] == 0)
            splitTimes[split] = 0;
    return {std::move(category), std::move(splitTimes)};
}

std::optional<double> expectedSection(const SectionTimes& run, std::size_t section,
                                      std::span<const SectionTimes> others) {
    const auto usual = usualTime(run, section, others);
    return usual ? std::optional(*usual * pace(run, others)) : std::nullopt;
}

std::optional<double> expectedSections(const SectionTimes& run, std::size_t from, std::size_t to,
                                       std::span<const SectionTimes> others) {
    double seconds = 0;
    for (std::size_t section = from; section < to; ++section) {
        const auto expected = expectedSection(run, section, others);
        if (!expected)
            return std::nullopt;
        seconds += *expected;
    }
    return seconds;
}

} // namespace kavela
