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

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

constexpr int KeepAfterMilliseconds = 1000;

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
    bool isLeft = false;     ///< the document is another one by now
    std::vector<Saved> next; ///< asked for meanwhile
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
    if (m_writing) // is still written, though it is no news of this document
        std::exchange(m_writing, nullptr)->isLeft = true;
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

/// What was put off is asked for once in each start of the program.
void EditedFile::offerRecovery(QWidget* over) {
    const auto work = m_autosave.find(m_path, !m_workspace.isPutOff(m_path));
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
    if (way == Later) {
        m_workspace.setPutOff(m_path, true);
        m_autosave.postpone(m_path);
    } else if (way == Load && recover(work->content)) {
        m_undo.resetClean(); // dirty, and no undo makes it clean: its copy stays until it is saved
    } else {
        m_autosave.putAside(m_path);
    }
}

bool EditedFile::takeBack(const std::string& content) {
    if (!recover(content))
        return false;
    m_undo.clear();
    m_undo.resetClean();
    noteEdit();
    emit changed();
    return true;
}

Autosave::Label EditedFile::label() const {
    const unsigned changes = m_edits - m_editsThen;
    QStringList note{summary(), changes == 0 ? QString()
                                : changes == 1
                                    ? tr("1 change")
                                    : tr("%n changes", nullptr, static_cast<int>(changes))};
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
    m_autosave.keep(label(), keptContentNow(), this, [this](const std::string& fault) {
        if (!fault.empty())
            m_workspace.log()("The work could not be kept: " + fault);
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

void EditedFile::tellNotWritten(const std::exception_ptr& fault, QWidget* over) const {
    tellNotWritten(causeOf(fault), over);
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
    return path.isEmpty() ? QString() : pathToWrite(path, over);
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
QString EditedFile::askAfterFailure(const Writing& writing, bool isKept) {
    const std::string reason = causeOf(writing.fault);
    m_workspace.log()(failure());
    m_workspace.log()(reason);
    const QString comfort =
        isKept ? tr("Your work is kept apart, and offered when the file is opened again.")
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

void EditedFile::write(const QString& path, QWidget* over, Saved saved) {
    auto writing = std::make_shared<Writing>();
    writing->path = path;
    writing->edits = m_edits;
    writing->over = over;
    writing->saved = std::move(saved);
    m_writing = writing;
    const auto task = [writing, content = contentFor(path), beside = besideNow()] {
        const std::filesystem::path file = writing->path.toStdString();
        writing->fault = faultOf([&] { writeFileSafely(file, content()); });
        writing->written = FileStamp(writing->path);
        if (!writing->fault && beside)
            writing->besideFault = faultOf([&] { beside(file); });
    };
    disk::run(*this, task, [this, writing](const std::exception_ptr&) { finish(writing); });
    emit savingChanged();
}

/// What could not be written is kept apart before the coach is asked, who is told whether it is.
void EditedFile::finish(const std::shared_ptr<Writing>& writing) {
    if (writing->isLeft)
        finishLeft(*writing);
    else if (writing->fault)
        m_autosave.keep(label(), keptContentNow(), this, [this, writing](const std::string& fault) {
            if (writing->isLeft)
                finishLeft(*writing);
            else
                goOnAfterFailure(*writing, fault.empty());
        });
    else
        goOnAfterWriting(*writing);
}

/// Nobody waits for it but who asked for it.
void EditedFile::finishLeft(Writing& writing) const {
    if (writing.fault)
        tellNotWritten(writing.fault, writing.over);
    if (writing.saved)
        writing.saved(!writing.fault);
    for (const Saved& next : writing.next)
        next(false);
}

void EditedFile::goOnAfterWriting(Writing& writing) {
    m_writing.reset();
    noteWritten(writing);
    emit savingChanged();
    if (writing.besideFault)
        tellNotWritten(writing.besideFault, writing.over);
    if (writing.saved)
        writing.saved(true);
    for (const Saved& next : std::exchange(writing.next, {}))
        next(true);
}

/// Who waits goes on waiting where it is written again.
void EditedFile::goOnAfterFailure(Writing& writing, bool isKept) {
    m_writing.reset();
    emit savingChanged();
    const QString again = askAfterFailure(writing, isKept);
    if (!again.isEmpty())
        saveAsBeside(again, writing.over, std::move(writing.saved));
    else if (writing.saved)
        writing.saved(false);
    std::vector<Saved> next = std::exchange(writing.next, {});
    if (m_writing)
        std::ranges::move(next, std::back_inserter(m_writing->next));
    else
        for (const Saved& waiting : next)
            waiting(false);
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

/// What is being written may give the document another path: it is asked for afterwards.
void EditedFile::saveBeside(QWidget* over, Saved saved) {
    if (!m_writing) {
        saveAsBeside(m_path, over, std::move(saved));
        return;
    }
    m_writing->next.push_back(
        [this, window = QPointer(over), saved = std::move(saved)](bool isWritten) {
            if (isWritten)
                saveBeside(window, saved);
            else if (saved)
                saved(false); // the coach has just been told
        });
}

/// Another place may be better than the one that could not be written.
void EditedFile::saveAsBeside(const QString& path, QWidget* over, Saved saved) {
    if (m_writing)
        m_writing->next.push_back([this, path, window = QPointer(over), saved = std::move(saved)](
                                      bool /*isWritten*/) { saveAsBeside(path, window, saved); });
    else if (const QString target = pathToWrite(path, over); !target.isEmpty())
        write(target, over, std::move(saved));
    else if (saved)
        saved(false);
}

void EditedFile::whenWritten(Saved then) {
    if (!m_writing) {
        then(true);
        return;
    }
    // What was asked for before may have begun to be written by then.
    m_writing->next.push_back([this, then = std::move(then)](bool isWritten) {
        if (isWritten)
            whenWritten(then);
        else
            then(false);
    });
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

void EditedFile::discard() {
    keepWork();
    m_autosave.putAside(m_path);
    m_undo.setClean();
}

} // namespace kavela::desktop
