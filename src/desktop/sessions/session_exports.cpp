#include "desktop/sessions/session_exports.h"

#include "boatmotion/conversion.h"
#include "boatmotion/session_files.h"
#include "desktop/sessions/session_document.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace kavela::desktop {

SessionExports::SessionExports(const SessionDocument& document, const SessionTables& tables,
                               const Workspace& workspace, QWidget& over, Saved saved)
    : m_document(document),
      m_tables(tables),
      m_workspace(workspace),
      m_over(over),
      m_saved(std::move(saved)),
      m_listener(std::make_unique<QObject>()) {}

QString SessionExports::askWhereTo(const QString& title, const QString& filter,
                                   const QString& suffix, const QString& proposal) const {
    QFileDialog dialog(&m_over, title, QFileInfo(proposal).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(QFileInfo(proposal).fileName());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

void SessionExports::askAndSaveRecording(const QString& source) {
    if (!m_document.value().recording)
        return;
    const QFileInfo file(source);
    const QString path =
        askWhereTo(tr("Save the edited .kvb file"), tr("Recordings (*.kvb)"), "kvb",
                   file.dir().filePath(file.completeBaseName() + "_edited.kvb"));
    if (!path.isEmpty())
        saveRecording(path);
}

void SessionExports::saveRecording(const QString& path, Written written) {
    disk::run(
        *m_listener,
        [session = m_document.held(), file = path.toStdString()] {
            saveRawSession(recordingOf(*session), file);
        },
        [this, path, written = std::move(written)](const std::exception_ptr& fault) {
            noteRecording(path, fault);
            if (written)
                written(!fault);
        });
}

void SessionExports::noteRecording(const QString& path, const std::exception_ptr& fault) const {
    if (!fault) {
        m_saved(path);
        return;
    }
    const std::string reason = causeOf(fault);
    m_workspace.log()(conversion_messages::NotSaved);
    m_workspace.log()(reason);
    m_workspace.showAlert({conversion_messages::NotSaved, reason}, &m_over);
}

void SessionExports::exportTable(SessionTables::Page page, const QString& path) const {
    const SessionGrid* const grid = m_tables.gridOf(page);
    if (!grid)
        return;
    disk::writeAwaited(*m_listener, path.toStdString(), csvOf(*grid),
                       [this, path](const std::exception_ptr& fault) {
                           if (fault)
                               tellNotExported(fault);
                           else
                               m_saved(path);
                       });
}

void SessionExports::tellNotExported(const std::exception_ptr& fault) const {
    m_workspace.log()(messageOf(fault));
    m_workspace.showAlert({conversion_messages::NotSaved, causeOf(fault)}, &m_over);
}

void SessionExports::askAndExport(SessionTables::Page page) {
    const QFileInfo file(m_document.path());
    const QString ending = page == SessionTables::StrokePage    ? "_strokes.csv"
                           : page == SessionTables::TurnPage    ? "_turns.csv"
                           : page == SessionTables::SegmentPage ? "_segments.csv"
                                                                : "_distance.csv";
    const QString path = askWhereTo(tr("Export the table"), tr("Semicolon-separated text (*.csv)"),
                                    "csv", file.dir().filePath(file.completeBaseName() + ending));
    if (!path.isEmpty())
        exportTable(page, path);
}

} // namespace kavela::desktop
