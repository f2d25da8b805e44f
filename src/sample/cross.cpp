#include "sample/cross.h"

#include "sample/session.h"

#include <algorithm>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;

constexpr FilmClock Clock{60000};
constexpr std::int64_t Gates = 7;
constexpr std::int64_t RollAfter = 6;
constexpr std::int64_t Upstreams[] = {3, 5};

/// A cross course is short: eight gates and a roll, hung on the harbour's water.
Course crossCourse() {
    Course course = harbour();
    course.upGates.assign(std::begin(Upstreams), std::end(Upstreams));
    course.sectionEnds = {2, 3, 4, 5, 6, Gates};
    course.sectionNames.clear();
    course.bestSeconds = 52;
    return course;
}

std::vector<CMTime> around(Frames frame, Dice& dice) {
    return {Clock.at(frame - framesOf(dice.between(0.8, 1.5))), Clock.at(frame),
            Clock.at(frame + framesOf(dice.between(0.6, 1.2)))};
}

ttdata030 timeTrial(const Course& course, const Boat& boat, Dice& dice) {
    const Passage passage = paddle(course, boat, {.effort = 1.02}, dice);
    ttdata030 trial;
    trial.athlete = boat.names.front();
    trial.videoname = "cross " + trial.athlete + " TT.MOV";
    trial.time = secondsOf(passage.finish - passage.start);
    for (const Frames mark : sectionMarks(course, passage))
        trial.splittimes.push_back({Clock.at(mark)});
    for (const std::int64_t gate : Upstreams) {
        const Frames frame = passage.gates[static_cast<std::size_t>(gate) - 1];
        trial.upstreams.push_back({gate, around(frame, dice), gate % 2, dice.code(3)});
    }
    const Frames roll = passage.gates[RollAfter - 1] + framesOf(1.2);
    trial.roll = {around(roll, dice), dice.code(2), dice.code(2)};
    return trial;
}

actiondata030 attack(const std::vector<std::string>& order, std::int64_t gate, Frames frame,
                     Dice& dice) {
    actiondata030 action;
    action.time = {Clock.at(frame - 60), Clock.at(frame)};
    action.attacker = order[1];
    action.defenders = {order[0]};
    action.success = dice.chance(0.4);
    action.side = dice.chance(0.5) ? "Left" : "Right";
    action.place = "Gate " + std::to_string(gate);
    return action;
}

/// The boats pass the gates in an order that attacks change; the last order is the result.
rounddata030 heat(const std::string& name, std::vector<std::string> boats, Dice& dice) {
    rounddata030 round;
    round.videoname = "cross " + name + ".MOV";
    round.athletes = boats;
    Frames frame = framesOf(4);
    for (std::int64_t gate = 1; gate <= Gates; ++gate) {
        frame += framesOf(dice.between(5, 9));
        if (gate > 1 && dice.chance(0.45)) {
            const actiondata030 action = attack(boats, gate, frame, dice);
            if (action.success)
                std::swap(boats[0], boats[1]);
            round.actions.push_back(action);
        }
        if (dice.chance(0.4))
            std::swap(boats[2], boats[3]);
        round.generals.push_back(
            {Clock.at(frame), gate, gate, boats, gate == 1 ? "Even start" : ""});
    }
    return round;
}

std::vector<std::string> firstTwo(const rounddata030& round) {
    const auto& order = round.generals.back().order;
    return {order[0], order[1]};
}

} // namespace

splittakerdata031 crossRace() {
    const Course course = crossCourse();
    Dice dice("cross race");
    splittakerdata031 race;
    race.info = sessionInfo(course, "Harbour Cross", "Kayak Cross", 2026y / 7 / 5);
    race.info.event = "National Cup";
    race.info.category = "K1W";
    race.crossracedata.crossinfo = {"Finals", "K1W", {1, 2, 3, 4, 5, 6, 7}, RollAfter};

    auto& trials = race.crossracedata.timetrials;
    for (const Boat& boat : sampleBoats("K1W"))
        if (trials.size() < 8)
            trials.push_back(timeTrial(course, boat, dice));
    std::ranges::sort(trials, {}, &ttdata030::time);
    for (std::size_t i = 0; i < trials.size(); ++i)
        trials[i].pos = static_cast<std::int64_t>(i) + 1;

    auto& rounds = race.crossracedata.eliphase;
    const auto boat = [&](std::size_t place) { return trials[place - 1].athlete; };
    rounds.push_back(heat("Semifinal 1", {boat(1), boat(4), boat(5), boat(8)}, dice));
    rounds.push_back(heat("Semifinal 2", {boat(2), boat(3), boat(6), boat(7)}, dice));
    std::vector<std::string> finalists = firstTwo(rounds[0]);
    for (std::string& name : firstTwo(rounds[1]))
        finalists.push_back(std::move(name));
    rounds.push_back(heat("Final", std::move(finalists), dice));
    return race;
}

} // namespace kavela::sample
