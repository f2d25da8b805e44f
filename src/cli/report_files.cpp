#include "cli/report_files.h"

#include "cli/console.h"
#include "cli/offscreen_application.h"
#include "common/error.h"
#include "report/pdf_file.h"

namespace kavela::cli {

bool areReportsWritten(const std::vector<ReportFile>& reports,
                       const std::filesystem::path& folder) {
    const OffscreenApplication application;
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
