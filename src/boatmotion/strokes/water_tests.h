#pragma once

#include "boatmotion/strokes/motion_analysis.h"

/// Tests on the water, cut out of an analysed recording: laps, eights and sprints.
///
/// Everywhere a stroke belongs to the stretch in which its catch lies, and a figure that needs the
/// speed is nothing where that is not known.
namespace kavela {

/// What happened from one moment to another, or on several stretches between them.
struct StretchFigures {
    double start = 0;   ///< s
    double end = 0;     ///< s
    double seconds = 0; ///< of the stretch, or of all stretches together
    std::size_t strokes = 0;
    double strokeRate = 0;            ///< mean of its strokes, 1/min; 0 without strokes
    std::optional<double> distance{}; ///< m
    std::optional<double> speed{};    ///< mean, m/s
    std::optional<double> force{};    ///< mean of its strokes, N; nothing without strokes
    std::optional<double> power{};    ///< mean of its strokes, W
    std::optional<double> impulse{};  ///< mean of its strokes, N·s
};

[[nodiscard]] StretchFigures figuresBetween(const MotionAnalysis& analysis, double start,
                                            double end);

/// A part of a lap: one of its turns, or what lies between two of them.
struct LapPart {
    bool isTurn = false;
    std::size_t turn = 0; ///< index among the analysis' turns, where it is one
    StretchFigures figures;
};

struct Lap {
    StretchFigures figures;     ///< of all of it
    StretchFigures turning;     ///< of its turns together
    StretchFigures straight;    ///< of all the rest together
    std::vector<LapPart> parts; ///< by time, without a gap
};

/// The laps between consecutive moments that the coach marked; the marks need no order. Fewer than
/// two give none. A turn belongs to the lap in which its peak lies, cut to the lap.
[[nodiscard]] std::vector<Lap> lapsBetween(const MotionAnalysis& analysis,
                                           std::span<const double> marks);

/// A place on the water.
struct TestPlace {
    double latitude = 0;  ///< degrees
    double longitude = 0; ///< degrees
};

/// A line on the water, from one bank to the other.
struct StartLine {
    TestPlace from;
    TestPlace to;
};

/// The moments at which the boat's fixes cross a line, either way, on the clock of the analysis.
/// Crossings within 5 s of the one before are the receiver's scatter and do not count.
[[nodiscard]] std::vector<double> lineCrossings(const MotionAnalysis& analysis,
                                                std::span<const gpsrawdata> gps,
                                                const StartLine& line);

/// One eight: two turns in opposite directions and the way between and around them.
struct Eight {
    std::size_t firstTurn = 0; ///< index among the analysis' turns
    std::size_t secondTurn = 0;
    StretchFigures figures; ///< from the middle of the straight before to that of the one after
    double netHeading = 0;  ///< rad; a whole eight ends as it began
    bool isWhole = false;   ///< |net heading| below 60°
};

/// Pairs of consecutive opposite turns of 120° to 330° each, no turn being in two of them.
[[nodiscard]] std::vector<Eight> findEights(const MotionAnalysis& analysis);

struct Sprint {
    StretchFigures figures;
    double medianRate = 0;             ///< 1/min
    std::optional<double> vMax{};      ///< m/s
    std::optional<double> meanPower{}; ///< of the hull over the time, W
    std::optional<double> best5{};     ///< greatest mean power of 5 s, W
    std::optional<double> worst5{};    ///< least one, W
    std::optional<double> fatigue{};   ///< percent: 100·(best − worst)/best
};

/// The sprint of 30 s that begins with a catch: that of the stroke with this index, or the one with
/// the highest mean power (the most strokes where the power is not known). Nothing when there are
/// no strokes, the stroke is none of the analysis, or fewer than 5 s follow it.
[[nodiscard]] std::optional<Sprint> sprintFrom(const MotionAnalysis& analysis, std::size_t stroke);
[[nodiscard]] std::optional<Sprint> bestSprint(const MotionAnalysis& analysis);

} // namespace kavela
