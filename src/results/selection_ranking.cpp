#include "results/selection_ranking.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

constexpr double Divisor = 3.0;

double withPenalty(double time, const saRaceStruct& result) {
    return time + static_cast<double>(result.pen);
}

/// The best total of a race in a category, by the official or the expected times.
double bestOf(const srCategoryStruct_v3& category, std::size_t race, double saRaceStruct::*time) {
    double best = BestOfNobody;
    for (const srAthleteStruct_v3& athlete : category.athletes) {
        const saRaceStruct& result = athlete.racedata[race];
        if (result.*time != 0)
            best = std::min(best, withPenalty(result.*time, result));
    }
    return best;
}

double percentageBehind(double total, double best) {
    const double percentage = (total / best - 1) * 100;
    return std::isfinite(percentage) ? percentage : MissingPercentage;
}

void computePercentages(saRaceStruct& result, double best, double bestExpected) {
    const bool isMissingRun = result.resultTime == MissingTime;
    result.resultPer = isMissingRun
                           ? MissingPercentage
                           : percentageBehind(withPenalty(result.resultTime, result), best);
    result.resultxPer = isMissingRun || result.xTime == MissingTime
                            ? MissingPercentage
                            : percentageBehind(withPenalty(result.xTime, result), bestExpected);
}

void computeRace(selectionracesStruct_v3& document, std::size_t race) {
    sRaceStruct& head = document.races[race];
    head.bestTimes.clear();
    head.bestxTimes.clear();
    for (srCategoryStruct_v3& category : document.categories) {
        head.bestTimes.push_back(bestOf(category, race, &saRaceStruct::resultTime));
        head.bestxTimes.push_back(bestOf(category, race, &saRaceStruct::xTime));
        for (srAthleteStruct_v3& athlete : category.athletes)
            computePercentages(athlete.racedata[race], head.bestTimes.back(),
                               head.bestxTimes.back());
    }
}

std::optional<double> bonusOf(const srAthleteStruct_v3& athlete, BonusKind kind) {
    if (!kind || *kind >= athlete.bonuses.size() || !(athlete.bonuses[*kind] > NoBonus))
        return std::nullopt;
    return athlete.bonuses[*kind];
}

/// The parts of a score from the lowest to the highest, the earlier of equal ones first.
std::vector<ScorePart*> ascendingParts(Score& score) {
    std::vector<ScorePart*> parts;
    for (ScorePart& part : score.races)
        parts.push_back(&part);
    if (score.bonus)
        parts.push_back(&*score.bonus);
    std::ranges::stable_sort(parts, {}, &ScorePart::percentage);
    return parts;
}

} // namespace

saRaceStruct missingResult() {
    saRaceStruct result;
    result.resultTime = MissingTime;
    result.xTime = MissingTime;
    result.resultPer = MissingPercentage;
    result.resultxPer = MissingPercentage;
    return result;
}

bool isMissing(const saRaceStruct& result) {
    return result.resultTime == MissingTime;
}

bool isZero(const saRaceStruct& result) {
    return result.resultTime == 0;
}

Score scoreOf(std::span<const double> percentages, std::optional<double> bonus) {
    Score score;
    for (const double percentage : percentages)
        score.races.push_back({percentage});
    if (bonus)
        score.bonus = ScorePart{*bonus};
    std::vector<ScorePart*> parts = ascendingParts(score);
    const auto drop = [&](ResultFate fate) {
        if (parts.empty())
            return;
        parts.back()->fate = fate;
        parts.pop_back();
    };
    drop(ResultFate::Worst);
    if (bonus)
        drop(ResultFate::SecondWorst);
    for (const ScorePart* part : parts)
        score.sum += part->percentage;
    score.score = score.sum / Divisor;
    return score;
}

Score scoreOf(const srAthleteStruct_v3& athlete, std::size_t races, BonusKind bonus,
              SelectionTimes times) {
    std::vector<double> percentages(races, MissingPercentage);
    for (std::size_t i = 0; i < std::min(races, athlete.racedata.size()); ++i)
        percentages[i] = times == SelectionTimes::Official ? athlete.racedata[i].resultPer
                                                           : athlete.racedata[i].resultxPer;
    return scoreOf(percentages, bonusOf(athlete, bonus));
}

void computePercentages(selectionracesStruct_v3& document) {
    for (srCategoryStruct_v3& category : document.categories)
        for (srAthleteStruct_v3& athlete : category.athletes)
            if (athlete.racedata.size() < document.races.size())
                athlete.racedata.resize(document.races.size(), missingResult());
    for (std::size_t race = 0; race < document.races.size(); ++race)
        computeRace(document, race);
}

void computeScores(selectionracesStruct_v3& document, BonusKind bonus) {
    computePercentages(document);
    for (srCategoryStruct_v3& category : document.categories)
        for (srAthleteStruct_v3& athlete : category.athletes)
            athlete.result = scoreOf(athlete, document.races.size(), bonus).score;
}

void recomputeSelection(selectionracesStruct_v3& document, BonusKind bonus) {
    computeScores(document, bonus);
    for (srCategoryStruct_v3& category : document.categories)
        std::ranges::stable_sort(category.athletes, {}, &srAthleteStruct_v3::result);
}

std::vector<Standing> standings(const srCategoryStruct_v3& category, std::size_t races,
                                BonusKind bonus, SelectionTimes times) {
    std::vector<Standing> ranking;
    for (std::size_t i = 0; i < category.athletes.size(); ++i)
        ranking.push_back({i, 0, scoreOf(category.athletes[i], races, bonus, times)});
    const auto score = [](const Standing& standing) { return standing.score.score; };
    std::ranges::stable_sort(ranking, {}, score);
    for (std::size_t i = 0; i < ranking.size(); ++i)
        ranking[i].rank = i > 0 && score(ranking[i]) == score(ranking[i - 1])
                              ? ranking[i - 1].rank
                              : static_cast<std::int64_t>(i) + 1;
    return ranking;
}

void rankRace(selectionracesStruct_v3& document, std::size_t race) {
    for (srCategoryStruct_v3& category : document.categories) {
        std::vector<double> totals;
        const auto hasResult = [&](const srAthleteStruct_v3& athlete) {
            return race < athlete.racedata.size() && !isMissing(athlete.racedata[race]) &&
                   !isZero(athlete.racedata[race]);
        };
        const auto total = [&](const srAthleteStruct_v3& athlete) {
            return withPenalty(athlete.racedata[race].resultTime, athlete.racedata[race]);
        };
        for (const srAthleteStruct_v3& athlete : category.athletes)
            if (hasResult(athlete))
                totals.push_back(total(athlete));
        std::ranges::sort(totals);
        for (srAthleteStruct_v3& athlete : category.athletes) {
            if (hasResult(athlete))
                athlete.racedata[race].pos =
                    std::ranges::lower_bound(totals, total(athlete)) - totals.begin() + 1;
            else if (race < athlete.racedata.size())
                athlete.racedata[race].pos = 0;
        }
    }
}

std::size_t bonusKinds(const selectionracesStruct_v3& document) {
    std::size_t kinds = 0;
    for (const srCategoryStruct_v3& category : document.categories)
        for (const srAthleteStruct_v3& athlete : category.athletes)
            kinds = std::max(kinds, athlete.bonuses.size());
    return kinds;
}

std::size_t preselectionGroups(const selectionracesStruct_v3& document) {
    std::size_t groups = 0;
    for (const srCategoryStruct_v3& category : document.categories)
        for (const srAthleteStruct_v3& athlete : category.athletes)
            groups = std::max(groups, athlete.preselected.size());
    return groups;
}

} // namespace kavela
