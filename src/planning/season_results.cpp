#include "planning/season_results.h"

#include "planning/erase_at.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

template <class T>
std::optional<T> entryAt(const std::vector<T>& list, std::size_t index) {
    return index < list.size() ? std::optional<T>(list[index]) : std::nullopt;
}

template <class T>
std::optional<T> aboveZero(std::optional<T> value) {
    return value && *value > 0 ? value : std::nullopt;
}

template <class T>
void setAt(std::vector<T>& list, std::size_t row, const std::optional<T>& value) {
    if (!value)
        return;
    if (list.size() <= row)
        list.resize(row + 1);
    list[row] = *value;
}

std::optional<double> percentBehind(const racedataplanning_v3& races, std::size_t row) {
    const auto own = aboveZero(entryAt(races.time, row));
    const auto best = aboveZero(entryAt(races.bestTime, row));
    if (!own || !best)
        return std::nullopt;
    const double sum = *own + static_cast<double>(entryOrZero(races.timePen, row));
    const double least = *best + static_cast<double>(entryOrZero(races.bestTimePen, row));
    const double percentage = (sum / least - 1) * 100;
    return std::isfinite(percentage) ? std::optional(percentage) : std::nullopt;
}

} // namespace

std::vector<RankingEntry> rankingEntries(const icfdataplanning_v1& ranking) {
    std::vector<RankingEntry> entries(
        std::max({ranking.release.size(), ranking.points.size(), ranking.pos.size()}));
    for (std::size_t row = 0; row < entries.size(); ++row)
        entries[row] = {entryAt(ranking.release, row), entryAt(ranking.points, row),
                        entryAt(ranking.pos, row)};
    return entries;
}

void setRankingEntry(icfdataplanning_v1& ranking, std::size_t row, const RankingEntry& entry) {
    setAt(ranking.release, row, entry.release);
    setAt(ranking.points, row, entry.points);
    setAt(ranking.pos, row, entry.position);
}

void removeRankingEntry(icfdataplanning_v1& ranking, std::size_t row) {
    eraseAt(ranking.release, row);
    eraseAt(ranking.points, row);
    eraseAt(ranking.pos, row);
}

std::vector<SeasonRace> seasonRaces(const racedataplanning_v3& races) {
    std::vector<SeasonRace> rows(
        std::max({races.date.size(), races.event.size(), races.phase.size(), races.location.size(),
                  races.pos.size(), races.time.size(), races.timePen.size(), races.gates.size()}));
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row] = {entryAt(races.date, row),           entryOrZero(races.event, row),
                     entryOrZero(races.phase, row),      entryOrZero(races.location, row),
                     aboveZero(entryAt(races.pos, row)), aboveZero(entryAt(races.time, row)),
                     entryAt(races.timePen, row),        entryAt(races.gates, row),
                     percentBehind(races, row)};
    return rows;
}

std::size_t runCount(const penaltydataplanning_v1& penalties) {
    return std::max(penalties.touches.size(), penalties.fifties.size());
}

} // namespace kavela
