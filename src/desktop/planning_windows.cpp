#include "desktop/planning_windows.h"

#include "desktop/desktop.h"
#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/online/online_planning.h"
#include "desktop/planning/online/planning_start.h"
#include "desktop/planning/planning_window.h"
#include "desktop/shell/workspace.h"
#include "desktop/tools.h"

#include <QUrl>

namespace kavela::desktop {

void PlanningWindows::loadAtStart() {
    const Preferences& preferences = m_workspace.preferences();
    if (!preferences.boolean("autoloadPlanning"))
        return;
    if (preferences.boolean("autoloadPlanningOnline")) {
        auto* window = new PlanningWindow(m_workspace, m_autosave);
        window->startNew(placeForCopy(rememberedEntry(m_workspace)));
        m_program.show(window);
        loadRememberedPlanning(window->online(), m_workspace);
        return;
    }
    const auto url = preferences.url("autoloadPlanningURL");
    const QString path = url ? QUrl(QString::fromStdString(*url)).toLocalFile() : QString();
    if (!path.isEmpty())
        (void)m_program.openIn(*toolFor(OpensAs::Planning), path);
}

void PlanningWindows::showCopy(const QByteArray& content, const QString& name) {
    auto* window = new PlanningWindow(m_workspace, m_autosave);
    if (window->online().showCopy(content,
                                  placeForCopy(Desktop::tr("%1 (on the server)").arg(name)))) {
        m_program.show(window);
        return;
    }
    delete window;
    m_workspace.showAlert({"", Desktop::tr("What the server has is no planning.").toStdString()},
                          m_program.front());
}

} // namespace kavela::desktop
