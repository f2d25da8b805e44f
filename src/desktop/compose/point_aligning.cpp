#include "desktop/compose/point_aligning.h"

#include "desktop/compose/compare_player.h"
#include "desktop/compose/compare_view.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr std::size_t PointsOfFilm = 2;

} // namespace

void PointAligning::toggle() {
    m_isOn = !m_isOn;
    m_points = {};
    m_crosses.clear();
}

bool PointAligning::take(const QPointF& place, const PreparedComparison& shown) {
    if (!m_isOn)
        return false;
    const auto clicked = clickedPoint(place, shown.places, shown.size);
    if (!clicked || clicked->film >= m_points.size() ||
        m_points[clicked->film].size() >= PointsOfFilm)
        return false;
    m_points[clicked->film].push_back({clicked->point.x, clicked->point.y});
    m_crosses.push_back(place);
    return true;
}

bool PointAligning::isWhole() const {
    return std::ranges::all_of(m_points,
                               [](const auto& points) { return points.size() == PointsOfFilm; });
}

void PointAligning::align(composejob002& job, const Points& points) {
    for (std::size_t film = 0; film < points.size() && film < job.films.size(); ++film)
        job.films[film].points = points[film];
    if (job.layout != wordOf(LayoutKind::Wipe))
        job.layout = wordOf(LayoutKind::Ghost);
}

} // namespace kavela::desktop
