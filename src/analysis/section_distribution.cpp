#include "analysis/section_distribution.h"

#include "analysis/course_gaps.h"
#include "analysis/standing.h"
#include "common/percentile.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double WhiskerReach = 1.5; ///< quartile distances

std::vector<SectionValue> timedValues(const RaceSet& set, std::size_t section,
                                      bool penaltiesIncluded) {
    constexpr auto Merged = TimeStanding::Merged;
    std::vector<SectionValue> values;
    for (std::size_t run = 0; run < set.alldata.size(); ++run)
        if (const double time = comparedTime(set.alldata[run], section, penaltiesIncluded);
            time != 0 && sectionStanding(set.alldata[run].sectioninfo, section) != Merged)
            values.push_back({run, time});
    std::ranges::stable_sort(values, {}, &SectionValue::time);
    return values;
}

void fillDistribution(SectionDistribution& section) {
    std::vector<double> times;
    for (const SectionValue& value : section.values)
        times.push_back(value.time);
    section.minimum = times.front();
    section.lowerQuartile = percentile(times, 0.25);
    section.median = percentile(times, 0.5);
    section.upperQuartile = percentile(times, 0.75);
    section.maximum = times.back();

    const double reach = WhiskerReach * (section.upperQuartile - section.lowerQuartile);
    section.lowerWhisker = section.minimum;
    section.upperWhisker = section.maximum;
    if (!std::isfinite(reach)) // times too large to be taken from one another
        return;
    section.lowerWhisker = *std::ranges::lower_bound(times, section.lowerQuartile - reach);
    section.upperWhisker = *(std::ranges::upper_bound(times, section.upperQuartile + reach) - 1);
}

} // namespace

std::vector<SectionDistribution> sectionDistributions(const RaceSet& set, bool penaltiesIncluded) {
    std::vector<SectionDistribution> sections(timedSections(set));
    for (std::size_t i = 0; i < sections.size(); ++i) {
        sections[i].values = timedValues(set, i, penaltiesIncluded);
        if (!sections[i].values.empty())
            fillDistribution(sections[i]);
    }
    return sections;
}

} // namespace kavela
