#include "splitdata/frame_step.h"

#include "splitdata/film_marks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>

namespace kavela {

namespace {

constexpr std::size_t LeastStamps = 8;     ///< fewer stand on even frames too often by chance
constexpr double ShortestStep = 1 / 250.0; ///< below it is no camera's, but a common divisor
constexpr double LongestStep = 1 / 12.0;

bool isOnHundredths(double step) {
    return std::abs(step * 100 - std::round(step * 100)) < 1e-9 && std::abs(step - 0.02) > 1e-9 &&
           std::abs(step - 0.04) > 1e-9;
}

} // namespace

std::optional<double> frameStep(std::span<const CMTime> stamps) {
    std::int64_t common = 0;
    std::size_t count = 0;
    const CMTime* first = nullptr;
    for (const CMTime& stamp : stamps) {
        if (!isTaken(stamp))
            continue;
        if (!first)
            first = &stamp;
        std::int64_t apart = 0;
        if (stamp.timescale != first->timescale ||
            __builtin_sub_overflow(stamp.value, first->value, &apart) ||
            apart == std::numeric_limits<std::int64_t>::min())
            return std::nullopt;
        common = std::gcd(common, apart);
        ++count;
    }
    if (count < LeastStamps || common == 0)
        return std::nullopt;
    const double step = static_cast<double>(common) / first->timescale;
    const bool isOfFilm = step >= ShortestStep && step <= LongestStep && !isOnHundredths(step);
    return isOfFilm ? std::optional(step) : std::nullopt;
}

std::optional<double> frameStep(std::span<const std::vector<CMTime>> sections,
                                std::span<const upstreamdata025> gates) {
    std::vector<CMTime> stamps;
    for (const std::vector<CMTime>& mark : sections)
        if (!mark.empty())
            stamps.push_back(mark.front());
    for (const upstreamdata025& gate : gates)
        stamps.insert(stamps.end(), gate.cmtimes.begin(), gate.cmtimes.end());
    return frameStep(stamps);
}

} // namespace kavela
