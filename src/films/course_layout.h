#pragma once

#include "splitdata/records.h"

#include <QPointF>
#include <QString>

#include <vector>

/// A course as it hangs over the water, seen from above. The water flows in the direction of
/// growing x; lengths are pixels, of which a metre has about twenty. Gates and lines are at whole
/// ones.
namespace kavela::films {

inline constexpr double WaterTop = 56;
inline constexpr double WaterBottom = 242;
inline constexpr double MidStream = (WaterTop + WaterBottom) / 2;
inline constexpr double HalfGate = 22; ///< from the middle of a gate to its poles

struct GatePlace {
    std::int64_t number = 0;
    QPointF centre;
    bool isUpstream = false;
    double bank = 0; ///< where its bank is: -1 above, 1 below; upstream gates hang close to it

    [[nodiscard]] QPointF upperPole() const { return centre - QPointF(0, HalfGate); }
    [[nodiscard]] QPointF lowerPole() const { return centre + QPointF(0, HalfGate); }
};

/// A line on the water whose crossing is a mark. At an upstream gate it reaches from the bank to a
/// little past the gate, so that the boat on its way down does not cross it.
struct CourseLine {
    QString title;
    double x = 0;
    double top = WaterTop;
    double bottom = WaterBottom;
};

struct CourseLayout {
    std::vector<GatePlace> gates;
    CourseLine start;
    std::vector<CourseLine> splits; ///< the end of each section; the last one is the finish
    double length = 0;              ///< from the start, at x = 0, to the finish
};

/// Throws std::invalid_argument for a course whose sections do not end at gates.
[[nodiscard]] CourseLayout layOut(const infodata031& info);

} // namespace kavela::films
