#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/planning_window.h"
#include "desktop/shell/workspace.h"
#include "planning/messages.h"
#include "planning/planning_access.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStatusBar>

namespace kavela::desktop {

namespace {

constexpr int ToldMilliseconds = 8000;

QByteArray bytesOf(const std::string& text) {
    return QByteArray::fromStdString(text);
}

/// The access record that stands beside the planning, as it is; a new one that names nobody where
/// there is none.
QByteArray accessOf(const QString& planningPath, ReferenceDate now) {
    const QFileInfo planning(planningPath);
    QFile file(planning.path() + '/' + planning.completeBaseName() + PlanningAccessExtension);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    planninginfo_v1 access;
    access.savedDate = now;
    return bytesOf(encode(access));
}

} // namespace

void PlanningWindow::saveOnline(const OnlineAddress& address, const QString& entry) {
    commit();
    QList<OnlineStore::Upload> files;
    try {
        files = {
            {entry + ".planning", bytesOf(encode(m_document->value()))},
            {entry + PlanningAccessExtension, accessOf(m_document->path(), workspace().clock()())}};
    } catch (const EncodeError& error) {
        workspace().log()(error.what());
        tell(planning_messages::OnlineSaveFailed);
        return;
    }
    statusBar()->showMessage(tr("Saving the planning online…"));
    m_store.put(address, files, [this, entry](const QString& reason) {
        statusBar()->clearMessage();
        if (reason.isEmpty()) {
            statusBar()->showMessage(tr("“%1” is saved online.").arg(entry), ToldMilliseconds);
            return;
        }
        workspace().log()("The planning was not saved online: " + reason.toStdString());
        workspace().showAlert({planning_messages::OnlineSaveFailed, reason.toStdString()}, this);
    });
}

void PlanningWindow::askToSaveOnline() {
    OnlineDialog dialog(workspace(), tr("Save the planning online"), this);
    if (dialog.exec() == QDialog::Accepted)
        saveOnline(dialog.address(), dialog.entry());
}

/// What comes is shown as an unsaved document: nothing on this computer is replaced by it without
/// the question that saving asks.
void PlanningWindow::loadOnline(const OnlineAddress& address, const QString& entry) {
    statusBar()->showMessage(planning_messages::ImportingOnline);
    m_store.get(
        address, entry + ".planning", [=, this](const QByteArray& content, const QString& reason) {
            statusBar()->clearMessage();
            const QString folder =
                QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
            QString fault = reason;
            if (fault.isEmpty() && !m_document->startFrom(content.toStdString(),
                                                          folder + '/' + entry + ".planning", this))
                fault = tr("What the server has is no planning.");
            emit onlineLoaded(fault.isEmpty());
            if (fault.isEmpty())
                return;
            workspace().log()("The online planning was not opened: " + fault.toStdString());
            workspace().showAlert(
                {tr("The online planning could not be opened.").toStdString(), fault.toStdString()},
                this);
        });
}

void PlanningWindow::askToLoadOnline() {
    OnlineDialog dialog(workspace(), tr("Open an online planning"), this);
    if (dialog.exec() == QDialog::Accepted)
        loadOnline(dialog.address(), dialog.entry());
}

} // namespace kavela::desktop
