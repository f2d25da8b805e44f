#pragma once

#include "splitdata/document.h"

/// A race of two sections and three gates, of which the third is upstream.
namespace kavela::test {

inline athletedata031 run(std::vector<std::string> names, std::string category, std::string phase,
                          std::vector<double> times, std::vector<std::int64_t> pens) {
    athletedata031 run;
    run.names = std::move(names);
    run.cat = std::move(category);
    run.phase = std::move(phase);
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.pens = std::move(pens);
    for (const std::int64_t pen : run.sectioninfo.pens)
        run.sectioninfo.totalpen += pen;
    return run;
}

inline upstreamdata025 upstream(std::int64_t direction, double time) {
    upstreamdata025 gate;
    gate.num = 3;
    gate.direction = direction;
    gate.time = time;
    gate.cmtimes = {{600 * 20, 600, 1, 0}};
    return gate;
}

inline splittakerdata031 smallRace(const std::string& place = "Praha-Troja") {
    splittakerdata031 race;
    race.info.date = referenceDate(std::chrono::year(2026) / 5 / 11);
    race.info.place = place;
    race.info.session = "Race";
    race.info.category = "K1W";
    race.info.gates = 3;
    race.info.upGates = {3};
    race.info.definedsections = {{1, 2}, {3}};
    race.info.totalsplits = 2;
    race.athletes = {run({"BELL Anna"}, "K1W", "Final", {40, 50}, {0, 0, 2}),
                     run({"Cole Bea"}, "WK1", "Final", {41, 48}, {0, 0, 0}),
                     run({"Dún Cy", "Eck Di"}, "C2X", "Final", {0, 95}, {50, 0, 0}),
                     run({"Anna Bell"}, "", "Heats 1", {999.9, 51}, {})};
    race.athletes[0].upstreams = {upstream(0, 3.5)};
    race.athletes[1].upstreams = {upstream(1, 4.5)};
    race.athletes[0].sectioninfo.sprinttime = 9;
    race.athletes[3].sectioninfo.sprinttime = 8;
    race.athletes[1].customData = {{0, {"Late"}, {{600 * 7, 600, 1, 0}}, "boof", 0, {}}};
    timeloss031 loss;
    loss.versus = "Bell Anna";
    loss.timeloss = -0.4;
    loss.reasons = {"Too wide", "Late"};
    race.athletes[1].timeslosses = {loss};
    return race;
}

} // namespace kavela::test
