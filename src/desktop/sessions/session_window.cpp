#include "desktop/sessions/session_window.h"

#include "desktop/sessions/drop_areas.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_actions.h"
#include "desktop/sessions/session_view.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QStackedWidget>
#include <QStatusBar>

#include <utility>

namespace kavela::desktop {

SessionWindow::SessionWindow(Workspace& workspace, Autosave autosave)
    : SessionWindow(workspace, std::make_unique<SessionDocument>(workspace, std::move(autosave))) {}

SessionWindow::SessionWindow(Workspace& workspace, std::unique_ptr<SessionDocument> document)
    : ToolWindow(workspace, document.get(),
                 {"session", tr("Session"), "bms", tr("Sessions (*.bms);;Sessions (*.sbm)")}),
      m_document(std::move(document)),
      m_replay(new Replay(this)) {
    makeParts();
    QMenu* const file = makeFileMenu();
    makeSessionMenus(*this, *file, *makeEditMenu());
    finishMenus([] { return Commands(); });
    connect(m_document.get(), &SessionDocument::changed, this, &SessionWindow::showSession);
}

SessionWindow::~SessionWindow() {
    m_document->undoStack().disconnect(this);
    m_document->disconnect(this);
}

void SessionWindow::makeParts() {
    m_view = new SessionView(workspace(), *m_replay);
    auto* empty = new DropAreas;
    m_pages = new QStackedWidget;
    m_pages->addWidget(empty);
    m_pages->addWidget(new ScrollPage(m_view));
    setCentralWidget(m_pages);
    statusBar()->setSizeGripEnabled(false);
    m_overlay = new DropAreas(this);
    m_overlay->hide();
    for (const DropAreas* const areas : {empty, m_overlay}) {
        connect(areas, &DropAreas::recordingRequested, this, &SessionWindow::askForRecording);
        connect(areas, &DropAreas::sessionRequested, this, &SessionWindow::askForSession);
    }
    connect(m_view, &SessionView::keepRequested, this, &SessionWindow::keepSelection);
    connect(m_view, &SessionView::removeRequested, this, &SessionWindow::removeSelection);
    connect(m_view, &SessionView::informationRequested, this, &SessionWindow::editInformation);
}

bool SessionWindow::open(const QString& path) {
    openBeside(path, [](bool) {});
    return isBusy();
}

void SessionWindow::openBeside(const QString& path, const Opened& opened) {
    if (isBusy() || !mayLeave())
        opened(false);
    else
        read(path, opened);
}

void SessionWindow::showRead(EditedSession session, const QString& path) {
    const bool isRecording = session.recording != nullptr;
    m_recordingPath = isRecording ? QFileInfo(path).absoluteFilePath() : QString();
    m_watchTrack.reset();
    m_view->select(std::nullopt);
    m_document->show(std::move(session), isRecording ? proposedPath(path) : path, this);
    if (isRecording)
        workspace().addRecentFile(m_recordingPath);
    m_replay->setMoment(m_replay->from());
}

void SessionWindow::whenFree(std::function<void()> act) {
    if (isBusy())
        m_next.push_back(std::move(act));
    else
        act();
}

void SessionWindow::goOn() {
    while (!isBusy() && !m_next.empty()) {
        const auto act = std::move(m_next.front());
        m_next.pop_front();
        act();
    }
}

void SessionWindow::workOn(const QString& what, std::function<EditedSession()> work,
                           std::function<void(EditedSession)> done,
                           std::function<void(const std::exception_ptr&)> failed) {
    m_work.runOver({this, what}, std::move(work),
                   [this, done = std::move(done)](EditedSession session) {
                       done(std::move(session));
                       goOn();
                   },
                   {.failed = [this, failed = std::move(failed)](const std::exception_ptr& fault) {
                       failed(fault);
                       goOn();
                   }});
}

void SessionWindow::startNew(const QString& path) {
    m_recordingPath.clear();
    m_watchTrack.reset();
    m_document->show(
        {}, QFileInfo(path).isDir() ? QDir(path).filePath(tr("Session") + ".bms") : path, this);
}

bool SessionWindow::hasSession() const {
    const smartAlldata_v4& session = m_document->value().session;
    return m_document->value().recording || !session.strokesData.empty() || !session.gps.empty() ||
           !session.info.name.empty();
}

void SessionWindow::showSession() {
    m_view->show(m_document->value());
    m_pages->setCurrentIndex(hasSession() ? 1 : 0);
}

void SessionWindow::changeEvent(QEvent* event) {
    ToolWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_view)
        m_view->setFullScreen(isFullScreen());
}

void SessionWindow::placeOverlay() {
    if (m_overlay)
        m_overlay->setGeometry(centralWidget()->geometry());
}

void SessionWindow::resizeEvent(QResizeEvent* event) {
    ToolWindow::resizeEvent(event);
    placeOverlay();
}

void SessionWindow::dragEnterEvent(QDragEnterEvent* event) {
    acceptFiles(*event);
    if (!event->isAccepted())
        return;
    placeOverlay();
    m_overlay->raise();
    m_overlay->show();
}

void SessionWindow::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    m_overlay->hide();
}

void SessionWindow::dropEvent(QDropEvent* event) {
    m_overlay->hide();
    ToolWindow::dropEvent(event);
}

/// The kind of a file decides, not the side it fell on.
void SessionWindow::takeFiles(const QStringList& paths) {
    if (isBusy())
        return;
    QStringList others;
    for (const QString& path : paths) {
        const QString suffix = QFileInfo(path).suffix().toLower();
        if (isPowerMeterList(path))
            whenFree([this, path] { importPowerMeter(path); });
        else if (isImportable(path))
            whenFree([this, path] { importFrom({path}); });
        else if (QStringList{"kvb", "sbm", "bms"}.contains(suffix) && paths.size() == 1)
            (void)open(path); // told there
        else
            others.append(path);
    }
    if (!others.isEmpty())
        emit openRequested(others);
}

void SessionWindow::tell(const QString& title, const QString& text) {
    workspace().showAlert({title.toStdString(), text.toStdString()}, this);
}

} // namespace kavela::desktop
