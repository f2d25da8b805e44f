#pragma once

namespace kavela {

/// A place in a picture, in pixels from its left and from its top.
struct PicturePlace {
    double x = 0;
    double y = 0;

    friend bool operator==(const PicturePlace&, const PicturePlace&) = default;
};

/// How a picture moved: (x, y) becomes (a·x − b·y + dx, b·x + a·y + dy). Turns, scales and shifts.
struct PictureMotion {
    double a = 1;
    double b = 0;
    double dx = 0;
    double dy = 0;

    [[nodiscard]] PicturePlace operator()(const PicturePlace& place) const {
        return {a * place.x - b * place.y + dx, b * place.x + a * place.y + dy};
    }
    /// How much larger things become, above 0.
    [[nodiscard]] double scale() const;
    /// What leads back. Only for a scale that is not 0.
    [[nodiscard]] PictureMotion inverse() const;
    /// First this motion, then another one.
    [[nodiscard]] PictureMotion then(const PictureMotion& next) const;

    friend bool operator==(const PictureMotion&, const PictureMotion&) = default;
};

} // namespace kavela
