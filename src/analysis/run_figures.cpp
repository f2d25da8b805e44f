#include "analysis/run_figures.h"

#include "analysis/analysis_rules.h"
#include "analysis/athlete_potential.h"
#include "analysis/ideal_run.h"
#include "analysis/run_place.h"
#include "analysis/standing.h"
#include "common/number_text.h"
#include "splitdata/frame_step.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <string>

namespace kavela {

namespace {

void tellSeconds(AnalysisRule rule, double seconds, Why* why) {
    if (why)
        why->result(ruleOf(rule), seconds, hundredthsText(seconds));
}

void tellPenalty(AnalysisRule rule, std::int64_t seconds, Why* why) {
    if (why)
        why->result(ruleOf(rule), static_cast<double>(seconds), std::to_string(seconds));
}

bool hasPenaltiesByGate(const RaceSet& set, const analyzerdata& run) {
    return set.gates > 0 && std::cmp_equal(run.gatePenalties.size(), set.gates);
}

/// Where a gate was penalised: its section's mark shows it best.
Place gatePlace(const RaceSet& set, const analyzerdata& run, std::size_t gate) {
    const auto holds = [gate](const std::vector<std::int64_t>& gates) {
        return std::ranges::find(gates, static_cast<std::int64_t>(gate)) != gates.end();
    };
    const auto section = std::ranges::find_if(set.definedsections, holds);
    Place place =
        section == set.definedsections.end()
            ? runPlace(run)
            : runPlace(run, static_cast<std::size_t>(section - set.definedsections.begin()) + 1);
    place.gate = gate;
    return place;
}

/// Only gates with a penalty: the clean ones say nothing.
void tellGate(const RaceSet& set, const analyzerdata& run, std::int64_t gate, Why& why) {
    if (gate < 1 || !std::cmp_less_equal(gate, run.gatePenalties.size()))
        return;
    const auto number = static_cast<std::size_t>(gate);
    if (const std::int64_t seconds = run.gatePenalties[number - 1]; seconds != 0)
        why.input("gate " + std::to_string(number), static_cast<double>(seconds),
                  gatePlace(set, run, number));
}

std::int64_t videoPenalties(const RaceSet& set, const analyzerdata& run, Why* why) {
    const std::int64_t seconds = run.sectioninfo.totalpen;
    const bool isByGate = hasPenaltiesByGate(set, run);
    const std::vector<std::int64_t>& pens = isByGate ? run.gatePenalties : run.sectioninfo.pens;
    double sum = 0;
    for (std::size_t i = 0; why && i < pens.size(); ++i) {
        sum += static_cast<double>(pens[i]);
        if (isByGate)
            tellGate(set, run, static_cast<std::int64_t>(i) + 1, *why);
        else if (pens[i] != 0)
            why->input("section " + std::to_string(i + 1), static_cast<double>(pens[i]),
                       runPlace(run, i + 1));
    }
    if (why && sum != static_cast<double>(seconds))
        why->note("What stands at the " + std::string(isByGate ? "gates" : "sections") +
                  " does not add up to what is stored for the run.");
    else if (why && seconds == 0)
        why->note("No gate was touched or missed.");
    tellPenalty(AnalysisRule::Penalties, seconds, why);
    return seconds;
}

std::optional<double> videoTotal(const RaceSet& set, const analyzerdata& run, Why* why) {
    const sectionmaindata& section = run.sectioninfo;
    if (section.totaltime == 0)
        return std::nullopt;
    const double step = why ? frameStep(section.cmtimes, run.upstreams).value_or(0) : 0;
    for (std::size_t i = 0; why && i < section.times.size(); ++i)
        why->input("section " + std::to_string(i + 1), section.times[i], runPlace(run, i + 1),
                   section.times[i] == 0 ? 0 : step, HalfFrameTwice);
    tellSeconds(AnalysisRule::Total, section.totaltime, why);
    if (const auto reason = reasonOf(totalStanding(section, set.totalsplits));
        why && !reason.empty())
        why->note(std::string(reason));
    return section.totaltime;
}

/// A time that stands in the file as it is.
std::optional<double> storedTime(const analyzerdata& run, double seconds, const char* name,
                                 AnalysisRule rule, Why* why) {
    if (seconds == 0)
        return std::nullopt;
    if (why)
        why->input(name, seconds, runPlace(run));
    tellSeconds(rule, seconds, why);
    return seconds;
}

std::optional<double> ownPotential(const RaceSet& set, std::size_t run, Why* why) {
    for (const AthletePotential& athlete : athletePotentials(set)) {
        if (std::ranges::find(athlete.runs, run) == athlete.runs.end())
            continue;
        // Of a single run it is that run.
        return athlete.runs.size() > 1 ? idealRun(set, athlete.runs, {}, why).total : std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::optional<double> runFigure(const RaceSet& set, std::size_t index, RunFigure figure, Why* why) {
    const analyzerdata& run = set.alldata[index];
    const sectionmaindata& section = run.sectioninfo;
    switch (figure) {
    case RunFigure::Total:
        return videoTotal(set, run, why);
    case RunFigure::Penalties:
        return static_cast<double>(videoPenalties(set, run, why));
    case RunFigure::Real:
        return storedTime(run, section.realtime, "real", AnalysisRule::RealTime, why);
    case RunFigure::RealPenalties:
        if (why)
            why->input("real", static_cast<double>(section.realpen), runPlace(run));
        tellPenalty(AnalysisRule::RealPenalties, section.realpen, why);
        return static_cast<double>(section.realpen);
    case RunFigure::Expected:
        return storedTime(run, section.xTime, "expected", AnalysisRule::ExpectedTime, why);
    case RunFigure::Potential:
        return ownPotential(set, index, why);
    }
    return std::nullopt;
}

std::int64_t sectionPenalty(const RaceSet& set, std::size_t index, std::size_t section, Why* why) {
    const analyzerdata& run = set.alldata[index];
    const std::int64_t seconds = entryOrZero(run.sectioninfo.pens, section);
    if (why && hasPenaltiesByGate(set, run) && section < set.definedsections.size())
        for (const std::int64_t gate : set.definedsections[section])
            tellGate(set, run, gate, *why);
    else if (why)
        why->input("section " + std::to_string(section + 1), static_cast<double>(seconds),
                   runPlace(run, section + 1));
    tellPenalty(AnalysisRule::SectionPenalty, seconds, why);
    return seconds;
}

std::optional<Reason> explainRunFigure(const RaceSet& set, std::size_t run, RunFigure figure) {
    Why why;
    const bool isKnown = run < set.alldata.size() && runFigure(set, run, figure, &why);
    return isKnown ? std::optional(why.reason()) : std::nullopt;
}

} // namespace kavela
