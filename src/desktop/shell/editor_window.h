#pragma once

#include "desktop/shell/command_palette.h"

#include <QMainWindow>

class QLabel;
class QMenu;
class QToolBar;

namespace kavela::desktop {

class EditedFile;
class Workspace;

/// A window that edits a file: its title with the mark of unsaved work, the menus for saving and
/// undoing, and the question before it closes.
class EditorWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `kind` names such windows where their place and keys are remembered, `toolTitle` the tool;
    /// `suffix` is that of its files, without the point. The file may be a member of the window
    /// that derives from this one: it is not touched before finishMenus().
    EditorWindow(Workspace& workspace, EditedFile& file, QString kind, QString toolTitle,
                 QString suffix);

    [[nodiscard]] EditedFile& file() const { return m_file; }
    /// The path of a new document was chosen by the coach: saving need not ask for one.
    void setNamed() { m_isNamed = true; }
    /// Opens a file in place of what is shown. False, after an alert, when it cannot be opened;
    /// what is shown then stays.
    [[nodiscard]] virtual bool open(const QString& path) = 0;
    /// Asks for a name where the document has none on the disk yet.
    bool save();
    bool saveAs();

signals:
    void homeRequested();
    void settingsRequested();
    void openRequested(const QStringList& paths);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    /// Files were dropped; opened by default.
    virtual void takeFiles(const QStringList& paths);
    /// What a window keeps of its own besides what is typed in its fields goes into the document,
    /// before it is saved.
    virtual void commit() {}

    /// Whether the document may give way to another one, or to none: what is typed is taken, and
    /// unsaved work is asked for.
    [[nodiscard]] bool mayLeave();

    /// The menus in front, with `reports` behind saving where the tool has reports; then the tool's
    /// own; then finishMenus().
    QMenu* makeFileMenu();
    QMenu* makeEditMenu();
    void finishMenus(std::function<Commands()> more);
    [[nodiscard]] Workspace& workspace() const { return m_workspace; }

private:
    void showTitle();
    void makeNote();
    void noteChange();
    void openAgain();

    Workspace& m_workspace;
    EditedFile& m_file;
    QString m_kind;
    QString m_toolTitle;
    QString m_suffix;
    QMenu* m_fileMenu = nullptr;
    bool m_isNamed = false;
    QToolBar* m_note = nullptr;
    QLabel* m_noteText = nullptr;
};

} // namespace kavela::desktop
