#include "desktop/sessions/session_window.h"

#include "desktop/sessions/drop_areas.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_actions.h"
#include "desktop/sessions/session_view.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/workspace.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QStackedWidget>
#include <QStatusBar>

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

bool SessionWindow::open(const QString& wanted) {
    QString path = wanted;
    EditedSession session;
    if (m_isBusy || !mayLeave() || !read(path, session))
        return false;
    const bool isRecording = session.recording != nullptr;
    m_recordingPath = isRecording ? QFileInfo(path).absoluteFilePath() : QString();
    m_watchTrack.reset();
    m_view->select(std::nullopt);
    m_document->show(std::move(session), isRecording ? proposedPath(path) : path, this);
    if (isRecording)
        workspace().addRecentFile(m_recordingPath);
    m_replay->setMoment(m_replay->from());
    return true;
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

void SessionWindow::closeEvent(QCloseEvent* event) {
    if (m_isBusy)
        event->ignore();
    else
        ToolWindow::closeEvent(event);
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
    if (m_isBusy)
        return;
    QStringList others;
    for (const QString& path : paths) {
        const QString suffix = QFileInfo(path).suffix().toLower();
        if (isPowerMeterList(path))
            importPowerMeter(path);
        else if (isImportable(path))
            importFrom({path});
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
