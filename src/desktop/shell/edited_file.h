#pragma once

#include "desktop/shell/autosave.h"
#include "desktop/shell/file_stamp.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <QUndoStack>

#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace kavela::desktop {

class Workspace;
struct FileWriting;

/// A file that is being edited. Every edit can be undone, is kept apart from the file within a
/// second, and reaches the file only when it is saved. Both are written beside the interface, which
/// goes on meanwhile.
class EditedFile : public QObject {
    Q_OBJECT

public:
    EditedFile(Workspace& workspace, Autosave autosave, QObject* parent = nullptr);
    ~EditedFile() override;

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] QString fileName() const;
    /// What the coach calls it where unsaved work is asked for.
    [[nodiscard]] virtual QString title() const { return fileName(); }
    [[nodiscard]] bool isDirty() const { return !m_undo.isClean() || holdsMore(); }
    [[nodiscard]] QUndoStack& undoStack() { return m_undo; }

    /// With which tool it is edited: kept beside unsaved work, which is recovered there.
    void setTool(const QString& tool) { m_tool = tool; }
    /// Asks for another name to save under; empty for none.
    using AskPath = std::function<QString()>;
    void setAskPath(AskPath ask) { m_askPath = std::move(ask); }
    /// The path was chosen by the coach: saving need not ask for one, though no file is there yet.
    void setNamed() { m_isNamed = true; }
    [[nodiscard]] bool isNamed() const;

    /// Hears how saving ended, on the interface thread.
    using Saved = std::function<void(bool isSaved)>;

    /// Writes the file; asks before it replaces what another program wrote meanwhile, and tells
    /// when it cannot be written: the work then stays as it is, unsaved. The window goes on
    /// meanwhile; what is edited after the call is not in the file. While something is being
    /// written, it is written again afterwards, as it is then.
    void saveBeside(QWidget* over, Saved saved = {});
    /// The same under another name, which the document has from then on. Refused where another
    /// window edits that file.
    void saveAsBeside(const QString& path, QWidget* over, Saved saved = {});
    [[nodiscard]] bool isSaving() const { return m_writing != nullptr; }
    /// Calls once nothing is being written any more, at once where nothing is; false when it could
    /// not be written.
    void whenWritten(Saved then);
    /// Nothing was edited since it was written or read last.
    [[nodiscard]] bool isAsWritten() const { return m_edits == m_editsThen; }

    enum class Leave { Now, AfterSaving, Not };
    /// Whether the document may give way to another one, or to none, while nothing is being
    /// written: asks what becomes of unsaved work. Who is to save it does that, and asks for the
    /// rest with mayLeaveSaved().
    [[nodiscard]] Leave askToLeave(QWidget* over);
    /// What is left to be asked once the work is in the file.
    [[nodiscard]] bool mayLeaveSaved(QWidget* over) { return mayLeaveMore(over); }
    /// Gives up what was not saved; it stays aside for a change of mind.
    void discard();
    /// Keeps the work now, as before the program ends.
    void keepWork();
    /// Goes on from earlier work in place of what is here, which may be left. False when it is
    /// none.
    [[nodiscard]] bool takeBack(const std::string& content);

signals:
    void changed();
    void saved();
    /// Writing began or ended.
    void savingChanged();
    /// Another program wrote the file, or took it away, since it was read or saved here.
    void changedElsewhere();

