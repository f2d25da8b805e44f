#pragma once

#include "analysis/colouring.h"

#include <QColor>

#include <optional>

namespace kavela::desktop {

/// The tint of a band on the green-red scale, which is the file format's own, or on the
/// blue-white-orange one; nothing for a clear cell.
[[nodiscard]] std::optional<QColor> bandTint(Band band, ColourScale scale);

/// A tint as it looks in a cell that counts for nothing, and the text on it.
[[nodiscard]] QColor fadedTint(const QColor& tint);
inline constexpr QColor OnFadedTint{0x60, 0x60, 0x60};

/// The text colour of race mode in a shade that can be read on the table's ground.
[[nodiscard]] QColor raceText(const Colour& colour, ColourScale scale, bool isDark);

} // namespace kavela::desktop
