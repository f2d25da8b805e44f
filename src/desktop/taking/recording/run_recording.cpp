#include "desktop/taking/recording/run_recording.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double Gravity = 9.80665; ///< m/s² in one g

template <class Value>
std::shared_ptr<const std::vector<double>> shared(Value&& values) {
    return std::make_shared<const std::vector<double>>(std::forward<Value>(values));
}

void showAccelerations(LoadedRecording& recording) {
    std::vector<std::pair<double, double>> samples;
    for (const boatmotionrawdata_v5& sample : recording.session.boatmotion) {
        const accelerationCodable& a = sample.acceleration;
        if (std::isfinite(sample.timestamp))
            samples.emplace_back(sample.timestamp, std::hypot(a.x, a.y, a.z) * Gravity);
    }
    std::ranges::sort(samples, {}, &std::pair<double, double>::first);
    std::vector<double> times;
    std::vector<double> values;
    for (const auto& [time, value] : samples) {
        times.push_back(time);
        values.push_back(value);
    }
    recording.times = shared(std::move(times));
    recording.forward = shared(std::move(values));
    recording.yawRate = shared(std::vector<double>());
}

} // namespace

LoadedRecording loadedRecording(std::string name, bmrawdata_v5 session) {
    LoadedRecording recording;
    recording.name = std::move(name);
    recording.session = std::move(session);
    try {
        MotionAnalysis analysis =
            analyseMotion(recording.session, profileOf(recording.session.athleteinfo));
        recording.times = shared(std::move(analysis.series.time));
        recording.forward = shared(std::move(analysis.series.forward));
        recording.yawRate = shared(std::move(analysis.series.yawRate));
        for (const MotionFlag flag : analysis.flags)
            recording.note += (recording.note.empty() ? "" : "\n") + std::string(textOf(flag));
    } catch (const MotionError& error) {
        showAccelerations(recording);
        recording.note = error.what();
    }
    return recording;
}

std::optional<ClockFit> CommonEvents::fit() const {
    std::vector<EventPair> events;
    for (const Event& event : {first, second})
        if (event.isWhole())
            events.push_back({*event.video, *event.stamp});
    return events.empty() ? std::nullopt : std::optional(clockFit(events));
}

void attachTo(athletedata031& run, AttachedPart part) {
    run.bm = std::move(part.bm);
    run.hr = std::move(part.hr);
    run.gps = std::move(part.gps);
    run.watchmotion = std::move(part.watchmotion);
}

void detachFrom(athletedata031& run) {
    attachTo(run, {});
}

bool hasRecording(const athletedata031& run) {
    return !run.bm.empty() || !run.hr.empty() || !run.gps.empty() || !run.watchmotion.empty();
}

} // namespace kavela::desktop
