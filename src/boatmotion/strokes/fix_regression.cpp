#include "boatmotion/strokes/fix_regression.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double FixWindow = 3;       // s
constexpr double LongestWindow = 4.5; // s
constexpr double GreatestTurn = 0.5;  // rad
constexpr double LooseTurn = 1.5;     // rad, where the boat hardly ever keeps its heading
constexpr double LeastExplained = 0.1;
constexpr double GreatestLag = 1.4; // s
constexpr double LagStep = 0.1;     // s
constexpr std::size_t LeastWindows = 8;

/// Running integrals of the motion, looked up at any moment.
class Integrals {
public:
    Integrals(const MotionGrid& grid, const LevelMotion& level) : m_time(grid.time) {
        m_sums.resize(grid.size());
        Sums sum;
        for (std::size_t i = 0; i < grid.size(); ++i) {
            sum.east += level.pull[0][i] * Step;
            sum.north += level.pull[1][i] * Step;
            sum.heading += level.yawRate[i] * Step;
            sum.missing += grid.valid[i] ? 0 : 1;
            m_sums[i] = sum;
        }
    }

    struct Sums {
        double east = 0;
        double north = 0;
        double heading = 0;
        double missing = 0;
    };

    /// What came together from one moment to another; nothing outside the recording, in holes or
    /// over a greater turn. `hint` is where the last look-up ended, since moments ascend.
    [[nodiscard]] std::optional<Sums> between(double from, double to, double greatestTurn,
                                              std::size_t& hint) const {
        while (hint + 1 < m_time.size() && m_time[hint + 1] <= from)
            ++hint;
        if (from < m_time.front() || m_time[hint] > from)
            return std::nullopt;
        std::size_t end = hint + static_cast<std::size_t>((to - from) * Rate);
        if (end + 2 >= m_time.size() || std::abs(m_time[end + 1] - to) > 3 * Step)
            return std::nullopt;
        const Sums a = at(hint, from);
        const Sums b = at(m_time[end + 1] <= to ? end + 1 : end, to);
        const Sums sum{b.east - a.east, b.north - a.north, b.heading - a.heading,
                       b.missing - a.missing};
        if (sum.missing > 0 || std::abs(sum.heading) > greatestTurn)
            return std::nullopt;
        return sum;
    }

private:
    [[nodiscard]] Sums at(std::size_t i, double time) const {
        const double part = std::clamp((time - m_time[i]) / Step, 0.0, 1.0);
        const Sums& a = m_sums[i];
        const Sums& b = m_sums[std::min(i + 1, m_sums.size() - 1)];
        return {a.east + part * (b.east - a.east), a.north + part * (b.north - a.north),
                a.heading + part * (b.heading - a.heading),
                a.missing + part * (b.missing - a.missing)};
    }

    std::span<const double> m_time;
    std::vector<Sums> m_sums;
};

/// Sums of products of the two integrals (x, y) and the speed change (z).
struct Products {
    double n = 0, x = 0, y = 0, z = 0, xx = 0, xy = 0, yy = 0, xz = 0, yz = 0, zz = 0;

    void add(double dx, double dy, double dz) {
        n += 1;
        x += dx;
        y += dy;
        z += dz;
        xx += dx * dx;
        xy += dx * dy;
        yy += dy * dy;
        xz += dx * dz;
        yz += dy * dz;
        zz += dz * dz;
    }
};

/// The plane through the products' points; the offset takes up a bias of the sensor.
FixRegression planeThrough(const Products& p, double secondsBetweenFixes) {
    const double xx = p.xx - p.x * p.x / p.n;
    const double xy = p.xy - p.x * p.y / p.n;
    const double yy = p.yy - p.y * p.y / p.n;
    const double xz = p.xz - p.x * p.z / p.n;
    const double yz = p.yz - p.y * p.z / p.n;
    const double zz = p.zz - p.z * p.z / p.n;
    const double determinant = xx * yy - xy * xy;
    if (!(determinant > 1e-9 * xx * yy) || !(zz > 0))
        return {};
    const double bx = (xz * yy - yz * xy) / determinant;
    const double by = (yz * xx - xz * xy) / determinant;
    const double length = std::hypot(bx, by);
    if (!(length > 0))
        return {};
    // Windows overlap: only every so many-th says something of its own.
    const double independent = p.n * std::min(1.0, secondsBetweenFixes / FixWindow);
    const double raw = std::clamp((bx * xz + by * yz) / zz, 0.0, 1.0);
    const double corrected =
        independent > 3.5 ? 1 - (1 - raw) * (independent - 1) / (independent - 3) : 0;
    return {bx / length, by / length, std::max(0.0, corrected), 0};
}

/// The fix that ends the window which each fix begins; none where fixes are too sparse.
std::vector<std::size_t> windowEnds(std::span<const SpeedFix> fixes) {
    std::vector<std::size_t> ends(fixes.size(), 0);
    std::size_t end = 0;
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        while (end + 1 < fixes.size() && fixes[end].time < fixes[i].time + FixWindow - 0.3)
            ++end;
        const double length = fixes[end].time - fixes[i].time;
        if (length >= FixWindow - 0.3 && length <= LongestWindow)
            ends[i] = end;
    }
    return ends;
}

/// The regression over the windows in which the boat does not turn more than so far.
FixRegression regressed(const Integrals& integrals, std::span<const SpeedFix> fixes,
                        double greatestTurn) {
    FixRegression best;
    const std::vector<std::size_t> ends = windowEnds(fixes);
    const double between =
        (fixes.back().time - fixes.front().time) / static_cast<double>(fixes.size() - 1);
    for (double lag = 0; lag <= GreatestLag + 1e-9; lag += LagStep) {
        Products products;
        std::size_t hint = 0;
        for (std::size_t i = 0; i < fixes.size(); ++i) {
            if (ends[i] == 0)
                continue;
            const SpeedFix& end = fixes[ends[i]];
            if (const auto sum =
                    integrals.between(fixes[i].time - lag, end.time - lag, greatestTurn, hint))
                products.add(sum->east, sum->north, end.speed - fixes[i].speed);
        }
        if (products.n < LeastWindows)
            continue;
        const FixRegression found = planeThrough(products, between);
        if (found.explained > best.explained)
            best = {found.east, found.north, found.explained, lag};
    }
    return best;
}

} // namespace

FixRegression regressFixes(const MotionGrid& grid, const LevelMotion& level,
                           std::span<const SpeedFix> fixes) {
    if (fixes.size() < LeastWindows)
        return {};
    const Integrals integrals(grid, level);
    const FixRegression straight = regressed(integrals, fixes, GreatestTurn);
    return straight.explained >= LeastExplained ? straight : regressed(integrals, fixes, LooseTurn);
}

} // namespace kavela::strokes
