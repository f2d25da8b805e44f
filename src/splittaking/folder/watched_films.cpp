#include "splittaking/folder/watched_films.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double TenthsPerSecond = 10;

/// Frames that play follow each other in less, fast forward included; a jump goes farther.
constexpr double LongestStep = 2; // seconds

/// No film is longer than a day, whatever a damaged one says.
constexpr double LongestFilm = 86'400;

std::size_t tenthAt(double seconds) {
    return static_cast<std::size_t>(std::clamp(seconds, 0.0, LongestFilm) * TenthsPerSecond);
}

} // namespace

void ShownPart::clear() {
    m_tenths.clear();
    m_last.reset();
}

void ShownPart::show(double seconds, bool isPlaying) {
    const bool isStep = isPlaying && m_last && std::abs(seconds - *m_last) <= LongestStep;
    const std::size_t from = tenthAt(isStep ? std::min(seconds, *m_last) : seconds);
    const std::size_t to = tenthAt(isStep ? std::max(seconds, *m_last) : seconds);
    if (isPlaying) {
        m_tenths.resize(std::max(m_tenths.size(), to + 1));
        std::fill(m_tenths.begin() + static_cast<std::ptrdiff_t>(from),
                  m_tenths.begin() + static_cast<std::ptrdiff_t>(to) + 1, true);
    }
    m_last = seconds;
}

double ShownPart::fractionOf(double length) const {
    if (!(length > 0))
        return 0;
    const std::size_t all = std::max<std::size_t>(tenthAt(length), 1);
    const auto end = m_tenths.begin() + static_cast<std::ptrdiff_t>(std::min(all, m_tenths.size()));
    return static_cast<double>(std::count(m_tenths.begin(), end, true)) / static_cast<double>(all);
}

bool addWatched(std::vector<std::string>& watched, const std::string& film) {
    if (!watched.empty() && watched.back() == film)
        return false;
    std::erase(watched, film);
    watched.push_back(film);
    if (watched.size() > MostWatchedFilms)
        watched.erase(watched.begin(),
                      watched.end() - static_cast<std::ptrdiff_t>(MostWatchedFilms));
    return true;
}

} // namespace kavela
