#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kavela::cli {

/// What became of a planning file that was to be upgraded, and what there is to say about it.
struct PlanningUpgrade {
    enum class Outcome { Current, Upgraded, Failed };
    Outcome outcome = Outcome::Current;
    std::vector<std::string> lines;
};

/// Rewrites a planning of an older version in the current one, keeping the previous file beside it.
[[nodiscard]] PlanningUpgrade upgradePlanningAt(const std::filesystem::path& path);

} // namespace kavela::cli
