#include "desktop/planning/online/planning_start.h"

#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/online/online_planning.h"

#include <QStandardPaths>

namespace kavela::desktop {

QString placeForCopy(const QString& name) {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/' + name +
           ".planning";
}

void loadRememberedPlanning(OnlinePlanning& planning, Workspace& workspace) {
    const QString entry = rememberedEntry(workspace);
    if (const OnlineAddress address = rememberedAddress(workspace);
        address.user.isEmpty() && address.fault().isEmpty())
        planning.load(address, entry);
    else
        planning.askToLoad();
}

} // namespace kavela::desktop
