#include "boatmotion/strokes/axes.h"

#include "boatmotion/strokes/filters.h"
#include "boatmotion/strokes/fix_regression.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double SlowestStroking = 0.5; // Hz
constexpr double FastestStroking = 3.5; // Hz
constexpr double LeastCertainty = 0.1;
constexpr double FarthestAhead = 2; // m

Vector scaled(const Vector& v, double factor) {
    return {v[0] * factor, v[1] * factor, v[2] * factor};
}

Vector cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// `v` at length 1; `otherwise` where it has none.
Vector unit(const Vector& v, const Vector& otherwise) {
    const double length = std::sqrt(dot(v, v));
    return length > 1e-6 ? scaled(v, 1 / length) : otherwise;
}

Vector upOf(const MotionGrid& grid) {
    constexpr std::size_t Stride = 16;
    const Vector median{sparseMedian(grid.gravity[0], Stride),
                        sparseMedian(grid.gravity[1], Stride),
                        sparseMedian(grid.gravity[2], Stride)};
    return unit(scaled(median, -1), {0, 0, 1});
}

/// The device's side that points to the bow.
Vector bowOf(Mount mount) {
    switch (mount) {
    case Mount::TopToBow:
        return {0, 1, 0};
    case Mount::BottomToBow:
        return {0, -1, 0};
    case Mount::RightToBow:
        return {1, 0, 0};
    case Mount::LeftToBow:
        return {-1, 0, 0};
    case Mount::ScreenToBow:
        return {0, 0, 1};
    case Mount::BackToBow:
        return {0, 0, -1};
    }
    return {0, 1, 0};
}

/// A symmetric 2 x 2 matrix.
struct Scatter {
    double ee = 0, en = 0, nn = 0;

    void add(double e, double n) {
        ee += e * e;
        en += e * n;
        nn += n * n;
    }
    /// Adds another, brought to a trace.
    void addScaled(const Scatter& other, double trace) {
        const double size = other.ee + other.nn;
        if (!(size > 0))
            return;
        ee += other.ee * trace / size;
        en += other.en * trace / size;
        nn += other.nn * trace / size;
    }
    /// How much more there is along the principal direction than across it, 0 to 1.
    [[nodiscard]] double eccentricity() const {
        return ee + nn > 0 ? std::hypot(ee - nn, 2 * en) / (ee + nn) : 0;
    }
    [[nodiscard]] double principalAngle() const { return 0.5 * std::atan2(2 * en, ee - nn); }
};

/// Sums of products of both horizontal accelerations with the yaw rate and its derivative: a phone
/// off the boat's centre sways with them.
class SwayFreeScatter {
public:
    void add(double e, double n, double yaw, double yawChange) {
        m_pull.add(e, n);
        m_yaw.add(yaw, yawChange);
        m_east[0] += e * yaw;
        m_east[1] += e * yawChange;
        m_north[0] += n * yaw;
        m_north[1] += n * yawChange;
    }

    /// The scatter of what the yaw does not explain.
    [[nodiscard]] Scatter rest() const {
        const auto [eastRate, eastChange] = shares(m_east);
        const auto [northRate, northChange] = shares(m_north);
        return {m_pull.ee - eastRate * m_east[0] - eastChange * m_east[1],
                m_pull.en - eastRate * m_north[0] - eastChange * m_north[1],
                m_pull.nn - northRate * m_north[0] - northChange * m_north[1]};
    }

    /// The acceleration along both directions for each unit of yaw acceleration, in metres.
    [[nodiscard]] std::array<double, 2> sway() const {
        return {shares(m_east)[1], shares(m_north)[1]};
    }

private:
    /// The factors of yaw rate and yaw acceleration that explain an acceleration best.
    [[nodiscard]] std::array<double, 2> shares(const double* with) const {
        const double determinant = m_yaw.ee * m_yaw.nn - m_yaw.en * m_yaw.en;
        if (!(determinant > 1e-9 * m_yaw.ee * m_yaw.nn))
            return {0, 0};
        return {(m_yaw.nn * with[0] - m_yaw.en * with[1]) / determinant,
                (m_yaw.ee * with[1] - m_yaw.en * with[0]) / determinant};
    }

    Scatter m_pull;
    Scatter m_yaw;
    double m_east[2] = {0, 0};
    double m_north[2] = {0, 0};
};

struct StrokingScatters {
    Scatter pull;
    Scatter tilt;
    std::array<double, 2> sway{}; ///< see SwayFreeScatter
};

/// The scatters within the band of stroking. All channels are delayed alike, so one pass will do.
StrokingScatters strokingScatters(const MotionGrid& grid, const LevelMotion& level) {
    const Section high = highPass(SlowestStroking);
    const Section low = lowPass(FastestStroking);
    const std::array<std::span<const double>, 5> channels{
        level.pull[0], level.pull[1], level.tilt[0], level.tilt[1], level.yawRate};
    std::array<SectionState, 5> highs{SectionState(high, 0), SectionState(high, 0),
                                      SectionState(high, 0), SectionState(high, 0),
                                      SectionState(high, 0)};
    std::array<SectionState, 5> lows{SectionState(low, 0), SectionState(low, 0),
                                     SectionState(low, 0), SectionState(low, 0),
                                     SectionState(low, 0)};
    SwayFreeScatter pull;
    Scatter tilt;
    std::array<double, 5> last{};
    double yawBeforeLast = 0;
    for (std::size_t i = 0; i < grid.size(); ++i) {
        std::array<double, 5> now;
        for (std::size_t c = 0; c < 5; ++c)
            now[c] = lows[c].next(low, highs[c].next(high, channels[c][i]));
        if (grid.valid[i]) {
            pull.add(last[0], last[1], last[4], (now[4] - yawBeforeLast) * Rate / 2);
            tilt.add(now[2], now[3]);
        }
        yawBeforeLast = last[4];
        last = now;
    }
    return {pull.rest(), tilt, pull.sway()};
}

