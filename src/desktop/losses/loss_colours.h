#pragma once

#include "analysis/colouring.h"

#include <QColor>
#include <QPalette>

namespace kavela::desktop {

/// What a bar of lost or gained time is painted in: the ends of the analyzer's scale, in shades
/// that stand out from the ground of a chart. The sign stands beside it.
[[nodiscard]] QColor lossColour(double loss, ColourScale scale, const QPalette& palette);

} // namespace kavela::desktop
