#pragma once

#include "performance/season.h"

#include <QStringList>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// The few figures of an athlete's season that the team alone tells, a line each.
struct AthleteSeason {
    QStringList lines;            ///< none where the athlete does not race in the category
    std::vector<std::string> ids; ///< of their explanations, by line
    std::shared_ptr<const Season> season;

    /// Why the number of a line is what it is.
    [[nodiscard]] std::optional<Reason> why(std::size_t line) const;
};

/// To be called beside the window.
[[nodiscard]] AthleteSeason athleteSeason(const myTeamToSaveStruct& team,
                                          const std::string& athlete, const std::string& category);

} // namespace kavela::desktop
