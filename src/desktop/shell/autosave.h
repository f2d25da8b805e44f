#pragma once

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QObject;

namespace kavela::desktop {

/// Unsaved work kept apart from the files it belongs to, until it is saved or given up. Each
/// document has a slot, known by its path. What is written and read is so beside the interface, in
/// the order of the calls.
class Autosave {
public:
    /// Makes the content of a document on another thread. May throw.
    using Content = std::function<std::string()>;
    /// Tells on the interface thread why work could not be kept; an empty reason when it is kept.
    using Kept = std::function<void(const std::string& fault)>;

    /// What stands beside kept work.
    struct Label {
        QString path;      ///< of the document
        QString tool;      ///< that it was edited with; empty when an earlier release kept it
        QString note = {}; ///< how much it is
    };

    /// Work found from an earlier session.
    struct Found {
        Label label;
        QDateTime when;
        std::string content;
        QString place;          ///< where it stands, in this folder
        bool isGivenUp = false; ///< it was not wanted
    };

    /// `folder` is made when the first work is kept.
    explicit Autosave(QString folder) : m_folder(std::move(folder)) {}

    /// Keeps the present content of a document. `kept` is called as long as `context` is there.
    void keep(const Label& label, Content content, QObject* context, Kept kept) const;
    /// The work is saved: nothing is left to recover.
    void forget(const QString& path) const;
    /// The document was saved: what was postponed before is put aside too.
    void settle(const QString& path) const;
    /// The coach does not want it: it is put aside, where the last few stay for a change of mind.
    void putAside(const QString& path) const;

    /// The coach does not want it now: it is offered again when the document is opened again.
    void postpone(const QString& path) const;

    /// Tells what is kept for a document, also what was postponed, unless that is not asked for:
    /// before this returns where the disk is well, else later, as long as `context` is there.
    using Looked = std::function<void(const std::optional<Found>& work)>;
    void look(const QString& path, bool alsoPostponed, QObject& context, Looked looked) const;
    using Listed = std::function<void(const std::vector<Found>& works)>;
    /// Tells in the same way what is neither postponed nor put aside.
    void listAll(QObject& context, Listed listed) const;
    /// What was postponed or put aside, the latest first; never before this returns.
    void listEarlier(QObject& context, Listed listed) const;

    // The same for who waits for the disk, however long it takes: no window does.
    [[nodiscard]] std::optional<Found> find(const QString& path, bool alsoPostponed = true) const;
    [[nodiscard]] std::vector<Found> all() const;
    [[nodiscard]] std::vector<Found> earlier() const;

    /// Takes over what is kept in another folder, at once; whose document has work here already, is
    /// put aside.
    void takeOver(const QString& folder) const;
    /// Earlier work is the unsaved work of its document again; what that had is put aside.
    void bringBack(const Found& earlier) const;

private:
    [[nodiscard]] QString slot(const QString& path) const;

    QString m_folder;
};

} // namespace kavela::desktop
