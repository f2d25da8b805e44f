#include "results/selection_ranking.h"

#include "common/delimited_text.h"
#include "common/number_text.h"
#include "results/result_rules.h"

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
    result.resultPer = racePercentage(result, best, SelectionTimes::Official);
    result.resultxPer = racePercentage(result, bestExpected, SelectionTimes::Expected);
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

std::vector<double> percentagesOf(const srAthleteStruct_v3& athlete, std::size_t races,
                                  SelectionTimes times) {
    std::vector<double> percentages(races, MissingPercentage);
    for (std::size_t i = 0; i < std::min(races, athlete.racedata.size()); ++i)
        percentages[i] = times == SelectionTimes::Official ? athlete.racedata[i].resultPer
                                                           : athlete.racedata[i].resultxPer;
    return percentages;
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

const Rule& ruleOf(ResultFate fate) {
    switch (fate) {
    case ResultFate::Worst:
        return ruleOf(ResultRule::DroppedWorst);
    case ResultFate::SecondWorst:
        return ruleOf(ResultRule::DroppedForBonus);
    case ResultFate::Counted:
        break;
    }
    return ruleOf(ResultRule::Counted);
}

void tellScore(const Score& score, const TellRace& tell, Why& why) {
    const auto tellPart = [&](const ScorePart& part, const std::string& name, Why& told) {
        told.result(ruleOf(part.fate), part.percentage, hundredthsText(part.percentage));
        why.input(name, part.percentage);
    };
    for (std::size_t race = 0; race < score.races.size(); ++race) {
        Why& part = *why.part();
        const std::string name = tell ? tell(race, part) : "race " + std::to_string(race + 1);
        tellPart(score.races[race], name, part);
    }
    if (score.bonus)
        tellPart(*score.bonus, "bonus", *why.part());
    why.part()->result(ruleOf(ResultRule::ScoreSum), score.sum, hundredthsText(score.sum));
    why.result(ruleOf(ResultRule::Score), score.score, hundredthsText(score.score));
}

/// The best of a race in a category, as it was computed.
double computedBest(const sRaceStruct& race, std::size_t category, SelectionTimes times) {
    const auto& bests = times == SelectionTimes::Official ? race.bestTimes : race.bestxTimes;
    return category < bests.size() ? bests[category] : BestOfNobody;
}

} // namespace

double racePercentage(const saRaceStruct& result, double best, SelectionTimes times, Why* why) {
    const bool isMissingRun =
        isMissing(result) || (times == SelectionTimes::Expected && result.xTime == MissingTime);
    const double time = times == SelectionTimes::Official ? result.resultTime : result.xTime;
    const double percentage =
        isMissingRun ? MissingPercentage : percentageBehind(withPenalty(time, result), best);
    if (why && !isMissingRun) {
        why->input(times == SelectionTimes::Official ? "time" : "expected time", time);
        why->input("penalties", static_cast<double>(result.pen));
        why->input("best", best);
    }
    if (why)
        why->result(ruleOf(isMissingRun ? ResultRule::RaceMissing : ResultRule::RacePercent),
                    percentage, hundredthsText(percentage));
    return percentage;
}

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

Score scoreOf(std::span<const double> percentages, std::optional<double> bonus,
              const TellRace& tell, Why* why) {
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
    if (why)
        tellScore(score, tell, *why);
    return score;
}

Score scoreOf(const srAthleteStruct_v3& athlete, std::size_t races, BonusKind bonus,
              SelectionTimes times) {
    return scoreOf(percentagesOf(athlete, races, times), bonusOf(athlete, bonus));
}

Score scoreOf(const selectionracesStruct_v3& document, std::size_t category, std::size_t athlete,
              BonusKind bonus, SelectionTimes times, Why* why) {
    const srAthleteStruct_v3& record = document.categories[category].athletes[athlete];
    const auto tell = [&](std::size_t race, Why& part) {
        const sRaceStruct& head = document.races[race];
        (void)racePercentage(race < record.racedata.size() ? record.racedata[race]
                                                           : missingResult(),
                             computedBest(head, category, times), times, part.part());
        return head.location;
    };
    return scoreOf(percentagesOf(record, document.races.size(), times), bonusOf(record, bonus),
                   tell, why);
}

std::optional<Reason> explainScore(const selectionracesStruct_v3& document, std::size_t category,
                                   BonusKind bonus, SelectionTimes times, std::string_view id) {
    constexpr std::string_view Word = "score/";
    if (!id.starts_with(Word) || category >= document.categories.size())
        return std::nullopt;
    std::string_view name = id.substr(Word.size());
    std::optional<std::size_t> race;
    // A crew of two has a slash in its name as well.
    std::size_t number = 0;
    if (const std::size_t slash = name.rfind('/');
        slash != std::string_view::npos && parseField(name.substr(slash + 1), number)) {
        race = number;
        name = name.substr(0, slash);
    }
    const auto& athletes = document.categories[category].athletes;
    const auto athlete = std::ranges::find(athletes, name, &srAthleteStruct_v3::name);
    if (athlete == athletes.end() || (race && *race >= document.races.size()))
        return std::nullopt;
    Why why;
    (void)scoreOf(document, category, static_cast<std::size_t>(athlete - athletes.begin()), bonus,
                  times, &why);
    Reason reason = why.reason();
    return race ? reason.parts[*race].parts.front() : reason;
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
