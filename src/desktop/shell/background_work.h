#pragma once

#include <QMetaObject>
#include <QObject>
#include <QThreadPool>

#include <memory>
#include <mutex>
#include <utility>

namespace kavela::desktop {

/// Runs work beside the interface and hands its result to a window, as long as that is there.
class BackgroundWork {
public:
    explicit BackgroundWork(QObject& receiver) : m_target(std::make_shared<Target>()) {
        m_target->receiver = &receiver;
    }
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;
    /// What has not come back yet comes to nothing.
    ~BackgroundWork() {
        const std::lock_guard lock(m_target->guard);
        m_target->receiver = nullptr;
    }

    /// `work()` runs on another thread and must not throw; `done(result)` on the receiver's.
    template <class Work, class Done>
    void run(Work work, Done done) {
        QThreadPool::globalInstance()->start(
            [target = m_target, work = std::move(work), done = std::move(done)]() mutable {
                auto result = work();
                const std::lock_guard lock(target->guard);
                if (!target->receiver)
                    return;
                QMetaObject::invokeMethod(
                    target->receiver,
                    [done = std::move(done), result = std::move(result)]() mutable {
                        done(std::move(result));
                    },
                    Qt::QueuedConnection);
            });
    }

private:
    struct Target {
        std::mutex guard;
        QObject* receiver = nullptr;
    };
    std::shared_ptr<Target> m_target;
};

} // namespace kavela::desktop
