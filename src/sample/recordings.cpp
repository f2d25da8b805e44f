#include "sample/recordings.h"

#include "sample/athletes.h"
#include "sample/courses.h"
#include "sample/older_releases.h"
#include "sample/recording.h"

#include <numbers>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;
using std::numbers::pi;

RecordingPlan planAt(const Course& course, ReferenceDate start, const std::string& label) {
    RecordingPlan plan;
    plan.label = label;
    plan.start = start;
    plan.latitude = course.latitude;
    plan.longitude = course.longitude;
    return plan;
}

infoathlete_v5 equipmentOf(const Boat& boat) {
    return {.name = boat.names.front(),
            .discipline = "Slalom",
            .boat = 0,
            .athletesinboat = 1,
            .weight = 74.5,
            .paddleLength = 198,
            .bladeArea = 640,
            .bladeHeight = 46.5,
            .handPosition = 71};
}

bmrawdata_v5 sessionOf(const RecordingPlan& plan, const Course& course, const std::string& kind) {
    Recording recording = record(plan);
    bmrawdata_v5 session;
    session.info = {plan.start, course.place, "Training", kind};
    session.athleteinfo = equipmentOf(sampleBoats("K1M").front());
    session.boatmotion = std::move(recording.boat);
    session.watchmotion = std::move(recording.watch);
    session.gps = std::move(recording.gps);
    session.heart = std::move(recording.heart);
    return session;
}

} // namespace

bmrawdata_v5 upstreamDrill() {
    const Course course = homeWater();
    RecordingPlan plan = planAt(course, referenceDate(2026y / 5 / 7, 36120), "upstream drill");
    plan.seconds = 40;
    plan.strokesPerMinute = 76;
    plan.clockStart = 84213.5;
    // Into the eddy and out again, first on the left, then on the right.
    plan.turns = {{9, 2.2, pi}, {13.5, 2.4, pi}, {25, 2.1, -pi}, {29, 2.5, -pi}};
    return sessionOf(plan, course, "Upstream gates");
}

bmrawdata_v5 sprintWithWatch() {
    const Course course = homeWater();
    RecordingPlan plan = planAt(course, referenceDate(2026y / 5 / 8, 37800), "sprint");
    plan.seconds = 14;
    plan.strokesPerMinute = 92;
    plan.clockStart = 1702.25;
    plan.hasWatch = true;
    return sessionOf(plan, course, "Sprint");
}

bmrawdata_v4 oldPhone() {
    const Course course = oldMill();
    RecordingPlan plan = planAt(course, referenceDate(2022y / 9 / 3, 34200), "old phone");
    plan.seconds = 10;
    plan.clockStart = plan.start.seconds;
    return asVersion4(sessionOf(plan, course, "Straight"));
}

} // namespace kavela::sample
