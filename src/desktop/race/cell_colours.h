#pragma once

#include "analysis/colouring.h"

#include <QColor>

#include <optional>

namespace kavela::desktop {

/// The tint of a band on the green-red scale, which is the file format's own, or on the
/// blue-white-orange one; nothing for a clear cell.
[[nodiscard]] std::optional<QColor> bandTint(Band band, ColourScale scale);

/// The text colour of race mode in a shade that can be read on the table's ground.
[[nodiscard]] QColor raceText(const Colour& colour, ColourScale scale, bool isDark);

} // namespace kavela::desktop
