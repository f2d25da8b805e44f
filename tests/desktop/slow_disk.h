#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"

#include <QSemaphore>

#include <chrono>
#include <memory>

namespace kavela::test {

/// Holds up whatever is to be read or written beside the windows, as a slow disk does, which no
/// window waits for.
class SlowDisk {
public:
    SlowDisk() {
        desktop::disk::setPatience(std::chrono::milliseconds(0));
        desktop::disk::run([gate = m_gate] { gate->acquire(); });
    }
    SlowDisk(const SlowDisk&) = delete;
    SlowDisk& operator=(const SlowDisk&) = delete;
    ~SlowDisk() {
        desktop::disk::setPatience(m_patience);
        m_gate->release();
    }

private:
    std::chrono::milliseconds m_patience = desktop::disk::patience();
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

/// Holds up the files that a coach waits for, as a share far away does.
class SlowReading {
public:
    SlowReading() {
        desktop::disk::setPatience(std::chrono::milliseconds(0));
        for (int i = 0; i < MoreThanThreads; ++i)
            m_work.runAwaited(
                [gate = m_gate, ended = m_ended] {
                    gate->acquire();
                    ended->release();
                },
                [] {});
    }
    SlowReading(const SlowReading&) = delete;
    SlowReading& operator=(const SlowReading&) = delete;
    ~SlowReading() {
        desktop::disk::setPatience(m_patience);
        m_gate->release(MoreThanThreads);
        m_ended->acquire(MoreThanThreads);
    }

private:
    static constexpr int MoreThanThreads = 32;

    std::chrono::milliseconds m_patience = desktop::disk::patience();
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
    std::shared_ptr<QSemaphore> m_ended = std::make_shared<QSemaphore>();
    desktop::BackgroundWork m_work;
};

} // namespace kavela::test
