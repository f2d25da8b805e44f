#include "boatmotion/strokes/slips.h"

#include "boatmotion/strokes/axes.h"
#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::strokes {

namespace {

using Rotation = std::array<Vector, 3>; ///< rows

constexpr double Degree = std::numbers::pi / 180;
constexpr std::size_t Second = 50;         // values
constexpr std::size_t Beside = 10;         // s on either side that are compared
constexpr std::size_t AxisBeside = 30;     // s, for the boat's long axis
constexpr std::size_t AxisHop = 5;         // s
constexpr std::size_t LeastForAxis = 20;   // s of a stretch whose long axis can be told
constexpr double LeastTilt = 7 * Degree;   // of gravity
constexpr double LeastTwist = 15 * Degree; // of the long axis
constexpr double LeastAxisCertainty = 0.5; // of a long axis
constexpr double CanoeTwist = 30 * Degree; // that strokes on one side may feign
constexpr double GreatestSlip = 75 * Degree;

Vector normalised(const Vector& v) {
    const double length = std::sqrt(dot(v, v));
    return length > 1e-9 ? Vector{v[0] / length, v[1] / length, v[2] / length} : Vector{0, 0, -1};
}

double angleBetween(const Vector& a, const Vector& b) {
    return std::acos(std::clamp(dot(a, b), -1.0, 1.0));
}

Vector applied(const Rotation& rotation, const Vector& v) {
    return {dot(rotation[0], v), dot(rotation[1], v), dot(rotation[2], v)};
}

/// The rotation that brings axes to others.
Rotation bringing(const BoatAxes& from, const BoatAxes& to) {
    Rotation rotation{};
    for (std::size_t r = 0; r < 3; ++r)
        for (std::size_t c = 0; c < 3; ++c)
            rotation[r][c] =
                to.along[r] * from.along[c] + to.left[r] * from.left[c] + to.up[r] * from.up[c];
    return rotation;
}

double angleOf(const Rotation& rotation) {
    const double trace = rotation[0][0] + rotation[1][1] + rotation[2][2];
    return std::acos(std::clamp((trace - 1) / 2, -1.0, 1.0));
}

void turn(MotionGrid& grid, std::size_t begin, std::size_t end, const Rotation& rotation) {
    for (auto* triple : {&grid.acceleration, &grid.rotation, &grid.gravity})
        for (std::size_t i = begin; i < end; ++i) {
            const Vector turned =
                applied(rotation, {(*triple)[0][i], (*triple)[1][i], (*triple)[2][i]});
            for (std::size_t k = 0; k < 3; ++k)
                (*triple)[k][i] = turned[k];
        }
}

MotionGrid part(const MotionGrid& grid, std::size_t begin, std::size_t end) {
    MotionGrid result;
    const auto cut = [&](const auto& from, auto& to) {
        to.assign(from.begin() + static_cast<std::ptrdiff_t>(begin),
                  from.begin() + static_cast<std::ptrdiff_t>(end));
    };
    cut(grid.time, result.time);
    cut(grid.valid, result.valid);
    for (std::size_t k = 0; k < 3; ++k) {
        cut(grid.acceleration[k], result.acceleration[k]);
        cut(grid.rotation[k], result.rotation[k]);
        cut(grid.gravity[k], result.gravity[k]);
    }
    return result;
}

/// Where down is, second by second.
std::vector<Vector> downBySecond(const MotionGrid& grid) {
    std::vector<Vector> down(grid.size() / Second);
    for (std::size_t s = 0; s < down.size(); ++s) {
        Vector sum{};
        for (std::size_t i = s * Second; i < (s + 1) * Second; ++i)
            for (std::size_t k = 0; k < 3; ++k)
                sum[k] += grid.gravity[k][i];
        down[s] = normalised(sum);
    }
    return down;
}

/// The middle of some directions, and how far half of them are off it.
struct Direction {
    Vector middle{};
    double spread = 0;
};

Direction directionOf(std::span<const Vector> some) {
    Direction result;
    std::vector<double> values(some.size());
    for (std::size_t k = 0; k < 3; ++k) {
        std::ranges::transform(some, values.begin(), [k](const Vector& v) { return v[k]; });
        result.middle[k] = percentileOf(values, 0.5);
    }
    result.middle = normalised(result.middle);
    std::ranges::transform(some, values.begin(),
                           [&](const Vector& v) { return angleBetween(v, result.middle); });
    result.spread = percentileOf(values, 0.5);
    return result;
}

/// How far down moves at a second, for good; 0 where it is not quiet on both sides.
double tiltAt(std::span<const Vector> down, std::size_t second) {
    const Direction before = directionOf(down.subspan(second - Beside, Beside));
    const Direction after = directionOf(down.subspan(second, Beside));
    const double angle = angleBetween(before.middle, after.middle);
    return angle > 3 * (before.spread + after.spread) ? angle : 0;
}

/// The index within two seconds of it where gravity jumps most.
std::size_t jumpNear(const MotionGrid& grid, std::size_t index) {
    constexpr std::size_t Reach = 2 * Second;
    constexpr std::size_t Mean = 10;
    const auto mean = [&](std::size_t begin) {
        Vector sum{};
        for (std::size_t i = begin; i < begin + Mean; ++i)
            for (std::size_t k = 0; k < 3; ++k)
                sum[k] += grid.gravity[k][i];
        return normalised(sum);
    };
    std::size_t best = index;
    double greatest = 0;
    for (std::size_t i = index - Reach; i <= index + Reach; ++i) {
        const double jump = angleBetween(mean(i - Mean), mean(i));
        if (jump > greatest) {
            greatest = jump;
            best = i;
        }
    }
    return best;
}

/// The greatest of some values that are over a threshold, with nothing else within a reach.
std::vector<std::size_t> peaksOver(const std::vector<double>& values, double least,
                                   std::size_t reach) {
    std::vector<std::size_t> peaks;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] < least)
            continue;
        if (peaks.empty() || i - peaks.back() > reach)
            peaks.push_back(i);
        else if (values[i] > values[peaks.back()])
            peaks.back() = i;
    }
    return peaks;
}

