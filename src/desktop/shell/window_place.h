#pragma once

#include <QList>
#include <QString>

class QSplitter;
class QWidget;

namespace kavela::desktop {

class Workspace;

/// Puts a window where the last one of its kind was left, and keeps its place when it closes. The
/// window must not outlive the workspace.
void rememberPlace(QWidget& window, Workspace& workspace, const QString& kind);

/// Gives the parts of a splitter sizes; where it is smaller than all of them together, each gives
/// way by its share. Beyond that, and once the coach moved a handle, its stretch factors decide.
void shareSizes(QSplitter& splitter, const QList<int>& sizes);

/// Puts the parts of a splitter where they were left, and keeps their places.
void rememberSizes(QSplitter& splitter, Workspace& workspace, const QString& kind);

} // namespace kavela::desktop
