#include "desktop/splitfile/split_files_read.h"

#include "desktop/shell/background_work.h"
#include "desktop/shell/file_reading.h"
#include "desktop/shell/workspace.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <utility>

namespace kavela::desktop {

namespace {

struct SplitFilesRead {
    std::vector<RecognisedSplitFile> files;
    ReadingNotes notes;
};

} // namespace

void readSplitFiles(BackgroundWork& work, const Workspace& workspace, const QStringList& paths,
                    QWidget* over, const TakeSplitFiles& take) {
    if (paths.isEmpty())
        return;
    const QString what = QCoreApplication::translate("ToolWindow", "Reading %1…")
                             .arg(QFileInfo(paths.front()).fileName());
    work.runAwaited(
        [paths, clock = workspace.clock()] {
            const auto read = std::make_shared<SplitFilesRead>();
            for (const QString& path : paths)
                read->files.push_back(
                    recogniseSplitFile(path.toStdString(), read->notes.log(), clock));
            return read;
        },
        [&workspace, over = QPointer(over), take](const std::shared_ptr<SplitFilesRead>& read) {
            read->notes.tell(workspace, over);
            take(std::move(read->files));
        },
        {}, {over, what});
}

bool isSplitFile(const RecognisedSplitFile& file, const Workspace& workspace, QWidget* over) {
    if (!file.version) {
        WorkspaceAlerts alerts(workspace, over);
        reportIncompatible(file, workspace.log(), alerts);
    }
    return file.version != nullptr;
}

} // namespace kavela::desktop
