#include "cli/fact_input.h"

#include "cli/console.h"
#include "cli/split_file_edit.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace kavela::cli {

namespace fs = std::filesystem;

std::optional<FactStore> factsOfFile(const std::string& path) {
    const std::optional<RecognisedSplitFile> file = openedSplitFile(path);
    if (!file)
        return std::nullopt;
    std::optional<FactStore> facts(std::in_place);
    facts->add(file->document, path);
    return facts;
}

bool wouldReplaceSource(const FactStore& facts, const std::string& target) {
    return !target.empty() && std::ranges::any_of(facts.files(), [&](const FileRow& file) {
        std::error_code ignored;
        return fs::equivalent(fs::path(facts.text(file.path)), target, ignored);
    });
}

bool isTableWritten(const std::string& target, const std::string& table) {
    if (target.empty())
        return true;
    try {
        writeFileSafely(target, table);
        return true;
    } catch (const FileError& error) {
        logLine("Failed to create file");
        logLine(say("The file {} could not be written: {}", pathText(target), error.reason()));
        return false;
    }
}

} // namespace kavela::cli
