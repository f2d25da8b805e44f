#pragma once

#include <QStringList>

class QDragEnterEvent;
class QDropEvent;

namespace kavela::desktop {

/// Lets files and folders be dropped.
void acceptFiles(QDragEnterEvent& event);

/// The files and folders of this computer that were dropped.
[[nodiscard]] QStringList droppedFiles(QDropEvent& event);

} // namespace kavela::desktop
