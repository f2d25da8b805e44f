#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/planning_window.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "planning/messages.h"
#include "planning/planning_access.h"

#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QStandardPaths>
#include <QStatusBar>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int SavedMilliseconds = 8000;

QByteArray bytesOf(const std::string& text) {
    return QByteArray::fromStdString(text);
}

/// The access record that stands beside the planning, as it is; nothing where there is none.
std::optional<QByteArray> accessBeside(const QString& planningPath) {
    const QFileInfo planning(planningPath);
    QFile file(planning.path() + '/' + planning.completeBaseName() + PlanningAccessExtension);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

/// One that names nobody.
QByteArray newAccess(ReferenceDate now) {
    planninginfo_v1 access;
    access.savedDate = now;
    return bytesOf(encode(access));
}

QUrl placeOf(const OnlineAddress& address, const QString& entry) {
    QUrl place = address.folder;
    place.setPath(place.path() + '/' + entry);
    return place.adjusted(QUrl::NormalizePathSegments | QUrl::RemoveUserInfo);
}

/// A name that is not a way out of the folder of plannings.
bool isName(const QString& text) {
    return !text.isEmpty() && !text.contains('/') && !text.contains('\\') && !text.startsWith('.');
}

} // namespace

void PlanningWindow::tellOnlineFault(const QString& reason) {
    workspace().log()("The planning was not saved online: " + reason.toStdString());
    workspace().showAlert({planning_messages::OnlineSaveFailed, reason.toStdString()}, this);
}

void PlanningWindow::saveOnline(const OnlineAddress& address, const QString& entry) {
    if (!commit())
        return;
    OnlineSaving::Files files;
    try {
        const auto beside = accessBeside(m_document->path());
        files = {
            {entry + ".planning", bytesOf(encode(m_document->value()))},
            {entry + PlanningAccessExtension, beside ? *beside : newAccess(workspace().clock()())},
            !beside};
    } catch (const EncodeError& error) {
        workspace().log()(error.what());
        tell(planning_messages::OnlineSaveFailed);
        return;
    }
    const QUrl place = placeOf(address, entry);
    auto* const saving =
        new OnlineSaving(m_store, address, std::move(files), m_states.at(place), this);
    statusBar()->showMessage(tr("Saving the planning online…"));
    connect(saving, &OnlineSaving::saved, this, [this, place, entry](const OnlineState& state) {
        m_states.set(place, state);
        m_states.keepWith(m_document->path());
        statusBar()->showMessage(tr("“%1” is saved online.").arg(entry), SavedMilliseconds);
        emit onlineSaved(true);
    });
    connect(saving, &OnlineSaving::failed, this, [this](const QString& reason) {
        statusBar()->clearMessage();
        tellOnlineFault(reason);
        emit onlineSaved(false);
    });
    connect(saving, &OnlineSaving::changed, this, [=, this](const QByteArray& there) {
        statusBar()->clearMessage();
        chooseForChanged(*saving, address, entry, there);
    });
    saving->start();
}

void PlanningWindow::chooseForChanged(OnlineSaving& saving, const OnlineAddress& address,
                                      const QString& entry, const QByteArray& there) {
    const bool wasSeen = !m_states.at(placeOf(address, entry)).digest.isEmpty();
    const QString text =
        wasSeen ? tr("“%1” was changed on the server since this planning was read from there or "
                     "saved there. Saving would lose that change.")
                : tr("There is a planning “%1” on the server that this one does not come from. "
                     "Saving would replace it.");
    const int chosen = workspace().choose(
        {tr("Somebody else's work lies on the server").toStdString(),
         text.arg(entry).toStdString()},
        {tr("Look at it"), tr("Save under another name…"), tr("Replace it")}, this);
    enum { Look, Rename, Replace };
    if (chosen == Replace) {
        statusBar()->showMessage(tr("Saving the planning online…"));
        saving.replace();
        return;
    }
    saving.deleteLater();
    if (chosen == Look)
        emit copyRequested(there, entry);
    else if (chosen == Rename)
        saveOnlineUnderAnotherName(address, entry);
    if (chosen != Rename)
        emit onlineSaved(false);
}

/// The name joins those of the shared plannings, so that it can be opened again.
void PlanningWindow::saveOnlineUnderAnotherName(const OnlineAddress& address,
                                                const QString& entry) {
    bool isGiven = false;
    const QString name =
        QInputDialog::getText(this, tr("Save the planning online"), tr("Name on the server"),
                              QLineEdit::Normal, tr("%1 (mine)").arg(entry), &isGiven)
            .trimmed();
    if (!isGiven || !isName(name)) {
        if (isGiven)
            tellOnlineFault(tr("“%1” cannot be the name of a file.").arg(name));
        emit onlineSaved(false);
        return;
    }
    std::vector<std::string> entries = workspace().preferences().array(SharedPlanningsKey);
    if (std::ranges::find(entries, name.toStdString()) == entries.end()) {
        entries.push_back(name.toStdString());
        workspace().setPreference(SharedPlanningsKey, entries);
    }
    saveOnline(address, name);
}

void PlanningWindow::askToSaveOnline() {
    OnlineDialog dialog(workspace(), tr("Save the planning online"), this);
    if (dialog.exec() == QDialog::Accepted)
        saveOnline(dialog.address(), dialog.entry());
}

bool PlanningWindow::showCopy(const QByteArray& content, const QString& path) {
    if (!m_document->startFromText(content.toStdString(), path, this))
        return false;
    m_states.begin({});
    return true;
}

/// What comes is shown as an unsaved document: nothing on this computer is replaced by it without
/// the question that saving asks, nor does unsaved work give way to it without one.
void PlanningWindow::loadOnline(const OnlineAddress& address, const QString& entry) {
    statusBar()->showMessage(planning_messages::ImportingOnline);
    m_store.get(address, entry + ".planning", [=, this](const OnlineAnswer& answer) {
        statusBar()->clearMessage();
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QString fault = answer.isThere ? answer.reason : tr("The server has no such file.");
        if (fault.isEmpty() && !m_document->isPlanning(answer.content.toStdString()))
            fault = tr("What the server has is no planning.");
        if (fault.isEmpty() && mayLeave() &&
            showCopy(answer.content, folder + '/' + entry + ".planning")) {
            m_states.set(placeOf(address, entry), OnlineState::of(answer.mark, answer.content));
            emit onlineLoaded(true);
            return;
        }
        emit onlineLoaded(false);
        if (fault.isEmpty())
            return; // the work in front stays
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
