#include "analysis/course_gaps.h"

#include "analysis/ideal_run.h"
#include "analysis/ranking.h"
#include "analysis/section_distribution.h"
#include "analysis/standing.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela {

namespace {

std::vector<double> medianTimes(const RaceSet& set, bool penaltiesIncluded) {
    std::vector<double> times;
    for (const SectionDistribution& section : sectionDistributions(set, penaltiesIncluded))
        times.push_back(section.median);
    return times;
}

std::vector<double> idealTimes(const RaceSet& set) {
    std::vector<double> times;
    for (const IdealSection& section : idealRun(set).sections)
        times.push_back(section.time);
    return times;
}

std::vector<double> timesOfRun(const RaceSet& set, std::optional<std::size_t> run,
                               bool penaltiesIncluded) {
    if (!run || *run >= set.alldata.size())
        return {};
    return comparedTimes(set, set.alldata[*run], penaltiesIncluded);
}

} // namespace

std::size_t timedSections(const RaceSet& set) {
    std::size_t longest = 0;
    for (const analyzerdata& run : set.alldata)
        longest = std::max(longest, run.sectioninfo.times.size());
    const std::int64_t course = std::max<std::int64_t>(set.totalsplits, 0);
    return std::min(static_cast<std::size_t>(course), longest);
}

double comparedTime(const analyzerdata& run, std::size_t section, bool penaltiesIncluded) {
    const double time = entryOrZero(run.sectioninfo.times, section);
    const std::int64_t penalty =
        isTaken(time) && penaltiesIncluded ? entryOrZero(run.sectioninfo.pens, section) : 0;
    const double compared = time + static_cast<double>(penalty);
    return isTaken(compared) ? compared : 0;
}

std::vector<double> comparedTimes(const RaceSet& set, const analyzerdata& run,
                                  bool penaltiesIncluded) {
    std::vector<double> times(timedSections(set));
    for (std::size_t i = 0; i < times.size(); ++i)
        times[i] = comparedTime(run, i, penaltiesIncluded);
    return times;
}

std::optional<std::size_t> bestRun(const RaceSet& set, bool penaltiesIncluded) {
    if (!penaltiesIncluded)
        return idealRun(set).fastest;
    std::vector<std::size_t> all(set.alldata.size());
    std::iota(all.begin(), all.end(), 0U);
    const std::vector<RankedRun> ranked = ranking(set, all);
    return ranked.empty() ? std::nullopt : std::optional(ranked.front().run);
}

std::vector<double> referenceTimes(const RaceSet& set, const CourseReference& reference,
                                   bool penaltiesIncluded) {
    switch (reference.kind) {
    case CourseReferenceKind::BestRun:
        return timesOfRun(set, bestRun(set, penaltiesIncluded), penaltiesIncluded);
    case CourseReferenceKind::Median:
        return medianTimes(set, penaltiesIncluded);
    case CourseReferenceKind::Ideal:
        return idealTimes(set);
    case CourseReferenceKind::Run:
        return timesOfRun(set, reference.run, penaltiesIncluded);
    case CourseReferenceKind::Times:
        return reference.times;
    }
    return {};
}

std::vector<SectionGap> courseGaps(std::span<const double> times,
                                   std::span<const double> reference) {
    std::vector<SectionGap> gaps;
    double accumulated = 0;
    for (std::size_t i = 0; i < std::min(times.size(), reference.size()); ++i) {
        const double difference = times[i] - reference[i];
        accumulated += difference;
        // Times of a damaged file may be too large for their sum, which then says nothing.
        if (times[i] == 0 || reference[i] == 0 || !std::isfinite(accumulated))
            break;
        gaps.push_back({difference, accumulated});
    }
    return gaps;
}

} // namespace kavela
