#include "results/categorization.h"

#include "results/team_seasons.h"

#include <algorithm>
#include <span>

namespace kavela {

namespace {

constexpr std::size_t CountedSeasons = 2;

std::span<const mtSeasonStruct> countedSeasons(const mtCatsStruct& category) {
    return std::span(category.seasons).first(std::min(CountedSeasons, category.seasons.size()));
}

bool hasFinalPosition(std::span<const mtSeasonStruct> seasons) {
    return std::ranges::any_of(seasons, [](const mtSeasonStruct& season) {
        return std::ranges::any_of(season.races,
                                   [](const mtRaceStruct& race) { return race.finalPos >= 1; });
    });
}

void countRace(const mtSeasonStruct& season, const mtRaceStruct& race, Categorization& counted) {
    const std::int64_t place = race.finalPos;
    if (place == 0)
        return;
    const auto isWithin = [&](std::int64_t last) { return place >= 1 && place <= last; };
    counted.medals += isWithin(3);
    counted.championshipMedals += isWithin(3) && isChampionship(race);
    counted.top6 += isWithin(6);
    counted.top15 += isWithin(15);
    ++counted.events;
    counted.races.push_back({season.year, race.event, race.location, place});
}

const char* labelOf(const Categorization& counted) {
    if (counted.medals > 2 || counted.championshipMedals >= 1)
        return "Categorization: Medalist ";
    if (counted.top6 >= 3)
        return "Categorization: Medal ready ";
    if (counted.top15 >= 4)
        return "Categorization: Final ready ";
    return "Categorization: Senior development ";
}

std::array<std::string, 4> countLines(const Categorization& counted, std::string_view category) {
    std::string medals = "Medals: " + std::to_string(counted.medals);
    if (counted.championshipMedals >= 1)
        medals += " (with " + std::to_string(counted.championshipMedals) + " in EP or SP)";
    // Extreme slalom is spoken of by its heats of four: "Top 8", although six are counted.
    const bool isExtreme = category.find('X') != std::string_view::npos;
    return {std::move(medals), (isExtreme ? "Top 8: " : "Top 6: ") + std::to_string(counted.top6),
            "Top 15: " + std::to_string(counted.top15),
            "International events: " + std::to_string(counted.events)};
}

} // namespace

std::optional<Categorization> categorize(const myTeamStruct& athlete, std::string_view category) {
    const mtCatsStruct* const results = categoryOf(athlete, category);
    if (athlete.isretired || !results || results->seasons.size() < CountedSeasons ||
        !hasFinalPosition(countedSeasons(*results)))
        return std::nullopt;
    Categorization counted;
    counted.name = athlete.name;
    for (const mtSeasonStruct& season : countedSeasons(*results))
        for (const mtRaceStruct& race : season.races)
            countRace(season, race, counted);
    counted.label = labelOf(counted);
    counted.lines = countLines(counted, category);
    return counted;
}

std::vector<Categorization> categorizeTeam(const myTeamToSaveStruct& team,
                                           std::string_view category) {
    std::vector<Categorization> all;
    for (const myTeamStruct& athlete : team.realMyTeam)
        if (auto counted = categorize(athlete, category))
            all.push_back(std::move(*counted));
    return all;
}

PositionBand positionBand(std::int64_t finalPos) {
    if (finalPos < 1 || finalPos > 15)
        return PositionBand::None;
    if (finalPos <= 3)
        return PositionBand::Medal;
    if (finalPos <= 6)
        return PositionBand::Top6;
    return finalPos <= 9 ? PositionBand::Top9 : PositionBand::Top15;
}

} // namespace kavela
