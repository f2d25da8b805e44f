#include "boatmotion/motion_cover.h"

#include "common/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr std::size_t MostHoles = 3; ///< that are told one by one

bool isMotion(const boatmotionrawdata_v5& sample) {
    const accelerationCodable& a = sample.acceleration;
    return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z);
}

} // namespace

MotionCover::MotionCover(std::span<const boatmotionrawdata_v5> samples, const RunClock& clock) {
    std::vector<double> moments;
    moments.reserve(samples.size());
    for (const boatmotionrawdata_v5& sample : samples)
        if (const double moment = clock.momentOf(sample.timestamp);
            std::isfinite(moment) && isMotion(sample))
            moments.push_back(moment);
    std::ranges::sort(moments);
    for (const double moment : moments) {
        if (m_stretches.empty() || moment - m_stretches.back().to > LongestMotionBridge)
            m_stretches.push_back({moment, moment});
        m_stretches.back().to = moment;
    }
    std::erase_if(m_stretches,
                  [](const MotionStretch& stretch) { return stretch.to - stretch.from <= 0; });
}

double MotionCover::secondsOf(double from, double to) const {
    double seconds = 0;
    for (const MotionStretch& stretch : m_stretches)
        seconds += std::max(0.0, std::min(to, stretch.to) - std::max(from, stretch.from));
    return seconds;
}

MotionCover::Share MotionCover::of(double from, double to) const {
    const double covered = secondsOf(from, to);
    if (to - from - covered <= LongestMotionBridge)
        return covered > 0 ? Whole : None;
    return covered > LongestMotionBridge ? Part : None;
}

std::vector<std::string> MotionCover::notes(double seconds) const {
    if (of(0, seconds) == None)
        return {say("The recording does not reach into this run.")};
    std::vector<MotionStretch> holes;
    double reached = 0;
    for (const MotionStretch& stretch : m_stretches) {
        if (stretch.from < seconds && stretch.from - reached > LongestMotionBridge)
            holes.push_back({reached, stretch.from});
        reached = std::max(reached, stretch.to);
    }
    if (seconds - reached > LongestMotionBridge)
        holes.push_back({reached, seconds});
    std::vector<std::string> notes;
    for (const MotionStretch& hole : holes) {
        const double missing = hole.to - hole.from;
        if (hole.from <= 0)
            notes.push_back(say("Of the first {:.1f} s of the run nothing is recorded.", missing));
        else if (hole.to >= seconds)
            notes.push_back(say("Of the last {:.1f} s of the run nothing is recorded.", missing));
        else
            notes.push_back(say("From {:.1f} s to {:.1f} s of the run nothing is recorded.",
                                hole.from, hole.to));
    }
    if (notes.size() > MostHoles) {
        const std::size_t more = notes.size() - MostHoles;
        notes.resize(MostHoles);
        notes.push_back(say("The recording has {} further holes in this run.", more));
    }
    return notes;
}

RunClock runClock(const ClockFit& fit, double runStart) {
    return {fit.stampAt(runStart), 0, fit.rate};
}

} // namespace kavela
