#pragma once

#include "films/course_layout.h"
#include "films/run_on_film.h"

#include <vector>

namespace kavela::films {

inline constexpr double BoatLength = 62;

/// Where the boat lies, and where it points to.
struct BoatPlace {
    QPointF bow;
    QPointF heading; ///< of length 1, from stern to bow
};

/// The way of a boat down the course. Its bow crosses the line of a gate or split between the frame
/// before the mark and the frame of the mark: half a frame's way behind it on the first, half a
/// frame's way past it on the second.
class BoatWay {
public:
    BoatWay(const CourseLayout& course, const RunOnFilm& run);

    [[nodiscard]] BoatPlace at(Frames frame) const;

private:
    /// A moment at which the way that lies behind the bow is known.
    struct Anchor {
        double frame = 0;
        double way = 0;
        double speed = 0; ///< pixels a frame
    };

    void lead(const CourseLayout& course, const RunOnFilm& run);
    void passGates(const CourseLayout& course, const RunOnFilm& run);
    void passUpstream(const GatePlace& gate, double shift, Frames frame);
    void endWay(const CourseLayout& course, const RunOnFilm& run);
    void drawCurve();
    void setSpeeds();
    [[nodiscard]] double wayAt(double frame) const;
    [[nodiscard]] QPointF pointAt(double way) const;

    void via(double x, double y) { m_stations.emplace_back(x, y); }
    void anchor(double x, double y, Frames frame);

    struct Moment {
        std::size_t station = 0;
        Frames frame = 0;
    };
    std::vector<QPointF> m_stations;
    std::vector<Moment> m_moments; ///< frames of some stations
    std::vector<QPointF> m_curve;
    std::vector<double> m_ways; ///< by point of the curve
    std::vector<Anchor> m_anchors;
};

} // namespace kavela::films
