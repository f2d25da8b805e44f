#include "performance/season_places.h"

#include "common/text.h"
#include "performance/season_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace kavela {

namespace {

/// Runs of a boat with those that missed a gate.
struct MissedOf {
    std::size_t missed = 0;
    std::size_t runs = 0;
};

MissedOf missedOf(const SeasonData& data, std::size_t boat) {
    MissedOf found;
    for (const SeasonRun& run : data.runs)
        if (run.boat == boat) {
            ++found.runs;
            found.missed += run.isMissed ? 1 : 0;
        }
    return found;
}

std::size_t allMissed(const SeasonData& data) {
    return static_cast<std::size_t>(
        std::ranges::count_if(data.runs, [](const SeasonRun& run) { return run.isMissed; }));
}

bool isKnownWellEnough(const SeasonSpread& spread, std::size_t boat) {
    return boat < spread.fit.athletes.size() &&
           spread.fit.athletes[boat].runs >= LeastRunsForPlaces &&
           spread.fit.spreads[boat].shrunk > 0;
}

/// The connected part that most boats are of; the first of equals.
std::size_t largestPart(const SeasonSpread& spread, const std::vector<std::size_t>& boats) {
    std::map<std::size_t, std::size_t> counts;
    for (const std::size_t boat : boats)
        ++counts[spread.fit.athletes[boat].part];
    const auto most =
        std::ranges::max_element(counts, {}, &std::pair<const std::size_t, std::size_t>::second);
    return most == counts.end() ? 0 : most->first;
}

void keepPart(const SeasonSpread& spread, std::vector<std::size_t>& boats,
              std::vector<std::size_t>* leftOut) {
    const std::size_t part = largestPart(spread, boats);
    std::erase_if(boats, [&](std::size_t boat) {
        const bool isElsewhere = spread.fit.athletes[boat].part != part;
        if (isElsewhere && leftOut)
            leftOut->push_back(boat);
        return isElsewhere;
    });
}

std::vector<std::size_t> namedField(const SeasonSpread& spread, std::span<const std::size_t> field,
                                    std::vector<std::size_t>& leftOut) {
    std::vector<std::size_t> boats;
    for (const std::size_t boat : field) {
        if (std::ranges::find(boats, boat) != boats.end())
            continue;
        (isKnownWellEnough(spread, boat) ? boats : leftOut).push_back(boat);
    }
    keepPart(spread, boats, &leftOut);
    return boats;
}

std::vector<std::size_t> usualField(const SeasonData& data, const SeasonSpread& spread,
                                    std::size_t& more) {
    std::vector<std::size_t> boats;
    for (std::size_t i = 0; i < data.boats.size(); ++i)
        if (isKnownWellEnough(spread, i) && !data.boats[i].isRetired)
            boats.push_back(i);
    keepPart(spread, boats, nullptr);
    std::ranges::stable_sort(boats, {}, [&](std::size_t boat) {
        return std::pair(!data.boats[boat].member,
                         -static_cast<std::ptrdiff_t>(spread.fit.athletes[boat].runs));
    });
    if (boats.size() > LargestField) {
        more = boats.size() - LargestField;
        boats.resize(LargestField);
    }
    return boats;
}

ExpectedPlace oddsOf(const SeasonData& data, const SeasonSpread& spread, std::size_t boat) {
    const TwoWayEffect& effect = spread.fit.athletes[boat];
    const MissedOf missed = missedOf(data, boat);
    ExpectedPlace place;
    place.boat = boat;
    place.runs = effect.runs;
    place.mean = effect.effect;
    place.sd =
        spread.fit.spreads[boat].shrunk * std::sqrt(1 + 1 / static_cast<double>(effect.runs));
    place.fail = chanceOfMissedGate(missed.missed, missed.runs, allMissed(data), data.runs.size());
    return place;
}

void tellFigure(const SeasonData& data, const SeasonPlaces& places, const ExpectedPlace& place,
                PlaceFigure figure, Why& why) {
    if (figure == PlaceFigure::MissedGate) {
        const MissedOf missed = missedOf(data, place.boat);
        why.input("missed", static_cast<double>(missed.missed));
        why.input("runs", static_cast<double>(missed.runs));
        why.input("all missed", static_cast<double>(allMissed(data)));
        why.input("all runs", static_cast<double>(data.runs.size()));
        why.result(ruleOf(SeasonRule::MissedGate), place.fail,
                   fmt::format("{:.1f} %", 100 * place.fail));
        return;
    }
    for (const ExpectedPlace& other : places.boats)
        why.input(say("{}, spread {:.2f}, missed {:.1f} %", data.boats[other.boat].name, other.sd,
                      100 * other.fail),
                  other.mean);
    if (figure == PlaceFigure::Medal)
        why.result(ruleOf(SeasonRule::MedalChance), place.chances.medal,
                   fmt::format("{:.0f} %", 100 * place.chances.medal));
    else
        why.result(ruleOf(SeasonRule::ExpectedPlace), place.chances.expected,
                   fmt::format("{:.1f}", place.chances.expected));
}

} // namespace

SeasonPlaces seasonPlaces(const SeasonData& data, const SeasonSpread& spread,
                          std::span<const std::size_t> field) {
    SeasonPlaces places;
    if (!spread.fit.spread) {
        places.leftOut.assign(field.begin(), field.end());
        return places;
    }
    const std::vector<std::size_t> boats = field.empty()
                                               ? usualField(data, spread, places.more)
                                               : namedField(spread, field, places.leftOut);
    std::vector<BoatOdds> odds;
    for (const std::size_t boat : boats) {
        places.boats.push_back(oddsOf(data, spread, boat));
        const ExpectedPlace& place = places.boats.back();
        odds.push_back({place.mean, place.sd, place.fail});
    }
    std::vector<PlaceChances> chances = placesOf(odds);
    for (std::size_t i = 0; i < chances.size(); ++i)
        places.boats[i].chances = std::move(chances[i]);
    std::ranges::stable_sort(places.boats, {},
                             [](const ExpectedPlace& place) { return place.chances.expected; });
    return places;
}

std::optional<double> placeFigure(const SeasonData& data, const SeasonPlaces& places,
                                  std::size_t boat, PlaceFigure figure, Why* why) {
    const auto place = std::ranges::find(places.boats, boat, &ExpectedPlace::boat);
    if (place == places.boats.end())
        return std::nullopt;
    if (why)
        tellFigure(data, places, *place, figure, *why);
    switch (figure) {
    case PlaceFigure::Medal:
        return place->chances.medal;
    case PlaceFigure::MissedGate:
        return place->fail;
    case PlaceFigure::Expected:
        break;
    }
    return place->chances.expected;
}

} // namespace kavela