/// The mount's direction among the horizontal ones; nothing when it points up or down.
std::optional<std::array<double, 2>> levelled(Mount mount, const LevelMotion& level) {
    const Vector bow = bowOf(mount);
    const double east = dot(bow, level.east);
    const double north = dot(bow, level.north);
    const double length = std::hypot(east, north);
    if (length < 0.3)
        return std::nullopt;
    return std::array{east / length, north / length};
}

void pointAlong(Bow& bow, double east, double north) {
    if (bow.east * east + bow.north * north >= 0)
        return;
    bow.east = -bow.east;
    bow.north = -bow.north;
}

/// Where the fixes do not tell the bow, the mount does.
void pointByMount(const LevelMotion& level, std::optional<Mount> mount, Bow& bow) {
    // Most phones look forward; without the coach's word this is a guess.
    const auto mounted = levelled(mount.value_or(Mount::TopToBow), level);
    if (!mounted)
        return;
    const auto [east, north] = *mounted;
    pointAlong(bow, east, north);
    bow.isKnown = bow.isAssumed = mount.has_value();
    const bool contradicts = bow.east * east + bow.north * north < 0.7;
    if (mount && contradicts) {
        bow.east = east;
        bow.north = north;
    }
}

} // namespace

LevelMotion levelMotion(const MotionGrid& grid) {
    LevelMotion level;
    level.up = upOf(grid);
    const Vector aside = std::abs(level.up[0]) < 0.8 ? Vector{1, 0, 0} : Vector{0, 1, 0};
    level.north = unit(cross(level.up, aside), {0, 1, 0});
    level.east = cross(level.north, level.up);
    for (auto* channel :
         {&level.pull[0], &level.pull[1], &level.tilt[0], &level.tilt[1], &level.yawRate})
        channel->resize(grid.size());
    for (std::size_t i = 0; i < grid.size(); ++i) {
        const Vector a{grid.acceleration[0][i], grid.acceleration[1][i], grid.acceleration[2][i]};
        const Vector w{grid.rotation[0][i], grid.rotation[1][i], grid.rotation[2][i]};
        level.pull[0][i] = dot(a, level.east);
        level.pull[1][i] = dot(a, level.north);
        level.tilt[0][i] = dot(w, level.east);
        level.tilt[1][i] = dot(w, level.north);
        level.yawRate[i] = dot(w, level.up);
    }
    return level;
}

Bow findBow(const MotionGrid& grid, const LevelMotion& level, std::span<const SpeedFix> fixes,
            std::optional<Mount> mount) {
    const StrokingScatters scatters = strokingScatters(grid, level);
    const FixRegression byFixes = regressFixes(grid, level, fixes);
    Scatter sum;
    sum.addScaled(scatters.pull, 1);
    sum.addScaled(scatters.tilt, 1);
    Scatter push;
    push.add(byFixes.east, byFixes.north);
    sum.addScaled(push, byFixes.explained);
    const double angle = sum.principalAngle();
    Bow bow{.east = std::cos(angle), .north = std::sin(angle)};
    bow.certainty = byFixes.explained;
    if (byFixes.explained >= LeastCertainty) {
        pointAlong(bow, byFixes.east, byFixes.north);
        bow.fixLag = byFixes.lag;
        bow.isKnown = true;
    } else {
        pointByMount(level, mount, bow);
    }
    // A phone in front of the boat's middle sways to the left when a left turn begins.
    const double ahead = -bow.north * scatters.sway[0] + bow.east * scatters.sway[1];
    bow.ahead = std::clamp(ahead, -FarthestAhead, FarthestAhead);
    return bow;
}

BoatAxes boatAxes(const MotionGrid& grid) {
    const LevelMotion level = levelMotion(grid);
    const StrokingScatters scatters = strokingScatters(grid, level);
    Scatter sum;
    sum.addScaled(scatters.pull, 1);
    sum.addScaled(scatters.tilt, 1);
    const double angle = sum.principalAngle();
    BoatAxes axes{.up = level.up, .certainty = sum.eccentricity()};
    for (std::size_t k = 0; k < 3; ++k)
        axes.along[k] = std::cos(angle) * level.east[k] + std::sin(angle) * level.north[k];
    axes.left = cross(axes.up, axes.along);
    return axes;
}

std::vector<double> forwardAcceleration(const LevelMotion& level, const Bow& bow) {
    std::vector<double> forward(level.yawRate.size());
    for (std::size_t i = 0; i < forward.size(); ++i)
        forward[i] = bow.east * level.pull[0][i] + bow.north * level.pull[1][i] +
                     bow.ahead * level.yawRate[i] * level.yawRate[i];
    return forward;
}

} // namespace kavela::strokes
