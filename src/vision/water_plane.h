#pragma once

#include "vision/picture_motion.h"

#include <array>
#include <optional>
#include <vector>

namespace kavela {

/// A place in the picture of which it is known where it lies on the water, in metres.
struct PlanePoint {
    PicturePlace place;
    double x = 0; ///< metres
    double y = 0; ///< metres

    friend bool operator==(const PlanePoint&, const PlanePoint&) = default;
};

/// Metres on the water, across and along as the known points have them.
struct WaterPlace {
    double x = 0;
    double y = 0;
};

/// Where a place in a picture lies on the water. Four known points, such as the poles of two gates,
/// tell all of it, with the perspective; two, such as one gate, only how long things are there, as
/// if the water stood upright in the picture.
class WaterPlane {
public:
    /// Throws TrackError for other than two or four points, for points on one spot, and for four
    /// of which three lie on a line.
    explicit WaterPlane(const std::vector<PlanePoint>& points);

    /// Two points only: what is measured far from them, or across, is not right.
    [[nodiscard]] bool isScaleOnly() const { return m_isScaleOnly; }
    /// Nothing for a place at or beyond the horizon.
    [[nodiscard]] std::optional<WaterPlace> at(const PicturePlace& place) const;

private:
    void takeScale(const std::vector<PlanePoint>& points);
    void takePerspective(const std::vector<PlanePoint>& points);

    bool m_isScaleOnly = false;
    /// Row by row, the last entry being 1.
    std::array<double, 9> m_matrix{1, 0, 0, 0, 1, 0, 0, 0, 1};
    double m_side = 1; ///< sign of the third coordinate on this side of the horizon
};

} // namespace kavela
