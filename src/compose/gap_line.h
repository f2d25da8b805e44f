#pragma once

#include <cstddef>
#include <vector>

namespace kavela {

/// A gap between two runs where it is known: at a split, once both have passed it.
struct GapPoint {
    double common = 0; ///< seconds of common time
    double gap = 0;    ///< seconds; above 0 where the other run is behind the first

    friend bool operator==(const GapPoint&, const GapPoint&) = default;
};

/// How a gap grows. Between the points it is not known; the line that leads from one to the next
/// is to be dashed.
class GapLine {
public:
    /// Points come in any order.
    void add(const GapPoint& point);

    [[nodiscard]] const std::vector<GapPoint>& points() const { return m_points; }
    /// The points up to a moment, and where the line to the next one has come to by then as the
    /// last of them.
    [[nodiscard]] std::vector<GapPoint> upTo(double common) const;
    /// How many points are known at a moment.
    [[nodiscard]] std::size_t knownAt(double common) const;
    /// The largest distance from 0, in seconds.
    [[nodiscard]] double largest() const;

private:
    std::vector<GapPoint> m_points; ///< by common time
};

} // namespace kavela
