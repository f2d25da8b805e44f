#include "desktop/motion/older_recordings.h"

#include "boatmotion/conversion.h"
#include "boatmotion/older_recording.h"
#include "boatmotion/session_files.h"
#include "common/error.h"
#include "desktop/sessions/work_beside.h"
#include "desktop/shell/workspace.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace kavela::desktop {

namespace {

struct OlderRecordings {
    Q_DECLARE_TR_FUNCTIONS(OlderRecordings)
};

QString convertedBeside(const QString& path, QWidget* over) {
    std::filesystem::path converted;
    doBeside(over, conversion_messages::Converting,
             [&] { converted = upgradeRecording(path.toStdString()); });
    return QString::fromStdString(converted.string());
}

} // namespace

std::optional<QString> convertOlderRecording(const QString& path, const Workspace& workspace,
                                             QWidget* over) {
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
        return std::nullopt;
    std::string reason;
    try {
        return convertedBeside(path, over);
    } catch (const FileError& error) {
        reason = error.what();
    } catch (const DecodeError& error) {
        reason = path.toStdString() + ": " + error.what();
    }
    workspace.log()(reason);
    workspace.showAlert({conversion_messages::NotConverted, reason}, over);
    return std::nullopt;
}

} // namespace kavela::desktop
