#include "cli/fact_input.h"

#include "cli/console.h"
#include "cli/upgrade_paths.h"
#include "splitdata/loader.h"

#include <algorithm>
#include <utility>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

/// The split files among what a call names; a file named by itself is taken whatever it is called.
std::vector<fs::path> splitFilesOf(const std::vector<std::string>& paths, FactInput& input) {
    PathsToUpgrade found = filesToUpgrade(paths);
    for (const std::string& fault : found.faults)
        input.failed.push_back({{}, fault});
    std::erase_if(found.files, [&](const fs::path& file) {
        const bool isNamed = std::ranges::find(paths, file.string()) != paths.end();
        return !isNamed && smallExtension(file) != ".kvx";
    });
    return std::move(found.files);
}

} // namespace

FactInput factsFrom(const std::vector<std::string>& paths) {
    FactInput input;
    for (const fs::path& file : splitFilesOf(paths, input)) {
        ++input.files;
        const RecognisedSplitFile recognised = recogniseSplitFile(file, logNothing, systemNow);
        if (!recognised.version) {
            input.failed.push_back({file, incompatibleText(file, recognised.failures)});
            continue;
        }
        input.facts.add(recognised.document, file);
        ++input.read;
    }
    return input;
}

} // namespace kavela::cli
