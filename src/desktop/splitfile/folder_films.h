#pragma once

#include <QStringList>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// What a dialog for films offers.
[[nodiscard]] QString videoFilter();

/// Films belong into the folder of the split file, which knows them by bare names only: those from
/// elsewhere are copied there. Returns the names of those that are in the folder then; why one is
/// not, and that the coach stopped it, is told. A film there is never replaced by another one of
/// its name.
[[nodiscard]] QStringList copiedIntoFolder(const QString& folder, const QStringList& files,
                                           Workspace& workspace, QWidget* over);

} // namespace kavela::desktop
