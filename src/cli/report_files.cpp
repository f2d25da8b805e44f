#include "cli/report_files.h"

#include "cli/console.h"
#include "common/error.h"
#include "report/pdf_file.h"

#include <QGuiApplication>

namespace kavela::cli {

namespace {

/// Takes what the font machinery tells programmers, such as which font lacks which script.
void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

bool areReportsWritten(const std::vector<ReportFile>& reports,
                       const std::filesystem::path& folder) {
    // Fonts ask for an application object, and get one that stays off the screen.
    std::string arguments[] = {"kavela", "-platform", "offscreen"};
    char* argv[] = {arguments[0].data(), arguments[1].data(), arguments[2].data(), nullptr};
    int argc = 3;
    qInstallMessageHandler(ignoreMessage);
    const QGuiApplication application(argc, argv);
    bool areWritten = true;
    for (const ReportFile& file : reports) {
        try {
            writePdf(*file.make(), folder / file.name);
        } catch (const FileError& error) {
            logLine("Failed to create file");
            logLine("The file " + pathText(error.path()) +
                    " could not be written: " + error.reason());
            areWritten = false;
        }
    }
    return areWritten;
}

} // namespace kavela::cli
