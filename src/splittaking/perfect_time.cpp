#include "splittaking/perfect_time.h"

#include "common/delimited_text.h"
#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>

namespace kavela {

namespace {

constexpr std::size_t LastSplitSlot = 10;
constexpr std::size_t LastSprintSlot = 11;

constexpr std::array ExpectedRules{
    Rule{"xtime", "What the run would have taken at its usual distance from the best times.",
         "factor · perfect time", ""},
    Rule{"xtime.factor", "How far its times stand above the best ones, without the outermost.",
         "mean of the ratios that are left", ""},
    Rule{"xtime.ratio", "A time of the run against the best of all runs there.", "own / best", ""},
    Rule{"xtime.perfect", "The best times of all runs, put together.", "Σ bests", ""},
};
constexpr const Rule& TimeRule = ExpectedRules[0];
constexpr const Rule& FactorRule = ExpectedRules[1];
constexpr const Rule& RatioRule = ExpectedRules[2];
constexpr const Rule& PerfectRule = ExpectedRules[3];

std::size_t slotsFor(const std::vector<athletedata031>& runs) {
    std::size_t slots = LastSprintSlot + 1;
    for (const athletedata031& run : runs)
        slots = std::max(slots, run.sectioninfo.times.size() + 1);
    return slots;
}

void takeBest(const sectiondata030& timing, std::size_t run, PerfectTime& perfect) {
    const auto take = [&](std::size_t slot, double time) {
        perfect.best[slot] = time;
        perfect.runs[slot] = run;
    };
    for (std::size_t k = 0; k < timing.times.size(); ++k) {
        const double time = timing.times[k];
        const std::size_t slot = std::min(k, LastSplitSlot);
        if (time != 0 && (perfect.best[slot] == 0 || time < perfect.best[slot]))
            take(slot, time);
    }
    const std::size_t slot = std::min(timing.times.size(), LastSprintSlot);
    const double before = perfect.best[slot];
    if (before == 0 || (timing.sprinttime > 0 && timing.sprinttime < before))
        take(slot, timing.sprinttime);
    for (std::size_t k = 0; k < perfect.best.size(); ++k) {
        if (perfect.best[k] < 0)
            perfect.best[k] = 0;
        if (perfect.best[k] == 0)
            perfect.runs[k].reset();
    }
}

/// A time of the run against the best one.
struct Ratio {
    double value = 0;
    double time = 0;
    double best = 0;
    std::optional<std::size_t> split; ///< counted from 1; none for the sprint
};

std::string nameOf(const Ratio& ratio) {
    return ratio.split ? "split " + std::to_string(*ratio.split) : "sprint";
}

Place placeOf(Place run, const std::optional<std::size_t>& split) {
    run.split = split;
    return run;
}

void tellRatio(const Ratio& ratio, const Place& run, Why& why) {
    why.input(nameOf(ratio), ratio.time, placeOf(run, ratio.split));
    why.input("best", ratio.best);
    why.result(RatioRule, ratio.value, hundredthsText(ratio.value));
}

/// Ascending order with not-a-number at the end.
bool isBefore(double a, double b) {
    return a < b || (std::isnan(b) && !std::isnan(a));
}

void dropSmallestAndLargest(std::vector<Ratio>& ascending, Why* why) {
    const auto tell = [&](const Ratio& ratio, const char* what) {
        if (why)
            why->note(nameOf(ratio) + ", " +
                      (std::isfinite(ratio.value) ? hundredthsText(ratio.value) : "no ratio") +
                      ", is left out: the " + what + ".");
    };
    const bool hasLargest = ascending.size() >= 2;
    if (!ascending.empty()) {
        tell(ascending.front(), "smallest");
        ascending.erase(ascending.begin());
    }
    if (hasLargest) {
        tell(ascending.back(), "largest");
        ascending.pop_back();
    }
}

double mean(const std::vector<Ratio>& ratios) {
    if (ratios.empty())
        return 0;
    double sum = 0;
    for (const Ratio& ratio : ratios)
        sum += ratio.value;
    return sum / static_cast<double>(ratios.size());
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

struct Expected {
    double factor = 0;
    double time = 0; ///< seconds
};

/// Both as they are stored.
Expected expectedOf(const athletedata031& run, const PerfectTime& perfect, const DiagnosticLog& log,
                    const Place& place, Why* why) {
    const std::string name = crewText(run.names);
    Expected expected;
    expected.factor =
        storable(expectedFactor(run.sectioninfo, perfect.best, place, why ? why->part() : nullptr),
                 "The expected-time factor of " + name, log);
    expected.time = storable(expected.factor * perfect.total, "The expected time of " + name, log);
    if (why) {
        why->input("factor", expected.factor);
        why->input("perfect time", perfect.total);
        why->result(TimeRule, expected.time, hundredthsText(expected.time));
    }
    return expected;
}

void tellPerfect(const PerfectTime& perfect, const std::vector<athletedata031>& runs,
                 const std::filesystem::path& file, Why& why) {
    for (std::size_t slot = 0; slot < perfect.best.size(); ++slot) {
        const std::optional<std::size_t> run = perfect.runs[slot];
        if (!run)
            continue;
        const std::size_t splits = runs[*run].sectioninfo.times.size();
        const auto split = slot < splits ? std::optional(slot + 1) : std::nullopt;
        Place place{
            .file = file, .run = *run, .split = split, .gate = {}, .entry = {}, .moment = {}};
        why.input((split ? "split " + std::to_string(*split) : "sprint") + ": " +
                      crewText(runs[*run].names),
                  perfect.best[slot], std::move(place));
    }
    why.result(PerfectRule, perfect.total, hundredthsText(perfect.total));
}

} // namespace

PerfectTime perfectTime(const std::vector<athletedata031>& runs) {
    PerfectTime perfect;
    perfect.best.assign(slotsFor(runs), 0);
    perfect.runs.resize(perfect.best.size());
    for (std::size_t run = 0; run < runs.size(); ++run)
        takeBest(runs[run].sectioninfo, run, perfect);
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

double expectedFactor(const sectiondata030& timing, const std::vector<double>& best,
                      const Place& run, Why* why) {
    std::vector<Ratio> ratios;
    ratios.reserve(timing.times.size() + 1);
    for (std::size_t k = 0; k < timing.times.size(); ++k)
        if (timing.times[k] > 0)
            ratios.push_back({timing.times[k] / best.at(k), timing.times[k], best.at(k), k + 1});
    const double bestSprint = best.at(timing.times.size());
    ratios.push_back({timing.sprinttime / bestSprint, timing.sprinttime, bestSprint, {}});
    std::ranges::stable_sort(ratios, isBefore, &Ratio::value);
    dropSmallestAndLargest(ratios, why);
    if (ratios.size() >= 2)
        dropSmallestAndLargest(ratios, why);
    const double factor = mean(ratios);
    if (why) {
        for (const Ratio& ratio : ratios)
            tellRatio(ratio, run, *why->part());
        why->input("ratios that are left", static_cast<double>(ratios.size()));
        why->result(FactorRule, factor, hundredthsText(factor));
    }
    return factor;
}

PerfectTime recomputeExpected(splittakerdata031& document, const DiagnosticLog& log) {
    PerfectTime perfect = perfectTime(document.athletes);
    logPerfectTime(perfect, log);
    document.info.perfectRun = storable(perfect.total, "The perfect time", log);
    for (athletedata031& run : document.athletes) {
        const Expected expected = expectedOf(run, perfect, log, {}, nullptr);
        run.sectioninfo.xPer = expected.factor;
        run.sectioninfo.xTime = expected.time;
    }
    return perfect;
}

std::optional<Reason> explainExpected(const std::vector<athletedata031>& runs,
                                      const std::filesystem::path& file, std::string_view id) {
    constexpr std::string_view RunWord = "xtime/";
    const DiagnosticLog silent = [](std::string_view) {};
    const PerfectTime perfect = perfectTime(runs);
    Why why;
    if (id == "perfect") {
        tellPerfect(perfect, runs, file, why);
        return why.reason();
    }
    std::size_t run = 0;
    if (!id.starts_with(RunWord) || !parseField(id.substr(RunWord.size()), run) ||
        run >= runs.size())
        return std::nullopt;
    Place place;
    place.file = file;
    place.run = run;
    (void)expectedOf(runs[run], perfect, silent, place, &why);
    tellPerfect(perfect, runs, file, *why.part());
    return why.reason();
}

} // namespace kavela
