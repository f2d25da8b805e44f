#pragma once

#include <QString>

#include <functional>

class QWidget;

/// A field that holds something which cannot be taken keeps it, with the cursor in it and a frame
/// in the colour of faults, and says why in a small bubble. Nothing is saved or closed over it.
/// Esc brings back what the field held before; the bubble goes as soon as something is typed.
namespace kavela::desktop {

/// Marks the field. Esc calls `giveUp`, which shows the value from before; without one Esc goes
/// its own way, as in the cells of tables.
void refuseEntry(QWidget& field, const QString& reason, std::function<void()> giveUp = {});

/// What the field holds has been taken.
void acceptEntry(QWidget& field);

[[nodiscard]] bool isRefused(const QWidget& field);

/// Brings the cursor back into the field of `window` that holds something refused, and says why
/// once more. False where there is none, so that what was asked for may go on; a field inside
/// `besides` does not count.
bool showRefusedEntry(const QWidget& window, const QWidget* besides = nullptr);

} // namespace kavela::desktop
