#include "desktop/selection/real_ranking.h"

#include "desktop/selection/selection_document.h"

#include <algorithm>

namespace kavela::desktop {

void RealRanking::update(std::size_t category) {
    m_category = category;
    m_standings.clear();
    if (const srCategoryStruct_v3* const real = this->category())
        m_standings = standings(*real, m_document.value().races.size(), m_document.bonus(),
                                m_document.times());
}

const srCategoryStruct_v3* RealRanking::category() const {
    const auto& categories = m_document.value().categories;
    return m_document.isWhatIf() && m_category < categories.size() ? &categories[m_category]
                                                                   : nullptr;
}

std::optional<std::size_t> RealRanking::athlete(const std::string& name) const {
    const srCategoryStruct_v3* const real = category();
    if (!real)
        return std::nullopt;
    const auto found = std::ranges::find(real->athletes, name, &srAthleteStruct_v3::name);
    if (found == real->athletes.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - real->athletes.begin());
}

std::optional<Standing> RealRanking::standingOf(const std::string& name) const {
    const auto place = athlete(name);
    const auto found =
        place ? std::ranges::find(m_standings, *place, &Standing::athlete) : m_standings.end();
    return found == m_standings.end() ? std::nullopt : std::optional(*found);
}

const saRaceStruct* RealRanking::resultOf(const std::string& name, std::size_t race) const {
    const auto place = athlete(name);
    if (!place)
        return nullptr;
    const auto& results = category()->athletes[*place].racedata;
    return race < results.size() ? &results[race] : nullptr;
}

} // namespace kavela::desktop
