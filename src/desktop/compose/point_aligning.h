#pragma once

#include "compose/compose_job.h"

#include <QPointF>

#include <array>
#include <vector>

namespace kavela::desktop {

struct PreparedComparison;

/// The clicks by which the second film is laid over the first one: the same two things in both.
class PointAligning {
public:
    /// Of both films, in their own pictures.
    using Points = std::array<std::vector<composepoint001>, 2>;

    /// Begins, or gives up, without any point.
    void toggle();
    [[nodiscard]] bool isOn() const { return m_isOn; }

    /// A click at a place of the picture, from 0 to 1; false where it is not in one of the films,
    /// or of one that has both of its points.
    bool take(const QPointF& place, const PreparedComparison& shown);
    [[nodiscard]] const Points& points() const { return m_points; }
    /// Where was clicked.
    [[nodiscard]] const std::vector<QPointF>& crosses() const { return m_crosses; }
    [[nodiscard]] bool isWhole() const;

    /// Lays the films of a job over each other by points that are whole.
    static void align(composejob002& job, const Points& points);

private:
    bool m_isOn = false;
    Points m_points;
    std::vector<QPointF> m_crosses;
};

} // namespace kavela::desktop
