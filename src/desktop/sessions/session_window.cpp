#include "desktop/sessions/session_window.h"

#include "boatmotion/conversion.h"
#include "boatmotion/power_meter.h"
#include "desktop/imports/import_files.h"
#include "desktop/sessions/drop_areas.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_actions.h"
#include "desktop/sessions/session_conversion.h"
#include "desktop/sessions/session_edits.h"
#include "desktop/sessions/session_exports.h"
#include "desktop/sessions/session_imports.h"
#include "desktop/sessions/session_marks.h"
#include "desktop/sessions/session_tables.h"
#include "desktop/sessions/session_view.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>

#include <utility>

namespace kavela::desktop {

namespace {

constexpr int EditToldMilliseconds = 6000;
constexpr int FileToldMilliseconds = 10000;

} // namespace

SessionWindow::SessionWindow(Workspace& workspace, Autosave autosave)
    : SessionWindow(workspace, std::make_unique<SessionDocument>(workspace, std::move(autosave))) {}

SessionWindow::SessionWindow(Workspace& workspace, std::unique_ptr<SessionDocument> document)
    : ToolWindow(workspace, document.get(),
                 {"session", tr("Session"), "bms", tr("Sessions (*.bms);;Sessions (*.sbm)")}),
      m_document(std::move(document)),
      m_replay(new Replay(this)) {
    makeParts();
    connectParts();
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
    m_marks = new SessionMarks(*m_document, *m_replay, this);
    m_conversion = std::make_unique<SessionConversion>(workspace(), *this);
    m_edits =
        std::make_unique<SessionEdits>(*m_document, *m_view, *m_conversion, workspace(), *this);
    m_imports = std::make_unique<SessionImports>(
        *m_document, *m_edits, *m_conversion, workspace(), *this,
        SessionImports::Place{[this](Left left) { whenLeft(std::move(left)); },
                              [this](EditedSession session, const QString& recording) {
                                  begin(std::move(session), recording, proposedPath(recording));
                              }});
    m_exports = std::make_unique<SessionExports>(*m_document, m_view->tables(), workspace(), *this,
                                                 [this](const QString& path) { tellSaved(path); });
}

void SessionWindow::connectParts() {
    for (const DropAreas* const areas : findChildren<DropAreas*>()) {
        connect(areas, &DropAreas::recordingRequested, this, &SessionWindow::askForRecording);
        connect(areas, &DropAreas::sessionRequested, this, &SessionWindow::askForSession);
    }
    connect(m_view, &SessionView::keepRequested, this, [this] { m_edits->keepSelection(); });
    connect(m_view, &SessionView::removeRequested, this, [this] { m_edits->removeSelection(); });
    connect(m_view, &SessionView::informationRequested, this,
            [this] { m_edits->editInformation(); });
    connect(m_marks, &SessionMarks::told, this,
            [this](const QString& text) { statusBar()->showMessage(text, EditToldMilliseconds); });
}

void SessionWindow::begin(EditedSession session, const QString& recording, const QString& path) {
    m_recordingPath = recording;
    m_imports->forgetTrack();
    m_view->select(std::nullopt);
    m_document->show(std::move(session), path, this);
    m_replay->setMoment(m_replay->from());
}

bool SessionWindow::open(const QString& path) {
    openBeside(path, [](bool) {});
    return isBusy();
}

void SessionWindow::openBeside(const QString& wanted, const Opened& opened) {
    if (isBusy()) {
        opened(false);
        return;
    }
    m_conversion->hold();
    whenLeft([this, wanted, opened](bool mayGo) {
        m_conversion->release([&] {
            if (mayGo)
                read(wanted, opened);
            else
                opened(false);
        });
    });
}

void SessionWindow::read(const QString& wanted, const Opened& opened) {
    m_conversion->read(
        wanted,
        [this, opened](EditedSession session, const QString& path) {
            if (session.recording) {
                begin(std::move(session), QFileInfo(path).absoluteFilePath(), proposedPath(path));
                workspace().addRecentFile(m_recordingPath);
            } else {
                begin(std::move(session), {}, path);
            }
            opened(true);
        },
        [opened] { opened(false); });
}

void SessionWindow::startNew(const QString& path) {
    begin({}, {}, QFileInfo(path).isDir() ? QDir(path).filePath(tr("Session") + ".bms") : path);
}

void SessionWindow::showSession() {
    m_view->show(m_document->value());
    m_pages->setCurrentIndex(m_document->hasSession() ? 1 : 0);
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
    QStringList others;
    for (const QString& path : paths) {
        const QString suffix = QFileInfo(path).suffix().toLower();
        if (isPowerMeterList(path))
            m_conversion->whenFree([this, path] { m_imports->importPowerMeter(path); });
        else if (isImportable(path))
            m_conversion->whenFree([this, path] { m_imports->importFrom({path}); });
        else if (QStringList{"kvb", "sbm", "bms"}.contains(suffix) && paths.size() == 1)
            m_conversion->whenFree([this, path] { (void)open(path); }); // told there
        else
            others.append(path);
    }
    if (!others.isEmpty())
        emit openRequested(others);
}

QString SessionWindow::askForFile(const QString& title, const QString& filter) {
    return QFileDialog::getOpenFileName(this, title, QFileInfo(m_document->path()).path(),
                                        filter + ";;" + tr("All files (*)"));
}

void SessionWindow::askForRecording() {
    const QString path = askForFile(tr("Import .kvb file"), tr("Recordings (*.kvb)"));
    if (!path.isEmpty())
        (void)open(path); // told there
}

void SessionWindow::askForSession() {
    const QString path = askForFile(tr("Import .sbm file"), tr("Sessions (*.sbm *.bms)"));
    if (!path.isEmpty())
        (void)open(path);
}

void SessionWindow::askAndSaveRecording() {
    m_exports->askAndSaveRecording(m_recordingPath);
}

/// One mark makes no segment, and power-meter data belongs in the session or not: what has to be
/// settled before a file is written.
bool SessionWindow::mayWrite() {
    if (m_document->value().marks.size() == 1) {
        tell(TooFewMarksTitle, TooFewMarks);
        return false;
    }
    if (m_document->value().powerMeter.empty())
        return true;
    const auto isWanted = askForPowerMeterData();
    if (isWanted && *isWanted)
        m_document->edit(tr("power of the power meter"),
                         [](EditedSession& session) { applyPowerMeter(session); });
    return isWanted.has_value();
}

std::optional<bool> SessionWindow::askForPowerMeterData() {
    if (m_askPowerMeter)
        return m_askPowerMeter(AskToSavePowerMeter);
    QMessageBox box(QMessageBox::Question, tr("Save the session"), AskToSavePowerMeter,
                    QMessageBox::Cancel, this);
    QPushButton* const with = box.addButton(tr("Save with it"), QMessageBox::AcceptRole);
    const QPushButton* const without =
        box.addButton(tr("Save without it"), QMessageBox::DestructiveRole);
    box.setDefaultButton(with);
    box.exec();
    if (box.clickedButton() == with)
        return true;
    return box.clickedButton() == without ? std::optional(false) : std::nullopt;
}

/// Power-meter data that was left out is still here and in no file: it is work not saved.
void SessionWindow::wasSaved() {
    tellSaved(m_document->path());
    if (m_document->value().powerMeter.empty())
        return;
    m_document->undoStack().resetClean();
    statusBar()->showMessage(tr("Saved without the power meter's data, which are still here."),
                             FileToldMilliseconds);
}

void SessionWindow::tellSaved(const QString& path) {
    workspace().log()(conversion_messages::Saved);
    statusBar()->showMessage(QString(conversion_messages::Saved) + ' ' +
                                 QDir::toNativeSeparators(path),
                             FileToldMilliseconds);
}

void SessionWindow::saveSegments() {
    if (m_document->value().marks.size() < 2) {
        tell(TooFewMarksTitle, TooFewMarks);
        return;
    }
    m_view->tables().setCurrentIndex(SessionTables::SegmentPage);
    saveBeside();
}

void SessionWindow::removeCurrent() {
    if (!m_edits->removeSelectedEntries())
        m_marks->removeNearest();
}

void SessionWindow::tell(const QString& title, const QString& text) {
    workspace().showAlert({title.toStdString(), text.toStdString()}, this);
}

} // namespace kavela::desktop
