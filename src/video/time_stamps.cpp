#include "video/time_stamps.h"

extern "C" {
#include <libavutil/mathematics.h>
}

namespace kavela {

namespace {

constexpr std::uint32_t NoMoment = 4 | 8 | 16;

} // namespace

CMTime stampOf(std::int64_t ticks, TimeBase base) {
    std::int64_t value = 0;
    if (!__builtin_mul_overflow(ticks, static_cast<std::int64_t>(base.num), &value))
        return {value, base.den, ValidStamp, 0};
    return {av_rescale(ticks, base.num, base.den), 1, ValidStamp | RoundedStamp, 0};
}

bool isMoment(const CMTime& stamp) {
    return (stamp.flags & ValidStamp) != 0 && (stamp.flags & NoMoment) == 0 && stamp.timescale > 0;
}

int compareTicks(std::int64_t ticks, TimeBase base, const CMTime& moment) {
    return av_compare_ts(ticks, {base.num, base.den}, moment.value, {1, moment.timescale});
}

std::int64_t ticksToScale(std::int64_t ticks, TimeBase base, std::int32_t timescale) {
    return av_rescale_q(ticks, {base.num, base.den}, {1, timescale});
}

} // namespace kavela
