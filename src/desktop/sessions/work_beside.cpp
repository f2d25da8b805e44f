#include "desktop/sessions/work_beside.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>

#include <exception>
#include <memory>

namespace kavela::desktop {

namespace {

constexpr int ShowAfterMilliseconds = 300;

} // namespace

void doBeside(QWidget* over, const QString& what, const std::function<void()>& work) {
    std::exception_ptr failure;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
    }));
    QProgressDialog progress(what, QString(), 0, 0, over); // how far it is cannot be told
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(ShowAfterMilliseconds);
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace kavela::desktop
