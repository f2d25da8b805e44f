#include "compose/gap_line.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace kavela {

namespace {
constexpr double KnownSlack = 1e-6;
} // namespace

void GapLine::add(const GapPoint& point) {
    m_points.insert(std::ranges::upper_bound(m_points, point.common, {}, &GapPoint::common), point);
}

std::size_t GapLine::knownAt(double common) const {
    const auto after =
        std::ranges::upper_bound(m_points, common + KnownSlack, {}, &GapPoint::common);
    return static_cast<std::size_t>(after - m_points.begin());
}

std::vector<GapPoint> GapLine::upTo(double common) const {
    const std::size_t known = knownAt(common);
    std::vector<GapPoint> points(m_points.begin(),
                                 m_points.begin() + static_cast<std::ptrdiff_t>(known));
    if (known == 0 || known == m_points.size())
        return points;
    const GapPoint& from = m_points[known - 1];
    const GapPoint& to = m_points[known];
    const double share = (common - from.common) / (to.common - from.common);
    points.push_back({common, from.gap + (to.gap - from.gap) * std::clamp(share, 0.0, 1.0)});
    return points;
}

double GapLine::largest() const {
    double most = 0;
    for (const GapPoint& point : m_points)
        most = std::max(most, std::abs(point.gap));
    return most;
}

} // namespace kavela
