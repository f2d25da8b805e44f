#pragma once

#include "performance/season.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// What the window of a season asks.
struct SeasonQuestion {
    SeasonChoice choice;
    std::vector<std::string> field; ///< whose places to expect; empty for the usual ones
};

/// Everything that the window of a season shows, with what it was made from.
struct ShownSeason {
    std::shared_ptr<const FactStore> facts;
    SeasonQuestion question;
    Season season;
    std::vector<std::string> unknown; ///< of the names of the field

    /// Why one of these numbers is what it is, by the ids of explainSeason(); none for an empty id.
    [[nodiscard]] std::optional<Reason> why(const std::string& id) const;
    [[nodiscard]] const SeasonMember& memberOf(std::size_t athlete) const;
};

using SharedSeason = std::shared_ptr<const ShownSeason>;

/// Computes all of it; to be called beside the window.
[[nodiscard]] SharedSeason shownSeason(const myTeamToSaveStruct& team,
                                       std::shared_ptr<const FactStore> facts,
                                       const SeasonQuestion& question);

/// The categories that anybody of a team races in, those with most athletes first.
[[nodiscard]] std::vector<std::string> teamCategories(const myTeamToSaveStruct& team);
/// The years of a category's seasons, the earliest first.
[[nodiscard]] std::vector<std::int64_t> teamYears(const myTeamToSaveStruct& team,
                                                  const std::string& category);

} // namespace kavela::desktop
