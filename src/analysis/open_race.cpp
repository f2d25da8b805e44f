#include "analysis/open_race.h"

#include "common/safe_file.h"

namespace kavela {

namespace fs = std::filesystem;

namespace {

fs::path backupName(const fs::path& path, int number) {
    const std::string suffix = number == 1 ? "_old.kvb" : "_old" + std::to_string(number) + ".kvb";
    return path.parent_path() / (path.stem().string() + suffix);
}

/// Whether a name is a second one of the same file, and no link that would follow the first.
bool isSecondName(const fs::path& name, const fs::path& path) {
    std::error_code ignored;
    return fs::equivalent(name, path, ignored) &&
           fs::weakly_canonical(name, ignored) != fs::weakly_canonical(path, ignored);
}

/// Keeps the present content under the first free backup name; throws FileError.
fs::path makeBackup(const fs::path& path) {
    for (int number = 1;; ++number) {
        fs::path name = backupName(path, number);
        // An earlier attempt that could not write may have left its backup: it will do.
        if (isSecondName(name, path) || keepUnderSecondName(path, name))
            return name;
    }
}

/// The backup's name, or an empty path when backup or rewriting failed.
fs::path rewriteWithBackup(const splittakerdata031& document, const fs::path& path,
                           const DiagnosticLog& log) {
    fs::path backup;
    try {
        backup = makeBackup(path);
    } catch (const FileError& error) {
        log("Failed to create file");
        log("The file " + path.string() +
            " could not be kept under a second name: " + error.reason());
        return {};
    }
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
