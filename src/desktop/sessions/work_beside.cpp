#include "desktop/sessions/work_beside.h"

#include <QEventLoop>
#include <QPointer>
#include <QProgressDialog>
#include <QThread>

#include <exception>
#include <memory>

namespace kavela::desktop {

namespace {

constexpr int ShowAfterMilliseconds = 300;

/// A window that takes neither keys nor clicks: what is being worked on would change under the
/// work. The focus comes back to where it was.
class LockedWindow {
public:
    explicit LockedWindow(QWidget& over) : m_window(over.window()), m_focus(over.focusWidget()) {
        m_window->setEnabled(false);
    }
    LockedWindow(const LockedWindow&) = delete;
    LockedWindow& operator=(const LockedWindow&) = delete;
    ~LockedWindow() {
        if (!m_window)
            return;
        m_window->setEnabled(true);
        if (m_focus)
            m_focus->setFocus();
    }

private:
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_focus;
};

} // namespace

void doBeside(QWidget* over, const QString& what, const std::function<void()>& work) {
    const LockedWindow locked(*over->window());
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
