#pragma once

#include <QString>

class QSplitter;
class QWidget;

namespace kavela::desktop {

class Workspace;

/// Puts a window where the last one of its kind was left, and keeps its place when it closes. The
/// window must not outlive the workspace.
void rememberPlace(QWidget& window, Workspace& workspace, const QString& kind);

/// The same for the parts of a splitter.
void rememberSizes(QSplitter& splitter, Workspace& workspace, const QString& kind);

} // namespace kavela::desktop
