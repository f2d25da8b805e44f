#include "analysis/percent_behind.h"

#include "analysis/analysis_rules.h"
#include "analysis/standing.h"
#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

double counted(double value, TimeStanding standing) {
    return standing == TimeStanding::Counts ? value : 0;
}

double counted(double value) {
    return counted(value, timeStanding(value));
}

/// A time with its penalty; without a time there is nothing to add to.
double withPenalty(double time, std::int64_t penalty) {
    return time == 0 ? 0 : counted(time + static_cast<double>(penalty));
}

/// The least of the values that are not 0; 0 when there is none.
double leastOf(const std::vector<double>& values) {
    double least = 0;
    for (const double value : values)
        if (value != 0 && (least == 0 || value < least))
            least = value;
    return least;
}

/// Fills one figure of every run with the percent behind the best of `value` over all runs.
template <class Value, class Figure>
void fillColumn(std::vector<analyzerdata>& runs, Value value, Figure figure) {
    std::vector<double> column;
    column.reserve(runs.size());
    for (const analyzerdata& run : runs)
        column.push_back(value(run.sectioninfo));
    const double best = leastOf(column);
    for (std::size_t i = 0; i < runs.size(); ++i)
        figure(runs[i].sectioninfo) = percentBehind(column[i], best);
}

void fillSection(std::vector<analyzerdata>& runs, std::size_t section) {
    // Runs shorter than the longest get no figure: a place that nothing is kept in takes it.
    double none = 0;
    const auto figureOf = [&](std::vector<double>& figures) -> double& {
        return section < figures.size() ? figures[section] : none;
    };
    const auto time = [&](const sectionmaindata& s) {
        return counted(entryOrZero(s.times, section), sectionStanding(s, section));
    };
    fillColumn(runs, time, [&](sectionmaindata& s) -> double& { return figureOf(s.pertimes); });
    fillColumn(
        runs,
        [&](const sectionmaindata& s) {
            return withPenalty(time(s), entryOrZero(s.pens, section));
        },
        [&](sectionmaindata& s) -> double& { return figureOf(s.pertimesandpen); });
    fillColumn(
        runs,
        [&](const sectionmaindata& s) {
            return counted(entryOrZero(s.accutimes, section), accumulatedStanding(s, section));
        },
        [&](sectionmaindata& s) -> double& { return figureOf(s.peraccutimes); });
}

void fillTotals(std::vector<analyzerdata>& runs, std::int64_t sections) {
    const auto total = [sections](const sectionmaindata& s) {
        return counted(s.totaltime, totalStanding(s, sections));
    };
    fillColumn(runs, total, [](sectionmaindata& s) -> double& { return s.totalpertime; });
    fillColumn(
        runs, [&](const sectionmaindata& s) { return withPenalty(total(s), s.totalpen); },
        [](sectionmaindata& s) -> double& { return s.totalpertimeandpen; });
    fillColumn(
        runs, [](const sectionmaindata& s) { return counted(s.realtime); },
        [](sectionmaindata& s) -> double& { return s.realpertime; });
    fillColumn(
        runs, [](const sectionmaindata& s) { return counted(s.sprinttime); },
        [](sectionmaindata& s) -> double& { return s.sprintpertime; });
    fillColumn(
        runs, [](const sectionmaindata& s) { return counted(s.xTime); },
        [](sectionmaindata& s) -> double& { return s.xPer; });
}

} // namespace

double percentBehind(double time, double best, Why* why) {
    if (time == 0 || best == 0)
        return 0;
    const double percent = (time / best - 1) * 100;
    if (why)
        why->result(ruleOf(AnalysisRule::PercentBehind), percent, hundredthsText(percent) + " %");
    return percent;
}

void fillPercentFigures(RaceSet& set) {
    std::vector<analyzerdata>& runs = set.alldata;
    std::size_t longest = 0;
    for (analyzerdata& run : runs) {
        sectionmaindata& section = run.sectioninfo;
        longest = std::max(longest, section.times.size());
        section.pertimes.assign(section.times.size(), 0);
        section.pertimesandpen.assign(section.times.size(), 0);
        section.peraccutimes.assign(section.times.size(), 0);
    }
    for (std::size_t section = 0; section < longest; ++section)
        fillSection(runs, section);
    fillTotals(runs, set.totalsplits);
}

} // namespace kavela
