#include "vision/water_plane.h"

#include "common/text.h"
#include "vision/track_error.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include <utility>

namespace kavela {

namespace {

/// Eight equations of eight unknowns, with the right side as the ninth column.
using PlaneEquations = std::array<std::array<double, 9>, 8>;

/// By elimination, the largest entry of a column first; nothing where they have no one solution.
std::optional<std::array<double, 8>> solved(PlaneEquations rows) {
    constexpr double Nothing = 1e-10;
    for (std::size_t column = 0; column < 8; ++column) {
        std::size_t best = column;
        for (std::size_t row = column + 1; row < 8; ++row)
            if (std::abs(rows[row][column]) > std::abs(rows[best][column]))
                best = row;
        if (std::abs(rows[best][column]) < Nothing)
            return std::nullopt;
        std::swap(rows[column], rows[best]);
        for (std::size_t row = 0; row < 8; ++row) {
            const double share = rows[row][column] / rows[column][column];
            for (std::size_t k = column; row != column && k < 9; ++k)
                rows[row][k] -= share * rows[column][k];
        }
    }
    std::array<double, 8> unknowns{};
    for (std::size_t row = 0; row < 8; ++row)
        unknowns[row] = rows[row][8] / rows[row][row];
    return unknowns;
}

/// Twice the area between three places.
double areaOf(double ax, double ay, double bx, double by, double cx, double cy) {
    return std::abs((bx - ax) * (cy - ay) - (cx - ax) * (by - ay));
}

void checkSpread(const std::vector<PlanePoint>& points) {
    constexpr double LeastPixels = 20; // twice an area
    constexpr double LeastMetres = 1e-3;
    for (std::size_t left = 0; left < points.size(); ++left) {
        std::vector<PlanePoint> three = points;
        three.erase(three.begin() + static_cast<std::ptrdiff_t>(left));
        const PlanePoint& a = three[0];
        const PlanePoint& b = three[1];
        const PlanePoint& c = three[2];
        if (areaOf(a.place.x, a.place.y, b.place.x, b.place.y, c.place.x, c.place.y) <
                LeastPixels ||
            areaOf(a.x, a.y, b.x, b.y, c.x, c.y) < LeastMetres)
            throw TrackError(
                say("Three of the four known points lie on a line: they have to be the corners of "
                    "a field, such as the poles of two gates."));
    }
}

} // namespace

WaterPlane::WaterPlane(const std::vector<PlanePoint>& points) {
    const bool isFinite = std::ranges::all_of(points, [](const PlanePoint& point) {
        return std::isfinite(point.place.x) && std::isfinite(point.place.y) &&
               std::isfinite(point.x) && std::isfinite(point.y);
    });
    if (!isFinite || (points.size() != 2 && points.size() != 4))
        throw TrackError(say("Metres need four known points on the water, or two for a scale only; "
                             "there are {}.",
                             points.size()));
    if (points.size() == 2)
        takeScale(points);
    else
        takePerspective(points);
}

void WaterPlane::takeScale(const std::vector<PlanePoint>& points) {
    const PlanePoint& from = points[0];
    const double pixels =
        std::hypot(points[1].place.x - from.place.x, points[1].place.y - from.place.y);
    const double metres = std::hypot(points[1].x - from.x, points[1].y - from.y);
    if (pixels < 1 || metres <= 0)
        throw TrackError(say("The two known points lie on one spot."));
    m_isScaleOnly = true;
    const double scale = metres / pixels;
    m_matrix = {scale, 0, from.x - scale * from.place.x, 0, scale, from.y - scale * from.place.y, 0,
                0,     1};
}

/// x = (h0 u + h1 v + h2) / (h6 u + h7 v + 1), y likewise: two equations for each point. Pixels are
/// told in thousands, so that no entry dwarfs the others.
void WaterPlane::takePerspective(const std::vector<PlanePoint>& points) {
    constexpr double Thousand = 1000;
    checkSpread(points);
    PlaneEquations rows{};
    for (std::size_t i = 0; i < 4; ++i) {
        const double u = points[i].place.x / Thousand;
        const double v = points[i].place.y / Thousand;
        const double x = points[i].x;
        const double y = points[i].y;
        rows[2 * i] = {u, v, 1, 0, 0, 0, -u * x, -v * x, x};
        rows[2 * i + 1] = {0, 0, 0, u, v, 1, -u * y, -v * y, y};
    }
    const auto unknowns = solved(rows);
    if (!unknowns)
        throw TrackError(say("The four known points do not fit together: no view of flat water "
                             "shows them so."));
    for (std::size_t i = 0; i < 8; ++i)
        m_matrix[i] = (*unknowns)[i] / (i % 3 == 2 ? 1 : Thousand);
    m_matrix[8] = 1;
    const auto depth = [&](const PlanePoint& point) {
        return m_matrix[6] * point.place.x + m_matrix[7] * point.place.y + 1;
    };
    m_side = depth(points[0]) > 0 ? 1 : -1;
    if (std::ranges::any_of(points,
                            [&](const PlanePoint& point) { return depth(point) * m_side <= 0; }))
        throw TrackError(say("The four known points do not fit together: no view of flat water "
                             "shows them so. Were two of them exchanged?"));
}

std::optional<WaterPlace> WaterPlane::at(const PicturePlace& place) const {
    constexpr double Horizon = 1e-6;
    const auto& m = m_matrix;
    const double depth = m[6] * place.x + m[7] * place.y + m[8];
    if (depth * m_side < Horizon)
        return std::nullopt;
    return WaterPlace{(m[0] * place.x + m[1] * place.y + m[2]) / depth,
                      (m[3] * place.x + m[4] * place.y + m[5]) / depth};
}

} // namespace kavela
