#include "analysis/ideal_run.h"

#include "analysis/analysis_rules.h"
#include "analysis/run_place.h"
#include "analysis/standing.h"
#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <numeric>

namespace kavela {

namespace {

IdealSection bestOfSection(const RaceSet& set, std::span<const std::size_t> runs,
                           std::size_t section, Why* why) {
    IdealSection best;
    std::size_t counted = 0;
    for (const std::size_t run : runs) {
        const sectionmaindata& timing = set.alldata[run].sectioninfo;
        if (sectionStanding(timing, section) != TimeStanding::Counts)
            continue;
        ++counted;
        if (const double time = timing.times[section]; !best.run || time < best.time)
            best = {time, run};
    }
    if (why && best.run) {
        why->input("times that stand alone", static_cast<double>(counted));
        const analyzerdata& run = set.alldata[*best.run];
        why->input(run.name, best.time, runPlace(run, section + 1));
        why->result(ruleOf(AnalysisRule::IdealSection), best.time, hundredthsText(best.time));
    }
    return best;
}

/// Where the best of a section is told: as the answer itself, as a part of the answer, or nowhere.
Why* listenerOf(std::size_t section, const IdealQuestion& question, Why* why) {
    if (!why)
        return nullptr;
    if (!question.section)
        return why->part();
    if (!question.isAccumulated)
        return section + 1 == *question.section ? why : nullptr;
    return section < *question.section ? why->part() : nullptr;
}

void tellSum(const IdealRun& ideal, const IdealQuestion& question, Why& why) {
    if (!question.section && ideal.total) {
        why.result(ruleOf(AnalysisRule::IdealTotal), *ideal.total, hundredthsText(*ideal.total));
    } else if (question.section && question.isAccumulated &&
               *question.section <= ideal.sections.size()) {
        double sum = 0;
        for (const IdealSection& best : std::span(ideal.sections).first(*question.section))
            sum += best.time;
        why.result(ruleOf(AnalysisRule::IdealAccumulated), sum, hundredthsText(sum));
    }
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

IdealRun idealRun(const RaceSet& set, std::span<const std::size_t> runs,
                  const IdealQuestion& question, Why* why) {
    // A damaged file may claim any number of sections: those that no run came to are not listed.
    std::size_t longest = 0;
    for (const std::size_t run : runs)
        longest = std::max(longest, set.alldata[run].sectioninfo.times.size());
    const auto course = static_cast<std::size_t>(std::max<std::int64_t>(set.totalsplits, 0));

    IdealRun ideal;
    double sum = 0;
    bool isWhole = course > 0 && course <= longest;
    for (std::size_t i = 0; i < std::min(course, longest); ++i) {
        ideal.sections.push_back(bestOfSection(set, runs, i, listenerOf(i, question, why)));
        sum += ideal.sections.back().time;
        isWhole = isWhole && ideal.sections.back().run;
    }
    if (isWhole)
        ideal.total = sum;
    ideal.fastest = fastestFullRun(set, runs);
    if (why)
        tellSum(ideal, question, *why);
    return ideal;
}

IdealRun idealRun(const RaceSet& set, const IdealQuestion& question, Why* why) {
    std::vector<std::size_t> all(set.alldata.size());
    std::iota(all.begin(), all.end(), 0U);
    return idealRun(set, all, question, why);
}

} // namespace kavela
