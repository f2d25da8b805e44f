#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QObject;

namespace kavela::desktop {

/// Unsaved work kept apart from the files it belongs to, until it is saved or given up. Each
/// document has a slot, known by its path. What is written is written beside the interface, in the
/// order of the calls; who reads waits for it.
class Autosave {
public:
    /// Makes the content of a document on another thread. May throw.
    using Content = std::function<std::string()>;
    /// Tells on the interface thread why work could not be kept.
    using Failed = std::function<void(const std::string& reason)>;

    /// Work found from an earlier session.
    struct Found {
        QString path; ///< of the document
        QString tool; ///< that it was edited with; empty when an earlier release kept it
        std::string content;
    };

    /// `folder` is made when the first work is kept.
    explicit Autosave(QString folder) : m_folder(std::move(folder)) {}

    /// Keeps the present content of a document that is edited with a tool. `failed` is called as
    /// long as `context` is there.
    void keep(const QString& path, const QString& tool, Content content, QObject* context,
              Failed failed) const;
    /// The work is saved: nothing is left to recover.
    void forget(const QString& path) const;
    /// The coach does not want it: it is put aside, where the last few stay for a change of mind.
    void putAside(const QString& path) const;

    [[nodiscard]] std::optional<std::string> find(const QString& path) const;
    [[nodiscard]] std::vector<Found> all() const;

private:
    [[nodiscard]] QString slot(const QString& path) const;

    QString m_folder;
};

} // namespace kavela::desktop
