#include "desktop/motion/older_recordings.h"

#include "boatmotion/conversion.h"
#include "boatmotion/older_recording.h"
#include "boatmotion/session_files.h"
#include "common/error.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/workspace.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

#include <string>
#include <utility>

namespace kavela::desktop {

namespace {

struct OlderRecordings {
    Q_DECLARE_TR_FUNCTIONS(OlderRecordings)
};

std::string reasonOf(const std::exception_ptr& fault, const QString& path) {
    try {
        std::rethrow_exception(fault);
    } catch (const FileError& error) {
        return error.what(); // names the file
    } catch (const std::exception& error) {
        return path.toStdString() + ": " + error.what();
    }
}

} // namespace

void convertOlderRecording(const QString& path, const Workspace& workspace, QWidget* over,
                           BackgroundWork& work, Converted converted) {
    const QString name = QFileInfo(path).fileName();
    const QString target =
        QFileInfo(QString::fromStdString(upgradedSessionPath(path.toStdString()).string()))
            .fileName();
    const QString question =
        OlderRecordings::tr(
            "“%1” is a recording of version 4. It can be converted to the current version: “%2” is "
            "written beside it, the recording itself stays as it is.")
            .arg(name, target);
    workspace.log()(conversion_messages::NotConverted);
    workspace.log()(path.toStdString() + ": this is a recording of version 4");
    if (!workspace.ask({conversion_messages::NotConverted, question.toStdString()},
                       OlderRecordings::tr("Convert and open"), over))
        return converted(std::nullopt);
    work.runOver(
        {over, conversion_messages::Converting},
        [path = path.toStdString()] { return upgradeRecording(path); },
        [converted](const std::filesystem::path& to) {
            converted(QString::fromStdString(to.string()));
        },
        {.failed = [path, &workspace, over = QPointer(over),
                    converted](const std::exception_ptr& fault) {
            const std::string reason = reasonOf(fault, path);
            workspace.log()(reason);
            workspace.showAlert({conversion_messages::NotConverted, reason}, over);
            converted(std::nullopt);
        }});
}

} // namespace kavela::desktop
