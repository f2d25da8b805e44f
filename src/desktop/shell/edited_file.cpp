#include "desktop/shell/edited_file.h"

#include "common/error.h"
#include "common/kept_file.h"
#include "common/safe_file.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/workspace.h"
#include "splittaking/messages.h"

#include <QFileInfo>
#include <QPointer>
#include <QWidget>

#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

constexpr int KeepAfterMilliseconds = 1000;

std::string reasonOf(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const FileError& error) {
        return error.reason();
    } catch (const std::exception& error) {
        return error.what();
    }
}

} // namespace

struct EditedFile::Writing {
    QString path;
    unsigned edits = 0; ///< of the document as it is written
    QPointer<QWidget> over;
    Saved saved;
    FileStamp written;
    std::exception_ptr fault;
    std::exception_ptr besideFault;
    bool isFinished = false;
    std::vector<std::function<void()>> next; ///< asked for meanwhile
};

EditedFile::EditedFile(Workspace& workspace, Autosave autosave, QObject* parent)
    : QObject(parent), m_workspace(workspace), m_autosave(std::move(autosave)) {
    m_keep.setSingleShot(true);
    m_keep.setInterval(KeepAfterMilliseconds);
    connect(&m_keep, &QTimer::timeout, this, &EditedFile::keepWork);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &EditedFile::noticeDisk);
}

EditedFile::~EditedFile() {
    m_undo.disconnect(); // it tells of its end, when the rest is gone already
    m_workspace.openFiles().release(*this);
}

QString EditedFile::fileName() const {
    return QFileInfo(m_path).completeBaseName();
}

bool EditedFile::isNamed() const {
    return m_isNamed || QFileInfo::exists(m_path);
}

void EditedFile::begin(const QString& path, QWidget* over) {
    if (m_writing)
        (void)waitFor(m_writing);
    m_keep.stop();
    m_path = QFileInfo(path).absoluteFilePath();
    m_isNamed = false;
    m_workspace.openFiles().hold(*this, m_path);
    m_known = FileStamp(m_path);
    watch();
    m_undo.clear();
    if (m_known.isThere())
        m_workspace.addRecentFile(m_path);
    offerRecovery(over);
}

void EditedFile::watch() {
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    if (m_known.isThere())
        m_watcher.addPath(m_path);
}

/// What is being written here is no news.
void EditedFile::noticeDisk() {
    if (m_writing)
        return;
    const FileStamp now(m_path);
    // A file that was replaced by renaming is watched no longer.
    if (now.isThere() && m_watcher.files().isEmpty())
        m_watcher.addPath(m_path);
    if (now != m_known)
        emit changedElsewhere();
}

void EditedFile::offerRecovery(QWidget* over) {
    const auto work = m_autosave.find(m_path);
    if (!work)
        return;
    m_workspace.log()(messages::AutosaveFound);
    const std::string name = QFileInfo(m_path).fileName().toStdString();
    if (m_workspace.ask({name, messages::AskToLoadAutosave}, tr("Load"), over) && recover(*work))
        m_undo.resetClean(); // dirty, and no undo makes it clean: its copy stays until it is saved
    else
        m_autosave.putAside(m_path);
}

void EditedFile::noteEdit() {
    ++m_edits;
    keepSoon();
}

/// Within a second, also of the first of many edits.
void EditedFile::keepSoon() {
    if (!m_keep.isActive())
        m_keep.start();
}

void EditedFile::keepPending() {
    if (m_keep.isActive())
        keepWork();
}

void EditedFile::keepWork() {
    m_keep.stop();
    if (m_path.isEmpty())
        return;
    if (!isDirty()) {
        m_autosave.forget(m_path);
        return;
    }
    m_autosave.keep(m_path, m_tool, keptContentNow(), this, [this](const std::string& reason) {
        m_workspace.log()("The work could not be kept: " + reason);
    });
}

bool EditedFile::mayOverwrite(QWidget* over) const {
    const FileStamp now(m_path);
    return !now.isThere() || mayReplace(now != m_known, over);
}

