#include "desktop/shell/edited_file.h"

#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/file_writing.h"
#include "desktop/shell/kept_question.h"
#include "desktop/shell/saving_questions.h"
#include "desktop/shell/window_lock.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

constexpr int KeepAfterMilliseconds = 1000;

} // namespace

/// The window takes no edit before it is answered for.
struct EditedFile::Offer {
    Offer(QWidget* window, unsigned editsThen) : over(window), edits(editsThen), lock(window) {}

    QPointer<QWidget> over;
    unsigned edits; ///< of the document that it is looked for
    WindowLock lock;
    bool isLate = false; ///< the document is shown already
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
    m_offer.reset(); // what it finds stays
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

/// What was put off is asked for once in each start of the program. On a slow disk the window is
/// there before it is known whether there is any: nothing is to be typed that it would replace.
void EditedFile::offerRecovery(QWidget* over) {
    const auto offer = std::make_shared<Offer>(over, m_edits);
    m_offer = offer;
    m_autosave.look(m_path, !m_workspace.isPutOff(m_path), *this,
                    [this, offer](const std::optional<Autosave::Found>& work) {
                        if (m_offer == offer) // and no other document is here
                            answerOffer(work);
                    });
    if (m_offer != offer)
        return;
    offer->isLate = true;
    offer->lock.lock();
}

void EditedFile::answerOffer(const std::optional<Autosave::Found>& work) {
    const std::shared_ptr<Offer> offer = m_offer;
    if (m_edits != offer->edits)
        postponeOffer(); // edited without a hand on the window
    m_offer.reset();
    offer->lock.unlock();
    if (!work || m_edits != offer->edits)
        return;
    switch (askForKept(*work, m_path, m_workspace, offer->over)) {
    case KeptAnswer::Load:
        loadKept(work->content);
        break;
    case KeptAnswer::Later:
        m_workspace.setPutOff(m_path, true);
        m_autosave.postpone(m_path);
        break;
    case KeptAnswer::Discard:
        m_autosave.putAside(m_path);
        break;
    }
    if (offer->isLate)
        emit changed();
}

void EditedFile::loadKept(const std::string& content) {
    if (recover(content)) {
        m_undo.clear();
        m_undo.resetClean(); // dirty, and no undo makes it clean: its copy stays until it is saved
    } else {
        m_autosave.putAside(m_path);
    }
}

/// What nobody has answered for yet makes room for the work of now, and is offered at the next
/// opening.
void EditedFile::postponeOffer() {
    if (!m_offer)
        return;
    m_offer.reset();
    m_autosave.postpone(m_path);
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
    postponeOffer();
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
        switch (askAboutOther(fileName(), m_workspace, over)) {
        case OtherAnswer::Replace:
            break;
        case OtherAnswer::SaveAs:
            return askForPath(over);
        case OtherAnswer::Look:
            showOther(m_path, m_workspace, *this);
            return {};
        }
    } else if (!mayReplace(over)) {
        return {};
    }
    return m_path;
}

/// A file that another window edits would be taken from under it.
QString EditedFile::otherPathToWrite(const QString& path, QWidget* over) const {
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

/// Where to write instead, after the reason was told; empty for nowhere. The work stays in the
/// window, and is kept apart where that can be.
QString EditedFile::askAfterFailure(const Writing& writing, bool isKept) {
    switch (askAboutFailure(writing, isKept, m_workspace)) {
    case FailureAnswer::TryAgain:
        return writing.path;
    case FailureAnswer::SaveAs:
        return askForPath(writing.over);
    case FailureAnswer::Later:
        break;
    }
    return {};
}

void EditedFile::write(const QString& path, QWidget* over, Saved saved) {
    auto writing = std::make_shared<Writing>();
    writing->path = path;
    writing->edits = m_edits;
    writing->over = over;
    writing->saved = std::move(saved);
    writing->failure = failure();
    if (canonicalPath(path) == canonicalPath(m_path))
        writing->olderLayout = m_olderLayout;
    m_writing = writing;
    const auto task = [writing, content = contentFor(path), beside = besideNow()] {
        writing->write(content, beside);
    };
    disk::run(*this, task, [this, writing](const std::exception_ptr&) { finish(writing); });
    emit savingChanged();
}

/// What could not be written is kept apart before the coach is asked, who is told whether it is.
void EditedFile::finish(const std::shared_ptr<Writing>& writing) {
    for (const std::string& remark : writing->remarks)
        m_workspace.log()(remark);
    if (writing->isOlderLost || writing->isLeft)
        finishAlone(*writing);
    else if (writing->fault)
        m_autosave.keep(label(), keptContentNow(), this, [this, writing](const std::string& fault) {
            if (writing->isLeft)
                finishAlone(*writing);
            else
                goOnAfterFailure(*writing, fault.empty());
        });
    else
        goOnAfterWriting(*writing);
}

/// Nobody is asked how to go on: it is another document by now, or one that has nowhere to go.
void EditedFile::finishAlone(Writing& writing) {
    if (m_writing.get() == &writing) {
        m_writing.reset();
        emit savingChanged();
    }
    if (writing.isOlderLost)
        tellOlderLost(writing, m_workspace);
    else if (writing.fault)
        tellNotWritten(writing.fault, writing.over);
    if (writing.saved)
        writing.saved(!writing.fault && !writing.isOlderLost);
    for (const Saved& next : std::exchange(writing.next, {}))
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
    postponeOffer();
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
