#pragma once

#include <QSemaphore>
#include <QThreadPool>

#include <memory>

namespace kavela::test {

/// Holds up whatever is to be computed beside the windows.
class BusyThreads {
public:
    BusyThreads() {
        QThreadPool& pool = *QThreadPool::globalInstance();
        for (int i = 0; i < pool.maxThreadCount(); ++i)
            pool.start([gate = m_gate] { gate->acquire(); });
    }
    BusyThreads(const BusyThreads&) = delete;
    BusyThreads& operator=(const BusyThreads&) = delete;
    ~BusyThreads() { m_gate->release(QThreadPool::globalInstance()->maxThreadCount()); }

private:
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

} // namespace kavela::test
