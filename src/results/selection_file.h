#pragma once

#include "common/alerts.h"
#include "common/error.h"
#include "common/json_document.h"
#include "common/log.h"
#include "results/selection_records.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Selection files (.kvsr). A file is what it decodes as, tried newest first.
namespace kavela {

/// One layout of the selection file.
struct SelectionVersion {
    std::string_view record; ///< "selectionracesStruct_v3"
    std::string_view label;  ///< "3"
    /// Decodes a document as this layout and brings it to the current one. False, with the fault
    /// told, when it is of another. A single preselection flag becomes the first of a list; an
    /// athlete of an older layout has no bonuses.
    bool (*read)(simdjson::dom::element root, selectionracesStruct_v3& document, Fault& fault);
};

/// Every layout, newest first.
[[nodiscard]] std::span<const SelectionVersion> selectionVersions();

/// A selection file as found, brought to the current layout in memory only.
struct RecognisedSelectionFile {
    const SelectionVersion* version = nullptr; ///< null when no layout decoded
    selectionracesStruct_v3 document;
    std::vector<FailedAttempt> failures; ///< the layouts tried before, newest first
    std::filesystem::path path;          ///< of the file; empty for a document that has none

    [[nodiscard]] bool isCurrent() const { return version == &selectionVersions().front(); }
};

[[nodiscard]] RecognisedSelectionFile recogniseSelectionDocument(const JsonDocument& json);

/// The same for a file; one that cannot be read fails every attempt, with the reason as the fault.
[[nodiscard]] RecognisedSelectionFile recogniseSelectionFile(const std::filesystem::path& path);

/// Writes a document, safely; on a failure it logs messages::SelectionNotSaved and the reason, and
/// returns false. The old file is then untouched.
[[nodiscard]] bool saveSelectionFile(const selectionracesStruct_v3& document,
                                     const std::filesystem::path& path, const DiagnosticLog& log);

/// Rewrites a file of an older layout in the current one. The previous file is kept beside it as
/// "NAME_old.kvsr", or "NAME_old2.kvsr" and so on where that is taken; when it cannot be kept,
/// nothing is rewritten. False, and the reason in the log, when the file stayed as it was.
[[nodiscard]] bool rewriteSelectionFile(const RecognisedSelectionFile& file,
                                        const std::filesystem::path& path,
                                        const DiagnosticLog& log);

/// How a window opens a selection file: one of an older layout is rewritten first, and opens all
/// the same where that cannot be. Nothing, and an alert, when no layout decodes it.
[[nodiscard]] std::optional<selectionracesStruct_v3>
openSelectionFile(const std::filesystem::path& path, const DiagnosticLog& log, Alerts& alerts);

/// Logs why a recognition failed and shows the alert of an incompatible file.
void reportIncompatible(const RecognisedSelectionFile& file, const DiagnosticLog& log,
                        Alerts& alerts);

} // namespace kavela
