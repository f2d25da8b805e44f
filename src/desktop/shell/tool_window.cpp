#include "desktop/shell/tool_window.h"

#include "desktop/shell/dropped_files.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/help_menu.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMetaObject>
#include <QToolBar>

#include <utility>

namespace kavela::desktop {

ToolWindow::ToolWindow(Workspace& workspace, EditedFile* file, Name name)
    : m_workspace(workspace), m_file(file), m_name(std::move(name)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    resize(1280, 800);
    if (m_name.filter.isEmpty())
        m_name.filter = tr("%1 files (*.%2)").arg(m_name.title, m_name.suffix);
}

QStringList ToolWindow::paths() const {
    return m_file && !m_file->path().isEmpty() ? QStringList(m_file->path()) : QStringList();
}

/// What is edited while a file is read would be lost when it is taken over.
void ToolWindow::openBeside(const QString& path, const Opened& opened) {
    const FileReading reading = readingOf(path);
    if (!reading) {
        opened(open(path));
        return;
    }
    OtherEnds otherwise;
    otherwise.failed = [this, opened](const std::exception_ptr& fault) {
        m_workspace.showAlert({"", messageOf(fault)}, this);
        opened(false);
    };
    m_reading.runAwaited(
        reading, [opened](const TakeIn& take) { opened(take()); }, std::move(otherwise),
        {isVisible() ? this : nullptr, tr("Reading %1…").arg(QFileInfo(path).fileName())});
}

void ToolWindow::showTitle() {
    const QString tool = m_file->isSaving() ? tr("%1, saving…").arg(m_name.title) : m_name.title;
    setWindowTitle(m_file->title() + "[*] – " + tool + " – Kavela");
    setWindowFilePath(m_file->path());
    setWindowModified(m_file->isDirty());
}

QMenu* ToolWindow::makeFileMenu(FileCommands commands) {
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    if (!commands.open)
        commands.open = [this] { chooseAndOpen(); };
    m_fileMenu->addAction(commands.openText.isEmpty() ? tr("&Open…") : commands.openText,
                          QKeySequence::Open, this, std::move(commands.open));
    if (!m_file)
        return m_fileMenu;
    m_fileMenu->addAction(commands.saveText.isEmpty() ? tr("&Save") : commands.saveText,
                          QKeySequence::Save, this, [this] { saveBeside(); });
    if (commands.canSaveAs)
        m_fileMenu->addAction(tr("Save &as…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this,
                              [this] { saveAsBeside(); });
    m_fileMenu->addSeparator();
    return m_fileMenu;
}

void ToolWindow::chooseAndOpen() {
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open"), QFileInfo(paths().value(0)).path(),
        tr("%1 files (*.%2)").arg(m_name.title, m_name.suffix) + ";;" + tr("All files (*)"));
    if (!files.isEmpty())
        emit openRequested(files);
}

/// What is being typed is the last step.
void ToolWindow::undo() {
    if (commit())
        m_file->undoStack().undo();
}

void ToolWindow::redo() {
    if (commit())
        m_file->undoStack().redo();
}

QMenu* ToolWindow::makeEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    QUndoStack& stack = m_file->undoStack();
    QAction* const undo = stack.createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* const redo = stack.createRedoAction(this, tr("&Redo"));
    redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    undo->disconnect(&stack);
    redo->disconnect(&stack);
    connect(undo, &QAction::triggered, this, &ToolWindow::undo);
    connect(redo, &QAction::triggered, this, &ToolWindow::redo);
    menu->addActions({undo, redo});
    menu->addSeparator();
    return menu;
}

/// A bar above the window's parts, shown when there is something to say about the file.
void ToolWindow::makeNote() {
    m_noteText = new QLabel;
    m_noteText->setTextFormat(Qt::PlainText);
    m_noteText->setMargin(theme::SmallSpacing);
    // As wide as the bar leaves it, however long: the window does not grow by what is said in it.
    m_noteText->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_noteText->setMinimumWidth(1);
    m_note = new QToolBar;
    m_note->setObjectName("fileNote");
    m_note->setMovable(false);
    m_note->toggleViewAction()->setVisible(false);
    m_note->addWidget(m_noteText);
    m_note->addAction(tr("Open it again"), this, &ToolWindow::openAgain);
    m_note->addAction(tr("Keep what is here"), m_note, &QWidget::hide);
    addToolBar(m_note);
    m_note->hide();
    connect(m_file, &EditedFile::changedElsewhere, this, &ToolWindow::noteChange);
    connect(m_file, &EditedFile::saved, m_note, &QWidget::hide);
}

