#include "boatmotion/event_finding.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double LongestStep = 0.1;    // s; over a hole nothing is known
constexpr double ShortestStep = 0.005; // s; two samples of nearly one moment tell no jerk
constexpr double LeastDistance = 0.25; // s

std::vector<const boatmotionrawdata_v5*>
samplesAround(std::span<const boatmotionrawdata_v5> samples, double stamp, double within) {
    std::vector<const boatmotionrawdata_v5*> found;
    for (const boatmotionrawdata_v5& sample : samples) {
        const accelerationCodable& a = sample.acceleration;
        if (std::abs(sample.timestamp - stamp) <= within && std::isfinite(a.x + a.y + a.z))
            found.push_back(&sample);
    }
    std::ranges::stable_sort(found, {}, [](const auto* sample) { return sample->timestamp; });
    return found;
}

std::vector<MotionEvent> jolts(std::span<const boatmotionrawdata_v5* const> samples) {
    std::vector<MotionEvent> events;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const boatmotionrawdata_v5& before = *samples[i - 1];
        const boatmotionrawdata_v5& after = *samples[i];
        const double step = after.timestamp - before.timestamp;
        if (step > LongestStep)
            continue;
        const accelerationCodable& a = before.acceleration;
        const accelerationCodable& b = after.acceleration;
        const double change = std::hypot(b.x - a.x, b.y - a.y, b.z - a.z);
        events.push_back({after.timestamp, change / std::max(step, ShortestStep)});
    }
    return events;
}

} // namespace

std::vector<MotionEvent> estimateEvents(std::span<const boatmotionrawdata_v5> samples, double stamp,
                                        double within, std::size_t most) {
    std::vector<MotionEvent> all = jolts(samplesAround(samples, stamp, within));
    std::ranges::stable_sort(all, std::ranges::greater(), &MotionEvent::jerk);
    std::vector<MotionEvent> chosen;
    for (const MotionEvent& event : all) {
        const auto isNear = [&](const MotionEvent& other) {
            return std::abs(other.stamp - event.stamp) < LeastDistance;
        };
        if (chosen.size() < most && event.jerk > 0 && std::ranges::none_of(chosen, isNear))
            chosen.push_back(event);
    }
    return chosen;
}

} // namespace kavela
