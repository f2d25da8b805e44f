#pragma once

#include "desktop/sessions/session_tables.h"

#include <QCoreApplication>
#include <QObject>

#include <exception>
#include <functional>
#include <memory>

class QWidget;

namespace kavela::desktop {

class SessionDocument;
class Workspace;

/// The files that are made of a session beside its own: what is left of its recording, and its
/// tables. Whoever owns it says that one was written.
class SessionExports {
    Q_DECLARE_TR_FUNCTIONS(SessionExports)

public:
    using Saved = std::function<void(const QString& path)>;

    SessionExports(const SessionDocument& document, const SessionTables& tables,
                   const Workspace& workspace, QWidget& over, Saved saved);

    /// Writes what is left of the recording, with the information of the session; `source` is where
    /// it was imported from.
    void askAndSaveRecording(const QString& source);
    /// Hears whether it was written; told when it was not.
    using Written = std::function<void(bool isWritten)>;
    /// The recording is encoded and written while the window goes on.
    void saveRecording(const QString& path, Written written = {});

    void askAndExport(SessionTables::Page page);
    /// As semicolon-separated text; told whether it was written.
    void exportTable(SessionTables::Page page, const QString& path) const;

private:
    void tellNotExported(const std::exception_ptr& fault) const;
    void noteRecording(const QString& path, const std::exception_ptr& fault) const;
    [[nodiscard]] QString askWhereTo(const QString& title, const QString& filter,
                                     const QString& suffix, const QString& proposal) const;

    const SessionDocument& m_document;
    const SessionTables& m_tables;
    const Workspace& m_workspace;
    QWidget& m_over;
    Saved m_saved;
    std::unique_ptr<QObject> m_listener; ///< hears of what is written as long as this is here
};

} // namespace kavela::desktop
