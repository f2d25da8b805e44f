#include "performance/table_join.h"

#include "results/name_likeness.h"
#include "splitdata/athlete_keys.h"
#include "tables/table_error.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace kavela {

namespace {

/// How many are offered where nobody is certain.
constexpr std::size_t MostOffered = 5;

/// Finds athletes by name and category.
class AthleteIndex {
public:
    explicit AthleteIndex(std::span<const KnownAthlete> athletes) : m_athletes(athletes) {
        for (std::size_t i = 0; i < athletes.size(); ++i) {
            m_names.push_back(athletes[i].name);
            if (std::string key = crewKey(athletes[i].name); !key.empty())
                m_byCrew[key].push_back(i);
        }
    }

    [[nodiscard]] JoinedRow find(const std::string& crew, const std::string& category) {
        const std::string key = crewKey(crew);
        if (key.empty())
            return {};
        const auto same = m_byCrew.find(key);
        if (same == m_byCrew.end())
            return alike(key, crew);
        std::vector<std::size_t> fitting;
        std::ranges::copy_if(same->second, std::back_inserter(fitting),
                             [&](std::size_t i) { return racesIn(m_athletes[i], category); });
        if (fitting.size() == 1)
            return {0, JoinCertainty::Certain, fitting};
        return {0, JoinCertainty::Unsure, fitting.empty() ? same->second : fitting};
    }

private:
    static bool racesIn(const KnownAthlete& athlete, const std::string& category) {
        return category.empty() || athlete.categories.empty() ||
               std::ranges::any_of(athlete.categories, [&](const std::string& label) {
                   return categoryKey(label) == categoryKey(category);
               });
    }

    /// Lists name a crew once for each run, and comparing letter by letter takes its time.
    [[nodiscard]] JoinedRow alike(const std::string& key, const std::string& crew) {
        const auto known = m_alike.find(key);
        if (known != m_alike.end())
            return known->second;
        JoinedRow joined;
        for (const std::size_t i : byLikeness(crew, m_names))
            if (joined.athletes.size() < MostOffered &&
                nameLikeness(crew, m_names[i]) >= ProbablyTheSame)
                joined.athletes.push_back(i);
        if (!joined.athletes.empty())
            joined.certainty = JoinCertainty::Unsure;
        return m_alike.emplace(key, joined).first->second;
    }

    std::span<const KnownAthlete> m_athletes;
    std::vector<std::string> m_names;
    std::map<std::string, std::vector<std::size_t>> m_byCrew;
    std::map<std::string, JoinedRow> m_alike;
};

} // namespace

std::vector<KnownAthlete> knownAthletes(const myTeamToSaveStruct& team) {
    std::vector<KnownAthlete> known;
    for (const myTeamStruct& athlete : team.realMyTeam) {
        KnownAthlete& made = known.emplace_back(KnownAthlete{athlete.name, {}});
        for (const mtCatsStruct& category : athlete.cats)
            made.categories.push_back(category.cat);
    }
    return known;
}

std::vector<JoinedRow> joinedRows(const ListTable& table, std::span<const KnownAthlete> athletes) {
    AthleteIndex index(athletes);
    std::vector<JoinedRow> joined;
    for (std::size_t row = 0; row < table.rows(); ++row) {
        const auto crew = crewOfRow(table, row);
        if (!crew)
            throw TableError("No column holds names of crews: its title would be Name, Athlete or "
                             "Crew.");
        JoinedRow found = index.find(*crew, textOfRole(table, ColumnRole::Category, row));
        found.row = row;
        joined.push_back(std::move(found));
    }
    return joined;
}

} // namespace kavela
