#include "desktop/desktop.h"

#include "desktop/motion/motion_window.h"
#include "desktop/planning/online/online_dialog.h"
#include "desktop/planning/planning_window.h"
#include "desktop/selection/selection_window.h"
#include "desktop/sessions/session_window.h"
#include "desktop/sessions/test_session_window.h"
#include "desktop/shell/document_choice.h"
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

DocumentChoice Desktop::chooseDocument(const DocumentKind& kind) const {
    QStringList recent;
    for (const QString& path : m_workspace.recentFiles())
        if (QFileInfo(path).suffix().compare(kind.suffix, Qt::CaseInsensitive) == 0 &&
            QFileInfo::exists(path))
            recent.append(path);
    DocumentChoiceDialog dialog(kind, recent, front());
    return dialog.exec() == QDialog::Accepted ? dialog.choice() : DocumentChoice();
}

template <class Window>
void Desktop::chooseEditor(const DocumentKind& kind,
                           const std::function<void(Window&, const QString&)>& begin) {
    const DocumentChoice choice = chooseDocument(kind);
    if (choice.path.isEmpty())
        return;
    if (!choice.isNew) {
        open(choice.path);
        return;
    }
    auto* window = new Window(m_workspace, m_autosave);
    begin(*window, choice.path);
    window->setNamed();
    show(window);
}

void Desktop::chooseTeam() {
    chooseEditor<TeamWindow>(
        {tr("Team results"), tr("Teams"), "kvteam", tr("Team")},
        [](TeamWindow& window, const QString& path) { window.startNew(path); });
}

void Desktop::chooseSelection() {
    const int year = QDate::currentDate().year();
    chooseEditor<SelectionWindow>(
        {tr("Selection races"), tr("Selection races"), "kvsr", tr("Selection %1").arg(year)},
        [year](SelectionWindow& window, const QString& path) { window.startNew(path, year); });
}

void Desktop::choosePlanning() {
    chooseEditor<PlanningWindow>(
        {planning_messages::ImportTitle, tr("Plannings"), "planning", tr("Planning")},
        [](PlanningWindow& window, const QString& path) { window.startNew(path); });
}

void Desktop::chooseTests() {
    chooseEditor<TestsWindow>(
        {tr("Tests"), tr("Tests"), "kvtest", tr("Tests")},
        [](TestsWindow& window, const QString& path) { window.startNew(path); });
}

void Desktop::chooseSession() {
    chooseEditor<SessionWindow>(
        {tr("Sessions"), tr("Sessions"), "bms", tr("Session")},
        [](SessionWindow& window, const QString& path) { window.startNew(path); });
}

void Desktop::chooseRecordings() {
    const QStringList chosen = QFileDialog::getOpenFileNames(
        front(), tr("Open recordings"), QString(), tr("Recordings (*.kvb);;All files (*)"));
    if (!chosen.isEmpty())
        openAll(chosen);
}

void Desktop::openImports(const QStringList& paths) {
    SessionWindow* window = nullptr;
    for (EditorWindow* const editor : editorWindows())
        if (auto* const session = qobject_cast<SessionWindow*>(editor))
            window = !window || session->isActiveWindow() ? session : window;
    if (!window) {
        window = new SessionWindow(m_workspace, m_autosave);
        const QFileInfo first(paths.constFirst());
        window->startNew(first.absolutePath() + '/' + first.completeBaseName() + ".bms");
        show(window);
    }
    window->takeInAll(paths);
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

void Desktop::showPlanningCopy(const QByteArray& content, const QString& name) {
    auto* window = new PlanningWindow(m_workspace, m_autosave);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (window->showCopy(content,
                         documents + '/' + tr("%1 (on the server)").arg(name) + ".planning")) {
        show(window);
        return;
    }
    delete window;
    m_workspace.showAlert({"", tr("What the server has is no planning.").toStdString()}, front());
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
