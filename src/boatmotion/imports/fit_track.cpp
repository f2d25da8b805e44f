#include "boatmotion/imports/fit_track.h"

#include "boatmotion/imports/fit_reader.h"
#include "boatmotion/imports/track_builder.h"
#include "common/reference_date.h"
#include "common/text.h"

namespace kavela::imports {

namespace {

using namespace std::chrono_literals;

// Messages, and the fields of them that are read.
constexpr std::uint16_t FileId = 0;
constexpr std::uint16_t Session = 18;
constexpr std::uint16_t Record = 20;
constexpr std::uint16_t Event = 21;
constexpr std::int64_t Activity = 4;

constexpr double FitDegree = 180.0 / 2147483648.0; // of a half circle in 2^31 parts

/// Below it a time is counted from when the device was switched on.
constexpr std::uint32_t EarliestDate = 0x10000000;

std::optional<double> fitScaled(std::optional<std::int64_t> value, double scale) {
    if (!value)
        return std::nullopt;
    return static_cast<double>(*value) * scale;
}

TrackPoint fitPointOf(const FitMessage& record) {
    const double epoch = referenceDate(1989y / 12 / 31).seconds;
    TrackPoint point;
    if (const auto time = record.time(); time && *time >= EarliestDate)
        point.date = epoch + *time;
    point.latitude = fitScaled(record.value(0), FitDegree);
    point.longitude = fitScaled(record.value(1), FitDegree);
    point.heartRate = fitScaled(record.value(3), 1);
    if (point.heartRate == 0) // a belt without contact
        point.heartRate.reset();
    point.speed = fitScaled(record.value(73), 1e-3);
    if (!point.speed)
        point.speed = fitScaled(record.value(6), 1e-3);
    return point;
}

/// Whether a watch was stopped: the event is of the timer, and of a kind that stops it.
bool isStop(const FitMessage& event) {
    const auto kind = event.value(1);
    return event.value(0) == 0 && (kind == 1 || kind == 4 || kind == 8 || kind == 9);
}

} // namespace

bool looksLikeFit(std::string_view content) {
    return content.size() >= 12 && content.substr(8, 4) == ".FIT";
}

ImportedTrack fitTrack(std::string_view content) {
    TrackBuilder builder;
    FitReader reader(content);
    std::size_t sessions = 0;
    std::size_t stops = 0;
    bool isOther = false;
    while (const auto message = reader.next()) {
        switch (message->number()) {
        case FileId:
            isOther |= message->value(0).value_or(Activity) != Activity;
            break;
        case Record:
            builder.add(fitPointOf(*message));
            break;
        case Session:
            ++sessions;
            break;
        case Event:
            stops += isStop(*message);
            break;
        default:
            break;
        }
    }
    if (isOther)
        builder.note(say("The file is not an activity, but something else of the device."));
    if (sessions > 1)
        builder.note(sayCount(static_cast<std::int64_t>(sessions),
                              "The file holds {} session; all were taken.",
                              "The file holds {} sessions; all were taken."));
    if (stops > 1) // every recording is stopped once, at its end
        builder.note(sayCount(static_cast<std::int64_t>(stops), "The watch was stopped {} time.",
                              "The watch was stopped {} times."));
    return std::move(builder).finish();
}

} // namespace kavela::imports
