#include "performance/season_data.h"

#include "common/text.h"
#include "facts/groups.h"
#include "performance/loss_sides.h"
#include "performance/penalty_passages.h"
#include "performance/season_days.h"
#include "performance/season_rules.h"
#include "performance/season_starts.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/frame_step.h"
#include "splitdata/run_totals.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <ranges>
#include <set>
#include <tuple>
#include <unordered_map>

namespace kavela {

namespace {

constexpr std::string_view RaceSessionWord = "Race";

/// The team's label of a phase, else what is written.
std::string phaseLabel(const std::string& written) {
    std::string label = teamPhase(written);
    return label.empty() ? written : label;
}

/// The total of a run of the team; nothing for one that was not finished or is faulty.
std::optional<double> totalOfPhase(const mtPhaseStruct& phase) {
    if (!isTakenTime(phase.time) || phase.pen < 0)
        return std::nullopt;
    return phase.time + static_cast<double>(phase.pen);
}

/// Names a phase of a race as the team tells it.
using TeamPhaseKey = std::tuple<std::int64_t, std::string, std::string, std::string>;

/// The words of a race that find it again however they are written, made once for all its phases.
struct RaceWords {
    std::string event;
    std::string location;
};

RaceWords wordsOf(const RaceResult& race) {
    return {bareKey(race.event), bareKey(race.location)};
}

TeamPhaseKey keyOf(const RaceResult& race, const RaceWords& words, const PhaseResult& phase) {
    return {race.year, words.event, words.location, phase.phase};
}

/// Fills the data, the split files first.
class SeasonReader {
public:
    SeasonReader(const myTeamToSaveStruct& team, const FactStore& facts, const SeasonChoice& choice)
        : m_team(team), m_facts(facts), m_choice(choice), m_key(categoryKey(choice.category)) {
        m_data.category = choice.category;
        if (choice.starter.empty())
            return;
        m_starts.emplace(team, facts, choice);
        m_data.starter = m_starts->name();
    }

    [[nodiscard]] SeasonData read() {
        addMembers();
        for (const RivalGroup& group : groupsOf(m_facts))
            addGroup(group);
        for (SeasonMember& member : m_data.members)
            for (RaceResult& race : member.races) {
                const RaceWords words = wordsOf(race);
                for (PhaseResult& phase : race.phases)
                    place(member, race, words, phase);
            }
        for (SeasonMember& member : m_data.members)
            for (RaceResult& race : member.races) {
                const RaceWords words = wordsOf(race);
                for (PhaseResult& phase : race.phases)
                    compare(keyOf(race, words, phase), phase);
            }
        return std::move(m_data);
    }

private:
    std::size_t boatOf(const std::string& key, std::string_view name) {
        const auto [found, isNew] = m_boats.try_emplace(key, m_data.boats.size());
        if (isNew)
            m_data.boats.push_back({key, std::string(name), std::nullopt, false});
        return found->second;
    }

    void addMembers() {
        for (std::size_t i = 0; i < m_team.realMyTeam.size(); ++i) {
            const myTeamStruct& athlete = m_team.realMyTeam[i];
            const auto isAskedFor = [&](const mtCatsStruct& category) {
                return categoryKey(category.cat) == m_key;
            };
            if (!std::ranges::any_of(athlete.cats, isAskedFor))
                continue;
            SeasonMember member{
                boatOf(crewKey(athlete.name), athlete.name), athlete.name, athlete.isretired, {}};
            SeasonBoat& boat = m_data.boats[member.boat];
            if (boat.member)
                m_data.twins.push_back(athlete.name);
            else
                boat.member = i;
            boat.isRetired = athlete.isretired;
            for (const mtCatsStruct& category : athlete.cats | std::views::filter(isAskedFor)) {
                m_data.category = category.cat;
                addRaces(category, member);
            }
            m_data.members.push_back(std::move(member));
        }
    }

    void addRaces(const mtCatsStruct& category, SeasonMember& member) const {
        for (const mtSeasonStruct& season : category.seasons) {
            if (!m_choice.has(season.year))
                continue;
            for (const mtRaceStruct& race : season.races) {
                RaceResult result{season.year, race.event, race.location, race.finalPos, {}};
                for (const mtPhaseStruct& phase : race.phases)
                    result.phases.push_back(resultOf(phase));
                if (!m_starts || m_starts->has(result))
                    member.races.push_back(std::move(result));
            }
        }
        std::ranges::stable_sort(member.races, {}, [](const RaceResult& race) {
            return std::pair(race.year,
                             race.phases.empty() ? 0 : seasonDay(race.phases.front().date));
        });
    }

