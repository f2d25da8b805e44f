#pragma once

#include <QColor>

namespace kavela::desktop {

/// A scale from little (dark blue) to much (yellow) that the colour-blind can read, too: it gets
/// lighter all along (after Nuñez, Anderton and Renslow, 2018). `share` is 0 to 1.
[[nodiscard]] QColor scaleColour(double share);

} // namespace kavela::desktop
