#include "splittaking/race_day/growing_films.h"

#include <utility>

namespace kavela {

std::vector<std::string> GrowingFilms::look(const std::map<std::string, Found>& films, double now) {
    m_now = now;
    std::erase_if(m_known, [&](const auto& known) { return !films.contains(known.first); });
    std::vector<std::string> rested;
    for (const auto& [name, found] : films) {
        const auto [known, isNew] = m_known.try_emplace(name, Known{found, now, false, false});
        if (isNew)
            continue;
        if (known->second.found != found)
            known->second = {found, now, false, false};
        else if (!known->second.isWhole && found.bytes > 0 && now - known->second.since >= m_rest)
            rested.push_back(name);
    }
    return rested;
}

void GrowingFilms::noteRead(const std::string& film, bool couldBeRead) {
    const auto known = m_known.find(film);
    if (known == m_known.end())
        return;
    known->second.isWhole = couldBeRead;
    known->second.isBroken = !couldBeRead;
    known->second.since = m_now;
}

void GrowingFilms::rename(const std::string& film, const std::string& now) {
    if (auto known = m_known.extract(film)) {
        known.key() = now;
        m_known.insert(std::move(known));
    }
}

bool GrowingFilms::isWhole(const std::string& film) const {
    const auto known = m_known.find(film);
    return known != m_known.end() && known->second.isWhole;
}

bool GrowingFilms::isBroken(const std::string& film) const {
    const auto known = m_known.find(film);
    return known != m_known.end() && known->second.isBroken;
}

std::vector<std::string> GrowingFilms::growing() const {
    std::vector<std::string> films;
    for (const auto& [name, known] : m_known)
        if (!known.isWhole)
            films.push_back(name);
    return films;
}

} // namespace kavela
