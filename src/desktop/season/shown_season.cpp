#include "desktop/season/shown_season.h"

#include "performance/season_reasons.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

namespace kavela::desktop {

std::optional<Reason> ShownSeason::why(const std::string& id) const {
    return id.empty() ? std::nullopt : explainSeason(season, *facts, id);
}

const SeasonMember& ShownSeason::memberOf(std::size_t athlete) const {
    return season.data.members[season.athletes.at(athlete).member];
}

SharedSeason shownSeason(const myTeamToSaveStruct& team, std::shared_ptr<const FactStore> facts,
                         const SeasonQuestion& question) {
    auto shown = std::make_shared<ShownSeason>();
    shown->facts = std::move(facts);
    shown->question = question;
    SeasonData data = seasonData(team, *shown->facts, question.choice);
    std::vector<std::size_t> field;
    for (const std::string& name : question.field)
        if (const auto boat = data.boatNamed(name))
            field.push_back(*boat);
        else
            shown->unknown.push_back(name);
    shown->season = seasonOf(std::move(data), field);
    return shown;
}

std::vector<std::string> teamCategories(const myTeamToSaveStruct& team) {
    std::vector<std::pair<std::string, int>> counts;
    for (const myTeamStruct& athlete : team.realMyTeam)
        for (const mtCatsStruct& category : athlete.cats) {
            const auto known =
                std::ranges::find(counts, category.cat, &std::pair<std::string, int>::first);
            if (known == counts.end())
                counts.emplace_back(category.cat, 1);
            else
                ++known->second;
        }
    std::ranges::stable_sort(counts, std::greater(), &std::pair<std::string, int>::second);
    std::vector<std::string> categories;
    for (const auto& [category, athletes] : counts)
        categories.push_back(category);
    return categories;
}

std::vector<std::int64_t> teamYears(const myTeamToSaveStruct& team, const std::string& category) {
    std::set<std::int64_t> years;
    for (const myTeamStruct& athlete : team.realMyTeam)
        for (const mtCatsStruct& entry : athlete.cats)
            if (entry.cat == category)
                for (const mtSeasonStruct& season : entry.seasons)
                    years.insert(season.year);
    return {years.begin(), years.end()};
}

} // namespace kavela::desktop
