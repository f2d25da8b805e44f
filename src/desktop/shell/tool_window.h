#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/shell/command_palette.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/file_reading.h"

#include <QMainWindow>

#include <functional>
#include <string>

class QLabel;
class QMenu;
class QToolBar;

namespace kavela {
struct Place;
}

namespace kavela::desktop {

class Workspace;
struct CompareRequest;

/// What every window of a tool does alike: its title with the mark of unsaved work, the menus File,
/// Edit and Help, files dropped on it, its place, what is typed and taken over, and the question
/// before it closes.
class ToolWindow : public QMainWindow {
    Q_OBJECT

public:
    /// How the tool and its files are called.
    struct Name {
        QString kind;        ///< by which places, keys and kept work are remembered, as "team"
        QString title;       ///< of the tool
        QString suffix;      ///< of its files, without the point
        QString filter = {}; ///< of the dialog that saves; of title and suffix when empty
    };

    /// The file may be a member of the window that derives from this one: it is not touched before
    /// finishMenus(). A window that only reads has none.
    ToolWindow(Workspace& workspace, EditedFile* file, Name name);

    /// Null in a window that only reads.
    [[nodiscard]] EditedFile* file() const { return m_file; }
    [[nodiscard]] const QString& kind() const { return m_name.kind; }
    /// The files that it shows.
    [[nodiscard]] virtual QStringList paths() const;
    /// What it shows of them, for the next start; empty where that is what it opens with.
    [[nodiscard]] virtual QString shownView() const { return {}; }
    /// Opens a file, in place of what is shown or beside it. False, after an alert, when it cannot
    /// be opened; what is shown then stays. A window that opens what readingOf() reads has no other
    /// way of its own.
    [[nodiscard]] virtual bool open(const QString& path) { return readingOf(path)()(); }
    /// Hears whether it is open, maybe at once.
    using Opened = std::function<void(bool isOpen)>;
    /// The same for whom reading a file may go on beside the window, which is locked meanwhile
    /// where it is shown. Who has unsaved work in it was asked before.
    virtual void openBeside(const QString& path, const Opened& opened);
    /// Shows where a number comes from, where that is something that the window shows itself; false
    /// where it is not.
    [[nodiscard]] virtual bool showOwnPlace(const Place& /*place*/) { return false; }
    /// Begins a document that has no file yet; the path is where it is to be saved.
    virtual void startNew(const QString& /*path*/) {}

    /// Takes over what is typed in every field and open cell of the window. False, with the cursor
    /// in the field, where one holds what cannot be taken: what was to be done is not done then.
    bool commit();
    /// Hears how saving ended: at once where nothing was to be written.
    using Saved = std::function<void(bool isSaved)>;
    /// Saves what is shown, typing included, while the window goes on; asks for a name where the
    /// document has none on the disk yet.
    void saveBeside(Saved saved = {});
    void saveAsBeside(Saved saved = {});
    /// The same under a name that was asked for already.
    void saveToBeside(const QString& path, Saved saved = {});
    /// Calls once what is here is in the file: at once where it is, else after saving. Nothing is
    /// called where it could not be saved, which is told.
    void whenSaved(std::function<void()> then);
    /// Goes on from earlier work, once what is here may be left.
    void takeBack(const std::string& content);
    /// Whether it was asked to close and stays only until its work is in the file.
    [[nodiscard]] bool isClosing() const { return m_isClosing; }
    void undo();
    void redo();

    /// How the commands of the File menu are called where a tool has its own words or ways.
    struct FileCommands {
        QString openText = {};
        std::function<void()> open = {}; ///< files of the tool are chosen by default
        QString saveText = {};
        bool canSaveAs = true;
    };
    /// The menus in front; then the tool's own; then finishMenus(), which ends the first one with
    /// what every window has, and adds the help. `more` is what the tool adds to the search.
    QMenu* makeFileMenu(FileCommands commands);
    QMenu* makeFileMenu() { return makeFileMenu(FileCommands()); }
    QMenu* makeEditMenu();
    void finishMenus(std::function<Commands()> more);

signals:
    void homeRequested();
    void settingsRequested();
    void earlierWorkRequested(); ///< what was kept of earlier documents is to be shown
    void openRequested(const QStringList& paths);
    /// It is about to be gone; its paths are still those of its files.
    void closed();
    /// It was asked to close and stays, by the coach's choice or since its work was not written.
    void stayed();
    /// Where a number comes from is to be shown: its file at that run and frame.
    void placeRequested(const kavela::Place& place);
    /// Films that it shows are to be compared.
    void compareRequested(const kavela::desktop::CompareRequest& request);

protected:
    /// How a file is read and taken over; none where open() does it at once.
    [[nodiscard]] virtual FileReading readingOf(const QString& /*path*/) { return {}; }
    /// Asks what becomes of unsaved work. Where it is to be saved, the window stays until it is
    /// written, says so, and closes then; what was edited meanwhile is asked for again.
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    /// Files were dropped; opened by default.
    virtual void takeFiles(const QStringList& paths);
    /// Takes over what the window's parts hold besides the field with the cursor, such as presses
    /// that wait for their frame; false where that cannot be, which is shown.
    [[nodiscard]] virtual bool takePending() { return true; }
    /// What has to be asked or told before the file is written; false when it is not to be.
    [[nodiscard]] virtual bool mayWrite() { return true; }
    /// The file was written by this window.
    virtual void wasSaved() {}
    /// What Close in the File menu closes.
    virtual void closeFront() { close(); }

    /// Hears whether the document may give way to another one: at once, or once its work is in the
    /// file. Nothing is being written then.
    using Left = std::function<void(bool mayGo)>;
    /// Takes over what is typed and asks for unsaved work; the window goes on while it is written.
    void whenLeft(Left left);
    [[nodiscard]] Workspace& workspace() const { return m_workspace; }

private:
    /// How waiting for a file ended: it was written for what waits, or for another reason.
    enum class Wait { SavedForIt, Written, Failed };
    using Waited = std::function<void(Wait wait)>;

    [[nodiscard]] EditedFile::Leave askToLeave(bool isSavedForIt, Waited waited);
    void leave(Left left, bool isSavedForIt);
    [[nodiscard]] EditedFile::Leave mayClose();
    void closeAfter(Wait wait);
    void showWaiting();
    void makeWaitingNote();
    void writeBeside(const std::function<void(Saved)>& write, Saved saved);
    [[nodiscard]] QString chooseName();
    void chooseAndOpen();
    void showTitle();
    void makeNote();
    void noteChange();
    void openAgain();
    void giveUpAndOpenAgain();

    Workspace& m_workspace;
    EditedFile* m_file;
    Name m_name;
    QMenu* m_fileMenu = nullptr;
    QToolBar* m_note = nullptr;
    QLabel* m_noteText = nullptr;
    QToolBar* m_waitingNote = nullptr;
    QLabel* m_waitingText = nullptr;
    int m_leaving = 0;           ///< how much waits to take the place of what is being written
    bool m_isClosing = false;    ///< what is being written is waited for
    bool m_isSavedForIt = false; ///< it was written, and the window closes now
    BackgroundWork m_reading;
};

} // namespace kavela::desktop
