#include "performance/race_pairs.h"

#include "common/text.h"
#include "performance/season_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kavela {

namespace {

constexpr std::int64_t LastMedalPlace = 3;

const PhaseResult* phaseOf(const RaceResult& race, std::string_view phase) {
    const auto found = std::ranges::find_if(race.phases, [&](const PhaseResult& result) {
        return result.phase == phase && result.total && !result.isMissed;
    });
    return found == race.phases.end() ? nullptr : &*found;
}

bool hasPhase(const RaceResult& race, std::string_view phase) {
    return std::ranges::find(race.phases, phase, &PhaseResult::phase) != race.phases.end();
}

/// 100·ln of what the pair compares.
std::optional<double> comparedOf(const PhaseResult& phase, RacePair pair) {
    if (pair != RacePair::HeatsToFinal)
        return 100 * std::log(*phase.total);
    if (!phase.percent)
        return std::nullopt;
    return 100 * std::log1p(*phase.percent / 100);
}

std::optional<double> changeIn(const RaceResult& race, RacePair pair) {
    const PhaseResult* earlier =
        phaseOf(race, pair == RacePair::SemifinalToFinal ? "Semifinal" : "Heats 1");
    if (!earlier && pair == RacePair::HeatsToFinal)
        earlier = phaseOf(race, "Heats 2");
    const PhaseResult* const later = phaseOf(race, pair == RacePair::Heats ? "Heats 2" : "Final");
    if (!earlier || !later)
        return std::nullopt;
    const auto before = comparedOf(*earlier, pair);
    const auto after = comparedOf(*later, pair);
    return before && after ? std::optional(*after - *before) : std::nullopt;
}

SeasonRule ruleOfRate(RaceRate rate) {
    switch (rate) {
    case RaceRate::Finals:
        return SeasonRule::Finals;
    case RaceRate::Semifinals:
        return SeasonRule::Semifinals;
    case RaceRate::Medals:
        break;
    }
    return SeasonRule::Medals;
}

bool countsFor(const RaceResult& race, RaceRate rate) {
    return rate == RaceRate::Medals ? race.finalPos >= 1 : !race.phases.empty();
}

bool isReachedIn(const RaceResult& race, RaceRate rate) {
    if (rate == RaceRate::Medals)
        return race.finalPos <= LastMedalPlace;
    return hasPhase(race, rate == RaceRate::Finals ? "Final" : "Semifinal");
}

} // namespace

std::string_view nameOf(RacePair pair) {
    switch (pair) {
    case RacePair::SemifinalToFinal:
        return "semifinalToFinal";
    case RacePair::HeatsToFinal:
        return "heatsToFinal";
    case RacePair::Heats:
        break;
    }
    return "heats12";
}

PairChange pairChange(const SeasonMember& member, RacePair pair, PairFigure figure, Why* why) {
    std::vector<double> changes;
    for (const RaceResult& race : member.races)
        if (const auto change = changeIn(race, pair)) {
            changes.push_back(*change);
            if (why)
                why->input(fmt::format("{} {} {}", race.year, race.event, race.location), *change);
        }
    PairChange found{meanOf(changes), std::nullopt};
    if (changes.size() >= 2) {
        double squares = 0;
        for (const double change : changes)
            squares += (change - found.change.mean) * (change - found.change.mean);
        found.typicalError = std::sqrt(squares / static_cast<double>(changes.size() - 1) / 2);
    }
    if (!why)
        return found;
    if (figure == PairFigure::TypicalError && found.typicalError) {
        why->result(ruleOf(SeasonRule::TypicalError), *found.typicalError,
                    fmt::format("{:.1f} %", *found.typicalError));
    } else if (figure == PairFigure::Change && !changes.empty()) {
        if (found.change.interval)
            why->uncertain(*found.change.interval, "90 %, Student's t");
        why->result(ruleOf(SeasonRule::PairDifference), found.change.mean,
                    fmt::format("{:+.1f} %", found.change.mean));
    }
    return found;
}

std::optional<RateOf> raceRate(const SeasonMember& member, RaceRate rate, Why* why) {
    std::size_t of = 0;
    std::size_t reached = 0;
    for (const RaceResult& race : member.races) {
        if (!countsFor(race, rate))
            continue;
        ++of;
        if (!isReachedIn(race, rate))
            continue;
        ++reached;
        if (why)
            why->input(say("{} {} {}, place", race.year, race.event, race.location),
                       static_cast<double>(race.finalPos));
    }
    const auto found = rateOf(reached, of);
    if (why && found) {
        why->input("counted", static_cast<double>(of));
        const std::size_t leftOut = member.races.size() - of;
        if (leftOut > 0)
            why->note(
                say("{} left out: {}", leftOut,
                    rate == RaceRate::Medals ? "final position not known" : "no phase entered"));
        why->uncertain(found->interval, "90 %, Wilson");
        why->result(ruleOf(ruleOfRate(rate)), found->rate, say("{} of {}", reached, of));
    }
    return found;
}

} // namespace kavela
