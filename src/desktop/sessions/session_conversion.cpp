#include "desktop/sessions/session_conversion.h"

#include "boatmotion/conversion.h"
#include "boatmotion/session_files.h"
#include "common/error.h"
#include "desktop/motion/older_recordings.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace kavela::desktop {

namespace {

EditedSession readSession(const QString& path) {
    const std::string file = path.toStdString();
    return isRecording(path) ? analysedSession(readRawSession(file), std::nullopt)
                             : editedSession(readSmartSession(file));
}

bool isOlderRecording(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const OlderRecording&) {
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace

bool isRecording(const QString& path) {
    return QFileInfo(path).suffix().compare("kvb", Qt::CaseInsensitive) == 0;
}

void SessionConversion::whenFree(std::function<void()> act) {
    if (isBusy())
        m_next.push_back(std::move(act));
    else
        act();
}

void SessionConversion::release(const std::function<void()>& next) {
    m_isHeld = false;
    next();
    goOn();
}

void SessionConversion::goOn() {
    while (!isBusy() && !m_next.empty()) {
        const auto act = std::move(m_next.front());
        m_next.pop_front();
        act();
    }
}

void SessionConversion::workOn(const QString& what, std::function<EditedSession()> work, Done done,
                               Failed failed) {
    m_work.runOver({&m_over, what}, std::move(work),
                   [this, done = std::move(done)](EditedSession session) {
                       done(std::move(session));
                       goOn();
                   },
                   {.failed = [this, failed = std::move(failed)](const std::exception_ptr& fault) {
                       failed(fault);
                       goOn();
                   }});
}

void SessionConversion::analyse(bmrawdata_v5 recording, std::optional<Mount> mount, Done done,
                                Failed failed) {
    workOn(
        conversion_messages::Converting,
        [held = std::make_shared<bmrawdata_v5>(std::move(recording)), mount] {
            return analysedSession(std::move(*held), mount);
        },
        std::move(done), std::move(failed));
}

void SessionConversion::analyseAgain(std::shared_ptr<const EditedSession> session,
                                     std::optional<Mount> mount, Done done, Failed failed) {
    workOn(
        conversion_messages::Converting,
        [session = std::move(session), mount] {
            return analysedSession(recordingOf(*session), mount);
        },
        std::move(done), std::move(failed));
}

/// A recording of version 4 is read from the file that it was converted to, which then is the one
/// that was opened.
void SessionConversion::readConverted(const QString& path,
                                      std::function<void(EditedSession session, QString path)> done,
                                      std::function<void()> failed) {
    convertOlderRecording(path, m_workspace, &m_over, m_work,
                          [this, done = std::move(done),
                           failed = std::move(failed)](const std::optional<QString>& converted) {
                              if (converted)
                                  read(*converted, done, failed);
                              else
                                  failed();
                              goOn();
                          });
}

/// Nothing of a file is taken over before all of it is there.
void SessionConversion::read(const QString& path,
                             std::function<void(EditedSession session, QString path)> done,
                             std::function<void()> failed) {
    workOn(
        isRecording(path) ? QString(conversion_messages::Converting) : tr("Reading…"),
        [path] { return readSession(path); },
        [this, path, done](EditedSession session) {
            if (session.recording)
                m_workspace.log()(conversion_messages::Count +
                                  QFileInfo(path).fileName().toStdString() + ' ' +
                                  std::to_string(session.recording->boatmotion.size()));
            done(std::move(session), path);
        },
        [this, path, done, failed](const std::exception_ptr& fault) {
            if (isOlderRecording(fault)) {
                readConverted(path, done, failed);
                return;
            }
            tellUnreadable(path, fault);
            failed();
        });
}

void SessionConversion::tellUnreadable(const QString& path, const std::exception_ptr& fault) const {
    const std::string reason = causeOf(fault);
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