    static PhaseResult resultOf(const mtPhaseStruct& phase) {
        PhaseResult result;
        result.phase = phaseLabel(phase.phase);
        result.date = phase.date;
        result.pos = phase.pos;
        result.total = totalOfPhase(phase);
        result.isMissed = phase.pen >= MissedGateSeconds;
        result.splits = phase.splits;
        result.pers = phase.pers;
        return result;
    }

    /// A group of a split file becomes a phase of a race, with all its whole runs.
    void addGroup(const RivalGroup& group) {
        const RunRow& first = m_facts.runs()[group.front()];
        const FileRow& file = m_facts.fileOf(first);
        const ReferenceDate date{file.date};
        if (!isSeasonRace(m_facts, file) || m_facts.text(first.categoryKey) != m_key ||
            !m_choice.has(yearOfDate(date)) || (m_starts && !m_starts->has(m_facts, file)))
            return;
        const std::size_t phase = m_data.phases.size();
        const std::string_view place = m_facts.text(file.place != 0 ? file.place : file.title);
        m_data.phases.push_back({std::string(m_facts.text(first.phaseKey)), std::string(place),
                                 yearOfDate(date), date, first.file});
        m_groups.push_back({});
        const std::set<std::string> names{bareKey(m_facts.text(file.place)),
                                          bareKey(m_facts.text(file.title))};
        for (const std::string& name : names)
            if (!name.empty())
                m_groupsByName[m_data.phases.back().phase + '\n' + name].push_back(phase);
        for (const std::size_t run : group)
            addFileRun(run, phase);
    }

    void addFileRun(std::size_t run, std::size_t phase) {
        const RunRow& row = m_facts.runs()[run];
        // A damaged file may hold a penalty below 0 that is more than the time.
        if (!row.isComplete || !(row.total > 0) || !std::isfinite(row.total))
            return;
        const std::size_t boat =
            boatOf(std::string(m_facts.text(row.crewKey)), m_facts.text(row.crew));
        GroupFigures& group = m_groups[phase];
        if (!group.best || row.total < m_facts.runs()[*group.best].total)
            group.best = run;
        group.boats.insert(boat);
        m_data.runs.push_back({boat, phase, row.total, row.penalty >= MissedGateSeconds, run});
    }

    /// The split file's group of the team's phase; of several the one with the athlete in it, else
    /// the first.
    [[nodiscard]] std::optional<std::size_t>
    groupFor(const std::string& location, const PhaseResult& phase, std::size_t boat) const {
        const auto found = m_groupsByName.find(phase.phase + '\n' + location);
        if (found == m_groupsByName.end())
            return std::nullopt;
        std::optional<std::size_t> first;
        for (const std::size_t group : found->second) {
            const double apart = seasonDay(m_data.phases[group].date) - seasonDay(phase.date);
            if (!(std::abs(apart) <= 1))
                continue;
            if (m_groups[group].boats.contains(boat))
                return group;
            if (!first)
                first = group;
        }
        return first;
    }

    /// Tells where the team's phase belongs, and adds its run where no split file has it.
    void place(const SeasonMember& member, const RaceResult& race, const RaceWords& words,
               PhaseResult& phase) {
        const auto group = groupFor(words.location, phase, member.boat);
        if (group && m_groups[*group].best) {
            const std::size_t run = *m_groups[*group].best;
            phase.winner = m_facts.runs()[run].total;
            phase.winnerRun = run;
            phase.winnerName = m_facts.text(m_facts.runs()[run].crew);
            phase.source = WinnerSource::File;
        }
        const TeamPhaseKey key = keyOf(race, words, phase);
        if (phase.total && phase.pos == 1)
            m_teamWinners.try_emplace(key, std::pair(*phase.total, member.name));
        if (!phase.total || (group && m_groups[*group].boats.contains(member.boat)))
            return;
        const std::size_t place = group ? *group : teamPhaseAt(key, race, phase);
        if (m_taken.insert({member.boat, place}).second)
            m_data.runs.push_back({member.boat, place, *phase.total, phase.isMissed, std::nullopt});
    }

    std::size_t teamPhaseAt(const TeamPhaseKey& key, const RaceResult& race,
                            const PhaseResult& phase) {
        const auto [found, isNew] = m_teamPhases.try_emplace(key, m_data.phases.size());
        if (isNew)
            m_data.phases.push_back(
                {phase.phase, race.location, race.year, phase.date, std::nullopt});
        return found->second;
    }

