#include "boatmotion/imports/csv/gravity_split.h"

#include <cmath>
#include <numbers>

namespace kavela::imports {

namespace {

constexpr double CutOff = 0.3;           // Hz
constexpr double LongestFilteredGap = 1; // s

struct Level {
    double x = 0;
    double y = 0;
    double z = 0;

    void approach(const Level& other, double share) {
        x += share * (other.x - x);
        y += share * (other.y - y);
        z += share * (other.z - z);
    }
};

/// Where a filter begins: the mean of the first second, so that it does not begin in the middle of
/// a stroke.
template <class Iterator, class Reading>
Level beginning(Iterator begin, Iterator end, const Reading& reading) {
    Level sum;
    double count = 0;
    for (Iterator i = begin; i != end && std::abs(i->timestamp - begin->timestamp) <= 1; ++i)
        sum.approach(reading(*i), 1 / ++count);
    return sum;
}

template <class Iterator, class Reading>
void smooth(Iterator begin, Iterator end, const Reading& reading) {
    Level level;
    for (Iterator i = begin; i != end; ++i) {
        const double step =
            i == begin ? LongestFilteredGap + 1 : std::abs(i->timestamp - (i - 1)->timestamp);
        if (step > LongestFilteredGap)
            level = beginning(i, end, reading);
        else
            level.approach(reading(*i), 1 - std::exp(-2 * std::numbers::pi * CutOff * step));
        i->gravity = {level.x, level.y, level.z};
    }
}

} // namespace

void splitOffGravity(std::span<boatmotionrawdata_v5> samples) {
    smooth(samples.begin(), samples.end(), [](const boatmotionrawdata_v5& s) {
        return Level{s.acceleration.x, s.acceleration.y, s.acceleration.z};
    });
    smooth(samples.rbegin(), samples.rend(), [](const boatmotionrawdata_v5& s) {
        return Level{s.gravity.x, s.gravity.y, s.gravity.z};
    });
    for (boatmotionrawdata_v5& sample : samples) {
        accelerationCodable& a = sample.acceleration;
        gravityCodable& g = sample.gravity;
        a = {a.x - g.x, a.y - g.y, a.z - g.z};
        g = {-g.x, -g.y, -g.z};
    }
}

} // namespace kavela::imports
