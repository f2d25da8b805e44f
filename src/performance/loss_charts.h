#pragma once

#include "analysis/colouring.h"
#include "performance/losses.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// What the charts of losses draw, as plain values.
namespace kavela {

enum class WaterfallPart { Reference, Stretch, Penalties, Timing, Own };

/// One bar of a waterfall, in hundredths as they are shown: the ends of neighbours meet.
struct WaterfallBar {
    WaterfallPart part = WaterfallPart::Stretch;
    std::size_t stretch = 0; ///< of the run's stretches, for `Stretch`
    std::int64_t from = 0;
    std::int64_t to = 0;

    friend bool operator==(const WaterfallBar&, const WaterfallBar&) = default;
};

/// From the reference's total to the run's own; nothing where there is no sum.
[[nodiscard]] std::vector<WaterfallBar> waterfallOf(const RunLosses& losses);

/// One bar of a Pareto chart.
struct ParetoBar {
    std::size_t stretch = 0; ///< of the run's stretches
    double loss = 0;         ///< seconds, above 0
    double upTo = 0;         ///< part of all that was lost, with the bars before it: to 1
};

/// The stretches that lost time, the greatest loss first.
[[nodiscard]] std::vector<ParetoBar> paretoOf(const RunLosses& losses);

/// Percent lost by run and section.
struct LossHeatMap {
    std::vector<std::size_t> runs; ///< of the store
    std::size_t sections = 0;
    std::vector<std::optional<double>> percent; ///< row by row; a stretch has the same in each of
                                                ///< its sections, none where nothing is known

    [[nodiscard]] std::optional<double> at(std::size_t row, std::size_t section) const {
        return percent[row * sections + section];
    }
};

[[nodiscard]] LossHeatMap heatMapOf(const FactStore& facts, std::span<const RunLosses> runs);

/// The tints of its cells, row by row: one scale from percentiles for the whole map, so that the
/// sections can be held against each other. Clear where nothing is known.
[[nodiscard]] std::vector<Band> heatBandsOf(const LossHeatMap& map);

/// The gap as it grows along the course.
struct CumulativeGap {
    struct Point {
        std::size_t section = 0; ///< at whose end; 0 is the start
        double gap = 0;
    };
    std::vector<Point> points;
    std::vector<double> interests; ///< results of interest less the reference's total
};

[[nodiscard]] CumulativeGap cumulativeGapOf(const RunLosses& losses);

/// The gap at the end of a section, as the chart has it; 0 before the first one.
[[nodiscard]] double gapAfter(const FactStore& facts, const RunLosses& losses, std::size_t section,
                              Why* why = nullptr);

} // namespace kavela
