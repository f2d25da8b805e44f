#include "desktop/shell/edited_file.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/shell/workspace.h"
#include "splittaking/messages.h"

#include <QFileInfo>

namespace kavela::desktop {

namespace {

constexpr int KeepAfterMilliseconds = 1000;

std::optional<std::filesystem::file_time_type> lastWritten(const QString& path) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(path.toStdString(), error);
    return error ? std::nullopt : std::optional(time);
}

} // namespace

EditedFile::EditedFile(Workspace& workspace, Autosave autosave, QObject* parent)
    : QObject(parent), m_workspace(workspace), m_autosave(std::move(autosave)) {
    m_keep.setSingleShot(true);
    m_keep.setInterval(KeepAfterMilliseconds);
    connect(&m_keep, &QTimer::timeout, this, &EditedFile::keepWork);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &EditedFile::noticeDisk);
}

EditedFile::~EditedFile() {
    m_undo.disconnect(); // it tells of its end, when the rest is gone already
}

QString EditedFile::fileName() const {
    return QFileInfo(m_path).completeBaseName();
}

void EditedFile::begin(const QString& path, QWidget* over) {
    m_keep.stop();
    m_path = QFileInfo(path).absoluteFilePath();
    watch();
    m_undo.clear();
    if (m_readTime)
        m_workspace.addRecentFile(m_path);
    offerRecovery(over);
}

void EditedFile::watch() {
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_readTime = lastWritten(m_path);
    if (m_readTime)
        m_watcher.addPath(m_path);
}

void EditedFile::noticeDisk() {
    const auto now = lastWritten(m_path);
    // A file that was replaced by renaming is watched no longer.
    if (now && m_watcher.files().isEmpty())
        m_watcher.addPath(m_path);
    if (now != m_readTime)
        emit changedElsewhere();
}

void EditedFile::offerRecovery(QWidget* over) {
    const auto work = m_autosave.find(m_path);
    if (!work)
        return;
    m_workspace.log()(messages::AutosaveFound);
    if (m_workspace.ask({"", messages::AskToLoadAutosave}, tr("Load"), over) && recover(*work))
        m_undo.resetClean(); // dirty, and no undo makes it clean: its copy stays until it is saved
    else
        m_autosave.putAside(m_path);
}

void EditedFile::keepSoon() {
    m_keep.start();
}

void EditedFile::keepWork() {
    m_keep.stop();
    if (m_path.isEmpty())
        return;
    if (!isDirty()) {
        m_autosave.forget(m_path);
        return;
    }
    try {
        m_autosave.keep(m_path, content());
    } catch (const std::exception& error) {
        m_workspace.log()(std::string("The work could not be kept: ") + error.what());
    }
}

bool EditedFile::mayOverwrite(QWidget* over) const {
    const auto now = lastWritten(m_path);
    return !now || mayReplace(now != m_readTime, over);
}

bool EditedFile::mayReplace(bool isChangedOnDisk, QWidget* over) const {
    if (!isChangedOnDisk)
        return true;
    return m_workspace.ask(
        {"", tr("The file was changed by another program since it was opened. Saving replaces "
                "what that program wrote.")
                 .toStdString()},
        tr("Save all the same"), over);
}

void EditedFile::tellUnreadable(const QString& path, const std::string& reason,
                                QWidget* over) const {
    m_workspace.log()(path.toStdString() + ": " + reason);
    m_workspace.showAlert(
        {tr("“%1” cannot be opened").arg(QFileInfo(path).fileName()).toStdString(), reason}, over);
}

bool EditedFile::write(const QString& path, QWidget* over) {
    std::string reason;
    try {
        writeFileSafely(path.toStdString(), content());
        return true;
    } catch (const FileError& error) {
        reason = error.reason();
    } catch (const EncodeError& error) {
        reason = error.what();
    }
    m_workspace.log()(failure());
    m_workspace.log()(reason);
    m_workspace.showAlert({failure(), reason}, over);
    return false;
}

bool EditedFile::save(QWidget* over) {
    return mayOverwrite(over) && saveAs(m_path, over);
}

bool EditedFile::saveAs(const QString& path, QWidget* over) {
    if (!write(path, over))
        return false;
    m_autosave.forget(m_path);
    m_path = QFileInfo(path).absoluteFilePath();
    watch();
    m_undo.setClean();
    m_keep.stop();
    m_workspace.addRecentFile(m_path);
    emit saved();
    return true;
}

void EditedFile::discard() {
    keepWork();
    m_autosave.putAside(m_path);
    m_undo.setClean();
}

} // namespace kavela::desktop
