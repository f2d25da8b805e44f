#include "desktop/shell/disk_worker.h"

#include "desktop/shell/background_work.h"

#include <QCoreApplication>
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

void run(std::function<void()> task) {
    worker().start([task = std::move(task)] { (void)faultOf(task); });
}

void run(QObject& context, std::function<void()> task,
         std::function<void(const std::exception_ptr& fault)> done) {
    runInPool(
        worker(), context, [task = std::move(task)](const WorkSteps&) { task(); },
        [done = std::move(done)](const WorkEnd& end) { done(end.fault); });
}

void waitForAll() {
    worker().waitForDone();
}

} // namespace kavela::desktop::disk
