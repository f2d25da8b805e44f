#pragma once

#include "vision/light_barrier.h"

#include <string>

namespace kavela {

/// What the search for crossings was measured to do, on scenes that none of its numbers were set
/// on. docs/light-barrier.md tells the scenes and every figure.
struct BarrierFigures {
    int scenes = 0;
    int runs = 0;                 ///< boats in all of them
    double minutes = 0;           ///< of film
    double foundShare = 0;        ///< of the runs with a proposal within 15 frames, 0 to 1
    double falsePerHour = 0;      ///< proposals of confidence 0.5 and more without a boat
    double p95ErrorFrames = 0;    ///< of the proposals within 15 frames
    double cpuShareOfPlaying = 0; ///< processor time of 1080p50, decoding included, by its length
    bool isOnRealWater = false;   ///< or on rendered water alone
};

/// What is asked of the search before its proposals may be accepted all at once.
struct BarrierTargets {
    double leastFoundShare = 0.95;
    double mostFalsePerHour = 2;
    double mostP95ErrorFrames = 2;
    double mostCpuShareOfPlaying = 2; ///< real time on two cores
};

/// The figures of this release.
[[nodiscard]] const BarrierFigures& measuredBarrierFigures(TimingPoint point);

/// Whether the figures reach every target: only then proposals may be accepted all at once.
[[nodiscard]] bool reachesTargets(const BarrierFigures& figures,
                                  const BarrierTargets& targets = {});

/// The figures as sentences for a coach: what was reached or missed, and on what it was measured.
[[nodiscard]] std::string tellFigures(const BarrierFigures& figures,
                                      const BarrierTargets& targets = {});

} // namespace kavela
