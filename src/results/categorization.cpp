#include "results/categorization.h"

#include "results/result_rules.h"
#include "results/team_seasons.h"

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

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

struct Level {
    const char* label;
    ResultRule rule;
};

Level levelOf(const Categorization& counted) {
    if (counted.medals > 2 || counted.championshipMedals >= 1)
        return {"Categorization: Medalist ", ResultRule::Medalist};
    if (counted.top6 >= 3)
        return {"Categorization: Medal ready ", ResultRule::MedalReady};
    if (counted.top15 >= 4)
        return {"Categorization: Final ready ", ResultRule::FinalReady};
    return {"Categorization: Senior development ", ResultRule::SeniorDevelopment};
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

std::string raceText(const CategorizedRace& race) {
    std::string text = std::to_string(race.year);
    for (const std::string& word : {race.event, race.location})
        if (!word.empty())
            text += ", " + word;
    return text;
}

struct ToldCount {
    ResultRule rule;
    std::int64_t Categorization::*count;
    std::int64_t lastPlace;
};

constexpr std::array ToldCounts{
    ToldCount{ResultRule::Medals, &Categorization::medals, 3},
    ToldCount{ResultRule::Top6, &Categorization::top6, 6},
    ToldCount{ResultRule::Top15, &Categorization::top15, 15},
    ToldCount{ResultRule::Events, &Categorization::events,
              std::numeric_limits<std::int64_t>::max()},
};

/// The level, and as its parts the counts with the races that they counted.
void tellLevel(const Categorization& counted, const Level& level, Why& why) {
    for (std::size_t i = 0; i < ToldCounts.size(); ++i) {
        const ToldCount& told = ToldCounts[i];
        Why& part = *why.part();
        const auto count = static_cast<double>(counted.*told.count);
        for (const CategorizedRace& race : counted.races)
            if (race.finalPos <= told.lastPlace &&
                (race.finalPos >= 1 || i + 1 == ToldCounts.size()))
                part.input(raceText(race), static_cast<double>(race.finalPos));
        part.result(ruleOf(told.rule), count, counted.lines[i]);
    }
    why.input("medals", static_cast<double>(counted.medals));
    why.input("championship medals", static_cast<double>(counted.championshipMedals));
    why.input("top 6", static_cast<double>(counted.top6));
    why.input("top 15", static_cast<double>(counted.top15));
    std::string shown = counted.label;
    shown.pop_back(); // the blank at its end
    const auto number = static_cast<double>(level.rule) - static_cast<double>(ResultRule::Medalist);
    why.result(ruleOf(level.rule), number + 1, std::move(shown));
}

} // namespace

std::optional<Categorization> categorize(const myTeamStruct& athlete, std::string_view category,
                                         Why* why) {
    const mtCatsStruct* const results = categoryOf(athlete, category);
    if (athlete.isretired || !results || results->seasons.size() < CountedSeasons ||
        !hasFinalPosition(countedSeasons(*results)))
        return std::nullopt;
    Categorization counted;
    counted.name = athlete.name;
    for (const mtSeasonStruct& season : countedSeasons(*results))
        for (const mtRaceStruct& race : season.races)
            countRace(season, race, counted);
    const Level level = levelOf(counted);
    counted.label = level.label;
    counted.lines = countLines(counted, category);
    if (why)
        tellLevel(counted, level, *why);
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

std::optional<Reason> explainCategory(const myTeamToSaveStruct& team, std::string_view category,
                                      std::string_view id) {
    constexpr std::string_view Word = "category/";
    constexpr std::array<std::string_view, 4> Counts{"medals", "top6", "top15", "events"};
    if (!id.starts_with(Word))
        return std::nullopt;
    std::string_view name = id.substr(Word.size());
    const auto* count = std::ranges::find(Counts, name.substr(name.rfind('/') + 1));
    if (count != Counts.end())
        name = name.substr(0, name.rfind('/'));
    const auto athlete = std::ranges::find(team.realMyTeam, name, &myTeamStruct::name);
    Why why;
    if (athlete == team.realMyTeam.end() || !categorize(*athlete, category, &why))
        return std::nullopt;
    Reason reason = why.reason();
    if (count != Counts.end())
        return reason.parts[static_cast<std::size_t>(count - Counts.begin())];
    return reason;
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
