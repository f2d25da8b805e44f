#include "desktop/team/athlete_season.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "performance/season_reasons.h"

#include <utility>

namespace kavela::desktop {

std::optional<Reason> AthleteSeason::why(std::size_t line) const {
    if (!season || line >= ids.size() || ids[line].empty())
        return std::nullopt;
    return explainSeason(*season, FactStore(), ids[line]);
}

AthleteSeason athleteSeason(const myTeamToSaveStruct& team, const std::string& athlete,
                            const std::string& category) {
    AthleteSeason told;
    auto season = std::make_shared<const Season>(
        seasonOf(seasonData(team, FactStore(), {.category = category})));
    const auto member = season->data.memberNamed(athlete);
    if (!member)
        return told;
    const SeasonMember& known = season->data.members[*member];
    const SeasonFigures figures = seasonFigures(season->data, season->spread, known);
    for (const std::string& line : figures.lines())
        told.lines << shownNumbers(qtText(line));
    told.ids = figures.ids(known.name);
    told.season = std::move(season);
    return told;
}

} // namespace kavela::desktop
