#pragma once

#include <cstdint>
#include <span>
#include <string>

/// The words of the on-water tests, misspellings included, and the lines under their charts.
namespace kavela {

/// "The test consist in doing 6 laps around two gated separated by 12.5 meters. …"
[[nodiscard]] std::string lapTestDescription(std::int64_t laps, double metres);

inline constexpr const char* SprintTestDescription =
    "The test consist in 30'' sprint in a straight line. Athletes are told to start at maximum "
    "speed and keep it was long as they can until the time is up.";

namespace test_help {
inline constexpr const char* LapTime = "Amount of time in each lap.";
inline constexpr const char* RotationTime = "Amount of time in rotation in each lap.";
inline constexpr const char* StraightTime = "Amount of time in straight line in each lap.";
inline constexpr const char* RotationPeak = "Maximum rotational speed of each turn.";
inline constexpr const char* StrokeRate = "Stroke frequency on each lap";
inline constexpr const char* Roll = "Average roll movement of each lap";
inline constexpr const char* MaximumAcceleration =
    "Maximum acceleration on each lap. Middle strokes are considered.";
inline constexpr const char* AverageAcceleration =
    "Average acceleration on each lap. Middle strokes are considered.";
inline constexpr const char* AverageDeceleration =
    "Average deacceleration on each lap. Middle strokes are considered.";
} // namespace test_help

namespace test_axis {
inline constexpr const char* MaximumForce = "Maximun force (N)";
inline constexpr const char* MaximumAcceleration = "Maximun acceleration (m/s2)";
inline constexpr const char* AverageAcceleration = "Average acceleration (m/s2)";
inline constexpr const char* AverageDeceleration = "Average deacceleration (m/s2)";
inline constexpr const char* LeftRotationPeak = "Left rotation peak speed (rad/s)";
inline constexpr const char* RightRotationPeak = "Right rotation peak speed (rad/s)";
inline constexpr const char* LeftRotationTime = "Left rotation time (s)";
inline constexpr const char* RightRotationTime = "Right rotation time (s)";
inline constexpr const char* AerialPhase = "Aerial phase (s)";
inline constexpr const char* WaterPhase = "Water phase (s)";
inline constexpr const char* StrokeRate = "Stroke rate (strokes/min)";
inline constexpr const char* StrokeEfficiency = "Stroke efficiency (m/stroke)";
inline constexpr const char* Speed = "Average speed (m/s)";
inline constexpr const char* Time = "Time (s)";
} // namespace test_axis

namespace test_series {
inline constexpr const char* LeftRotationPeak = "Left Rotation peak";
inline constexpr const char* LeftRotationDuration = "Left Rotation duration";
inline constexpr const char* RightRotationPeak = "Right Rotation peak";
inline constexpr const char* RightRotationDuration = "Right Rotation duration";
inline constexpr const char* StrokeEfficiency = "Stroke efficiency";
} // namespace test_series

/// What stands under a chart. A label that is null has no line.
struct SummaryLabels {
    const char* average = nullptr;
    const char* averageChange = nullptr;
    const char* totalChange = nullptr;
};

inline constexpr SummaryLabels StrokeRateLabels{
    "Average strokerate:", "Average increase:", "Total increase:"};
inline constexpr SummaryLabels AccelerationLabels{
    "Average acceleration:", "Average variation:", "Total variation:"};
inline constexpr SummaryLabels WaterPhaseLabels{"Average water phase:", nullptr,
                                                "Variation of the water phase:"};
inline constexpr SummaryLabels AerialPhaseLabels{"Average aerial phase:", nullptr,
                                                 "Variation of the aerial phase:"};
inline constexpr SummaryLabels RollLabels{"Average roll movement:", nullptr, nullptr};

/// Average and change of a series across a test; values that are not finite are left out.
struct SeriesSummary {
    std::size_t count = 0;
    double average = 0;
    double averageChange = 0; ///< mean of the steps from one value to the next
    double totalChange = 0;   ///< from the first value to the last one
};

[[nodiscard]] SeriesSummary summaryOf(std::span<const double> series);

/// The lines under a chart, each ended by a line feed except the last one: two decimals, a positive
/// change with a plus. A dash stands for the values of an empty series.
[[nodiscard]] std::string summaryText(const SeriesSummary& summary, const SummaryLabels& labels);

} // namespace kavela
