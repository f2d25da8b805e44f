#pragma once

#include <QString>

class QByteArray;

namespace kavela::desktop {

class OnlinePlanning;
class Workspace;

/// Where a planning that comes from the server is proposed to be saved.
[[nodiscard]] QString placeForCopy(const QString& name);

/// Loads the planning that was loaded last from the server into a new window. The store asks for a
/// password, which is kept nowhere, so that the coach is asked for it.
void loadRememberedPlanning(OnlinePlanning& planning, Workspace& workspace);

} // namespace kavela::desktop
