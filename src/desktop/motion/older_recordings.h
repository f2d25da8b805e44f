#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace kavela::desktop {

class BackgroundWork;
class Workspace;

/// Hears the path of the converted recording; nothing where it was not wanted, or after an alert.
using Converted = std::function<void(const std::optional<QString>& path)>;

/// Asks whether a recording of version 4 is to be converted to a file beside it, and does so beside
/// the window, which is locked meanwhile. Where it was not wanted, that is told at once.
void convertOlderRecording(const QString& path, const Workspace& workspace, QWidget* over,
                           BackgroundWork& work, Converted converted);

} // namespace kavela::desktop
