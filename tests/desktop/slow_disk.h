#pragma once

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

} // namespace kavela::test
