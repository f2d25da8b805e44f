#include "performance/season.h"

#include "common/text.h"
#include "performance/season_reasons.h"
#include "performance/season_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela {

namespace {

constexpr std::array<std::string_view, 4> PhasesFromLast{"Final", "Semifinal", "Heats 1",
                                                         "Heats 2"};

struct PercentOfRace {
    const RaceResult* race = nullptr;
    double percent = 0;
};

/// Percentages of a phase in the order of the races, without missed gates.
std::vector<PercentOfRace> percentsIn(const SeasonMember& member, std::string_view phase) {
    std::vector<PercentOfRace> percents;
    for (const RaceResult& race : member.races)
        for (const PhaseResult& result : race.phases)
            if (result.phase == phase && result.percent && !result.isMissed)
                percents.push_back({&race, *result.percent});
    return percents;
}

std::optional<double> medianOfRaces(const std::vector<PercentOfRace>& races, Why* why) {
    if (races.empty())
        return std::nullopt;
    std::vector<double> percents;
    for (const PercentOfRace& race : races) {
        percents.push_back(race.percent);
        if (why)
            why->input(
                fmt::format("{} {} {}", race.race->year, race.race->event, race.race->location),
                race.percent);
    }
    std::ranges::sort(percents);
    const double median = quantileOf(percents, 0.5);
    if (why)
        why->result(ruleOf(SeasonRule::MedianPercent), median, fmt::format("{:.1f} %", median));
    return median;
}

std::string rateLine(std::string_view what, const RateOf& rate) {
    return say("{} {} of {} ({:.0f}–{:.0f} %)", what, rate.count, rate.of, 100 * rate.interval.low,
               100 * rate.interval.high);
}

} // namespace

Season seasonOf(SeasonData data, std::span<const std::size_t> field) {
    Season season;
    season.spread = seasonSpread(data);
    for (std::size_t i = 0; i < data.members.size(); ++i) {
        const SeasonMember& member = data.members[i];
        season.athletes.push_back(
            {i, raceRate(member, RaceRate::Medals), raceRate(member, RaceRate::Finals),
             raceRate(member, RaceRate::Semifinals), boatSpread(data, season.spread, member.boat),
             seasonTrend(member, TrendOf::Winner), seasonTrend(member, TrendOf::Splits),
             pairChange(member, RacePair::Heats), pairChange(member, RacePair::SemifinalToFinal),
             pairChange(member, RacePair::HeatsToFinal), headToHeads(data, member.boat)});
    }
    season.benchmarks = benchmarks(data);
    season.places = seasonPlaces(data, season.spread, field);
    season.data = std::move(data);
    return season;
}

std::optional<double> medianPercent(const SeasonMember& member, std::string_view phase,
                                    std::size_t last, Why* why) {
    std::vector<PercentOfRace> races = percentsIn(member, phase);
    if (last > 0 && races.size() > last)
        races.erase(races.begin(), races.end() - static_cast<std::ptrdiff_t>(last));
    return medianOfRaces(races, why);
}

std::optional<double> medianPercentOfYear(const SeasonMember& member, std::string_view phase,
                                          std::int64_t year, Why* why) {
    std::vector<PercentOfRace> races = percentsIn(member, phase);
    std::erase_if(races, [=](const PercentOfRace& race) { return race.race->year != year; });
    return medianOfRaces(races, why);
}

std::vector<std::string> SeasonFigures::lines() const {
    std::vector<std::string> lines;
    if (percent)
        lines.push_back(
            say("{:.1f} % behind the winner, {} (median of {})", *percent, phase, runs));
    if (spread)
        lines.push_back(say("within {:.1f} % from run to run", *spread));
    if (trend.perYear)
        lines.push_back(
            say("trend {:+.1f} % a year: {}", *trend.perYear, verdictText(trend.verdict)));
    if (medals)
        lines.push_back(rateLine("medals", *medals));
    if (finals)
        lines.push_back(rateLine("finals", *finals));
    if (lines.empty())
        lines.emplace_back("Too few results to tell anything of a season");
    return lines;
}

std::vector<std::string> SeasonFigures::ids(std::string_view athlete) const {
    std::vector<std::string> ids;
    if (percent)
        ids.push_back(medianId(athlete, phase));
    if (spread)
        ids.push_back(seasonId("shrunk", athlete));
    if (trend.perYear)
        ids.push_back(seasonId("trend", athlete));
    if (medals)
        ids.push_back(seasonId("medal", athlete));
    if (finals)
        ids.push_back(seasonId("final", athlete));
    if (ids.empty())
        ids.emplace_back();
    return ids;
}

SeasonFigures seasonFigures(const SeasonData& data, const SeasonSpread& spread,
                            const SeasonMember& member) {
    SeasonFigures figures;
    for (const std::string_view phase : PhasesFromLast)
        if (const auto percent = medianPercent(member, phase); percent && !figures.percent) {
            figures.phase = phase;
            figures.percent = percent;
            figures.runs = percentsIn(member, phase).size();
        }
    const BoatSpread own = boatSpread(data, spread, member.boat);
    if (own.runs >= LeastValues)
        figures.spread = own.shrunk;
    figures.trend = seasonTrend(member, TrendOf::Winner);
    figures.medals = raceRate(member, RaceRate::Medals);
    figures.finals = raceRate(member, RaceRate::Finals);
    return figures;
}

SeasonFigures seasonFigures(const myTeamToSaveStruct& team, std::string_view athlete,
                            std::string_view category) {
    const SeasonData data = seasonData(team, FactStore(), {.category = std::string(category)});
    const auto member = data.memberNamed(athlete);
    if (!member)
        return {};
    return seasonFigures(data, seasonSpread(data), data.members[*member]);
}

} // namespace kavela
