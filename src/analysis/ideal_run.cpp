#include "analysis/ideal_run.h"

#include "analysis/standing.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <numeric>

namespace kavela {

namespace {

IdealSection bestOfSection(const RaceSet& set, std::span<const std::size_t> runs,
                           std::size_t section) {
    IdealSection best;
    for (const std::size_t run : runs) {
        const sectionmaindata& timing = set.alldata[run].sectioninfo;
        if (sectionStanding(timing, section) != TimeStanding::Counts)
            continue;
        if (const double time = timing.times[section]; !best.run || time < best.time)
            best = {time, run};
    }
    return best;
}

std::optional<std::size_t> fastestFullRun(const RaceSet& set, std::span<const std::size_t> runs) {
    std::optional<std::size_t> fastest;
    const auto time = [&](std::size_t run) { return set.alldata[run].sectioninfo.totaltime; };
    for (const std::size_t run : runs)
        if (isWhole(set, set.alldata[run]) && (!fastest || time(run) < time(*fastest)))
            fastest = run;
    return fastest;
}

} // namespace

IdealRun idealRun(const RaceSet& set, std::span<const std::size_t> runs) {
    // A damaged file may claim any number of sections: those that no run came to are not listed.
    std::size_t longest = 0;
    for (const std::size_t run : runs)
        longest = std::max(longest, set.alldata[run].sectioninfo.times.size());
    const auto course = static_cast<std::size_t>(std::max<std::int64_t>(set.totalsplits, 0));

    IdealRun ideal;
    double sum = 0;
    bool isWhole = course > 0 && course <= longest;
    for (std::size_t i = 0; i < std::min(course, longest); ++i) {
        ideal.sections.push_back(bestOfSection(set, runs, i));
        sum += ideal.sections.back().time;
        isWhole = isWhole && ideal.sections.back().run;
    }
    if (isWhole)
        ideal.total = sum;
    ideal.fastest = fastestFullRun(set, runs);
    return ideal;
}

IdealRun idealRun(const RaceSet& set) {
    std::vector<std::size_t> all(set.alldata.size());
    std::iota(all.begin(), all.end(), 0U);
    return idealRun(set, all);
}

} // namespace kavela
