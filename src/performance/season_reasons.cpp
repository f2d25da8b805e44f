#include "performance/season_reasons.h"

#include "common/delimited_text.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace kavela {

namespace {

constexpr std::array SeasonPairs{RacePair::Heats, RacePair::SemifinalToFinal,
                                 RacePair::HeatsToFinal};

struct RateWord {
    std::string_view word;
    RaceRate rate;
};

constexpr std::array RateWords{RateWord{"medal", RaceRate::Medals},
                               RateWord{"final", RaceRate::Finals},
                               RateWord{"semifinal", RaceRate::Semifinals}};

struct PlaceWord {
    std::string_view word;
    PlaceFigure figure;
};

constexpr std::array PlaceWords{PlaceWord{"place", PlaceFigure::Expected},
                                PlaceWord{"podium", PlaceFigure::Medal},
                                PlaceWord{"missed", PlaceFigure::MissedGate}};

std::vector<std::string_view> wordsOfId(std::string_view id) {
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t slash = id.find('/');
        words.push_back(id.substr(0, slash));
        if (slash == id.npos)
            return words;
        id.remove_prefix(slash + 1);
    }
}

std::optional<RacePair> pairNamed(std::string_view word) {
    for (const RacePair pair : SeasonPairs)
        if (nameOf(pair) == word)
            return pair;
    return std::nullopt;
}

std::size_t racesOfEvent(const SeasonMember& member, const RaceResult& race) {
    return static_cast<std::size_t>(
        std::ranges::count_if(member.races, [&](const RaceResult& other) {
            return other.year == race.year && other.event == race.event;
        }));
}

/// Finds what an id names, and lets the very function that makes the figure tell it.
class SeasonExplainer {
public:
    SeasonExplainer(const Season& season, const FactStore& facts)
        : m_season(season), m_data(season.data), m_facts(facts) {}

    [[nodiscard]] std::optional<Reason> explain(std::string_view id) {
        const std::vector<std::string_view> words = wordsOfId(id);
        if (words.size() == 1)
            tellAll(words[0]);
        else if (words[0] == "median")
            tellMedian(words);
        else if (words.size() == 2)
            tellAthlete(words[0], words[1]);
        else if (words.size() == 3)
            tellThree(words);
        else if (words.size() <= 6)
            tellPhase(words);
        Reason reason = m_why.reason();
        return reason.rule ? std::optional(std::move(reason)) : std::nullopt;
    }

private:
    void tellAll(std::string_view word) {
        if (word == "spread")
            (void)seasonSpread(m_data, SpreadFigure::Variation, &m_why);
        else if (word == "worthwhile")
            (void)seasonSpread(m_data, SpreadFigure::Worthwhile, &m_why);
    }

    void tellAthlete(std::string_view word, std::string_view name) {
        const auto boat = m_data.boatNamed(name);
        if (!boat)
            return;
        if (word == "spread" || word == "shrunk")
            (void)boatSpread(m_data, m_season.spread, *boat,
                             word == "spread" ? BoatSpreadFigure::Own : BoatSpreadFigure::Shrunk,
                             &m_why);
        const auto place = std::ranges::find(PlaceWords, word, &PlaceWord::word);
        if (place != PlaceWords.end())
            (void)placeFigure(m_data, m_season.places, *boat, place->figure, &m_why);
        if (const auto member = m_data.memberNamed(name))
            tellMember(word, m_data.members[*member]);
    }

    void tellMember(std::string_view word, const SeasonMember& member) {
        if (word == "trend" || word == "splitstrend")
            (void)seasonTrend(member, word == "trend" ? TrendOf::Winner : TrendOf::Splits, &m_why);
        if (const auto pair = pairNamed(word))
            (void)pairChange(member, *pair, PairFigure::Change, &m_why);
        const auto rate = std::ranges::find(RateWords, word, &RateWord::word);
        if (rate != RateWords.end())
            (void)raceRate(member, rate->rate, &m_why);
    }

    void tellThree(const std::vector<std::string_view>& words) {
        if (words[0] == "benchmark") {
            std::size_t rank = 0;
            if (parseField(words[2], rank))
                (void)benchmarkOf(m_data, m_facts, words[1], rank, &m_why);
            return;
        }
        if (words[0] == "error") {
            const auto pair = pairNamed(words[1]);
            const auto member = m_data.memberNamed(words[2]);
            if (pair && member)
                (void)pairChange(m_data.members[*member], *pair, PairFigure::TypicalError, &m_why);
            return;
        }
        const auto own = m_data.boatNamed(words[1]);
        const auto versus = m_data.boatNamed(words[2]);
        if (own && versus && (words[0] == "won" || words[0] == "headgap"))
            (void)headToHead(m_data, m_facts, *own, *versus,
                             words[0] == "won" ? HeadFigure::Won : HeadFigure::Gap, &m_why);
    }

    void tellMedian(const std::vector<std::string_view>& words) {
        const auto member = m_data.memberNamed(words[1]);
        std::int64_t year = 0;
        if (!member || words.size() < 3 || words.size() > 4)
            return;
        if (words.size() == 3)
            (void)medianPercent(m_data.members[*member], words[2], 0, &m_why);
        else if (parseField(words[3], year))
            (void)medianPercentOfYear(m_data.members[*member], words[2], year, &m_why);
    }

    void tellPhase(const std::vector<std::string_view>& words) {
        const auto member = m_data.memberNamed(words[1]);
        std::int64_t year = 0;
        if (words.size() < 5 || !member || !parseField(words[2], year))
            return;
        for (const RaceResult& race : m_data.members[*member].races) {
            if (race.year != year || race.event != words[3] ||
                (words.size() > 5 && race.location != words[5]))
                continue;
            const auto phase = std::ranges::find(race.phases, words[4], &PhaseResult::phase);
            if (phase == race.phases.end())
                continue;
            if (words[0] == "percent")
                (void)percentBehindWinner(m_facts, *phase, &m_why);
            else if (words[0] == "behindsplits")
                (void)percentBehindSplits(*phase, &m_why);
            return;
        }
    }

    const Season& m_season;
    const SeasonData& m_data;
    const FactStore& m_facts;
    Why m_why;
};

} // namespace

std::string seasonId(std::string_view figure, std::string_view athlete) {
    return std::string(figure) + '/' + std::string(athlete);
}

std::string seasonPhaseId(std::string_view figure, const SeasonMember& member,
                          const RaceResult& race, const PhaseResult& phase) {
    std::string id = seasonId(figure, member.name) + '/' + std::to_string(race.year) + '/' +
                     race.event + '/' + phase.phase;
    return racesOfEvent(member, race) > 1 ? id + '/' + race.location : id;
}

std::string seasonHeadId(std::string_view figure, std::string_view athlete,
                         std::string_view versus) {
    return seasonId(figure, athlete) + '/' + std::string(versus);
}

std::string medianId(std::string_view athlete, std::string_view phase) {
    return seasonId("median", athlete) + '/' + std::string(phase);
}

std::string benchmarkId(std::string_view phase, std::size_t rank) {
    return "benchmark/" + std::string(phase) + '/' + std::to_string(rank);
}

std::optional<Reason> explainSeason(const Season& season, const FactStore& facts,
                                    std::string_view id) {
    return SeasonExplainer(season, facts).explain(id);
}

} // namespace kavela
