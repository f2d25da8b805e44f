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
            writePdf(*file.make(), folder / file.name);
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
