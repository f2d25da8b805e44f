#pragma once

#include "common/error.h"
#include "common/json_document.h"
#include "results/team_records.h"

#include <filesystem>
#include <optional>

/// Team files (.kvteam). There is one layout.
namespace kavela {

inline constexpr const char* TeamRecord = "myTeamToSaveStruct";

/// What a document turned out to be: a team, or the first thing that speaks against it.
struct RecognisedTeam {
    std::optional<myTeamToSaveStruct> team;
    std::optional<FailedAttempt> failure;
};
[[nodiscard]] RecognisedTeam recogniseTeamDocument(const JsonDocument& json);

/// Reads a team. Throws FileError and DecodeError.
[[nodiscard]] myTeamToSaveStruct readTeamFile(const std::filesystem::path& path);

/// Writes a team, safely. Throws FileError, or EncodeError for what JSON cannot hold; the old file
/// is then untouched.
void saveTeamFile(const myTeamToSaveStruct& team, const std::filesystem::path& path);

} // namespace kavela