void ToolWindow::noteChange() {
    const QString name = QFileInfo(m_file->path()).fileName();
    const bool isThere = QFileInfo::exists(m_file->path());
    m_noteText->setText(
        isThere ? tr("⚠ Another program changed “%1”. What is shown here is from before.").arg(name)
                : tr("⚠ “%1” is no longer in its folder. Saving puts it there again.").arg(name));
    m_noteText->setToolTip(m_noteText->text());
    m_note->actions().at(1)->setVisible(isThere);
    m_note->show();
}

/// What is being written here comes first, and may be all that is to be done.
void ToolWindow::openAgain() {
    m_file->whenWritten([this](bool /*isWritten*/) {
        if (!m_note->isHidden())
            giveUpAndOpenAgain();
    });
}

void ToolWindow::giveUpAndOpenAgain() {
    const bool isWanted =
        !m_file->isDirty() ||
        m_workspace.ask({"", tr("Opening “%1” again gives up what was not saved here.")
                                 .arg(m_file->fileName())
                                 .toStdString()},
                        tr("Open it again"), this);
    if (!isWanted)
        return;
    const bool wasDirty = m_file->isDirty();
    if (wasDirty)
        m_file->discard(); // or opening would offer it
    openBeside(m_file->path(), [this, wasDirty](bool isOpen) {
        if (isOpen)
            m_note->hide();
        else if (wasDirty)
            m_file->undoStack().resetClean(); // it is still here, and unsaved
    });
}

