#include "desktop/shell/edited_file.h"

#include "common/error.h"
#include "common/kept_file.h"
#include "common/safe_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/workspace.h"
#include "splittaking/messages.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTemporaryDir>
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

QString shownMoment(const QDateTime& moment) {
    const QDate today = QDate::currentDate();
    const QString time = moment.toString("HH:mm");
    if (moment.date() == today)
        return EditedFile::tr("today %1").arg(time);
    if (moment.date() == today.addDays(-1))
        return EditedFile::tr("yesterday %1").arg(time);
    return moment.toString("yyyy-MM-dd HH:mm");
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
    m_editsThen = m_edits;
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
    QStringList facts{QFileInfo(m_path).fileName(), work->label.note, shownMoment(work->when)};
    facts.removeAll(QString());
    enum Way { Load, Later, Discard };
    const int way = m_workspace.chooseWay(
        {facts.join(", ").toStdString(), messages::AskToLoadAutosave},
        {.texts = {tr("Load"), tr("Later"), tr("Discard")}, .onEnter = Load, .onEscape = Later},
        over);
    if (way == Later)
        m_autosave.postpone(m_path);
    else if (way == Load && recover(work->content))
        m_undo.resetClean(); // dirty, and no undo makes it clean: its copy stays until it is saved
    else
        m_autosave.putAside(m_path);
}

bool EditedFile::takeBack(const std::string& content, QWidget* over,
                          const std::function<bool()>& save) {
    if (!mayLeave(over, save) || !recover(content))
        return false;
    m_undo.clear();
    m_undo.resetClean();
    noteEdit();
    emit changed();
    return true;
}

Autosave::Label EditedFile::label() const {
    const unsigned changes = m_edits - m_editsThen;
    QStringList note{summary(), changes == 0   ? QString()
                                : changes == 1 ? tr("1 change")
                                               : tr("%1 changes").arg(changes)};
    note.removeAll(QString());
    return {m_path, m_tool, note.join(", ")};
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
    m_autosave.keep(label(), keptContentNow(), this, [this](const std::string& reason) {
        m_workspace.log()("The work could not be kept: " + reason);
    });
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
    const std::exception_ptr fault = faultOf(write);
    if (fault)
        tellNotWritten(reasonOf(fault), over);
    return !fault;
}

/// Where to write, which may be another place than was asked for; empty for nowhere.
QString EditedFile::pathToWrite(const QString& path, QWidget* over) {
    if (!mayWrite(over))
        return {};
    return canonicalPath(path) == canonicalPath(m_path) ? ownPathToWrite(over)
                                                        : otherPathToWrite(path, over);
}

QString EditedFile::ownPathToWrite(QWidget* over) {
    const FileStamp now(m_path);
    if (!now.isThere())
        return m_path;
    if (now != m_known) {
        enum Way { Replace, Look, SaveAs };
        const int way = m_workspace.chooseWay(
            {fileName().toStdString(),
             tr("The file was changed by another program since it was opened. Saving replaces "
                "what that program wrote.")
                 .toStdString()},
            {.texts = {tr("Replace it"), tr("Look at the other"), tr("Save as…")},
             .onEnter = Look,
             .onEscape = Look},
            over);
        if (way == SaveAs)
            return askForPath(over);
        if (way == Look)
            showOther();
        if (way != Replace)
            return {};
    } else if (!mayReplace(over)) {
        return {};
    }
    return keepOlderLayout(m_path, over) ? m_path : QString();
}

/// A file that another window edits would be taken from under it.
QString EditedFile::otherPathToWrite(const QString& path, QWidget* over) {
    const EditedFile* const holder = m_workspace.openFiles().holderOf(path);
    if (!holder || holder == this)
        return path;
    tellNotWritten(tr("“%1” is open in another window. Close it there first, or take another name.")
                       .arg(QFileInfo(path).fileName())
                       .toStdString(),
                   over);
    return {};
}

QString EditedFile::askForPath(QWidget* over) {
    const QString path = m_askPath ? m_askPath() : QString();
    if (path.isEmpty())
        return {};
    return canonicalPath(path) == canonicalPath(m_path) ? ownPathToWrite(over)
                                                        : otherPathToWrite(path, over);
}

/// As a copy, which no window edits.
void EditedFile::showOther() {
    QTemporaryDir folder;
    const QFileInfo file(m_path);
    const QString copy =
        folder.filePath(tr("%1 (the other).%2").arg(file.completeBaseName(), file.suffix()));
    if (!folder.isValid() || !QFile::copy(m_path, copy))
        return;
    folder.setAutoRemove(false); // its window reads it when it likes
    emit m_workspace.openRequested(copy);
}

