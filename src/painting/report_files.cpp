#include "painting/report_files.h"

#include "cli/console.h"
#include "common/error.h"
#include "painting/offscreen_application.h"
#include "report/pdf_file.h"

namespace kavela::painting {

bool areReportsWritten(const std::vector<ReportFile>& reports,
                       const std::filesystem::path& folder) {
    const OffscreenApplication application;
    bool areWritten = true;
    for (const ReportFile& file : reports) {
        try {
            const std::filesystem::path path = folder / file.name;
            const auto report = file.make();
            if (file.keepsOthers && std::filesystem::is_regular_file(path) &&
                !report::isOwnPdf(path, report->documentTitle())) {
                cli::logLine("The file " + cli::pathText(path) +
                             " is there already and holds something else: it was not replaced.");
                areWritten = false;
                continue;
            }
            writePdf(*report, path);
        } catch (const FileError& error) {
            cli::logLine("Failed to create file");
            cli::logLine("The file " + cli::pathText(error.path()) +
                         " could not be written: " + error.reason());
            areWritten = false;
        }
    }
    return areWritten;
}

} // namespace kavela::painting
