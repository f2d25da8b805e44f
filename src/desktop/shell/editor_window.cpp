#include "desktop/shell/editor_window.h"

#include "desktop/shell/dropped_files.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/help_menu.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QToolBar>

namespace kavela::desktop {

EditorWindow::EditorWindow(Workspace& workspace, EditedFile& file, QString kind, QString toolTitle,
                           QString suffix)
    : m_workspace(workspace),
      m_file(file),
      m_kind(std::move(kind)),
      m_toolTitle(std::move(toolTitle)),
      m_suffix(std::move(suffix)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    resize(1280, 800);
}

void EditorWindow::showTitle() {
    setWindowTitle(m_file.fileName() + "[*] – " + m_toolTitle + " – Kavela");
    setWindowModified(m_file.isDirty());
}

QMenu* EditorWindow::makeFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    m_fileMenu = menu;
    const QString filter = tr("%1 files (*.%2);;All files (*)").arg(m_toolTitle, m_suffix);
    menu->addAction(tr("&Open…"), QKeySequence::Open, this, [this, filter] {
        const QStringList files = QFileDialog::getOpenFileNames(
            this, tr("Open"), QFileInfo(m_file.path()).path(), filter);
        if (!files.isEmpty())
            emit openRequested(files);
    });
    menu->addAction(tr("&Save"), QKeySequence::Save, this, [this] { save(); });
    menu->addAction(tr("Save &as…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this,
                    [this] { saveAs(); });
    menu->addSeparator();
    return menu;
}

QMenu* EditorWindow::makeEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = m_file.undoStack().createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = m_file.undoStack().createRedoAction(this, tr("&Redo"));
    redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    menu->addActions({undo, redo});
    menu->addSeparator();
    return menu;
}

/// A bar above the window's parts, shown when there is something to say about the file.
void EditorWindow::makeNote() {
    m_noteText = new QLabel;
    m_noteText->setTextFormat(Qt::PlainText);
    m_noteText->setWordWrap(true);
    m_noteText->setMargin(theme::SmallSpacing);
    m_noteText->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_note = new QToolBar;
    m_note->setObjectName("fileNote");
    m_note->setMovable(false);
    m_note->toggleViewAction()->setVisible(false);
    m_note->addWidget(m_noteText);
    m_note->addAction(tr("Open it again"), this, &EditorWindow::openAgain);
    m_note->addAction(tr("Keep what is here"), m_note, &QWidget::hide);
    addToolBar(m_note);
    m_note->hide();
    connect(&m_file, &EditedFile::changedElsewhere, this, &EditorWindow::noteChange);
    connect(&m_file, &EditedFile::saved, m_note, &QWidget::hide);
}

void EditorWindow::noteChange() {
    const QString name = QFileInfo(m_file.path()).fileName();
    const bool isThere = QFileInfo::exists(m_file.path());
    m_noteText->setText(
        isThere ? tr("⚠ Another program changed “%1”. What is shown here is from before.").arg(name)
                : tr("⚠ “%1” is no longer in its folder. Saving puts it there again.").arg(name));
    m_note->actions().at(1)->setVisible(isThere);
    m_note->show();
}

void EditorWindow::openAgain() {
    const bool isWanted =
        !m_file.isDirty() ||
        m_workspace.ask({"", tr("Opening “%1” again gives up what was not saved here.")
                                 .arg(m_file.fileName())
                                 .toStdString()},
                        tr("Open it again"), this);
    if (!isWanted)
        return;
    const bool wasDirty = m_file.isDirty();
    if (wasDirty)
        m_file.discard(); // or opening would offer it
    if (open(m_file.path()))
        m_note->hide();
    else if (wasDirty)
        m_file.undoStack().resetClean(); // it is still here, and unsaved
}

void EditorWindow::finishMenus(std::function<Commands()> more) {
    makeNote();
    connect(&m_file, &EditedFile::changed, this, &EditorWindow::showTitle);
    connect(&m_file, &EditedFile::saved, this, &EditorWindow::showTitle);
    connect(&m_file.undoStack(), &QUndoStack::cleanChanged, this, &EditorWindow::showTitle);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(tr("&Home"), QKeySequence(Qt::CTRL | Qt::Key_H), this,
                          &EditorWindow::homeRequested);
    m_fileMenu->addAction(tr("Se&ttings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                          &EditorWindow::settingsRequested);
    m_fileMenu->addAction(tr("C&lose"), QKeySequence::Close, this, &QWidget::close);
    addHelpMenu(*this, m_workspace, m_kind, std::move(more));
    rememberPlace(*this, m_workspace, m_kind);
}

bool EditorWindow::save() {
    if (!takeTyping(*this))
        return false;
    commit();
    return m_isNamed || QFileInfo::exists(m_file.path()) ? m_file.save(this) : saveAs();
}

bool EditorWindow::saveAs() {
    if (!takeTyping(*this))
        return false;
    commit();
    QFileDialog dialog(this, tr("Save"), QFileInfo(m_file.path()).path(),
                       tr("%1 files (*.%2)").arg(m_toolTitle, m_suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(m_suffix);
    dialog.selectFile(QFileInfo(m_file.path()).fileName());
    return dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty() &&
           m_file.saveAs(dialog.selectedFiles().constFirst(), this);
}

bool EditorWindow::mayLeave() {
    if (!takeTyping(*this))
        return false;
    commit();
    if (!m_file.isDirty())
        return true;
    const auto choice = m_workspace.askToSave(m_file.fileName(), this);
    if (choice == Workspace::Leaving::Save)
        return save();
    if (choice == Workspace::Leaving::Discard)
        m_file.discard();
    return choice == Workspace::Leaving::Discard;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayLeave());
}

void EditorWindow::dragEnterEvent(QDragEnterEvent* event) {
    acceptFiles(*event);
}

void EditorWindow::dropEvent(QDropEvent* event) {
    takeFiles(droppedFiles(*event));
}

void EditorWindow::takeFiles(const QStringList& paths) {
    emit openRequested(paths);
}

} // namespace kavela::desktop
