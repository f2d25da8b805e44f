#include "sample/training.h"

#include "sample/annotations.h"
#include "sample/recording.h"
#include "sample/session.h"

#include <algorithm>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;

/// Seven boats that train together.
std::vector<Boat> group() {
    std::vector<Boat> group;
    for (const Boat& boat : sampleBoats()) {
        constexpr std::int64_t Bibs[] = {2, 9, 14, 41, 61, 65, 81};
        if (std::ranges::find(Bibs, boat.bib) != std::end(Bibs))
            group.push_back(boat);
    }
    return group;
}

/// Each boat's laps one after the other, as its films were taken. Nobody times a training but the
/// coach.
std::vector<FilmedRun> paddleLaps(const Course& course, const std::string& prefix,
                                  const std::string& lapName, int laps, double effort) {
    Dice dice(prefix);
    std::vector<FilmedRun> runs;
    for (const Boat& boat : group()) {
        for (int lap = 1; lap <= laps; ++lap) {
            Conditions conditions{.effort = effort + 0.008 * lap};
            if (dice.chance(0.06))
                conditions.givesUpAfter = gateToGiveUpAfter(course, dice);
            const Filming filming{.hasOfficialTime = false, .prefix = prefix};
            runs.push_back(filmRun(course, boat, lapName + ' ' + std::to_string(lap), conditions,
                                   filming, dice));
        }
    }
    return runs;
}

/// Cuts the first seconds of what the sensors recorded on a lap to the run.
void attachSensors(athletedata031& run, const Course& course, ReferenceDate start) {
    Recording recording = record({.label = "gate laps",
                                  .seconds = 6,
                                  .strokesPerMinute = 78,
                                  .start = start,
                                  .clockStart = 5120.5,
                                  .latitude = course.latitude,
                                  .longitude = course.longitude,
                                  .hasWatch = true});
    run.bm = std::move(recording.boat);
    run.watchmotion = std::move(recording.watch);
    run.gps = std::move(recording.gps);
    run.hr = std::move(recording.heart);
}

} // namespace

splittakerdata031 gateLaps() {
    const Course course = homeWater();
    splittakerdata031 session;
    session.info = sessionInfo(course, "Gate laps", "Training", 2026y / 5 / 5);
    session.info.techniquetype = "Laps";
    session.info.category = "All";
    session.info.comments = "Four laps each, eight minutes between them. Work on the exits.";
    std::vector<FilmedRun> runs = paddleLaps(course, "laps", "Lap", 4, 1.02);
    Dice dice("notes on the laps");
    noteStrokes(runs.front().record, {course, runs.front().passage, runs.front().filming}, 30,
                dice);
    for (FilmedRun& run : runs) {
        const Footage footage{course, run.passage, run.filming};
        notePenalties(run.record, dice);
        noteUpstreams(run.record, footage, dice);
        noteTags(run.record, footage, session.info.tags, dice);
        session.athletes.push_back(std::move(run.record));
    }
    attachSensors(session.athletes[1], course, {session.info.date.seconds + 1260});
    return session;
}

splittakerdata031 formTest() {
    const Course course = homeWater();
    splittakerdata031 session;
    session.info = sessionInfo(course, "Form test May", "Test", 2026y / 5 / 26);
    session.info.category = "All";
    for (FilmedRun& run : paddleLaps(course, "test", "Run", 2, 1))
        session.athletes.push_back(std::move(run.record));
    return session;
}

} // namespace kavela::sample