/// Where down moves for good, as indexes.
std::vector<std::size_t> tilts(const MotionGrid& grid) {
    const std::vector<Vector> down = downBySecond(grid);
    std::vector<double> angles(down.size());
    for (std::size_t s = Beside; s + Beside <= down.size(); ++s)
        angles[s] = tiltAt(down, s);
    std::vector<std::size_t> found;
    for (const std::size_t second : peaksOver(angles, LeastTilt, Beside))
        found.push_back(jumpNear(grid, second * Second));
    return found;
}

/// The axes of a stretch, along the same way as others; of a short one the along of the others,
/// levelled.
BoatAxes axesLike(const MotionGrid& stretch, const BoatAxes& others, BoatClass boat) {
    BoatAxes axes = boatAxes(stretch);
    const auto crossed = [](const Vector& a, const Vector& b) {
        return Vector{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2],
                      a[0] * b[1] - a[1] * b[0]};
    };
    // What is left of the others' axes when the shortest way brings them upright.
    const Vector axis = crossed(others.up, axes.up);
    const double sine = std::sqrt(dot(axis, axis));
    const double cosine = dot(others.up, axes.up);
    Vector along = others.along;
    if (sine > 1e-9) {
        const Vector unit = normalised(axis);
        const Vector aside = crossed(unit, along);
        const double share = dot(unit, along) * (1 - cosine);
        for (std::size_t k = 0; k < 3; ++k)
            along[k] = cosine * along[k] + sine * aside[k] + share * unit[k];
    }
    if (dot(axes.along, along) < 0)
        axes.along = {-axes.along[0], -axes.along[1], -axes.along[2]};
    const bool isTold =
        stretch.size() >= LeastForAxis * Second && axes.certainty > LeastAxisCertainty;
    const bool isAskew = boat == BoatClass::Canoe && angleBetween(axes.along, along) < CanoeTwist;
    if (!isTold || isAskew)
        axes.along = along;
    axes.left = crossed(axes.up, axes.along);
    return axes;
}

/// Turns all stretches between the cuts like the longest one; what has turned at each cut, where
/// that is told.
std::vector<PhoneSlip> straighten(MotionGrid& grid, const std::vector<std::size_t>& cuts,
                                  BoatClass boat) {
    std::vector<std::size_t> ends = cuts;
    ends.insert(ends.begin(), 0);
    ends.push_back(grid.size());
    std::size_t longest = 0;
    for (std::size_t i = 0; i + 1 < ends.size(); ++i)
        if (ends[i + 1] - ends[i] > ends[longest + 1] - ends[longest])
            longest = i;
    const BoatAxes model = boatAxes(part(grid, ends[longest], ends[longest + 1]));
    std::vector<Rotation> rotations;
    for (std::size_t i = 0; i + 1 < ends.size(); ++i) {
        rotations.push_back(
            i == longest
                ? bringing(model, model)
                : bringing(axesLike(part(grid, ends[i], ends[i + 1]), model, boat), model));
        if (angleOf(rotations.back()) <= GreatestSlip)
            turn(grid, ends[i], ends[i + 1], rotations.back());
    }
    std::vector<PhoneSlip> slips;
    for (std::size_t i = 0; i < cuts.size(); ++i) {
        Rotation between{};
        for (std::size_t r = 0; r < 3; ++r)
            for (std::size_t c = 0; c < 3; ++c)
                for (std::size_t k = 0; k < 3; ++k)
                    between[r][c] += rotations[i + 1][k][r] * rotations[i][k][c];
        slips.push_back({grid.time[cuts[i]], angleOf(between)});
    }
    return slips;
}

/// Where the boat's long axis turns about the vertical for good, as indexes.
std::vector<std::size_t> twists(const MotionGrid& grid) {
    constexpr std::size_t Width = AxisBeside * Second;
    constexpr std::size_t Stride = AxisHop * Second;
    std::vector<double> angles;
    for (std::size_t i = Width; i + Width <= grid.size(); i += Stride) {
        const BoatAxes before = boatAxes(part(grid, i - Width, i));
        const BoatAxes after = boatAxes(part(grid, i, i + Width));
        const bool areSure = std::min(before.certainty, after.certainty) > LeastAxisCertainty;
        angles.push_back(
            areSure ? std::acos(std::min(1.0, std::abs(dot(before.along, after.along)))) : 0);
    }
    std::vector<std::size_t> found;
    for (const std::size_t place : peaksOver(angles, LeastTwist, AxisBeside / AxisHop))
        found.push_back(Width + place * Stride);
    return found;
}

} // namespace

std::vector<PhoneSlip> straightenSlips(MotionGrid& grid, BoatClass boat) {
    std::vector<PhoneSlip> slips;
    const auto straightenAt = [&](const std::vector<std::size_t>& cuts) {
        if (cuts.empty())
            return;
        const std::vector<PhoneSlip> some = straighten(grid, cuts, boat);
        slips.insert(slips.end(), some.begin(), some.end());
    };
    straightenAt(tilts(grid));
    if (boat == BoatClass::Kayak)
        straightenAt(twists(grid));
    std::ranges::sort(slips, {}, &PhoneSlip::time);
    return slips;
}

} // namespace kavela::strokes