/// Where to write instead, after the reason was told; empty for nowhere. The work stays in the
/// window, and is kept apart where that can be.
QString EditedFile::askAfterFailure(const Writing& writing) {
    const std::string reason = reasonOf(writing.fault);
    m_workspace.log()(failure());
    m_workspace.log()(reason);
    const QString comfort =
        m_autosave.isKept(label(), keptContentNow())
            ? tr("Your work is kept apart, and offered when the file is opened again.")
            : tr("Your work is in this window alone: it could not be kept apart either.");
    const QString text =
        QStringLiteral("%1: %2.\n\n%3")
            .arg(QFileInfo(writing.path).fileName(), QString::fromStdString(reason), comfort);
    enum Way { TryAgain, SaveAs, Later };
    const int way = m_workspace.chooseWay({failure(), text.toStdString()},
                                          {.texts = {tr("Try again"), tr("Save as…"), tr("Later")},
                                           .onEnter = TryAgain,
                                           .onEscape = Later,
                                           .isNews = true},
                                          writing.over);
    if (way == SaveAs)
        return askForPath(writing.over);
    return way == TryAgain ? writing.path : QString();
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
        writing->fault = faultOf([&] { writeFileSafely(file, content()); });
        writing->written = FileStamp(writing->path);
        if (!writing->fault && beside)
            writing->besideFault = faultOf([&] { beside(file); });
    };
    disk::run(*this, task,
              [this, writing](const std::exception_ptr&) { (void)finish(*writing, false); });
    emit savingChanged();
    return writing;
}

/// True when the file was written, maybe elsewhere. Who waited for it was here first.
bool EditedFile::finish(Writing& writing, bool isWaitedFor) {
    bool isSaved = !writing.fault;
    if (writing.isFinished)
        return isSaved;
    writing.isFinished = true;
    m_writing.reset();
    if (isSaved)
        noteWritten(writing);
    emit savingChanged();
    const QPointer<QWidget> over = writing.over;
    const QString again = isSaved ? QString() : askAfterFailure(writing);
    if (writing.besideFault)
        tellNotWritten(reasonOf(writing.besideFault), over);
    if (!again.isEmpty() && !isWaitedFor) {
        saveAsBeside(again, over, std::move(writing.saved));
    } else {
        isSaved = isSaved || (!again.isEmpty() && saveAs(again, over));
        if (writing.saved)
            writing.saved(isSaved);
    }
    for (const auto& next : std::exchange(writing.next, {}))
        next();
    return isSaved;
}

bool EditedFile::waitFor(const std::shared_ptr<Writing>& writing) {
    const std::shared_ptr<Writing> held = writing;
    disk::waitForAll();
    return finish(*held, true);
}

void EditedFile::noteWritten(const Writing& writing) {
    m_autosave.settle(m_path);
    m_path = QFileInfo(writing.path).absoluteFilePath();
    m_isNamed = true;
    m_olderLayout.clear();
    m_workspace.openFiles().hold(*this, m_path);
    m_known = writing.written;
    watch();
    m_editsThen = writing.edits;
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
    if (const QString target = pathToWrite(path, over); !target.isEmpty())
        (void)write(target, over, std::move(saved));
    else if (saved)
        saved(false);
}

bool EditedFile::save(QWidget* over) {
    return saveAs(m_path, over);
}

bool EditedFile::saveAs(const QString& path, QWidget* over) {
    if (m_writing)
        (void)waitFor(m_writing);
    const QString target = pathToWrite(path, over);
    return !target.isEmpty() && waitFor(write(target, over, {}));
}

void EditedFile::whenWritten(std::function<void()> then) {
    if (!m_writing) {
        then();
        return;
    }
    // Where it was written again after a failure, that is waited for too.
    m_writing->next.push_back(
        [this, then = std::move(then)]() mutable { whenWritten(std::move(then)); });
}

EditedFile::Leave EditedFile::askToLeave(QWidget* over) {
    if (m_undo.isClean())
        return mayLeaveMore(over) ? Leave::Now : Leave::Not;
    switch (m_workspace.askToSave(title(), over)) {
    case Workspace::Leaving::Save:
        return Leave::AfterSaving;
    case Workspace::Leaving::Discard:
        discard();
        return Leave::Now;
    case Workspace::Leaving::Stay:
        break;
    }
    return Leave::Not;
}

bool EditedFile::mayLeave(QWidget* over, const std::function<bool()>& save) {
    if (m_writing)
        (void)waitFor(m_writing);
    const Leave leave = askToLeave(over);
    return leave == Leave::Now || (leave == Leave::AfterSaving && save() && mayLeaveSaved(over));
}

void EditedFile::discard() {
    keepWork();
    m_autosave.putAside(m_path);
    m_undo.setClean();
}

} // namespace kavela::desktop