void ToolWindow::finishMenus(std::function<Commands()> more) {
    if (m_file) {
        m_file->setTool(m_name.kind);
        m_file->setAskPath([this] { return chooseName(); });
        makeNote();
        connect(m_file, &EditedFile::changed, this, &ToolWindow::showTitle);
        connect(m_file, &EditedFile::saved, this, &ToolWindow::showTitle);
        connect(m_file, &EditedFile::savingChanged, this, &ToolWindow::showTitle);
        connect(&m_file->undoStack(), &QUndoStack::cleanChanged, this, &ToolWindow::showTitle);
    }
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(tr("Bring &back earlier work…"), this, &ToolWindow::earlierWorkRequested);
    m_fileMenu->addAction(tr("&Home"), QKeySequence(Qt::CTRL | Qt::Key_H), this,
                          &ToolWindow::homeRequested);
    m_fileMenu->addAction(tr("Se&ttings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                          &ToolWindow::settingsRequested);
    m_fileMenu->addAction(tr("C&lose"), QKeySequence::Close, this, [this] { closeFront(); });
    m_fileMenu->addAction(tr("&Quit"), QKeySequence::Quit, this, [] { QCoreApplication::quit(); });
    addHelpMenu(*this, m_workspace, m_name.kind, std::move(more));
    rememberPlace(*this, m_workspace, m_name.kind);
    rememberColumns(*this, m_workspace, m_name.kind);
}

bool ToolWindow::commit() {
    const bool isTaken = takePending();
    return takeTyping(*this) && isTaken;
}

/// A document whose first name is being written needs no other one.
void ToolWindow::saveBeside(Saved saved) {
    if (!m_file->isNamed() && !m_file->isSaving()) {
        saveAsBeside(std::move(saved));
        return;
    }
    writeBeside([this](Saved written) { m_file->saveBeside(this, std::move(written)); },
                std::move(saved));
}

void ToolWindow::saveAsBeside(Saved saved) {
    writeBeside(
        [this](Saved written) {
            if (const QString path = chooseName(); !path.isEmpty())
                m_file->saveAsBeside(path, this, std::move(written));
            else
                written(false);
        },
        std::move(saved));
}

void ToolWindow::saveToBeside(const QString& path, Saved saved) {
    writeBeside(
        [this, path](Saved written) { m_file->saveAsBeside(path, this, std::move(written)); },
        std::move(saved));
}

void ToolWindow::writeBeside(const std::function<void(Saved)>& write, Saved saved) {
    const auto ended = [this, saved = std::move(saved)](bool isSaved) {
        if (isSaved)
            wasSaved();
        if (saved)
            saved(isSaved);
    };
    if (commit() && mayWrite())
        write(ended);
    else
        ended(false);
}

/// Not from within what tells of the end of saving: the window may close in it.
void ToolWindow::whenSaved(std::function<void()> then) {
    if (!commit())
        return;
    if (!m_file->isDirty()) {
        then();
        return;
    }
    saveBeside([this, then = std::move(then)](bool isSaved) {
        if (isSaved)
            QMetaObject::invokeMethod(this, then, Qt::QueuedConnection);
    });
}

void ToolWindow::takeBack(const std::string& content) {
    whenLeft([this, content](bool mayGo) {
        if (mayGo)
            (void)m_file->takeBack(content);
    });
}

QString ToolWindow::chooseName() {
    QFileDialog dialog(this, tr("Save"), QFileInfo(m_file->path()).path(), m_name.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(m_name.suffix);
    dialog.selectFile(QFileInfo(m_file->path()).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

/// What is being written, by a key or for it, is waited for: then it is asked again, for what was
/// edited meanwhile. `isSavedForIt` says that the coach has answered, and that it was written.
EditedFile::Leave ToolWindow::askToLeave(bool isSavedForIt, Waited waited) {
    if (!commit())
        return EditedFile::Leave::Not;
    if (!m_file)
        return EditedFile::Leave::Now;
    // Not from within what tells of the file's end, which may go with the window.
    const auto later = [this, waited = std::move(waited)](Wait wait) {
        QMetaObject::invokeMethod(
            this, [waited, wait] { waited(wait); }, Qt::QueuedConnection);
    };
    if (m_file->isSaving()) {
        m_file->whenWritten(
            [later](bool isWritten) { later(isWritten ? Wait::Written : Wait::Failed); });
        return EditedFile::Leave::AfterSaving;
    }
    if (isSavedForIt && m_file->isAsWritten())
        return m_file->mayLeaveSaved(this) ? EditedFile::Leave::Now : EditedFile::Leave::Not;
    const EditedFile::Leave leave = m_file->askToLeave(this);
    if (leave == EditedFile::Leave::AfterSaving)
        saveBeside([later](bool isWritten) { later(isWritten ? Wait::SavedForIt : Wait::Failed); });
    return leave;
}

void ToolWindow::whenLeft(Left left) {
    leave(std::move(left), false);
}

/// No document takes the place of one that the window closes with.
void ToolWindow::leave(Left left, bool isSavedForIt) {
    if (m_isClosing) {
        left(false);
        return;
    }
    const EditedFile::Leave answer = askToLeave(isSavedForIt, [this, left](Wait wait) {
        --m_leaving;
        showWaiting();
        if (wait == Wait::Failed)
            left(false);
        else
            leave(left, wait == Wait::SavedForIt);
    });
    if (answer != EditedFile::Leave::AfterSaving) {
        left(answer == EditedFile::Leave::Now);
        return;
    }
    ++m_leaving;
    showWaiting();
}

void ToolWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (m_isClosing)
        return;
    switch (mayClose()) {
    case EditedFile::Leave::Now:
        event->accept();
        emit closed();
        break;
    case EditedFile::Leave::AfterSaving: // told when it is written
        m_isClosing = true;
        showWaiting();
        break;
    case EditedFile::Leave::Not:
        emit stayed();
        break;
    }
}

/// A window that is not enabled is one that a piece of work is shown over.
EditedFile::Leave ToolWindow::mayClose() {
    const bool isSavedForIt = std::exchange(m_isSavedForIt, false);
    if (!isEnabled())
        return EditedFile::Leave::Not;
    return askToLeave(isSavedForIt, [this](Wait wait) { closeAfter(wait); });
}

void ToolWindow::closeAfter(Wait wait) {
    m_isClosing = false;
    showWaiting();
    m_isSavedForIt = wait == Wait::SavedForIt;
    if (wait == Wait::Failed)
        emit stayed();
    else
        close();
}

/// What follows when the file is written is said above the window's parts.
void ToolWindow::showWaiting() {
    const bool isWaiting = m_isClosing || m_leaving > 0;
    if (isWaiting && !m_waitingNote)
        makeWaitingNote();
    if (!m_waitingNote)
        return;
    if (isWaiting)
        m_waitingText->setText(
            m_isClosing ? tr("Saving… The window closes when the file is written.")
                        : tr("Saving… What is to be opened follows when the file is written."));
    m_waitingNote->setVisible(isWaiting);
}

void ToolWindow::makeWaitingNote() {
    m_waitingText = new QLabel;
    m_waitingText->setMargin(theme::SmallSpacing);
    m_waitingNote = new QToolBar;
    m_waitingNote->setObjectName("waitingNote");
    m_waitingNote->setMovable(false);
    m_waitingNote->toggleViewAction()->setVisible(false);
    m_waitingNote->addWidget(m_waitingText);
    addToolBar(m_waitingNote);
}

void ToolWindow::dragEnterEvent(QDragEnterEvent* event) {
    acceptFiles(*event);
}

void ToolWindow::dropEvent(QDropEvent* event) {
    takeFiles(droppedFiles(*event));
}

void ToolWindow::takeFiles(const QStringList& paths) {
    emit openRequested(paths);
}

} // namespace kavela::desktop