    /// Everybody's runs are known by now.
    void compare(const TeamPhaseKey& key, PhaseResult& phase) const {
        const auto winner = m_teamWinners.find(key);
        if (!phase.winner && winner != m_teamWinners.end()) {
            phase.winner = winner->second.first;
            phase.winnerName = winner->second.second;
            phase.source = WinnerSource::Team;
        }
        phase.percent = percentBehindWinner(m_facts, phase);
        phase.behindSplits = percentBehindSplits(phase);
    }

    struct GroupFigures {
        std::optional<std::size_t> best; ///< run of the store
        std::set<std::size_t> boats;     ///< with a total
    };

    const myTeamToSaveStruct& m_team;
    const FactStore& m_facts;
    const SeasonChoice& m_choice;
    std::string m_key;
    std::optional<SeasonStarts> m_starts; ///< where only these races are asked for
    SeasonData m_data;
    std::unordered_map<std::string, std::size_t> m_boats;
    std::vector<GroupFigures> m_groups; ///< by phase; the split files' come first
    std::unordered_map<std::string, std::vector<std::size_t>> m_groupsByName;
    std::map<TeamPhaseKey, std::size_t> m_teamPhases;
    std::map<TeamPhaseKey, std::pair<double, std::string>> m_teamWinners;
    std::set<std::pair<std::size_t, std::size_t>> m_taken; ///< boat and phase, from the team
};

} // namespace

std::string_view sourceText(WinnerSource source) {
    switch (source) {
    case WinnerSource::File:
        return "file";
    case WinnerSource::Team:
        return "team";
    case WinnerSource::None:
        break;
    }
    return "";
}

bool isSeasonRace(const FactStore& facts, const FileRow& file) {
    return facts.text(file.session) == RaceSessionWord;
}

std::optional<std::size_t> SeasonData::boatNamed(std::string_view name) const {
    const auto found = std::ranges::find(boats, crewKey(name), &SeasonBoat::key);
    if (found == boats.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - boats.begin());
}

std::optional<std::size_t> SeasonData::memberNamed(std::string_view name) const {
    const auto boat = boatNamed(name);
    const auto found =
        boat ? std::ranges::find(members, *boat, &SeasonMember::boat) : members.end();
    if (found == members.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - members.begin());
}

SeasonData seasonData(const myTeamToSaveStruct& team, const FactStore& facts,
                      const SeasonChoice& choice) {
    return SeasonReader(team, facts, choice).read();
}

std::optional<Place> seasonPlace(const FactStore& facts, std::optional<std::size_t> run) {
    if (!run)
        return std::nullopt;
    const RunRow& row = facts.runs()[*run];
    return Place{facts.pathOf(row), row.number, {}, {}, {}, {}};
}

std::optional<double> percentBehindWinner(const FactStore& facts, const PhaseResult& result,
                                          Why* why) {
    if (!result.total || !result.winner)
        return std::nullopt;
    const double percent = 100 * (*result.total / *result.winner - 1);
    if (why) {
        why->input("total", *result.total);
        const bool isOnFilm = result.winnerRun && !facts.runs()[*result.winnerRun].isOfficial;
        why->input(result.winnerName, *result.winner, seasonPlace(facts, result.winnerRun),
                   isOnFilm ? markUncertainty(facts, *result.winnerRun) : 0, HalfFrameTwice);
        why->result(ruleOf(SeasonRule::Percent), percent, fmt::format("{:.1f} %", percent));
    }
    return percent;
}

std::optional<double> percentBehindSplits(const PhaseResult& result, Why* why) {
    if (result.splits.empty() || result.splits.size() != result.pers.size())
        return std::nullopt;
    double own = 0;
    double fastest = 0;
    for (std::size_t i = 0; i < result.splits.size(); ++i) {
        const double best = result.splits[i] / (1 + result.pers[i] / 100);
        if (!isTakenTime(result.splits[i]) || !isTakenTime(best))
            return std::nullopt;
        own += result.splits[i];
        fastest += best;
        if (why)
            why->input(say("split {}, fastest of it {:.2f}", i + 1, best), result.splits[i]);
    }
    const double percent = 100 * (own / fastest - 1);
    if (why)
        why->result(ruleOf(SeasonRule::BehindSplits), percent, fmt::format("{:.1f} %", percent));
    return percent;
}

} // namespace kavela
