#include "splittaking/perfect_time.h"

#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela {

namespace {

constexpr std::size_t LastSplitSlot = 10;
constexpr std::size_t LastSprintSlot = 11;

std::size_t slotsFor(const std::vector<athletedata031>& runs) {
    std::size_t slots = LastSprintSlot + 1;
    for (const athletedata031& run : runs)
        slots = std::max(slots, run.sectioninfo.times.size() + 1);
    return slots;
}

void takeBest(const sectiondata030& timing, std::vector<double>& best) {
    for (std::size_t k = 0; k < timing.times.size(); ++k) {
        const double time = timing.times[k];
        double& slot = best[std::min(k, LastSplitSlot)];
        if (time != 0 && (slot == 0 || time < slot))
            slot = time;
    }
    double& slot = best[std::min(timing.times.size(), LastSprintSlot)];
    if (slot == 0 || (timing.sprinttime > 0 && timing.sprinttime < slot))
        slot = timing.sprinttime;
    for (double& value : best)
        if (value < 0)
            value = 0;
}

/// Ascending order with not-a-number at the end.
bool isBefore(double a, double b) {
    return a < b || (std::isnan(b) && !std::isnan(a));
}

void dropSmallestAndLargest(std::vector<double>& ascending) {
    const bool hasLargest = ascending.size() >= 2;
    if (!ascending.empty())
        ascending.erase(ascending.begin());
    if (hasLargest)
        ascending.pop_back();
}

double mean(const std::vector<double>& values) {
    if (values.empty())
        return 0;
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

void logPerfectTime(const PerfectTime& perfect, const DiagnosticLog& log) {
    std::string line = "current perfect time " + shortestText(perfect.total) + " from";
    for (const double value : perfect.best)
        line += ' ' + shortestText(value);
    log(line);
}

/// The value as it can be stored.
double storable(double value, const std::string& what, const DiagnosticLog& log) {
    if (std::isfinite(value))
        return value;
    log(what + " is not a finite number; 0 is stored");
    return 0;
}

} // namespace

PerfectTime perfectTime(const std::vector<athletedata031>& runs) {
    PerfectTime perfect;
    perfect.best.assign(slotsFor(runs), 0);
    for (const athletedata031& run : runs)
        takeBest(run.sectioninfo, perfect.best);
    perfect.total = std::accumulate(perfect.best.begin(), perfect.best.end(), 0.0);
    return perfect;
}

void blankNegativeTimes(std::vector<athletedata031>& runs) {
    for (athletedata031& run : runs) {
        for (double& time : run.sectioninfo.times)
            time = std::max(time, 0.0);
        run.sectioninfo.sprinttime = std::max(run.sectioninfo.sprinttime, 0.0);
    }
}

double expectedFactor(const sectiondata030& timing, const std::vector<double>& best) {
    std::vector<double> ratios;
    ratios.reserve(timing.times.size() + 1);
    for (std::size_t k = 0; k < timing.times.size(); ++k)
        if (timing.times[k] > 0)
            ratios.push_back(timing.times[k] / best.at(k));
    ratios.push_back(timing.sprinttime / best.at(timing.times.size()));
    std::sort(ratios.begin(), ratios.end(), isBefore);
    dropSmallestAndLargest(ratios);
    if (ratios.size() >= 2)
        dropSmallestAndLargest(ratios);
    return mean(ratios);
}

PerfectTime recomputeExpected(splittakerdata031& document, const DiagnosticLog& log) {
    PerfectTime perfect = perfectTime(document.athletes);
    logPerfectTime(perfect, log);
    document.info.perfectRun = storable(perfect.total, "The perfect time", log);
    for (athletedata031& run : document.athletes) {
        sectiondata030& timing = run.sectioninfo;
        const std::string name = crewText(run.names);
        timing.xPer = storable(expectedFactor(timing, perfect.best),
                               "The expected-time factor of " + name, log);
        timing.xTime = storable(timing.xPer * perfect.total, "The expected time of " + name, log);
    }
    return perfect;
}

} // namespace kavela
