#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QPromise>
#include <QThreadPool>

#include <memory>
#include <utility>

namespace kavela::fetch {

/// Runs what takes a disk's time on another thread; `done(result)` is called on the thread of
/// `context` as long as that is there. `work` throws nothing and holds what it works on.
template <class Work, class Done>
void runBeside(QObject* context, Work work, Done done,
               QThreadPool& pool = *QThreadPool::globalInstance()) {
    using Result = decltype(work());
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    auto* const watcher = new QFutureWatcher<Result>(context); // goes with it
    QObject::connect(watcher, &QFutureWatcher<Result>::finished, context,
                     [watcher, done = std::move(done)]() mutable {
                         watcher->deleteLater();
                         done(watcher->result());
                     });
    watcher->setFuture(promise->future());
    pool.start([promise, work = std::move(work)] {
        promise->addResult(work());
        promise->finish();
    });
}

} // namespace kavela::fetch