bool EditedFile::mayReplace(bool isChangedOnDisk, QWidget* over) const {
    if (!isChangedOnDisk)
        return true;
    return m_workspace.askBeforeLoss(
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

void EditedFile::tellNotWritten(const std::string& reason, QWidget* over) const {
    m_workspace.log()(failure());
    m_workspace.log()(reason);
    m_workspace.showAlert({failure(), reason}, over);
}

bool EditedFile::written(const std::function<void()>& write, QWidget* over) const {
    const std::exception_ptr fault = disk::faultOf(write);
    if (fault)
        tellNotWritten(reasonOf(fault), over);
    return !fault;
}

/// A file that another window edits would be taken from under it.
bool EditedFile::mayWriteTo(const QString& path, QWidget* over) {
    if (!mayWrite(over))
        return false;
    if (canonicalPath(path) == canonicalPath(m_path))
        return mayOverwrite(over) && keepOlderLayout(path, over);
    const EditedFile* const holder = m_workspace.openFiles().holderOf(path);
    if (!holder || holder == this)
        return true;
    tellNotWritten(tr("“%1” is open in another window. Close it there first, or take another name.")
                       .arg(QFileInfo(path).fileName())
                       .toStdString(),
                   over);
    return false;
}

/// Where it cannot be kept, nothing is written.
bool EditedFile::keepOlderLayout(const QString& path, QWidget* over) {
    if (m_olderLayout.empty() || !QFileInfo::exists(path))
        return true;
    if (!keepPreviousFile(path.toStdString(), m_olderLayout, failure(), m_workspace.log()).empty())
        return true;
    m_workspace.showAlert({failure(), tr("The file of the older version could not be kept beside "
                                         "the new one, so that nothing was written.")
                                          .toStdString()},
                          over);
    return false;
}

std::shared_ptr<EditedFile::Writing> EditedFile::write(const QString& path, QWidget* over,
                                                       Saved saved) {
    auto writing = std::make_shared<Writing>();
    writing->path = path;
    writing->edits = m_edits;
    writing->over = over;
    writing->saved = std::move(saved);
    m_writing = writing;
    const auto task = [writing, content = contentNow(), beside = besideNow()] {
        const std::filesystem::path file = writing->path.toStdString();
        writing->fault = disk::faultOf([&] { writeFileSafely(file, content()); });
        writing->written = FileStamp(writing->path);
        if (!writing->fault && beside)
            writing->besideFault = disk::faultOf([&] { beside(file); });
    };
    disk::run(this, task, [this, writing](const std::exception_ptr&) { (void)finish(*writing); });
    emit savingChanged();
    return writing;
}

/// True when the file was written. Who waited for it was here first.
bool EditedFile::finish(Writing& writing) {
    const bool isSaved = !writing.fault;
    if (writing.isFinished)
        return isSaved;
    writing.isFinished = true;
    m_writing.reset();
    if (isSaved)
        noteWritten(writing);
    emit savingChanged();
    for (const std::exception_ptr& fault : {writing.fault, writing.besideFault})
        if (fault)
            tellNotWritten(reasonOf(fault), writing.over);
    if (writing.saved)
        writing.saved(isSaved);
    for (const auto& next : std::exchange(writing.next, {}))
        next();
    return isSaved;
}

bool EditedFile::waitFor(const std::shared_ptr<Writing>& writing) {
    const std::shared_ptr<Writing> held = writing;
    disk::waitForAll();
    return finish(*held);
}

void EditedFile::noteWritten(const Writing& writing) {
    m_autosave.forget(m_path);
    m_path = QFileInfo(writing.path).absoluteFilePath();
    m_isNamed = true;
    m_olderLayout.clear();
    m_workspace.openFiles().hold(*this, m_path);
    m_known = writing.written;
    watch();
    if (m_edits == writing.edits)
        m_undo.setClean();
    keepWork(); // forgets it, but for what was edited since or has no place in the file
    m_workspace.addRecentFile(m_path);
    emit saved();
}

void EditedFile::saveBeside(QWidget* over, Saved saved) {
    saveAsBeside(m_path, over, std::move(saved));
}

void EditedFile::saveAsBeside(const QString& path, QWidget* over, Saved saved) {
    if (m_writing) {
        m_writing->next.push_back([this, path, window = QPointer(over), saved = std::move(saved)] {
            saveAsBeside(path, window, saved);
        });
        return;
    }
    if (mayWriteTo(path, over))
        (void)write(path, over, std::move(saved));
    else if (saved)
        saved(false);
}

bool EditedFile::save(QWidget* over) {
    return saveAs(m_path, over);
}

bool EditedFile::saveAs(const QString& path, QWidget* over) {
    if (m_writing)
        (void)waitFor(m_writing);
    return mayWriteTo(path, over) && waitFor(write(path, over, {}));
}

bool EditedFile::mayLeave(QWidget* over, const std::function<bool()>& save) {
    if (m_writing)
        (void)waitFor(m_writing);
    if (m_undo.isClean())
        return mayLeaveMore(over);
    switch (m_workspace.askToSave(title(), over)) {
    case Workspace::Leaving::Save:
        return save() && mayLeaveMore(over);
    case Workspace::Leaving::Discard:
        discard();
        return true;
    case Workspace::Leaving::Stay:
        break;
    }
    return false;
}

void EditedFile::discard() {
    keepWork();
    m_autosave.putAside(m_path);
    m_undo.setClean();
}

} // namespace kavela::desktop
