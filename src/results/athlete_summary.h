#pragma once

#include "results/team_records.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kavela {

/// What an athlete reached in one category over all seasons.
struct AthleteSummary {
    std::int64_t medals = 0;
    std::int64_t championshipMedals = 0;
    std::int64_t top6 = 0;
    std::int64_t top15 = 0;

    friend bool operator==(const AthleteSummary&, const AthleteSummary&) = default;
};

/// Counts every race of every season. There is no lower bound: a race without a final position (0)
/// counts as a medal, unlike in the categorization, which leaves it out.
[[nodiscard]] AthleteSummary athleteSummary(const myTeamStruct& athlete, std::string_view category);

/// The counts as the team screen shows them, from the medals down.
[[nodiscard]] std::array<std::string, 4> summaryLines(const AthleteSummary& summary);

} // namespace kavela
