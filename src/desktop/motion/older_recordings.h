#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// Asks whether a recording of version 4 is to be converted to a file beside it, and does so. Gives
/// the path of the converted recording; nothing where it was not wanted, or after an alert.
[[nodiscard]] std::optional<QString>
convertOlderRecording(const QString& path, const Workspace& workspace, QWidget* over);

} // namespace kavela::desktop
