#include "desktop/shell/background_work.h"

#include "common/error.h"
#include "desktop/shell/disk_worker.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QMetaObject>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPromise>
#include <QSemaphore>
#include <QThreadPool>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <atomic>

namespace kavela::desktop {

namespace {

constexpr int ShowAfterMilliseconds = 300;
/// The progress of a whole piece.
constexpr int Whole = 1000;

/// The window under a piece that is shown: locked, and below a progress dialog when it takes long.
/// The focus comes back to where it was.
class Cover {
public:
    Cover(const ShownWork& shown, const std::stop_source& stop)
        : m_window(shown.over->window()), m_focus(m_window->focusWidget()) {
        m_isLocked = m_window->isEnabled();
        m_window->setEnabled(false);
        makeDialog(shown, stop);
    }
    Cover(const Cover&) = delete;
    Cover& operator=(const Cover&) = delete;
    /// A window may be going, with the work that it owns: it is freed when that did not happen.
    ~Cover() {
        delete m_dialog.data();
        if (m_window && m_isLocked)
            QMetaObject::invokeMethod(
                m_window, [window = m_window] { window->setEnabled(true); }, Qt::QueuedConnection);
    }

    void showProgress(int thousandths) {
        if (!m_bar)
            return;
        m_bar->setMaximum(Whole);
        m_bar->setValue(thousandths); // the dialog's own setValue would run other events
    }

    void lift() {
        // At once: what the piece ends with may ask a question, and the dialog, which appears by
        // itself after a while, would come over it.
        delete m_dialog.data();
        if (!m_window || !std::exchange(m_isLocked, false))
            return;
        m_window->setEnabled(true);
        if (m_focus)
            m_focus->setFocus();
    }

private:
    void makeDialog(const ShownWork& shown, const std::stop_source& stop) {
        m_dialog = new QProgressDialog(
            shown.what, shown.mayCancel ? QObject::tr("Cancel") : QString(), 0, 0, m_window);
        m_bar = new QProgressBar(m_dialog);
        m_bar->setRange(0, 0); // how far it is cannot be told, before the piece tells it
        m_dialog->setBar(m_bar);
        m_dialog->setAutoClose(false);
        m_dialog->setAutoReset(false);
        m_dialog->setWindowModality(Qt::WindowModal);
        if (shown.mayCancel)
            QObject::connect(m_dialog, &QProgressDialog::canceled, m_dialog,
                             [stop]() mutable { stop.request_stop(); });
        QTimer::singleShot(ShowAfterMilliseconds, m_dialog, [dialog = m_dialog] {
            if (!dialog->wasCanceled())
                dialog->show();
        });
    }

    QPointer<QWidget> m_window;
    QPointer<QWidget> m_focus;
    QPointer<QProgressDialog> m_dialog;
    QPointer<QProgressBar> m_bar;
    bool m_isLocked = false;
};

/// What the two threads share.
struct Shared {
    std::stop_source stop;
    std::exception_ptr fault; ///< written before the promise is finished, read after it
    bool isAwaited = false;
    QSemaphore ended;
};

/// How many pieces that are awaited have yet to end: where one takes long, no other is waited for
/// in its turn.
std::atomic<int>& awaitedPieces() {
    static std::atomic<int> pieces = 0;
    return pieces;
}

/// A piece that has yet to come back. Without it, nobody hears of its end.
class Piece : public QObject {
public:
    Piece(QObject& parent, std::shared_ptr<Shared> shared, const QFuture<void>& future,
          WorkEnded ended)
        : QObject(&parent), m_shared(std::move(shared)), m_ended(std::move(ended)) {
        connect(&m_watcher, &QFutureWatcher<void>::finished, this, &Piece::end);
        connect(&m_watcher, &QFutureWatcher<void>::progressValueChanged, this, [this](int value) {
            if (m_cover)
                m_cover->showProgress(value);
        });
        m_watcher.setFuture(future);
    }

    void cover(const ShownWork& shown) { m_cover.emplace(shown, m_shared->stop); }
    void cancel() { m_shared->stop.request_stop(); }

