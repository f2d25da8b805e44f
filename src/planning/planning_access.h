#pragma once

#include "common/error.h"
#include "common/json_document.h"
#include "planning/planning_records.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The access record of a shared planning (.planinf). It holds passwords in the clear: what is
/// shown of it is `peopleOf` and nothing else, and a new file of it can be read by its owner alone.
namespace kavela {

inline constexpr const char* PlanningAccessExtension = ".planinf";
inline constexpr std::string_view PlanningAccessRecord = "planninginfo_v1";

/// What a document turned out to be: the record, or why it is none.
struct RecognisedAccess {
    planninginfo_v1 access;
    std::optional<FailedAttempt> failure; ///< nothing when it decoded
};

[[nodiscard]] RecognisedAccess recognisePlanningAccess(const JsonDocument& json);

/// Throws FileError and DecodeError.
[[nodiscard]] planninginfo_v1 readPlanningAccess(const std::filesystem::path& path);

/// Replaces the file safely; the permissions of one that exists are kept. Throws FileError and
/// EncodeError; the old file is then untouched.
void savePlanningAccess(const planninginfo_v1& access, const std::filesystem::path& path);

/// A person who may open a shared planning, as far as others may know.
struct PersonWithAccess {
    std::string name;
    std::string permission; ///< empty when the record holds none
};

[[nodiscard]] std::vector<PersonWithAccess> peopleOf(const planninginfo_v1& access);

} // namespace kavela
