#pragma once

#include "boatmotion/simulator.h"
#include "boatmotion/strokes/motion_analysis.h"

namespace kavela::test {

/// How an analysis stands to the truth. Sums of several recordings may be added up.
struct Score {
    double trueStrokes = 0;
    double foundStrokes = 0;
    double matchedStrokes = 0;
    double straightHands = 0; ///< matched strokes outside turns
    double rightStraightHands = 0;
    double turningHands = 0;
    double rightTurningHands = 0;
    double trueTurns = 0;
    double foundTurns = 0;
    double matchedTurns = 0;
    double falseTurns = 0;
    std::vector<double> catchErrors{};   ///< s, signed
    std::vector<double> exitErrors{};    ///< s, signed
    std::vector<double> impulseErrors{}; ///< shares, signed
    std::vector<double> powerErrors{};   ///< shares, signed
    std::vector<double> rateErrors{};    ///< shares, of windows of 20 s
    std::vector<double> speedErrors{};   ///< m/s, signed, some a second
    std::vector<double> angleErrors{};   ///< of turns, rad

    void add(const Score& other);
    [[nodiscard]] double recall() const { return matchedStrokes / trueStrokes; }
    [[nodiscard]] double precision() const { return matchedStrokes / foundStrokes; }
    [[nodiscard]] double f1() const { return 2 * matchedStrokes / (trueStrokes + foundStrokes); }
};

/// The median of the sizes of errors; 0 when there are none.
[[nodiscard]] double medianSize(std::vector<double> errors);

/// Strokes belong together when their peaks are within 0.3 s, or 0.45 of a cycle if that is less.
/// What touches a gap of the recording does not count either way.
[[nodiscard]] Score score(const Simulation& truth, const MotionAnalysis& analysis);

/// The same for bare peaks: only counts and the rate.
[[nodiscard]] Score scorePeaks(const Simulation& truth, const std::vector<double>& peaks);

/// What a simple program would find: peaks over a fixed threshold of the smoothed acceleration of
/// a perfect sensor along the true axis of the boat.
[[nodiscard]] std::vector<double> simplePeaks(const Simulation& truth);

} // namespace kavela::test
