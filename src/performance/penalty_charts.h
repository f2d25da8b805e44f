#pragma once

#include "performance/penalty_rates.h"
#include "performance/trade_off.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What drawings of penalties show, as plain values.
namespace kavela {

/// A gate of a course that is drawn with its rate.
struct GateOnCourse {
    std::int64_t gate = 0; ///< from 1
    bool isUpstream = false;
    std::optional<std::size_t> section; ///< from 1; nothing for a gate in none
    std::optional<RateOf> touches;      ///< nothing where nobody came
    std::optional<RateOf> missed;
    ShrunkRate shrunk;   ///< of the touches
    bool isBold = false; ///< stands out from the others
    double share = 0;    ///< the shrunk rate against the highest of the course, from 0 to 1
};

/// The course of a file, its gates in the order in which they are paddled.
struct CourseOfRates {
    std::uint32_t file = 0;
    std::string label;
    std::vector<GateOnCourse> gates;
    double common = 0; ///< the rate that all gates have in common
};

/// A course for each file that has runs known by gate; `rates` are by gate.
[[nodiscard]] std::vector<CourseOfRates> coursesOfRates(const FactStore& facts,
                                                        const PenaltyRates& rates);

/// A row of a chart of rates: a dot with its interval, the bare rate beside it.
struct RateMark {
    std::string label;
    double shrunk = 0;
    Interval interval; ///< of the shrunk rate
    std::optional<double> bare;
    std::size_t count = 0;
    std::size_t of = 0;
    bool isBold = false;
};

struct RateChart {
    std::vector<RateMark> marks; ///< the highest first
    std::size_t leftOut = 0;     ///< rows after those
    double common = 0;           ///< a line across all rows
    double most = 0;             ///< the right end of the scale
};

/// The first `most` rows of a table of rates.
[[nodiscard]] RateChart rateChart(const PenaltyRates& rates, std::size_t most);

/// Touches against paddling time.
struct TradeOffPoint {
    int third = 0;
    double paddling = 0; ///< percent of the group's median
    double touches = 0;  ///< per run
    Interval interval;
};

struct TradeOffChart {
    std::vector<TradeOffPoint> points; ///< the fastest first
    /// On this line all are equally fast with their penalties: through the mean of the points, with
    /// the slope at which speed pays for touches. From the first point's paddling to the last
    /// one's.
    std::vector<std::pair<double, double>> equalLine;
};

[[nodiscard]] TradeOffChart tradeOffChart(const TradeOff& tradeOff);

} // namespace kavela
