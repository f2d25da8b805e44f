#include "desktop/sessions/session_document.h"

#include "boatmotion/session_files.h"
#include "common/json_decode.h"
#include "common/json_encode.h"

#include <QDir>
#include <QFileInfo>

namespace kavela::desktop {

void SessionDocument::show(EditedSession session, const QString& path, QWidget* over) {
    keepWork(); // of the session that was here before
    start(std::move(session), path, over);
}

bool SessionDocument::hasSession() const {
    const smartAlldata_v4& session = value().session;
    return value().recording || !session.strokesData.empty() || !session.gps.empty() ||
           !session.info.name.empty();
}

SessionDocument::Content SessionDocument::contentNow() const {
    return [edited = shared()] { return encode(edited->session); };
}

/// A recording that is open beside stays as it was read.
bool SessionDocument::recover(const std::string& content) {
    try {
        startFrom(editedSession(decodeText<smartAlldata_v4>(content)));
        return true;
    } catch (const DecodeError&) {
        return false;
    }
}

QString proposedPath(const QString& recording) {
    const QFileInfo proposed(
        QString::fromStdString(convertedSessionPath(recording.toStdString()).string()));
    QString path = proposed.filePath();
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = proposed.dir().filePath(
            QString("%1_%2.bms").arg(proposed.completeBaseName()).arg(number));
    return path;
}

} // namespace kavela::desktop
