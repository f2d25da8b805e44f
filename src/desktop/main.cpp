#include "desktop/desktop.h"
#include "desktop/one_program.h"
#include "desktop/shell/autosave_place.h"
#include "desktop/shell/diagnostic_log.h"
#include "desktop/shell/edged_style.h"
#include "desktop/shell/language.h"
#include "desktop/shell/scheme.h"
#include "desktop/shell/screen_fit.h"
#include "desktop/start_options.h"
#include "preferences/start_up.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

using namespace kavela;
using namespace kavela::desktop;

namespace {

constexpr int BadUse = 2;
/// By which the desktop lets the window of this start come forward.
constexpr const char* ActivationToken = "XDG_ACTIVATION_TOKEN";

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

/// As seen from the folder that the program was started in.
QStringList absolute(const QStringList& files) {
    QStringList paths;
    for (const QString& file : files)
        paths.append(QDir::current().absoluteFilePath(file));
    return paths;
}

/// Starts as the one program of the user, as a further one, or only hands the call over.
OneProgram::Start begin(OneProgram& one, const OneProgram::Call& call, bool isNew) {
    const OneProgram::Start start = isNew ? one.startBeside() : one.start(call);
    if (start == OneProgram::Start::Beside && !isNew)
        std::fputs("The Kavela that is running does not answer. Another one starts beside it.\n",
                   stderr);
    if (start == OneProgram::Start::Unknown)
        std::fprintf(stderr, "Other starts of Kavela cannot find this one: no socket at “%s”.\n",
                     qUtf8Printable(one.place()));
    return start;
}

/// What is on the screen when the program has started. The work and the windows of a program that
/// runs are its own: one beside it has only what it was called with.
void showAtStart(Desktop& program, const QStringList& files, bool isBeside) {
    if (!files.isEmpty())
        program.openAll(files);
    if (!isBeside) {
        program.offerRecovery();
        program.loadPlanningAtStart();
    }
    if (program.hasWindows())
        return;
    const bool isRestored = !isBeside && files.isEmpty() && program.restoreSession();
    if (!isRestored)
        program.showHome();
}

} // namespace

int main(int argc, char** argv) {
    if (const auto answer = answerWithoutWindow(argumentsOf(argc, argv), KAVELA_VERSION)) {
        std::fputs(qUtf8Printable(*answer), stdout);
        return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    const QByteArray activation = qgetenv(ActivationToken); // the toolkit may take it
    QApplication application(argc, argv);
    QApplication::setApplicationName("Kavela");
    QApplication::setOrganizationName("Kavela");
    QApplication::setApplicationVersion(KAVELA_VERSION);
    const StartOptions options = startOptions(QApplication::arguments().mid(1));
    if (!options.fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(options.fault));
        return BadUse;
    }
    const QStringList files = absolute(options.files);
    OneProgram one(meetingPlace());
    const OneProgram::Start start = begin(one, {files, activation}, options.isNew);
    if (start == OneProgram::Start::HandedOver)
        return EXIT_SUCCESS;
    QApplication::setStyle(new EdgedStyle);
    const ScreenFit screenFit(nullptr);

    Workspace workspace(Preferences(), rotatingLog(logFile()), systemNow);
    workspace.startUp(userLibraryFolder());
    workspace.setUpdateSource(update::builtInUpdateSource());
    applyScheme(workspace);
    const SpokenLanguage language(spokenLanguage(workspace), !chosenLanguage(workspace).isEmpty());
    const AutosavePlace kept(autosaveFolder(), start == OneProgram::Start::Beside
                                                   ? AutosavePlace::Program::Beside
                                                   : AutosavePlace::Program::One);
    Desktop program(workspace, Autosave(kept.folder()));
    showAtStart(program, files, start == OneProgram::Start::Beside);
    one.serve([&program](const OneProgram::Call& call) {
        if (!call.activation.isEmpty())
            qputenv(ActivationToken, call.activation);
        program.comeForward(call.files);
    });
    // Once everything stands on the screen, and other starts are answered.
    if (start != OneProgram::Start::Beside)
        QTimer::singleShot(0, &program, &Desktop::lookForVersions);
    return QApplication::exec();
}
