#include "sample/training.h"

#include "boatmotion/attachment.h"
#include "sample/annotations.h"
#include "sample/recording.h"
#include "sample/session.h"

#include <algorithm>
#include <numbers>
#include <numeric>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;
using std::numbers::pi;

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

/// Attaches the part of a recording that belongs to a lap, which the phone began some seconds
/// before the start and ended after the last mark.
void attachRecording(athletedata031& run, const Course& course, ReferenceDate start,
                     double strokesPerMinute, bool hasWatch = false) {
    const std::vector<double>& times = run.sectioninfo.times;
    const double seconds = std::accumulate(times.begin(), times.end(), 0.0);
    constexpr double Lead = 2 * AttachMargin;
    RecordingPlan plan{.label = run.phase,
                       .seconds = seconds + 2 * Lead,
                       .strokesPerMinute = strokesPerMinute,
                       .start = {start.seconds - Lead},
                       .clockStart = 5120.5,
                       .latitude = course.latitude,
                       .longitude = course.longitude,
                       .hasWatch = hasWatch};
    plan.turns = {{Lead + seconds * 0.3, 2.2, pi},
                  {Lead + seconds * 0.36, 2.3, -pi},
                  {Lead + seconds * 0.7, 2.1, -pi},
                  {Lead + seconds * 0.76, 2.4, pi}};
    Recording recording = record(plan);
    bmrawdata_v5 session;
    session.info.date = plan.start;
    for (std::size_t i = 0; i < recording.boat.size(); i += 2) // an older phone: 25 a second
        session.boatmotion.push_back(recording.boat[i]);
    for (std::size_t i = 0; i < recording.watch.size(); i += 2)
        session.watchmotion.push_back(recording.watch[i]);
    session.gps = std::move(recording.gps);
    session.heart = std::move(recording.heart);
    AttachedPart part = partOf(session, ClockFit{{-Lead, plan.clockStart}}, 0, seconds);
    run.bm = std::move(part.bm);
    run.watchmotion = std::move(part.watchmotion);
    run.gps = std::move(part.gps);
    run.hr = std::move(part.hr);
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
    attachRecording(session.athletes[0], course, {session.info.date.seconds + 780}, 80);
    attachRecording(session.athletes[1], course, {session.info.date.seconds + 1260}, 74, true);
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
