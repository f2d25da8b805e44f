#include "sample/run.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela::sample {

namespace {

constexpr std::int64_t Touch = 2;
constexpr std::int64_t MissedGate = 50;

std::int64_t penaltyAt(bool isUpstream, const Boat& boat, Dice& dice) {
    const double risk = (isUpstream ? 0.05 : 0.022) / boat.steadiness;
    if (dice.chance(risk * 0.07))
        return MissedGate;
    return dice.chance(risk) ? Touch : 0;
}

double secondsLost(std::int64_t penalty, Dice& dice) {
    if (penalty == 0)
        return dice.chance(0.05) ? dice.between(0.2, 1.3) : 0; // a wide line, a late stroke
    return penalty == Touch ? dice.between(0, 0.5) : dice.between(0.4, 3.5);
}

std::int64_t sum(const std::vector<std::int64_t>& values) {
    return std::accumulate(values.begin(), values.end(), std::int64_t{0});
}

/// Official timing by light beams: within some hundredths of what the film says.
double officialSeconds(const Passage& passage) {
    const Frames frames = passage.finish - passage.start;
    const Frames hundredths = frames * 2 + (frames * 7 + passage.start) % 13 - 6;
    return static_cast<double>(hundredths) / 100.0;
}

void takeSplits(const Course& course, const Passage& passage, const Filming& filming,
                sectiondata030& timing) {
    const std::size_t splits = course.sectionEnds.size();
    timing.times.assign(splits, 0);
    timing.cmtimes.assign(splits, {});
    std::vector<Frames> marks = sectionMarks(course, passage);
    if (filming.shows == FilmShows::NotTheFinish)
        marks.resize(std::min(marks.size(), splits - 1));
    Frames total = 0;
    Frames previous = passage.start;
    for (std::size_t k = 0; k < marks.size(); ++k) {
        timing.cmtimes[k] = stamps(filming, marks[k]);
        const Frames frames = marks[k] - std::exchange(previous, marks[k]);
        if (k == 0 && filming.shows == FilmShows::NotTheFirstSection)
            continue; // without the start, the first mark is only where the second section begins
        timing.times[k] = secondsOf(frames);
        total += frames;
        ++timing.splitnum;
    }
    timing.totaltime = secondsOf(total);
    timing.isfullrun = timing.splitnum == static_cast<std::int64_t>(splits);
}

} // namespace

std::int64_t gateToGiveUpAfter(const Course& course, Dice& dice) {
    return course.gates() / 3 + dice.code(course.gates() / 2);
}

Passage paddle(const Course& course, const Boat& boat, const Conditions& conditions, Dice& dice) {
    const std::vector<double> legs = course.legs();
    const std::int64_t lastGate =
        conditions.givesUpAfter == 0 ? course.gates() : conditions.givesUpAfter;
    Passage passage;
    passage.start = framesOf(dice.between(2.5, 5));
    passage.pens.assign(static_cast<std::size_t>(course.gates()), 0);
    const double today = boat.pace * conditions.effort * (1 + dice.bell(0.006));
    Frames now = passage.start;
    for (std::int64_t gate = 1; gate <= lastGate; ++gate) {
        const auto at = static_cast<std::size_t>(gate - 1);
        const bool isUpstream = course.isUpstream(gate);
        const std::int64_t penalty = penaltyAt(isUpstream, boat, dice);
        const double spread = (isUpstream ? 0.035 : 0.022) / boat.steadiness;
        const double leg = legs[at] * today * (isUpstream ? boat.upstreamPace : 1);
        now += framesOf(leg * (1 + dice.bell(spread)) + secondsLost(penalty, dice));
        passage.gates.push_back(now);
        passage.pens[at] = penalty;
    }
    if (conditions.givesUpAfter == 0)
        passage.finish = now + framesOf(legs.back() * today * (1 + dice.bell(0.02)));
    return passage;
}

std::vector<CMTime> stamps(const Filming& filming, Frames frame) {
    std::vector<CMTime> stamps{filming.clock.at(frame)};
    if (filming.hasSecondCamera)
        stamps.push_back(filming.clock.at(frame - SecondCameraLag));
    return stamps;
}

std::vector<Frames> sectionMarks(const Course& course, const Passage& passage) {
    std::vector<Frames> marks;
    for (const std::int64_t end : course.sectionEnds) {
        const auto gate = static_cast<std::size_t>(end);
        if (end < course.gates() && gate <= passage.gates.size())
            marks.push_back(passage.gates[gate - 1]);
    }
    if (passage.isFinished())
        marks.push_back(passage.finish);
    return marks;
}

void switchOnLate(const Course& course, Passage& passage) {
    const Frames firstMark = sectionMarks(course, passage).front();
    const Frames missed = passage.start + (firstMark - passage.start) / 2;
    passage.start -= missed;
    passage.finish -= missed;
    for (Frames& gate : passage.gates)
        gate -= missed;
}

athletedata031 timeRun(const Course& course, const Boat& boat, const std::string& phase,
                       const Passage& passage, const Filming& filming) {
    athletedata031 run;
    run.names = boat.names;
    run.hand = boat.hand;
    run.phase = phase;
    run.cat = boat.category;
    const std::string film = filming.prefix + ' ' + boat.crew() + ' ' + phase;
    run.videoname = {film + ".MOV"};
    if (filming.hasSecondCamera)
        run.videoname.push_back(film + " cam 2.MOV");
    run.totaltouches = std::ranges::count(passage.pens, Touch);
    run.totalfifties = std::ranges::count(passage.pens, MissedGate);

    sectiondata030& timing = run.sectioninfo;
    takeSplits(course, passage, filming, timing);
    timing.pens = passage.pens;
    timing.totalpen = sum(passage.pens);
    timing.comments.resize(course.sectionEnds.size());
    if (passage.isFinished() && filming.shows != FilmShows::NotTheFinish)
        timing.sprinttime = secondsOf(passage.finish - passage.gates.back());
    if (passage.isFinished() && filming.hasOfficialTime) {
        timing.realtime = officialSeconds(passage);
        timing.realpen = timing.totalpen;
    }
    run.giveups = passage.isFinished() ? 0 : 1;
    return run;
}

} // namespace kavela::sample
