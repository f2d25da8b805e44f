#include "cli/split_file_edit.h"

#include "cli/console.h"
#include "common/text.h"

namespace kavela::cli {

std::optional<RecognisedSplitFile> openedSplitFile(const std::string& path) {
    RecognisedSplitFile file = recogniseSplitFile(path, logLine, systemNow);
    if (file.version)
        return file;
    ConsoleAlerts alerts;
    reportIncompatible(file, logLine, alerts);
    return std::nullopt;
}

bool isWritable(const RecognisedSplitFile& file, const std::string& path) {
    if (file.isCurrent())
        return true;
    logLine(say("The file {} is of an older version, {}, and was not changed. Bring it to the "
                "current one first: kavela upgrade {}",
                pathText(path), file.version->label, pathText(path)));
    return false;
}

bool isSaved(splittakerdata031& document, const std::string& path) {
    document.info.lastSavedDate = systemNow();
    return saveSplitFile(document, path, logLine);
}

} // namespace kavela::cli
