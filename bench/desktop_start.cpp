#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <vector>

/// How long the desktop program takes from the start of its process until its home window is
/// painted, beside the least program of the same toolkit that shows a window. Both are started in
/// turns, so that a busy moment of the machine falls on both alike.
namespace {

constexpr int Repetitions = 15;

/// One of the two, with a home of its own: no coach's preferences, no work to be taken up again.
class Starter {
public:
    Starter(QString program, QString window)
        : m_program(std::move(program)), m_window(std::move(window)) {
        m_environment.insert("HOME", m_home.path());
        for (const char* kind : {"CONFIG", "DATA", "CACHE", "STATE"})
            m_environment.remove(QString("XDG_%1_HOME").arg(kind));
        m_environment.insert("LD_PRELOAD", KAVELA_FIRST_PICTURE);
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            m_environment.insert("QT_QPA_PLATFORM", "offscreen");
        (void)milliseconds(); // the first one ever also creates preferences
    }

    void start() { m_times.push_back(milliseconds()); }

    [[nodiscard]] double median() const {
        std::vector<double> times = m_times;
        std::ranges::sort(times);
        return times[times.size() / 2];
    }

private:
    double milliseconds() {
        const auto now = std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
        m_environment.insert("KAVELA_STARTED_AT", QString::number(now.count()));
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(m_program, QStringList());
        const bool hasEnded = process.waitForFinished(30'000);
        const QList<QByteArray> told = process.readAllStandardOutput().trimmed().split(' ');
        if (!hasEnded || process.exitCode() != 0 || told.size() != 2 ||
            told[1] != m_window.toUtf8())
            throw std::runtime_error(m_program.toStdString() + " did not show its window: " +
                                     process.readAllStandardError().toStdString());
        return told[0].toDouble();
    }

    QString m_program;
    QString m_window; ///< the class of what it shows
    QTemporaryDir m_home;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::vector<double> m_times;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        Starter desktop(KAVELA_DESKTOP_PROGRAM, "kavela::desktop::HomeWindow");
        Starter bare(KAVELA_BARE_WINDOW, "QWidget");
        for (int i = 0; i < Repetitions; ++i)
            for (const bool isFirst : {true, false})
                (isFirst == (i % 2 == 0) ? desktop : bare).start();
        std::printf(
            "kavela-desktop until its home window is painted %.0f ms, a program with a bare "
            "window %.0f ms: %.2f times\n",
            desktop.median(), bare.median(), desktop.median() / bare.median());
    } catch (const std::runtime_error& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
