#include "desktop/shell/disk_worker.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>
#include <QThreadPool>

#include <utility>

namespace kavela::desktop::disk {

namespace {

/// A pool of one thread keeps the order. It has ended its work before the program's objects go, to
/// which it tells the outcome.
QThreadPool& worker() {
    static QThreadPool pool;
    static const bool IsWaitedFor = [] {
        pool.setMaxThreadCount(1);
        qAddPostRoutine(waitForAll);
        return true;
    }();
    (void)IsWaitedFor;
    return pool;
}

} // namespace

std::exception_ptr faultOf(const std::function<void()>& task) {
    try {
        task();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

void run(std::function<void()> task) {
    worker().start([task = std::move(task)] { (void)faultOf(task); });
}

/// Whether the context is still there is asked on its own thread, where it cannot go meanwhile.
void run(QObject* context, std::function<void()> task,
         std::function<void(std::exception_ptr fault)> done) {
    worker().start(
        [task = std::move(task), done = std::move(done), context = QPointer(context)]() mutable {
            const std::exception_ptr fault = faultOf(task);
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [done = std::move(done), context = std::move(context), fault] {
                    if (context)
                        done(fault);
                },
                Qt::QueuedConnection);
        });
}

void waitForAll() {
    worker().waitForDone();
}

} // namespace kavela::desktop::disk
