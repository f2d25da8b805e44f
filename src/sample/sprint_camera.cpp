#include "sample/sprint_camera.h"

#include "sample/courses.h"
#include "sample/dice.h"
#include "sample/session.h"

#include <algorithm>
#include <array>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::int64_t, 6> SprintBibs{2, 14, 41, 61, 65, 81};
constexpr Frames FirstSprint = 2 * FramesPerSecond;
constexpr Frames BetweenSprints = 7 * FramesPerSecond;

} // namespace

std::vector<SprintPassage> sprintPassages() {
    Dice dice("sprint before the camera");
    std::vector<SprintPassage> passages;
    for (const Boat& boat : sampleBoats()) {
        if (std::ranges::find(SprintBibs, boat.bib) == SprintBibs.end())
            continue;
        const auto number = static_cast<Frames>(passages.size());
        const Frames start = FirstSprint + number * BetweenSprints + framesOf(dice.between(0, 0.8));
        const Frames needed = framesOf(dice.between(2.7, 3.1) * boat.pace);
        passages.push_back({boat, start, start + needed, dice.between(-0.28, 0.28)});
    }
    return passages;
}

splittakerdata031 sprintSession() {
    splittakerdata031 session;
    session.info = sessionInfo(homeWater(), "Sprint before the camera", "Training", 2026y / 6 / 2);
    session.info.techniquetype = "Sprint";
    session.info.category = "All";
    session.info.comments = "One camera for all. Lines over the film at start and finish give a "
                            "picture of who crossed them when.";
    session.info.gates = 1;
    session.info.upGates = {};
    session.info.definedsections = {{1}};
    session.info.splitTitles = {"Finish"};
    session.info.totalsplits = 1;
    for (const SprintPassage& passage : sprintPassages()) {
        athletedata031 run;
        run.names = passage.boat.names;
        run.hand = passage.boat.hand;
        run.cat = passage.boat.category;
        run.phase = "Sprint";
        run.videoname = {std::string(SprintFilm)};
        run.sectioninfo.times = {0};
        run.sectioninfo.pens = {0};
        session.athletes.push_back(std::move(run));
    }
    return session;
}

} // namespace kavela::sample
