#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

/// Loaded before any program with windows: prints how many milliseconds after its start (the
/// microseconds of the steady clock in KAVELA_STARTED_AT) its first window was shown and painted,
/// with the name of the window's class, and lets the program end.
namespace {

class FirstPicture : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* const window = qobject_cast<QWidget*>(object);
        if (event->type() != QEvent::Paint || m_isPainted || !window || !window->isWindow())
            return false;
        m_isPainted = true;
        // What stands in the window is painted within the same event, and flushed before the next.
        QTimer::singleShot(0, window, [window] {
            const auto now = std::chrono::duration_cast<std::chrono::microseconds>(
                std::chrono::steady_clock::now().time_since_epoch());
            const qint64 start = qgetenv("KAVELA_STARTED_AT").toLongLong();
            std::printf("%.3f %s\n", static_cast<double>(now.count() - start) / 1e3,
                        window->metaObject()->className());
            std::fflush(stdout);
            QCoreApplication::quit();
        });
        return false;
    }

private:
    bool m_isPainted = false;
};

void watch() {
    qApp->installEventFilter(new FirstPicture(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
