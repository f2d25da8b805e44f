#include "sample/tracks.h"

#include "sample/courses.h"
#include "sample/recording.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>
#include <numbers>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;
using std::numbers::pi;

/// Seconds of the outing that the phone recorded.
constexpr double PhoneStart = 30;
constexpr double PhoneEnd = 70;

Recording outing() {
    const Course course = homeWater();
    RecordingPlan plan;
    plan.label = "outing with phone and watch";
    plan.seconds = 120;
    plan.strokesPerMinute = 78;
    plan.start = referenceDate(2026y / 5 / 9, 33300);
    plan.clockStart = plan.start.seconds;
    plan.latitude = course.latitude;
    plan.longitude = course.longitude;
    plan.turns = {{40, 2.3, pi}, {58, 2.4, -pi}, {90, 2.2, pi}};
    return record(plan);
}

/// "2026-05-09T09:15:00Z"
std::string timeText(ReferenceDate date) {
    const auto seconds = std::llround(date.seconds);
    const auto ofDay = ((seconds % 86400) + 86400) % 86400;
    return fmt::format("{}T{:02}:{:02}:{:02}Z", dayText(date), ofDay / 3600, ofDay / 60 % 60,
                       ofDay % 60);
}

} // namespace

std::string watchTrack() {
    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>
<gpx version="1.1" creator="Watch" xmlns="http://www.topografix.com/GPX/1/1" xmlns:x="urn:watch">
<trk><name>Home water</name><trkseg>
)";
    const Recording recording = outing();
    for (std::size_t i = 0; i < recording.gps.size(); ++i) {
        const gpsrawdata& fix = recording.gps[i];
        fmt::format_to(std::back_inserter(text),
                       "<trkpt lat=\"{:.7f}\" lon=\"{:.7f}\"><time>{}</time><extensions>"
                       "<x:hr>{:.0f}</x:hr><x:speed>{:.2f}</x:speed></extensions></trkpt>\n",
                       fix.latitude, fix.longitude, timeText(fix.date), recording.heart[i].hr,
                       fix.speed);
    }
    return text + "</trkseg></trk>\n</gpx>\n";
}

std::string phoneList() {
    constexpr double Gravity = 9.80665; // m/s²
    std::string text = "time (ms),accX (m/s²),accY (m/s²),accZ (m/s²),"
                       "gyroX (rad/s),gyroY (rad/s),gyroZ (rad/s)\n";
    const Recording recording = outing();
    const double start = recording.boat.front().timestamp;
    for (const boatmotionrawdata_v5& sample : recording.boat) {
        const double time = sample.timestamp - start;
        if (time < PhoneStart || time >= PhoneEnd)
            continue;
        // An accelerometer reads what holds it up: at rest the opposite of gravity.
        const accelerationCodable& a = sample.acceleration;
        const gravityCodable& g = sample.gravity;
        const rotationrateCodable& w = sample.rotationRate;
        fmt::format_to(std::back_inserter(text), "{},{:.3f},{:.3f},{:.3f},{:.3f},{:.3f},{:.3f}\n",
                       std::llround((sample.timestamp + SecondsFrom1970To2001) * 1000),
                       (a.x - g.x) * Gravity, (a.y - g.y) * Gravity, (a.z - g.z) * Gravity, w.x,
                       w.y, w.z);
    }
    return text;
}

} // namespace kavela::sample
