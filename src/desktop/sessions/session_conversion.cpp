#include "desktop/sessions/session_conversion.h"

#include "boatmotion/conversion.h"
#include "boatmotion/session_files.h"
#include "common/error.h"
#include "desktop/motion/older_recordings.h"
#include "desktop/sessions/work_beside.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QScopedValueRollback>

namespace kavela::desktop {

bool isRecording(const QString& path) {
    return QFileInfo(path).suffix().compare("kvb", Qt::CaseInsensitive) == 0;
}

EditedSession SessionConversion::converted(const QString& path) {
    EditedSession session;
    std::size_t samples = 0;
    doBeside(&m_over, conversion_messages::Converting, [&] {
        bmrawdata_v5 recording = readRawSession(path.toStdString());
        samples = recording.boatmotion.size();
        session = analysedSession(std::move(recording), std::nullopt);
    });
    m_workspace.log()(conversion_messages::Count + QFileInfo(path).fileName().toStdString() + ' ' +
                      std::to_string(samples));
    return session;
}

EditedSession SessionConversion::analysed(bmrawdata_v5 recording, std::optional<Mount> mount) {
    const QScopedValueRollback busy(m_isBusy, true);
    EditedSession session;
    doBeside(&m_over, conversion_messages::Converting,
             [&] { session = analysedSession(std::move(recording), mount); });
    return session;
}

EditedSession SessionConversion::analysedAgain(const EditedSession& session,
                                               std::optional<Mount> mount) {
    const QScopedValueRollback busy(m_isBusy, true);
    EditedSession again;
    doBeside(&m_over, conversion_messages::Converting,
             [&] { again = analysedSession(recordingOf(session), mount); });
    return again;
}

/// A recording of version 4 is read from the file that it was converted to, which then is the one
/// that was opened.
std::optional<EditedSession> SessionConversion::readConverted(QString& path) {
    const auto converted = convertOlderRecording(path, m_workspace, &m_over);
    if (!converted)
        return std::nullopt;
    path = *converted;
    return read(path);
}

/// Nothing of a file is taken over before all of it is there.
std::optional<EditedSession> SessionConversion::read(QString& path) {
    const QScopedValueRollback busy(m_isBusy, true);
    try {
        if (isRecording(path))
            return converted(path);
        EditedSession session;
        doBeside(&m_over, tr("Reading…"),
                 [&] { session = editedSession(readSmartSession(path.toStdString())); });
        return session;
    } catch (const OlderRecording&) {
        return readConverted(path);
    } catch (const FileError& error) {
        tellUnreadable(path, error.reason());
    } catch (const DecodeError& error) {
        tellUnreadable(path, error.what());
    } catch (const MotionError& error) {
        tellUnreadable(path, error.what());
    }
    return std::nullopt;
}

void SessionConversion::tellUnreadable(const QString& path, const std::string& reason) const {
    const std::string name = QFileInfo(path).fileName().toStdString();
    const std::string title =
        isRecording(path)
            ? std::string(conversion_messages::NotConverted)
            : tr("“%1” cannot be opened").arg(QFileInfo(path).fileName()).toStdString();
    m_workspace.log()(title);
    m_workspace.log()(path.toStdString() + ": " + reason);
    m_workspace.showAlert({title, isRecording(path) ? name + ": " + reason : reason}, &m_over);
}

} // namespace kavela::desktop
