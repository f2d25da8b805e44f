#pragma once

#include "desktop/shell/autosave.h"

class QWidget;

namespace kavela::desktop {

class Workspace;

enum class KeptAnswer { Load, Later, Discard };

/// Asks what becomes of unsaved work that was found for the document of this path; Enter loads it,
/// Escape puts it off.
[[nodiscard]] KeptAnswer askForKept(const Autosave::Found& work, const QString& path,
                                    const Workspace& workspace, QWidget* over);

} // namespace kavela::desktop
