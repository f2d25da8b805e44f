#include "splitdata/run_marks.h"

#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

/// WideStamp enough for the product of a stamp and a time scale.
__extension__ using WideStamp = __int128;

constexpr std::uint32_t Valid = 1;
constexpr std::uint32_t Rounded = 2;
constexpr std::int32_t NanosecondScale = 1'000'000'000;

/// The stamp's value in another time scale, which must be a multiple of its own.
WideStamp valueIn(const CMTime& stamp, std::int64_t timescale) {
    return static_cast<WideStamp>(stamp.value) * (timescale / stamp.timescale);
}

/// The moment in a time scale; nothing when it falls between two ticks or the value has no room.
std::optional<CMTime> laterIn(std::int64_t timescale, const CMTime& stamp, double seconds) {
    constexpr double Tolerance = 0.5e-9;
    if (timescale > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    const double exact = seconds * static_cast<double>(timescale);
    const double ticks = std::round(exact);
    if (std::abs(exact - ticks) > Tolerance * static_cast<double>(timescale) ||
        std::abs(ticks) > 1e18)
        return std::nullopt;
    const WideStamp value = valueIn(stamp, timescale) + static_cast<WideStamp>(ticks);
    if (value > std::numeric_limits<std::int64_t>::max() ||
        value < std::numeric_limits<std::int64_t>::min())
        return std::nullopt;
    return CMTime{static_cast<std::int64_t>(value), static_cast<std::int32_t>(timescale),
                  stamp.flags, stamp.epoch};
}

CMTime laterRounded(const CMTime& stamp, double seconds) {
    const double nanoseconds = std::round((stamp.seconds() + seconds) * NanosecondScale);
    if (!(std::abs(nanoseconds) < 9e18))
        return stamp;
    return {static_cast<std::int64_t>(nanoseconds), NanosecondScale, stamp.flags | Valid | Rounded,
            stamp.epoch};
}

Stamps allLater(Stamps stamps, double seconds) {
    for (CMTime& stamp : stamps)
        stamp = later(stamp, seconds);
    return stamps;
}

/// Splits of a record up to the last one with a time or a stamp.
std::size_t splitsTaken(const sectiondata030& timing) {
    std::size_t count = std::max(timing.times.size(), timing.cmtimes.size());
    while (count > 0 && entryOrZero(timing.times, count - 1) == 0 &&
           entryOrZero(timing.cmtimes, count - 1).empty())
        --count;
    return count;
}

Stamps startBefore(const sectiondata030& timing, std::size_t firstStamped) {
    Stamps start = timing.cmtimes[firstStamped];
    for (std::size_t k = 0; k <= firstStamped; ++k)
        start = allLater(std::move(start), -entryOrZero(timing.times, k));
    return start;
}

} // namespace

CMTime later(const CMTime& stamp, double seconds) {
    if (!std::isfinite(seconds) || seconds == 0)
        return stamp;
    if (stamp.timescale <= 0)
        return laterRounded(stamp, seconds);
    // The other stamp of a measured time came from a film too: these are the scales of cameras.
    for (const std::int64_t scale : {1, 100, 600, 1000, 24000, 30000, 90000, 1'000'000})
        if (const auto moment =
                laterIn(std::lcm<std::int64_t>(stamp.timescale, scale), stamp, seconds))
            return *moment;
    return laterRounded(stamp, seconds);
}

RunMarks marksOf(const sectiondata030& timing) {
    const auto stamped = std::find_if(timing.cmtimes.begin(), timing.cmtimes.end(),
                                      [](const Stamps& stamps) { return !stamps.empty(); });
    RunMarks run;
    if (stamped == timing.cmtimes.end())
        return run;
    run.start = startBefore(timing, static_cast<std::size_t>(stamped - timing.cmtimes.begin()));
    Stamps previous = *run.start;
    for (std::size_t k = 0; k < splitsTaken(timing); ++k) {
        Stamps stamps = entryOrZero(timing.cmtimes, k);
        const double time = entryOrZero(timing.times, k);
        if (stamps.empty() && time != 0)
            stamps = allLater(previous, time);
        if (!stamps.empty())
            previous = stamps;
        run.marks.push_back(std::move(stamps));
    }
    return run;
}

} // namespace kavela
