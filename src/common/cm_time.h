#pragma once

#include <boost/describe.hpp>

#include <cstdint>

namespace kavela {

/// A time stamp of the video player: `value` in units of 1/`timescale` seconds.
/// `flags`: 1 valid, 2 rounded, 4 positive infinity, 8 negative infinity, 16 indefinite.
struct CMTime {
    std::int64_t value = 0;
    std::int32_t timescale = 0;
    std::uint32_t flags = 0;
    std::int64_t epoch = 0;

    /// Seconds; 0 for a stamp without a time scale.
    [[nodiscard]] double seconds() const {
        return timescale == 0 ? 0 : static_cast<double>(value) / timescale;
    }

    friend bool operator==(const CMTime&, const CMTime&) = default;
};
BOOST_DESCRIBE_STRUCT(CMTime, (), (value, timescale, flags, epoch))

} // namespace kavela
