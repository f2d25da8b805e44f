#pragma once

#include "report/paged_report.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kavela::painting {

/// A report to be written under a name of its own.
struct ReportFile {
    std::string name; ///< without folder
    std::function<std::unique_ptr<report::PagedReport>()> make;
    /// Its name is not of our choice, so a file that stands there is replaced only if it is an
    /// earlier one of the same report.
    bool keepsOthers = false;
};

/// Makes the reports and writes them into a folder that exists; false, after a message, when one
/// of them could not be written.
[[nodiscard]] bool areReportsWritten(const std::vector<ReportFile>& reports,
                                     const std::filesystem::path& folder);

} // namespace kavela::painting
