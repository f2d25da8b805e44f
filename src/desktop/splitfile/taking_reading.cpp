#include "desktop/splitfile/taking_reading.h"

#include "common/json_decode.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/kept_work.h"
#include "desktop/splitfile/split_files_read.h"
#include "desktop/splitfile/taking_files.h"
#include "splittaking/messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("TakingDocument", text);
}

} // namespace

TakingRead readTaking(const QString& path, const Clock& clock) {
    TakingRead found;
    found.file = path;
    if (QFileInfo(path).isDir()) {
        const QString folder = QDir(path).absolutePath();
        found.file = splitFileIn(folder);
        if (found.file.isEmpty()) {
            found.file = folder + '/' + QFileInfo(folder).fileName() + ".kvx";
            found.films = filmsIn(folder);
            found.day = DayKeeping::find(found.file);
            return found;
        }
    }
    found.read = recogniseSplitFile(found.file.toStdString(), found.notes.log(), clock);
    found.day = DayKeeping::find(found.file);
    return found;
}

void tellNotCurrent(const RecognisedSplitFile& read, const Workspace& workspace, QWidget* over) {
    if (read.version) {
        workspace.showAlert({"", messages::OlderVersion}, over);
        return;
    }
    (void)isSplitFile(read, workspace, over);
}

std::optional<TakingState> importedRace(RecognisedSplitFile read, const TakingState& into,
                                        const Workspace& workspace, QWidget* over) {
    if (!read.isCurrent()) {
        tellNotCurrent(read, workspace, over);
        return std::nullopt;
    }
    TakingState race = stateOf(std::move(read.document));
    if (!race.runs.empty() || into.runs.empty())
        return race;
    workspace.showAlert({"", tr("“%1” holds no runs. Nothing was imported.")
                                 .arg(qtText(read.path.filename().string()))
                                 .toStdString()},
                        over);
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
