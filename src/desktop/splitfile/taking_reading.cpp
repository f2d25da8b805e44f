#include "desktop/splitfile/taking_reading.h"

#include "common/json_decode.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/kept_work.h"
#include "splitdata/loader.h"
#include "splittaking/messages.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("TakingDocument", text);
}

} // namespace

void tellNotCurrent(const RecognisedSplitFile& read, const Workspace& workspace, QWidget* over) {
    if (read.version) {
        workspace.showAlert({"", messages::OlderVersion}, over);
        return;
    }
    WorkspaceAlerts alerts(workspace, over);
    reportIncompatible(read, workspace.log(), alerts);
}

std::optional<splittakerdata031> readCurrent(const QString& file, const Workspace& workspace,
                                             QWidget* over) {
    RecognisedSplitFile read =
        recogniseSplitFile(file.toStdString(), workspace.log(), workspace.clock());
    if (read.isCurrent())
        return std::move(read.document);
    tellNotCurrent(read, workspace, over);
    return std::nullopt;
}

QString whyOlder(const RecognisedSplitFile& older, const QString& file) {
    const QString release =
        QString::fromUtf8(older.version->label.data(), std::ssize(older.version->label));
    const QFileInfo info(file);
    const QString which = tr("%1 is of release %2.").arg(info.fileName(), release);
    return QFileInfo(info.absolutePath()).isWritable()
               ? which
               : which + ' ' +
                     tr("Its folder %1 cannot be written, so that the analyzer shows it and leaves "
                        "it as it is.")
                         .arg(info.absolutePath());
}

std::optional<TakingState> recoveredState(const std::string& kept, const QString& path,
                                          const Workspace& workspace) {
    try {
        const JsonDocument document = JsonDocument::fromText(kept);
        RecognisedSplitFile read = recogniseSplitDocument(document, path.toStdString(),
                                                          workspace.log(), workspace.clock());
        if (!read.version)
            return std::nullopt;
        TakingState state = stateOf(std::move(read.document));
        takeStarts(state, document);
        return state;
    } catch (const DecodeError& error) {
        workspace.log()(error.what());
        return std::nullopt;
    }
}

} // namespace kavela::desktop
