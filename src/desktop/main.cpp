#include "app/start_up.h"
#include "desktop/desktop.h"
#include "desktop/shell/diagnostic_log.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QStandardPaths>
#include <QStyleFactory>

using namespace kavela;
using namespace kavela::desktop;

namespace {

std::filesystem::path logFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    return std::filesystem::path(folder.toStdString()) / "logs" / "kavela.log";
}

/// Follows the platform's scheme; KAVELA_SCHEME=dark or light decides where the platform has none.
void applyScheme() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QByteArray wanted = qgetenv("KAVELA_SCHEME");
    const bool isDark =
        wanted.isEmpty() ? theme::isDark(QApplication::palette()) : wanted == "dark";
    QApplication::setPalette(isDark ? theme::darkPalette() : theme::lightPalette());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Kavela");
    QApplication::setOrganizationName("Kavela");
    QApplication::setApplicationVersion(KAVELA_VERSION);
    applyScheme();

    Workspace workspace(Preferences(), rotatingLog(logFile()), systemNow);
    workspace.startUp(userLibraryFolder());
    Desktop program(workspace);
    const QStringList files = QApplication::arguments().mid(1);
    if (!files.isEmpty())
        program.openAll(files);
    program.offerRecovery();
    program.loadPlanningAtStart();
    if (!program.hasWindows() && (!files.isEmpty() || !program.restoreSession()))
        program.showHome();
    return QApplication::exec();
}