    /// Tells the end where it comes within this time, in which the interface waits; false
    /// otherwise.
    bool endWithin(std::chrono::milliseconds time) {
        if (!m_shared->ended.tryAcquire(1, static_cast<int>(time.count())))
            return false;
        m_watcher.disconnect(this);
        end();
        return true;
    }

private:
    /// The owner may go in what it is told: nothing of this is touched after that.
    void end() {
        setParent(nullptr);
        deleteLater();
        if (m_cover)
            m_cover->lift();
        const WorkEnd end{m_shared->fault, m_shared->stop.stop_requested()};
        const WorkEnded ended = std::move(m_ended);
        ended(end);
    }

    std::shared_ptr<Shared> m_shared;
    WorkEnded m_ended;
    std::optional<Cover> m_cover;
    QFutureWatcher<void> m_watcher;
};

/// In the pool: the task goes before its end is told, with what it holds.
void work(WorkTask& task, QPromise<void>& promise, Shared& shared) {
    if (!shared.stop.stop_requested())
        shared.fault = faultOf([&] { task(WorkSteps(promise, shared.stop.get_token())); });
    task = nullptr;
    promise.finish();
    if (shared.isAwaited)
        --awaitedPieces();
    shared.ended.release();
}

/// Files that a coach waits for are not read after whatever else takes minutes. They are read to
/// their end before the program's objects go, since they may use those.
QThreadPool& awaitedWork() {
    static QThreadPool pool;
    static const bool IsWaitedFor = [] {
        constexpr int Threads = 4; // most of them wait for a disk
        pool.setMaxThreadCount(Threads);
        qAddPostRoutine([] { awaitedWork().waitForDone(); });
        return true;
    }();
    (void)IsWaitedFor;
    return pool;
}

Piece* startPiece(QThreadPool& pool, QObject& parent, WorkTask task, WorkEnded ended,
                  bool isAwaited = false) {
    const auto promise = std::make_shared<QPromise<void>>();
    const auto shared = std::make_shared<Shared>();
    shared->isAwaited = isAwaited;
    promise->setProgressRange(0, Whole);
    promise->start();
    auto* const piece = new Piece(parent, shared, promise->future(), std::move(ended));
    pool.start(
        [promise, shared, task = std::move(task)]() mutable { work(task, *promise, *shared); });
    return piece;
}

} // namespace

void WorkSteps::tellProgress(std::int64_t done, std::int64_t all) const {
    if (all > 0)
        m_promise.setProgressValue(
            static_cast<int>(std::clamp<std::int64_t>(done, 0, all) * Whole / all));
}

std::exception_ptr faultOf(const std::function<void()>& task) {
    try {
        task();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

std::string messageOf(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const std::exception& error) {
        return error.what();
    }
}

std::string causeOf(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const FileError& error) {
        return error.reason();
    } catch (const std::exception& error) {
        return error.what();
    }
}

BackgroundWork::BackgroundWork() : m_pieces(std::make_unique<QObject>()) {}

BackgroundWork::~BackgroundWork() {
    cancel();
}

void BackgroundWork::cancel() {
    for (QObject* const child : m_pieces->children())
        static_cast<Piece*>(child)->cancel();
    m_pieces = std::make_unique<QObject>();
}

bool BackgroundWork::isRunning() const {
    return !m_pieces->children().isEmpty();
}

bool BackgroundWork::isDone(const WorkEnd& end, const OtherEnds& otherwise) {
    if (end.isCancelled) {
        if (otherwise.cancelled)
            otherwise.cancelled();
    } else if (end.fault) {
        if (!otherwise.failed)
            qFatal("work that was not to throw has thrown");
        otherwise.failed(end.fault);
    }
    return !end.isCancelled && !end.fault;
}

void BackgroundWork::start(const Way& way, WorkTask task, WorkEnded ended) {
    QThreadPool& pool = way.isAwaited ? awaitedWork() : *QThreadPool::globalInstance();
    const bool isFirst = way.isAwaited && awaitedPieces()++ == 0;
    Piece* const piece =
        startPiece(pool, *m_pieces, std::move(task), std::move(ended), way.isAwaited);
    if (isFirst && piece->endWithin(disk::patience()))
        return;
    if (way.shown && way.shown->over)
        piece->cover(*way.shown);
}

void runInPool(QThreadPool& pool, QObject& context, WorkTask task, WorkEnded ended) {
    (void)startPiece(pool, context, std::move(task), std::move(ended));
}

} // namespace kavela::desktop
