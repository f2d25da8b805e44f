#include "vision/picture_motion.h"

#include <cmath>

namespace kavela {

double PictureMotion::scale() const {
    return std::hypot(a, b);
}

PictureMotion PictureMotion::inverse() const {
    const double square = a * a + b * b;
    const double backA = a / square;
    const double backB = -b / square;
    return {backA, backB, -(backA * dx - backB * dy), -(backB * dx + backA * dy)};
}

PictureMotion PictureMotion::then(const PictureMotion& next) const {
    const PicturePlace shift = next({dx, dy});
    return {next.a * a - next.b * b, next.b * a + next.a * b, shift.x, shift.y};
}

} // namespace kavela
