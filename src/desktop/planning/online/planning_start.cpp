#include "desktop/planning/online/planning_start.h"

#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/planning_window.h"

#include <QStandardPaths>

namespace kavela::desktop {

QString placeForCopy(const QString& name) {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/' + name +
           ".planning";
}

void loadRememberedPlanning(PlanningWindow& window, Workspace& workspace) {
    const QString entry = rememberedEntry(workspace);
    if (const OnlineAddress address = rememberedAddress(workspace);
        address.user.isEmpty() && address.fault().isEmpty())
        window.loadOnline(address, entry);
    else
        window.askToLoadOnline();
}

} // namespace kavela::desktop
