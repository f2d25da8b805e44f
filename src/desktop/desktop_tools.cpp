#include "desktop/desktop.h"

#include "desktop/motion/motion_window.h"
#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/planning_window.h"
#include "desktop/selection/selection_window.h"
#include "desktop/sessions/session_window.h"
#include "desktop/sessions/test_session_window.h"
#include "desktop/team/team_window.h"
#include "desktop/watertests/tests_window.h"
#include "planning/messages.h"

#include <QDate>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

/// The tools that edit a file each: how one is chosen, begun and opened.
namespace kavela::desktop {

QString Desktop::chooseFile(const QString& title, const QString& kind,
                            const QString& suffix) const {
    QFileDialog dialog(front(), title, QString(), tr("%1 (*.%2);;All files (*)").arg(kind, suffix));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

template <class Window>
void Desktop::chooseEditor(const QString& path, const std::function<void(Window&)>& begin) {
    if (path.isEmpty())
        return;
    if (QFileInfo::exists(path)) {
        open(path);
        return;
    }
    auto* window = new Window(m_workspace, m_autosave);
    begin(*window);
    show(window);
}

void Desktop::chooseTeam() {
    const QString path = chooseFile(tr("Open a team, or name a new one"), tr("Teams"), "kvteam");
    chooseEditor<TeamWindow>(path, [&](TeamWindow& window) { window.startNew(path); });
}

void Desktop::chooseSelection() {
    const QString path =
        chooseFile(tr("Open a selection, or name a new one"), tr("Selection races"), "kvsr");
    chooseEditor<SelectionWindow>(
        path, [&](SelectionWindow& window) { window.startNew(path, QDate::currentDate().year()); });
}

void Desktop::choosePlanning() {
    const QString path = chooseFile(planning_messages::ImportTitle, tr("Plannings"), "planning");
    chooseEditor<PlanningWindow>(path, [&](PlanningWindow& window) { window.startNew(path); });
}

void Desktop::chooseTests() {
    const QString path = chooseFile(tr("Open tests, or name new ones"), tr("Tests"), "kvtest");
    chooseEditor<TestsWindow>(path, [&](TestsWindow& window) { window.startNew(path); });
}

void Desktop::chooseRecordings() {
    const QStringList chosen = QFileDialog::getOpenFileNames(
        front(), tr("Open recordings"), QString(), tr("Recordings (*.kvb);;All files (*)"));
    if (!chosen.isEmpty())
        openAll(chosen);
}

void Desktop::chooseSession() {
    const QString path = chooseFile(tr("Open a session, or name a new one"), tr("Sessions"), "bms");
    chooseEditor<SessionWindow>(path, [&](SessionWindow& window) { window.startNew(path); });
}

void Desktop::openRecordings(const QStringList& paths) {
    if (!m_motion) {
        m_motion = new MotionWindow(m_workspace);
        m_motion->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_motion, &MotionWindow::homeRequested, this, &Desktop::showHome);
        connect(m_motion, &MotionWindow::settingsRequested, this, &Desktop::openSettings);
        connect(m_motion, &MotionWindow::openRequested, this,
                [this](const QStringList& others) { openAll(others); });
        connect(m_motion, &MotionWindow::recordingsChanged, this, &Desktop::rememberSession);
        rememberWithout(m_motion);
    }
    m_motion->show();
    m_motion->raise();
    m_motion->open(paths);
}

MotionWindow* Desktop::motionWindow() const {
    return m_motion;
}

template <class Window>
bool Desktop::openEditor(const QString& path) {
    if (isShown(path))
        return true;
    auto* window = new Window(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        m_workspace.forgetRecentFile(path);
        return false;
    }
    show(window);
    return true;
}

bool Desktop::openTeam(const QString& path) {
    return openEditor<TeamWindow>(path);
}

bool Desktop::openSelection(const QString& path) {
    return openEditor<SelectionWindow>(path);
}

bool Desktop::openTests(const QString& path) {
    return openEditor<TestsWindow>(path);
}

bool Desktop::openSession(const QString& path) {
    return openEditor<SessionWindow>(path);
}

bool Desktop::openTestSession(const QString& path) {
    return openEditor<TestSessionWindow>(path);
}

bool Desktop::openPlanning(const QString& path) {
    return openEditor<PlanningWindow>(path);
}

void Desktop::loadPlanningAtStart() {
    const Preferences& preferences = m_workspace.preferences();
    if (!preferences.boolean("autoloadPlanning"))
        return;
    if (preferences.boolean("autoloadPlanningOnline")) {
        loadOnlinePlanning();
        return;
    }
    const auto url = preferences.url("autoloadPlanningURL");
    const QString path = url ? QUrl(QString::fromStdString(*url)).toLocalFile() : QString();
    if (!path.isEmpty())
        (void)openPlanning(path);
}

/// The store asks for a password, which is kept nowhere, so that the coach is asked for it.
void Desktop::loadOnlinePlanning() {
    auto* window = new PlanningWindow(m_workspace, m_autosave);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    window->startNew(documents + '/' + rememberedEntry(m_workspace) + ".planning");
    show(window);
    if (const OnlineAddress address = rememberedAddress(m_workspace);
        address.user.isEmpty() && address.fault().isEmpty())
        window->loadOnline(address, rememberedEntry(m_workspace));
    else
        window->askToLoadOnline();
}

} // namespace kavela::desktop
