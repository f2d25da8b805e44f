#include "desktop/desktop.h"
#include "desktop/shell/diagnostic_log.h"
#include "desktop/shell/scheme.h"
#include "desktop/shell/screen_fit.h"
#include "desktop/start_options.h"
#include "preferences/start_up.h"

#include <QApplication>
#include <QStandardPaths>
#include <QStyleFactory>

#include <cstdio>

using namespace kavela;
using namespace kavela::desktop;

namespace {

constexpr int BadUse = 2;

std::filesystem::path logFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    return std::filesystem::path(folder.toStdString()) / "logs" / "kavela.log";
}

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto answer = answerWithoutWindow(argumentsOf(argc, argv), KAVELA_VERSION)) {
        std::fputs(qUtf8Printable(*answer), stdout);
        return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("Kavela");
    QApplication::setOrganizationName("Kavela");
    QApplication::setApplicationVersion(KAVELA_VERSION);
    const StartOptions options = startOptions(QApplication::arguments().mid(1));
    if (!options.fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(options.fault));
        return BadUse;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const ScreenFit screenFit(nullptr);

    Workspace workspace(Preferences(), rotatingLog(logFile()), systemNow);
    workspace.startUp(userLibraryFolder());
    applyScheme(workspace);
    Desktop program(workspace);
    if (!options.files.isEmpty())
        program.openAll(options.files);
    program.offerRecovery();
    program.loadPlanningAtStart();
    if (program.windows().isEmpty() && (!options.files.isEmpty() || !program.restoreSession()))
        program.showHome();
    return QApplication::exec();
}
