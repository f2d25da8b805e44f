#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <type_traits>
#include <utility>

class QThreadPool;
class QWidget;
template <class T>
class QPromise;

namespace kavela::desktop {

/// What a piece of work hears and tells while it runs, on its own thread.
class WorkSteps {
public:
    WorkSteps(QPromise<void>& promise, std::stop_token stop)
        : m_promise(promise), m_stop(std::move(stop)) {}

    /// To be asked a few times a second: what the piece does after it is of no use to anybody.
    [[nodiscard]] bool isCancelled() const { return m_stop.stop_requested(); }
    /// The same, for what takes such a token.
    [[nodiscard]] const std::stop_token& stopToken() const { return m_stop; }
    /// How much is done of all; nothing is told of an `all` of 0.
    void tellProgress(std::int64_t done, std::int64_t all) const;

private:
    QPromise<void>& m_promise;
    std::stop_token m_stop;
};

/// What a task throws, or null: so that another thread can tell it.
[[nodiscard]] std::exception_ptr faultOf(const std::function<void()>& task);
/// What was thrown, in words.
[[nodiscard]] std::string messageOf(const std::exception_ptr& fault);

/// The same without the path of a file that the fault is about.
[[nodiscard]] std::string causeOf(const std::exception_ptr& fault);

/// How a piece of work ended: with what it threw, or null. What a piece that was cancelled brought
/// or threw counts no more.
struct WorkEnd {
    std::exception_ptr fault;
    bool isCancelled = false;
};

/// What is to be done where a piece brings no result.
struct OtherEnds {
    std::function<void(const std::exception_ptr& fault)> failed = {};
    std::function<void()> cancelled = {}; ///< by the coach, and it has stopped
};

/// Work that is shown over a window, which takes neither keys nor clicks meanwhile: what is being
/// worked on would change under the work. When it takes long, a progress dialog says what is done.
struct ShownWork {
    QPointer<QWidget> over; ///< any widget of the window
    QString what;
    bool mayCancel = false; ///< the dialog has a Cancel button
};

using WorkTask = std::function<void(const WorkSteps& steps)>;
using WorkEnded = std::function<void(const WorkEnd& end)>;

/// Runs work beside the interface and hands its result to the window that owns this, as long as it
/// is there. For the interface thread. The functions that a piece ends with are called from the
/// event loop, except by runAwaited() never from within the call that starts it; the window is free
/// again by then.
class BackgroundWork {
public:
    BackgroundWork();
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;
    /// What has not come back yet is cancelled, and comes to nothing.
    ~BackgroundWork();

    /// `work()`, or `work(const WorkSteps&)`, runs on another thread; `done(result)` here. Work
    /// that may throw needs an `otherwise.failed`. It holds by itself what it works on: it may go
    /// on for a moment when the window is gone.
    template <class Work, class Done>
    void run(Work work, Done done, OtherEnds otherwise = {}) {
        begin({}, std::move(work), std::move(done), std::move(otherwise));
    }
    /// The same, shown over a window.
    template <class Work, class Done>
    void runOver(const ShownWork& shown, Work work, Done done, OtherEnds otherwise = {}) {
        begin({.shown = &shown}, std::move(work), std::move(done), std::move(otherwise));
    }
    /// The same for what a coach waits for, such as a file that is opened: no longer work keeps it
    /// waiting, and the end is told before this returns where it comes within disk::patience(). So
    /// a small file is there at once. What takes longer is shown over a window where one is given,
    /// and none is waited for as long as it goes on.
    template <class Work, class Done>
    void runAwaited(Work work, Done done, OtherEnds otherwise = {}, const ShownWork& shown = {}) {
        begin({.shown = &shown, .isAwaited = true}, std::move(work), std::move(done),
              std::move(otherwise));
    }

    /// Asks what runs to stop; nothing of it is told.
    void cancel();
    /// Whether anything has yet to come back.
    [[nodiscard]] bool isRunning() const;

private:
    struct Way {
        const ShownWork* shown = nullptr;
        bool isAwaited = false;
    };

    template <class Work>
    static decltype(auto) called(Work& work, const WorkSteps& steps) {
        if constexpr (std::is_invocable_v<Work&, const WorkSteps&>)
            return work(steps);
        else
            return work();
    }

    template <class Work, class Done>
    void begin(const Way& way, Work work, Done done, OtherEnds otherwise) {
        using Result = decltype(called(std::declval<Work&>(), std::declval<const WorkSteps&>()));
        if constexpr (std::is_void_v<Result>) {
            start(
                way,
                [work = std::move(work)](const WorkSteps& steps) mutable { called(work, steps); },
                [done = std::move(done),
                 otherwise = std::move(otherwise)](const WorkEnd& end) mutable {
                    if (isDone(end, otherwise))
                        done();
                });
        } else {
            const auto result = std::make_shared<std::optional<std::decay_t<Result>>>();
            start(
                way,
                [work = std::move(work), result](const WorkSteps& steps) mutable {
                    result->emplace(called(work, steps));
                },
                [done = std::move(done), otherwise = std::move(otherwise),
                 result](const WorkEnd& end) mutable {
                    if (isDone(end, otherwise))
                        done(std::move(**result));
                });
        }
    }

    /// Whether it brought a result; if not, the other end is told.
    [[nodiscard]] static bool isDone(const WorkEnd& end, const OtherEnds& otherwise);
    void start(const Way& way, WorkTask task, WorkEnded ended);

    std::unique_ptr<QObject> m_pieces; ///< parent of what has yet to come back
};

/// Runs work in a pool of its own, to its end whatever becomes of `context`: `ended` is called on
/// the thread of `context`, which is this one, as long as that is there.
void runInPool(QThreadPool& pool, QObject& context, WorkTask task, WorkEnded ended);

} // namespace kavela::desktop
