#include "desktop/planning/online/online_planning.h"

#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/planning_document.h"
#include "desktop/shell/tool_window.h"
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

OnlinePlanning::OnlinePlanning(PlanningDocument& document, Workspace& workspace, ToolWindow& window,
                               WhenLeft whenLeft)
    : m_document(document),
      m_workspace(workspace),
      m_window(window),
      m_whenLeft(std::move(whenLeft)),
      m_states(workspace) {
    connect(&m_document, &EditedFile::saved, this,
            [this] { m_states.keepWith(m_document.path()); });
}

void OnlinePlanning::tellFault(const QString& reason) {
    m_workspace.log()("The planning was not saved online: " + reason.toStdString());
    m_workspace.showAlert({planning_messages::OnlineSaveFailed, reason.toStdString()}, &m_window);
}

void OnlinePlanning::save(const OnlineAddress& address, const QString& entry) {
    if (!m_window.commit())
        return;
    OnlineSaving::Files files;
    try {
        const auto beside = accessBeside(m_document.path());
        files = {
            {entry + ".planning", bytesOf(encode(m_document.value()))},
            {entry + PlanningAccessExtension, beside ? *beside : newAccess(m_workspace.clock()())},
            !beside};
    } catch (const EncodeError& error) {
        m_workspace.log()(error.what());
        m_workspace.showAlert({"", planning_messages::OnlineSaveFailed}, &m_window);
        return;
    }
    const QUrl place = placeOf(address, entry);
    auto* const saving =
        new OnlineSaving(m_store, address, std::move(files), m_states.at(place), this);
    m_window.statusBar()->showMessage(tr("Saving the planning online…"));
    connect(saving, &OnlineSaving::saved, this, [this, place, entry](const OnlineState& state) {
        m_states.set(place, state);
        m_states.keepWith(m_document.path());
        m_window.statusBar()->showMessage(tr("“%1” is saved online.").arg(entry),
                                          SavedMilliseconds);
        emit saved(true);
    });
    connect(saving, &OnlineSaving::failed, this, [this](const QString& reason) {
        m_window.statusBar()->clearMessage();
        tellFault(reason);
        emit saved(false);
    });
    connect(saving, &OnlineSaving::changed, this, [=, this](const QByteArray& there) {
        m_window.statusBar()->clearMessage();
        chooseForChanged(*saving, address, entry, there);
    });
    saving->start();
}

void OnlinePlanning::chooseForChanged(OnlineSaving& saving, const OnlineAddress& address,
                                      const QString& entry, const QByteArray& there) {
    const bool wasSeen = !m_states.at(placeOf(address, entry)).digest.isEmpty();
    const QString text =
        wasSeen ? tr("“%1” was changed on the server since this planning was read from there or "
                     "saved there. Saving would lose that change.")
                : tr("There is a planning “%1” on the server that this one does not come from. "
                     "Saving would replace it.");
    const int chosen = m_workspace.choose(
        {tr("Somebody else's work lies on the server").toStdString(),
         text.arg(entry).toStdString()},
        {tr("Look at it"), tr("Save under another name…"), tr("Replace it")}, &m_window);
    enum { Look, Rename, Replace };
    if (chosen == Replace) {
        m_window.statusBar()->showMessage(tr("Saving the planning online…"));
        saving.replace();
        return;
    }
    saving.deleteLater();
    if (chosen == Look)
        emit copyRequested(there, entry);
    else if (chosen == Rename)
        saveUnderAnotherName(address, entry);
    if (chosen != Rename)
        emit saved(false);
}

/// The name joins those of the shared plannings, so that it can be opened again.
void OnlinePlanning::saveUnderAnotherName(const OnlineAddress& address, const QString& entry) {
    bool isGiven = false;
    const QString name =
        QInputDialog::getText(&m_window, tr("Save the planning online"), tr("Name on the server"),
                              QLineEdit::Normal, tr("%1 (mine)").arg(entry), &isGiven)
            .trimmed();
    if (!isGiven || !isName(name)) {
        if (isGiven)
            tellFault(tr("“%1” cannot be the name of a file.").arg(name));
        emit saved(false);
        return;
    }
    std::vector<std::string> entries = m_workspace.preferences().array(SharedPlanningsKey);
    if (std::ranges::find(entries, name.toStdString()) == entries.end()) {
        entries.push_back(name.toStdString());
        m_workspace.setPreference(SharedPlanningsKey, entries);
    }
    save(address, name);
}

void OnlinePlanning::askToSave() {
    OnlineDialog dialog(m_workspace, tr("Save the planning online"), &m_window);
    if (dialog.exec() == QDialog::Accepted)
        save(dialog.address(), dialog.entry());
}

bool OnlinePlanning::showCopy(const QByteArray& content, const QString& path) {
    if (!m_document.startFromText(content.toStdString(), path, &m_window))
        return false;
    m_states.begin({});
    return true;
}

/// What comes is shown as an unsaved document: nothing on this computer is replaced by it without
/// the question that saving asks, nor does unsaved work give way to it without one.
void OnlinePlanning::load(const OnlineAddress& address, const QString& entry) {
    m_window.statusBar()->showMessage(planning_messages::ImportingOnline);
    m_store.get(address, entry + ".planning", [=, this](const OnlineAnswer& answer) {
        m_window.statusBar()->clearMessage();
        QString fault = answer.isThere ? answer.reason : tr("The server has no such file.");
        if (fault.isEmpty() && !m_document.isPlanning(answer.content.toStdString()))
            fault = tr("What the server has is no planning.");
        if (!fault.isEmpty()) {
            tellNotOpened(fault);
            return;
        }
        m_whenLeft([=, this](bool mayGo) {
            if (mayGo)
                showLoaded(answer, placeOf(address, entry), entry);
            else
                emit loaded(false); // the work in front stays
        });
    });
}

void OnlinePlanning::showLoaded(const OnlineAnswer& answer, const QUrl& place,
                                const QString& entry) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const bool isShown = showCopy(answer.content, folder + '/' + entry + ".planning");
    if (isShown)
        m_states.set(place, OnlineState::of(answer.mark, answer.content));
    emit loaded(isShown);
}

void OnlinePlanning::tellNotOpened(const QString& reason) {
    emit loaded(false);
    m_workspace.log()("The online planning was not opened: " + reason.toStdString());
    m_workspace.showAlert(
        {tr("The online planning could not be opened.").toStdString(), reason.toStdString()},
        &m_window);
}

void OnlinePlanning::askToLoad() {
    OnlineDialog dialog(m_workspace, tr("Open an online planning"), &m_window);
    if (dialog.exec() == QDialog::Accepted)
        load(dialog.address(), dialog.entry());
}

} // namespace kavela::desktop
