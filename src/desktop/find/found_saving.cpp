#include "desktop/find/found_saving.h"

#include "common/safe_file.h"
#include "desktop/find/found_table.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "facts/found_text.h"

#include <QCoreApplication>

#include <algorithm>

namespace kavela::desktop {

namespace {

bool isFileSearched(const Found& found, const QString& path) {
    return std::ranges::any_of(found.facts->files(), [&](const FileRow& file) {
        return isSameFile(qtText(found.facts->text(file.path)), path);
    });
}

} // namespace

void saveFound(const std::shared_ptr<const Found>& found, const QString& path, Workspace& workspace,
               QWidget& over) {
    if (isFileSearched(*found, path))
        return workspace.showAlert(
            {"Failed to create file",
             QCoreApplication::translate(
                 "FindWindow", "The table cannot be written over a file that is searched.")
                 .toStdString()},
            &over);
    disk::runAwaited(
        over, [found, file = path.toStdString()] { writeFileSafely(file, findCsv(found->answer)); },
        [&workspace, &over](const std::exception_ptr& fault) {
            if (!fault)
                return;
            workspace.log()("Failed to create file");
            workspace.showAlert({"Failed to create file", causeOf(fault)}, &over);
        });
}

} // namespace kavela::desktop
