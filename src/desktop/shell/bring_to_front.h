#pragma once

class QWidget;

namespace kavela::desktop {

/// Brings a window in front of all others with the keys in it, also one that was made an icon.
/// Where the system lets no window come forward by itself, it asks for attention.
void bringToFront(QWidget& window);

} // namespace kavela::desktop
