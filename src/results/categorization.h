#pragma once

#include "common/why.h"
#include "results/team_records.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The categorization of a team: which level of support an athlete's results earn. It looks at the
/// first two seasons as they stand in the file, and at races with a final position only.
namespace kavela {

struct CategorizedRace {
    std::int64_t year = 0;
    std::string event;
    std::string location;
    std::int64_t finalPos = 0;
};

struct Categorization {
    std::string name;
    std::int64_t medals = 0;
    std::int64_t championshipMedals = 0;
    std::int64_t top6 = 0;
    std::int64_t top15 = 0;
    std::int64_t events = 0;          ///< international ones: every race that was counted
    std::string label;                ///< "Categorization: Medalist ", with the blank at its end
    std::array<std::string, 4> lines; ///< the counts as they are shown
    std::vector<CategorizedRace> races;
};

/// An athlete's categorization in a category; nothing for one who does not come into question:
/// retired, fewer than two seasons, or without a final position in the first two.
[[nodiscard]] std::optional<Categorization>
categorize(const myTeamStruct& athlete, std::string_view category, Why* why = nullptr);

/// The athletes of a team who come into question, in the order of the team.
[[nodiscard]] std::vector<Categorization> categorizeTeam(const myTeamToSaveStruct& team,
                                                         std::string_view category);

/// Why an athlete's level is what it is, by the function that finds it: "category/ATHLETE", the
/// athlete by name, and "category/ATHLETE/medals", "…/top6", "…/top15", "…/events" for one of the
/// counts, which are also the parts of the whole in this order. Nothing where there is none.
[[nodiscard]] std::optional<Reason> explainCategory(const myTeamToSaveStruct& team,
                                                    std::string_view category, std::string_view id);

/// The band of a final position, by which the report colours races.
enum class PositionBand { Medal, Top6, Top9, Top15, None };
[[nodiscard]] PositionBand positionBand(std::int64_t finalPos);

} // namespace kavela
