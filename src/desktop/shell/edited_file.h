#pragma once

#include "desktop/shell/autosave.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <QUndoStack>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// A file that is being edited. Every edit can be undone, is kept apart from the file within a
/// second, and reaches the file only when it is saved.
class EditedFile : public QObject {
    Q_OBJECT

public:
    EditedFile(Workspace& workspace, Autosave autosave, QObject* parent = nullptr);
    ~EditedFile() override;

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] QString fileName() const;
    [[nodiscard]] bool isDirty() const { return !m_undo.isClean(); }
    [[nodiscard]] QUndoStack& undoStack() { return m_undo; }

    /// Writes the file; asks before it replaces what another program wrote meanwhile. False, after
    /// a message, when it was not written; the work then stays as it is.
    [[nodiscard]] virtual bool save(QWidget* over);
    /// The same under another name, which the document has from then on.
    [[nodiscard]] bool saveAs(const QString& path, QWidget* over);
    /// Gives up what was not saved; it stays aside for a change of mind.
    void discard();
    /// Keeps the work now, as before the program ends.
    void keepWork();

signals:
    void changed();
    void saved();
    /// Another program wrote the file, or took it away, since it was read or saved here.
    void changedElsewhere();

protected:
    /// The document as its file holds it. Throws EncodeError.
    [[nodiscard]] virtual std::string content() const = 0;
    /// Starts from recovered work instead of what the file holds; false when it is none.
    [[nodiscard]] virtual bool recover(const std::string& content) = 0;
    /// What to tell when the file cannot be written.
    [[nodiscard]] virtual std::string failure() const { return "Failed to create file"; }

    /// Asks before a file that exists is replaced, where that needs a question; by default only
    /// when another program changed it since it was read.
    [[nodiscard]] virtual bool mayReplace(bool isChangedOnDisk, QWidget* over) const;
    [[nodiscard]] bool mayOverwrite(QWidget* over) const;

    /// Tells that a file could not be opened, and why.
    void tellUnreadable(const QString& path, const std::string& reason, QWidget* over) const;

    /// A document is open under a path that may not exist yet. Unsaved work is offered.
    void begin(const QString& path, QWidget* over);
    void keepSoon();
    [[nodiscard]] Workspace& workspace() const { return m_workspace; }

private:
    [[nodiscard]] bool write(const QString& path, QWidget* over);
    void offerRecovery(QWidget* over);
    void watch();
    void noticeDisk();

    Workspace& m_workspace;
    Autosave m_autosave;
    QUndoStack m_undo;
    QTimer m_keep;
    QFileSystemWatcher m_watcher;
    QString m_path;
    std::optional<std::filesystem::file_time_type> m_readTime;
};

/// An edited file that holds one value. Steps of the undo stack share it as long as it is the same.
/// A document that derives from it calls keepWork() in its destructor: only it can still write.
template <class Value>
class EditedValue : public EditedFile {
public:
    using EditedFile::EditedFile;

    [[nodiscard]] const Value& value() const { return *m_value; }

    /// One step of the undo stack; `what` names it there.
    void edit(const QString& what, const std::function<void(Value&)>& change) {
        auto after = std::make_shared<Value>(*m_value);
        change(*after);
        settle(*after);
        undoStack().push(new Step(*this, what, m_value, std::move(after)));
        keepSoon();
    }

protected:
    /// Brings what follows from the rest up to date, after every edit.
    virtual void settle(Value& /*value*/) {}

    void start(Value value, const QString& path, QWidget* over) {
        startFrom(std::move(value));
        begin(path, over);
        emit changed();
    }

    /// No step of the undo stack leads behind this value.
    void startFrom(Value value) {
        settle(value);
        m_value = std::make_shared<Value>(std::move(value));
    }

private:
    class Step : public QUndoCommand {
    public:
        Step(EditedValue& document, const QString& what, std::shared_ptr<const Value> before,
             std::shared_ptr<const Value> after)
            : QUndoCommand(what),
              m_document(document),
              m_before(std::move(before)),
              m_after(std::move(after)) {}
        void undo() override { m_document.show(m_before); }
        void redo() override { m_document.show(m_after); }

    private:
        EditedValue& m_document;
        std::shared_ptr<const Value> m_before;
        std::shared_ptr<const Value> m_after;
    };

    void show(std::shared_ptr<const Value> value) {
        m_value = std::move(value);
        keepSoon();
        emit changed();
    }

    std::shared_ptr<const Value> m_value = std::make_shared<Value>();
};

} // namespace kavela::desktop
