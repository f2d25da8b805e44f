#include "cli/fact_scan.h"

#include "cli/console.h"
#include "cli/progress_bar.h"

#include <optional>

namespace kavela::cli {

namespace {

FolderScan scanWithBar(const std::vector<std::string>& paths) {
    std::optional<ProgressBar> bar;
    std::size_t total = 0;
    ScanOptions options;
    options.cacheFolder = userCacheFolder();
    options.progress = [&](std::size_t done, std::size_t count) {
        // Each folder of the call is a work of its own.
        if (done == 1 || count != total) {
            bar.emplace(count);
            total = count;
        }
        bar->step();
    };
    const std::vector<std::filesystem::path> named(paths.begin(), paths.end());
    return scanPaths(named, options);
}

} // namespace

FolderScan scanNamed(const std::vector<std::string>& paths) {
    FolderScan scan = scanWithBar(paths);
    for (const ScanFault& fault : scan.failed)
        logLine(pathText(fault.path) + ": " + fault.reason);
    for (const ScanCopy& copy : scan.copies)
        logLine(pathText(copy.path) + ": is a copy of " + pathText(copy.of) +
                " and does not count.");
    return scan;
}

bool hasFiles(const FolderScan& scan) {
    if (scan.facts.files().empty() && scan.failed.empty())
        logLine("There is no split file.");
    return !scan.facts.files().empty();
}

} // namespace kavela::cli
