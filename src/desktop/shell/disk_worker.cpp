#include "desktop/shell/disk_worker.h"

#include "common/safe_file.h"
#include "desktop/shell/background_work.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThreadPool>

#include <memory>
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

/// Below what a hand feels as a wait.
std::chrono::milliseconds& waitedAtMost() {
    static std::chrono::milliseconds waited(150);
    return waited;
}

/// Of a task that is waited for; the two threads share it.
struct AwaitedEnd {
    QSemaphore ended;
    std::exception_ptr fault; ///< written before it has ended, read after it
    bool isTold = false;      ///< of the interface thread alone
};

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

void runAwaited(QObject& context, std::function<void()> task,
                std::function<void(const std::exception_ptr& fault)> done) {
    const auto end = std::make_shared<AwaitedEnd>();
    run(
        context,
        [end, task = std::move(task)]() mutable {
            end->fault = faultOf(task);
            task = nullptr; // what it holds goes before its end is told
            end->ended.release();
        },
        [end, done](const std::exception_ptr&) {
            if (!end->isTold)
                done(end->fault);
        });
    if (end->ended.tryAcquire(1, static_cast<int>(patience().count()))) {
        end->isTold = true;
        done(end->fault);
    }
}

void writeAwaited(QObject& context, const std::filesystem::path& file, std::string content,
                  std::function<void(const std::exception_ptr& fault)> done) {
    runAwaited(
        context, [file, content = std::move(content)] { writeFileSafely(file, content); },
        std::move(done));
}

std::chrono::milliseconds patience() {
    return waitedAtMost();
}

void setPatience(std::chrono::milliseconds patience) {
    waitedAtMost() = patience;
}

void waitForAll() {
    worker().waitForDone();
}

} // namespace kavela::desktop::disk
