#include "splittaking/race_day/day_edits.h"

#include <algorithm>
#include <map>
#include <utility>

namespace kavela {

namespace {

/// The boats on a film in the order of the list, whoever said so.
std::vector<std::int64_t> startsOn(const DayMatching& matching, const std::string& from) {
    std::vector<std::int64_t> starts;
    for (const DayMatch& match : matching.matches)
        if (match.from == from)
            starts.push_back(match.start);
    return starts;
}

bool isSlot(const DayStart& start) {
    return start.out != DidNotStart;
}

} // namespace

DayFilm& filmFrom(RaceDay& day, const std::string& from) {
    std::int64_t lastId = 0;
    for (DayFilm& film : day.films) {
        if (film.from == from)
            return film;
        lastId = std::max(lastId, film.id);
    }
    DayFilm& added = day.films.emplace_back();
    added.id = lastId + 1;
    added.from = from;
    return added;
}

RaceDay withOut(RaceDay day, std::int64_t start, std::string_view out) {
    const auto found = std::ranges::find(day.starts, start, &DayStart::id);
    if (found != day.starts.end())
        found->out = found->out == out ? std::string() : std::string(out);
    return day;
}

RaceDay withFilm(RaceDay day, const std::string& from, const std::vector<std::int64_t>& starts) {
    for (DayFilm& film : day.films) {
        const auto gone = std::erase_if(film.starts, [&](std::int64_t start) {
            return film.from != from && std::ranges::find(starts, start) != starts.end();
        });
        film.agreed = film.agreed && gone == 0;
    }
    DayFilm& film = filmFrom(day, from);
    if (film.starts != starts)
        film.agreed = false;
    film.starts = starts;
    return day;
}

RaceDay withFilmToo(RaceDay day, const std::string& from, std::int64_t start) {
    const DayFilm* const film = findFilmFrom(day, from);
    std::vector<std::int64_t> starts = film ? film->starts : std::vector<std::int64_t>();
    if (std::ranges::find(starts, start) == starts.end())
        starts.push_back(start);
    return withFilm(std::move(day), from, starts);
}

RaceDay withKept(RaceDay day, const DayMatching& matching, const std::string& from) {
    return findFilmFrom(day, from) ? day : withFilm(std::move(day), from, startsOn(matching, from));
}

RaceDay withShift(RaceDay day, const DayMatching& matching, std::int64_t start, int step) {
    std::vector<std::int64_t> slots; // that films can go to, the start's own first
    std::vector<std::string> films;  // each once, in their order
    bool isBehind = false;
    for (const DayStart& each : std::vector(day.starts)) {
        isBehind = isBehind || each.id == start;
        if (!isBehind) {
            // What is in front was seen to be right, and must not follow those behind.
            const auto match = std::ranges::find(matching.matches, each.id, &DayMatch::start);
            if (match != matching.matches.end())
                day = withKept(std::move(day), matching, match->from);
            continue;
        }
        if (isSlot(each))
            slots.push_back(each.id);
        for (const DayMatch& match : matching.matches)
            if (match.start == each.id && std::ranges::find(films, match.from) == films.end())
                films.push_back(match.from);
    }
    const auto moved = [&](std::int64_t from) -> std::optional<std::int64_t> {
        const auto at = std::ranges::find(slots, from);
        if (at == slots.end())
            return std::nullopt;
        const auto to = at - slots.begin() + step;
        return to < 0 || to >= std::ssize(slots)
                   ? std::nullopt
                   : std::optional(slots[static_cast<std::size_t>(to)]);
    };
    std::map<std::string, std::vector<std::int64_t>> after;
    for (const std::string& film : films)
        for (const std::int64_t boat : startsOn(matching, film)) {
            const bool isBefore =
                std::ranges::none_of(slots, [&](std::int64_t slot) { return slot == boat; }) &&
                findStart(day, boat)->out != DidNotStart;
            if (const auto to = isBefore ? std::optional(boat) : moved(boat))
                after[film].push_back(*to);
        }
    // All of them at once: none takes the boat of the next one away.
    for (const std::string& film : films) {
        DayFilm& each = filmFrom(day, film);
        each.starts = std::move(after[film]);
        each.agreed = false;
    }
    return day;
}

RaceDay withoutStart(RaceDay day, std::int64_t start) {
    std::erase_if(day.starts, [&](const DayStart& each) { return each.id == start; });
    for (DayFilm& film : day.films)
        std::erase(film.starts, start);
    return day;
}

RaceDay withOffset(RaceDay day, double seconds) {
    day.hasclockoffset = true;
    day.clockoffset = seconds;
    return day;
}

} // namespace kavela
