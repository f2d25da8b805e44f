#pragma once

#include "common/alerts.h"
#include "common/error.h"
#include "common/json_document.h"
#include "common/log.h"
#include "planning/planning_records.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The training planning file (.planning) of every version: it is tried as the newest document type
/// and then as each older one; the first that decodes wins, and nothing else decides.
namespace kavela {

inline constexpr const char* PlanningExtension = ".planning";

/// One document type of the planning file.
struct PlanningVersion {
    std::string_view record; ///< "planningdatac_v6"
    std::string_view label;  ///< "6"
    /// Decodes a document as this type and brings it to the current one. False, with the fault
    /// told, when it is of another type.
    bool (*read)(simdjson::dom::element root, planningdatac_v6& document, Fault& fault);
};

/// Every document type, newest first: the order in which they are tried.
[[nodiscard]] std::span<const PlanningVersion> planningVersions();

/// A planning as found on the disk, brought to the current version in memory only.
struct RecognisedPlanning {
    const PlanningVersion* version = nullptr; ///< null when no type decoded
    planningdatac_v6 document;                ///< empty when no type decoded
    std::vector<FailedAttempt> failures;      ///< the types tried before, newest first
    std::filesystem::path path;               ///< of the file; empty for a document that has none

    [[nodiscard]] bool isCurrent() const { return version == &planningVersions().front(); }
};

/// Finds the version of a document; an older one is converted, which the log is told.
[[nodiscard]] RecognisedPlanning recognisePlanningDocument(const JsonDocument& json,
                                                           const DiagnosticLog& log);

/// The same for a file. One that cannot be read fails every attempt, with the reason as the fault.
[[nodiscard]] RecognisedPlanning recognisePlanningFile(const std::filesystem::path& path,
                                                       const DiagnosticLog& log);

/// How many variability measurements of an older document kept only a highest and a lowest value:
/// the current records have no place for those two, so that only the dates are taken over.
[[nodiscard]] std::size_t variabilityWithoutPlace(const RecognisedPlanning& planning);

/// How a tool opens a planning of any version; the file is only read. Nothing, and an alert, when
/// no version decodes; the reason goes to the log.
[[nodiscard]] std::optional<planningdatac_v6>
openPlanningFile(const std::filesystem::path& path, const DiagnosticLog& log, Alerts& alerts);

/// Shows the alert of a file that no version decodes, and logs what is wrong in it.
void reportIncompatible(const RecognisedPlanning& planning, const DiagnosticLog& log,
                        Alerts& alerts);

/// Writes a planning safely; on a failure it logs "Failed to create file" and the reason and
/// returns false. The old file is then untouched.
[[nodiscard]] bool savePlanningFile(const planningdatac_v6& document,
                                    const std::filesystem::path& path, const DiagnosticLog& log);

/// Rewrites an older planning in the current version. The file as it was is kept beside it as
/// NAME_old.planning (NAME_old2.planning and so on when that is taken); where it cannot be kept,
/// nothing is written. False, after a log line, on failure.
[[nodiscard]] bool rewritePlanningFile(const RecognisedPlanning& planning,
                                       const std::filesystem::path& path, const DiagnosticLog& log);

/// Whether a file is what rewriting another one kept: its stem ends in "_old", "_old2" and so on.
[[nodiscard]] bool isKeptName(const std::filesystem::path& path);

} // namespace kavela
