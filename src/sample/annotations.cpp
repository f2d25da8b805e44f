#include "sample/annotations.h"

#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <array>

namespace kavela::sample {

namespace {

/// Frames from the gate before (or the start) to a gate.
Frames leg(const Passage& passage, std::size_t gate) {
    return passage.gates[gate] - (gate == 0 ? passage.start : passage.gates[gate - 1]);
}

/// Frames from a gate to the next one, or to the finish.
Frames nextLeg(const Passage& passage, std::size_t gate) {
    return (gate + 1 < passage.gates.size() ? passage.gates[gate + 1] : passage.finish) -
           passage.gates[gate];
}

/// Frames from the mark of a gate's entrance to its pole line.
Frames entranceOf(const Passage& passage, std::size_t gate) {
    return leg(passage, gate) * 2 / 5;
}

upstreamdata025 upstreamAt(std::size_t gate, const Footage& footage, Dice& dice) {
    const Passage& passage = footage.passage;
    const Frames entrance = entranceOf(passage, gate);
    const Frames exit = nextLeg(passage, gate) * 3 / 10;
    upstreamdata025 upstream;
    upstream.num = static_cast<std::int64_t>(gate) + 1;
    upstream.direction = upstream.num % 2;
    upstream.style = dice.code(4);
    for (const Frames frame : {-entrance, Frames{0}, exit})
        upstream.cmtimes.push_back(footage.filming.clock.at(passage.gates[gate] + frame));
    upstream.time = secondsOf(entrance + exit);
    upstream.timeEntrace = secondsOf(entrance);
    upstream.timeExit = secondsOf(exit);
    return upstream;
}

/// The section of the greatest loss, the first one apart; 0 when there is none.
std::size_t worstSection(const std::vector<double>& times, const std::vector<double>& versus) {
    std::size_t worst = 0;
    double loss = 0;
    for (std::size_t k = 1; k < times.size(); ++k) {
        if (times[k] != 0 && versus[k] != 0 && times[k] - versus[k] > loss) {
            loss = times[k] - versus[k];
            worst = k;
        }
    }
    return worst;
}

/// The marks around a section, on the first camera.
std::vector<CMTime> marksAround(const athletedata031& run, std::size_t section) {
    const auto& marks = run.sectioninfo.cmtimes;
    return {marks[section - 1].front(), marks[section].front()};
}

constexpr std::array Reasons{"Line too wide", "Late edge change", "Extra stroke before the gate",
                             "Lost speed in the stopper", "Early on the pole line"};

} // namespace

void notePenalties(athletedata031& run, Dice& dice) {
    pendata030 details;
    const std::vector<std::int64_t>& pens = run.sectioninfo.pens;
    for (std::size_t gate = 0; gate < pens.size(); ++gate) {
        if (pens[gate] == 0)
            continue;
        details.gate.push_back(static_cast<std::int64_t>(gate) + 1);
        details.penkind.push_back(pens[gate] == 50 ? 1 : 0);
        for (auto* codes : {&details.gatekind, &details.polekind, &details.penway, &details.moment,
                            &details.direction, &details.style, &details.eye})
            codes->push_back(dice.code(3));
    }
    if (!details.gate.empty())
        run.sectioninfo.pendetails = {std::move(details)};
}

void noteUpstreams(athletedata031& run, const Footage& footage, Dice& dice) {
    const Passage& passage = footage.passage;
    const std::size_t seen = passage.isFinished() ? passage.gates.size() : passage.gates.size() - 1;
    for (const std::int64_t number : footage.course.upGates) {
        const auto gate = static_cast<std::size_t>(number) - 1;
        if (gate < seen && passage.gates[gate] >= entranceOf(passage, gate))
            run.upstreams.push_back(upstreamAt(gate, footage, dice));
    }
}

void noteMicrosplits(athletedata031& run, const Footage& footage) {
    const auto& ends = footage.course.sectionEnds;
    for (std::size_t gate = 0; gate < footage.passage.gates.size(); ++gate) {
        const bool endsSection =
            std::ranges::find(ends, static_cast<std::int64_t>(gate) + 1) != ends.end();
        const Frames frame = footage.passage.gates[gate];
        if (!endsSection && frame >= 0)
            run.microsplits.push_back(
                {footage.filming.clock.at(frame), secondsOf(frame - footage.passage.start)});
    }
}

void noteStrokes(athletedata031& run, const Footage& footage, double seconds, Dice& dice) {
    std::int64_t hand = dice.code(2);
    Frames passed = std::max<Frames>(0, -footage.passage.start);
    while (passed < framesOf(seconds)) {
        passed += framesOf(dice.between(0.58, 0.86));
        run.strokes.push_back({stamps(footage.filming, footage.passage.start + passed),
                               secondsOf(passed), hand, dice.chance(0.2) ? dice.code(3) + 1 : 0});
        hand = 1 - hand;
    }
}

void noteTags(athletedata031& run, const Footage& footage, const std::vector<std::string>& tags,
              Dice& dice) {
    constexpr Frames FixedCameraLead = 75;
    customData020 custom;
    custom.comments = "Watch the exits";
    for (const std::string& tag : tags) {
        const auto& gates = footage.passage.gates;
        const Frames frame = std::max<Frames>(0, gates[dice.below(gates.size())]);
        custom.tags.push_back(tag);
        custom.cmTimes.push_back(footage.filming.clock.at(frame));
        if (!run.fixcameras.empty())
            custom.fixCMTimes.push_back(footage.filming.clock.at(frame + FixedCameraLead));
    }
    run.customData.push_back(std::move(custom));
    run.athletesscore = 5 + static_cast<double>(dice.below(10)) / 2;
    run.coachsscore = 5 + static_cast<double>(dice.below(10)) / 2;
}

void noteStrategy(athletedata031& run, const Footage& footage, Dice& dice) {
    const auto gate = static_cast<std::size_t>(footage.course.upGates.front()) - 1;
    const Frames taken = leg(footage.passage, gate);
    const Frames other = taken + framesOf(dice.between(0.1, 0.6));
    strategy001 strategy;
    strategy.title = "Gate " + std::to_string(gate + 1);
    strategy.options = {"Pivot", "Loop"};
    strategy.optionInt = dice.code(2);
    strategy.times = {secondsOf(taken), secondsOf(other)};
    if (strategy.optionInt == 1)
        std::swap(strategy.times[0], strategy.times[1]);
    strategy.comments = "The other way as paddled in the demonstration run";
    run.strategies.push_back(std::move(strategy));
}

void attachFixedCamera(athletedata031& run, const std::string& film, ReferenceDate mark) {
    run.fixcameras.push_back(film);
    run.fixMarkDates.push_back(
        {static_cast<std::int64_t>(run.fixcameras.size()) - 1, {mark, {mark.seconds + 60}}});
}

void noteTimeLoss(athletedata031& run, const athletedata031& versus, const Course& course,
                  Dice& dice) {
    sectiondata030& timing = run.sectioninfo;
    const std::size_t section = worstSection(timing.times, versus.sectioninfo.times);
    if (section == 0)
        return;
    const double best = versus.sectioninfo.times[section];
    timeloss031 loss;
    loss.versus = crewText(versus.names);
    loss.gateCombination = dice.code(5);
    loss.gateDetails = dice.code(4);
    loss.style = dice.code(3);
    loss.waterFeature = dice.code(4);
    loss.reasons = {Reasons[dice.below(Reasons.size())]};
    loss.videos = {run.videoname.front(), versus.videoname.front()};
    loss.cmtimes = {marksAround(run, section), marksAround(versus, section)};
    loss.timeloss = roundedToHundredths(timing.times[section] - best);
    loss.timelossper = roundedToHundredths(loss.timeloss / best * 100);
    loss.comments = "Section " + course.titles()[section];
    timing.comments[section] = loss.reasons.front();
    run.timeslosses.push_back(std::move(loss));
}

} // namespace kavela::sample
