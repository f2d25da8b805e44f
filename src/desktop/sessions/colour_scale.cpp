#include "desktop/sessions/colour_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::array<QColor, 6> Stops{QColor{0x00, 0x22, 0x4E}, QColor{0x31, 0x44, 0x6B},
                                      QColor{0x66, 0x69, 0x70}, QColor{0x95, 0x8F, 0x78},
                                      QColor{0xCA, 0xB9, 0x69}, QColor{0xFE, 0xE8, 0x38}};

int mixed(int low, int high, double share) {
    return static_cast<int>(std::lround(low + (high - low) * share));
}

} // namespace

QColor scaleColour(double share) {
    const double place = std::clamp(share, 0.0, 1.0) * (Stops.size() - 1);
    const auto low = std::min(static_cast<std::size_t>(place), Stops.size() - 2);
    const double rest = place - static_cast<double>(low);
    const QColor& from = Stops[low];
    const QColor& to = Stops[low + 1];
    return {mixed(from.red(), to.red(), rest), mixed(from.green(), to.green(), rest),
            mixed(from.blue(), to.blue(), rest)};
}

} // namespace kavela::desktop
