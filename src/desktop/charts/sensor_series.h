#pragma once

#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

class SamplePyramid;

/// A long row of samples, shared and never copied: several charts and windows may show the same.
struct SensorSeries {
    QString name;
    QString unit;
    std::shared_ptr<const std::vector<double>> times;  ///< seconds, ascending
    std::shared_ptr<const std::vector<double>> values; ///< one for each time; not finite: missing
    std::size_t slot = 0;                              ///< its colour, see seriesStyle()
    /// Until when each value holds, where it is that of a span, such as a stroke; null where the
    /// values are those of moments, and the nearest one is read.
    std::shared_ptr<const std::vector<double>> ends{};
    double offset = 0;    ///< seconds added to all times
    bool isQuiet = false; ///< drawn grey, behind the others
    /// Of the values; made where it is missing. Whoever loads long rows in another thread makes it
    /// there.
    std::shared_ptr<const SamplePyramid> pyramid{};
};

/// A moment or a span that stands out along the time axis.
struct SensorMark {
    double time = 0; ///< seconds
    double end = 0;  ///< equal to `time` for a line, later for a span
    QString text;
    std::size_t slot = 0;
    bool isStrong = false; ///< drawn in full colour, however many marks there are
};

/// Samples further apart than this are not joined: 2 s, or more where the series is always that
/// thin, such as a heart rate every 5 s.
[[nodiscard]] double joinedGap(const std::vector<double>& times);

/// The place of the sample that is read at a moment: the one that holds then, or the nearest where
/// none has an end; nothing in a gap, or where its value is missing.
[[nodiscard]] std::optional<std::size_t> sampleAt(const SensorSeries& series, double time);
/// Its value.
[[nodiscard]] std::optional<double> valueAt(const SensorSeries& series, double time);

/// A value with as many digits as are read at a glance: "162", "12.3", "−1.25", "0.004".
[[nodiscard]] QString sensorText(double value);

/// A moment as minutes and seconds: "1:05.20", "-0:03.00", "1:02:03.00" from an hour on.
[[nodiscard]] QString momentText(double seconds, int decimals = 2);

} // namespace kavela::desktop
