#include "cli/upgrade_paths.h"

#include "cli/console.h"
#include "planning/planning_file.h"
#include "results/selection_file.h"

#include <algorithm>
#include <cctype>
#include <unistd.h>

namespace kavela::cli {

namespace fs = std::filesystem;

namespace {

/// Whether files of this name are upgraded when their folder is. What an upgrade has kept is not.
bool isUpgradedName(const fs::path& path) {
    const std::string extension = smallExtension(path);
    return extension == ".kvx" || (extension == ".kvsr" && !isKeptName(path)) ||
           (extension == PlanningExtension && !isKeptName(path));
}

void walk(const fs::path& folder, PathsToUpgrade& found) {
    const std::size_t before = found.files.size();
    std::error_code error;
    fs::recursive_directory_iterator entry(folder, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code unreadable;
        if (entry->is_directory(unreadable) && ::access(entry->path().c_str(), R_OK | X_OK) != 0) {
            found.faults.push_back("The folder " + pathText(entry->path()) +
                                   " could not be read: no permission");
            entry.disable_recursion_pending();
        } else if (isUpgradedName(entry->path()) && entry->is_regular_file(unreadable)) {
            found.files.push_back(entry->path());
        }
    }
    if (error)
        found.faults.push_back("The folder " + pathText(folder) +
                               " could not be read: " + error.message());
    std::sort(found.files.begin() + static_cast<std::ptrdiff_t>(before), found.files.end());
}

/// The same file named twice would be written by two threads at once.
void dropRepeated(std::vector<fs::path>& files) {
    std::vector<fs::path> seen;
    std::erase_if(files, [&](const fs::path& file) {
        std::error_code ignored;
        const fs::path real = fs::weakly_canonical(file, ignored);
        const auto at = std::lower_bound(seen.begin(), seen.end(), real);
        if (at != seen.end() && *at == real)
            return true;
        seen.insert(at, real);
        return false;
    });
}

} // namespace

std::string smallExtension(const fs::path& path) {
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

PathsToUpgrade filesToUpgrade(const std::vector<std::string>& paths) {
    PathsToUpgrade found;
    for (const fs::path path : paths) {
        std::error_code ignored;
        if (fs::is_directory(path, ignored))
            walk(path, found);
        else
            found.files.push_back(path);
    }
    dropRepeated(found.files);
    return found;
}

} // namespace kavela::cli