protected:
    /// Makes the document as its file holds it. It runs on another thread and maybe when the
    /// document is gone: it holds the value itself. May throw EncodeError.
    using Content = Autosave::Content;
    [[nodiscard]] virtual Content contentNow() const = 0;
    /// The same as it is written to a path, from which it may name other files.
    [[nodiscard]] virtual Content contentFor(const QString& /*path*/) const { return contentNow(); }
    /// The same as it is kept apart, where that is more than the file has a place for.
    [[nodiscard]] virtual Content keptContentNow() const { return contentNow(); }
    /// Writes what belongs beside the file, such as lists, once the file itself is there. It runs
    /// as Content does; empty for nothing.
    using Beside = std::function<void(const std::filesystem::path& file)>;
    [[nodiscard]] virtual Beside besideNow() const { return {}; }
    /// Starts from recovered work instead of what the file holds; false when it is none.
    [[nodiscard]] virtual bool recover(const std::string& content) = 0;
    /// Whether there is work for which the file has no place.
    [[nodiscard]] virtual bool holdsMore() const { return false; }
    /// Asks about that before it is left; it stays in the automatic save.
    [[nodiscard]] virtual bool mayLeaveMore(QWidget* /*over*/) { return true; }
    /// Whether there is anything to write; tells when there is not.
    [[nodiscard]] virtual bool mayWrite(QWidget* /*over*/) { return true; }
    /// How much the document holds, as "12 runs".
    [[nodiscard]] virtual QString summary() const { return {}; }
    /// What to tell when the file cannot be written.
    [[nodiscard]] virtual std::string failure() const { return "Failed to create file"; }

    /// Asks before a file that exists is replaced, where that needs a question. What another
    /// program changed was asked for already.
    [[nodiscard]] virtual bool mayReplace(QWidget* /*over*/) const { return true; }

    /// The file was read in an older layout: before it is replaced, whichever way it is saved, it
    /// is kept beside the new one under a name with this extension. Without one it is current.
    void setOlderLayout(std::string extension) { m_olderLayout = std::move(extension); }

    /// The path where it may be written; empty, after an alert, where another window edits it.
    [[nodiscard]] QString otherPathToWrite(const QString& path, QWidget* over) const;
    /// Tells that a file could not be opened, and why.
    void tellUnreadable(const QString& path, const std::string& reason, QWidget* over) const;
    void tellNotWritten(const std::string& reason, QWidget* over) const;
    void tellNotWritten(const std::exception_ptr& fault, QWidget* over) const;

    /// A document is open under a path that may not exist yet. Unsaved work is offered: the window
    /// takes neither keys nor clicks before it is known whether there is any.
    void begin(const QString& path, QWidget* over);
    /// What another program wrote may be replaced: the coach was asked.
    void acceptDisk() { m_known = FileStamp(m_path); }
    /// The document is another one than before.
    void noteEdit();
    /// Keeps what the next second would have kept, before the document goes.
    void keepPending();
    [[nodiscard]] Workspace& workspace() const { return m_workspace; }

private:
    using Writing = FileWriting;
    /// Unsaved work that is being looked for.
    struct Offer;

    void write(const QString& path, QWidget* over, Saved saved);
    [[nodiscard]] QString pathToWrite(const QString& path, QWidget* over);
    [[nodiscard]] QString ownPathToWrite(QWidget* over);
    [[nodiscard]] QString askForPath(QWidget* over);
    [[nodiscard]] QString askAfterFailure(const Writing& writing, bool isKept);
    void finish(const std::shared_ptr<Writing>& writing);
    void finishAlone(Writing& writing);
    void goOnAfterWriting(Writing& writing);
    void goOnAfterFailure(Writing& writing, bool isKept);
    void noteWritten(const Writing& writing);
    void offerRecovery(QWidget* over);
    void answerOffer(const std::optional<Autosave::Found>& work);
    void loadKept(const std::string& content);
    void postponeOffer();
    [[nodiscard]] Autosave::Label label() const;
    void keepSoon();
    void watch();
    void noticeDisk();

    Workspace& m_workspace;
    Autosave m_autosave;
    QUndoStack m_undo;
    QTimer m_keep;
    QFileSystemWatcher m_watcher;
    QString m_path;
    QString m_tool;
    bool m_isNamed = false;
    AskPath m_askPath;
    unsigned m_edits = 0;     ///< tells one state of the document from the next
    unsigned m_editsThen = 0; ///< as it was read or saved last
    std::string m_olderLayout;
    FileStamp m_known; ///< the file as it was read or saved here
    std::shared_ptr<Writing> m_writing;
    std::shared_ptr<Offer> m_offer; ///< as long as it is not known whether there is any
};

} // namespace kavela::desktop
