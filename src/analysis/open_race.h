#pragma once

#include "splitdata/loader.h"

#include <filesystem>
#include <optional>

namespace kavela {

/// A race that the analyzer opened.
struct OpenedRace {
    splittakerdata031 document;
    const DocumentVersion* foundAs = nullptr; ///< what the file was before
    std::filesystem::path backup;             ///< the previous file, if it was rewritten
};

/// Opens a split file for analysis. One of an older release is rewritten in the current version,
/// after its previous content was kept beside it as "NAME_old.kvb" ("NAME_old2.kvb" and so on where
/// that exists). When backup or rewriting fails, "Failed to create file" and the reason go to the
/// log, the file stays as it was, and the race opens all the same. Nothing, and an alert, for a
/// file that no release can have written.
[[nodiscard]] std::optional<OpenedRace> openRace(const std::filesystem::path& path,
                                                 const DiagnosticLog& log, Alerts& alerts,
                                                 const Clock& clock);

} // namespace kavela
