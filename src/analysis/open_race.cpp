#include "analysis/open_race.h"

#include "common/kept_file.h"

namespace kavela {

namespace fs = std::filesystem;

namespace {

/// The backup's name, or an empty path when backup or rewriting failed.
fs::path rewriteWithBackup(const splittakerdata031& document, const fs::path& path,
                           const DiagnosticLog& log) {
    fs::path backup = keepPreviousFile(path, ".kvb", "Failed to create file", log);
    if (backup.empty())
        return backup;
    log("I am wriwriting in " + path.string());
    return saveSplitFile(document, path, log) ? backup : fs::path();
}

} // namespace

std::optional<OpenedRace> openRace(const fs::path& path, const DiagnosticLog& log, Alerts& alerts,
                                   const Clock& clock) {
    RecognisedSplitFile file = recogniseSplitFile(path, log, clock);
    if (!file.version) {
        reportIncompatible(file, log, alerts);
        return std::nullopt;
    }
    OpenedRace race;
    race.foundAs = file.version;
    if (!file.isCurrent())
        race.backup = rewriteWithBackup(file.document, path, log);
    race.document = std::move(file.document);
    return race;
}

} // namespace kavela
