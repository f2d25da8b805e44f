#pragma once

#include "common/alerts.h"
#include "common/error.h"
#include "common/json_document.h"
#include "common/log.h"
#include "common/reference_date.h"
#include "splitdata/history/versions.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Opening split files of every release: a file is tried as the newest document type and then as
/// each older one; the first that decodes wins, and nothing else decides.
namespace kavela {

/// What the user sees when no release can have written a file.
inline constexpr const char* IncompatibleFileText =
    "The imported file is not compatible. Be sure you have the latest KV version.";

/// That, and in a second sentence which file it is and what is wrong with it; `failures` are the
/// types it was tried as. Without a path nothing more is known.
[[nodiscard]] std::string incompatibleText(const std::filesystem::path& path,
                                           const std::vector<FailedAttempt>& failures);

/// A split file as found on the disk, brought to the current version in memory only.
struct RecognisedSplitFile {
    const DocumentVersion* version = nullptr; ///< null when no type decoded
    splittakerdata031 document;               ///< empty when no type decoded
    std::vector<FailedAttempt> failures;      ///< the types tried before, newest first
    std::filesystem::path path;               ///< of the file

    [[nodiscard]] bool isCurrent() const { return version == &documentVersions().front(); }
};

/// Reads a file and finds its version. Writes "Trying version …" lines and, when nothing decodes,
/// the loader's last words to the log. `lastSavedDate` of an older document is the clock's moment.
/// A file that cannot be read fails every attempt, with the reason as the fault.
[[nodiscard]] RecognisedSplitFile recogniseSplitFile(const std::filesystem::path& path,
                                                     const DiagnosticLog& log, const Clock& clock);

/// The same for a document already parsed; `path` is what the log calls it.
[[nodiscard]] RecognisedSplitFile recogniseSplitDocument(const JsonDocument& json,
                                                         const std::filesystem::path& path,
                                                         const DiagnosticLog& log,
                                                         const Clock& clock);

/// Writes a document to a path, safely and in the current version; on a failure it logs
/// "Failed to create file" and the reason, and returns false. The old file is then untouched.
[[nodiscard]] bool saveSplitFile(const splittakerdata031& document,
                                 const std::filesystem::path& path, const DiagnosticLog& log);

/// Rewrites an older file in the current version, in place; does nothing to any other file.
void upgradeSplitFile(const std::filesystem::path& path, const DiagnosticLog& log,
                      const Clock& clock);

/// How every reader opens a split file: an older one is upgraded in place first. Nothing, and an
/// alert, when it cannot be opened; the reason goes to the log.
[[nodiscard]] std::optional<splittakerdata031> readSplitFile(const std::filesystem::path& path,
                                                             const DiagnosticLog& log,
                                                             Alerts& alerts, const Clock& clock);

/// Logs why a recognition failed and shows the alert of an incompatible file.
void reportIncompatible(const RecognisedSplitFile& file, const DiagnosticLog& log, Alerts& alerts);

} // namespace kavela
