#pragma once

#include "page/athlete_page.h"

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace kavela::page {

/// A file that no release can have written, or that cannot be read.
struct UnreadRace {
    std::filesystem::path path;
    std::string reason;
};

struct ReadRaces {
    std::vector<RaceFile> races;
    std::vector<UnreadRace> failed;
};

/// Reads split files of any release, on all cores; none is rewritten.
[[nodiscard]] ReadRaces readRaces(std::span<const std::filesystem::path> paths);

} // namespace kavela::page
