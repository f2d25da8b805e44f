#include "splittaking/race_day/race_day.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"

#include <algorithm>
#include <set>

namespace kavela {

namespace {

constexpr std::int64_t NewestDayVersion = 1;

[[noreturn]] void refuseDay(std::string path, std::string why) {
    throw DecodeError({std::move(path), std::move(why)});
}

std::string placeInDay(const char* list, std::size_t place) {
    return list + ('[' + std::to_string(place) + ']');
}

/// Who finds a start twice, or a film of a start that is not there, would write on over it.
void checkDay(const RaceDay& day) {
    if (day.racedayversion > NewestDayVersion)
        refuseDay("racedayversion", "a later release wrote this race day");
    std::set<std::int64_t> starts;
    for (std::size_t i = 0; i < day.starts.size(); ++i) {
        const DayStart& start = day.starts[i];
        if (start.id <= 0 || !starts.insert(start.id).second)
            refuseDay(placeInDay("starts", i), "the id is not above 0, or another start has it");
        if (!start.out.empty() && start.out != DidNotStart && start.out != DidNotFinish)
            refuseDay(placeInDay("starts", i), "out is \"" + start.out + "\" and not DNS or DNF");
    }
    std::set<std::int64_t> films;
    for (std::size_t i = 0; i < day.films.size(); ++i) {
        if (day.films[i].id <= 0 || !films.insert(day.films[i].id).second)
            refuseDay(placeInDay("films", i), "the id is not above 0, or another film has it");
        for (const std::int64_t start : day.films[i].starts)
            if (!starts.contains(start))
                refuseDay(placeInDay("films", i), "there is no start " + std::to_string(start));
    }
}

template <class List>
auto* entryOfDay(const List& list, std::int64_t id) {
    const auto found = std::ranges::find(list, id, &List::value_type::id);
    return found == list.end() ? nullptr : &*found;
}

/// "12 Ann Lee (K1W Heats)", as far as it is known.
std::string startInWords(const DayStart& start) {
    std::string words = start.bib > 0 ? std::to_string(start.bib) : std::string();
    const auto add = [&](const std::string& more) {
        words += (words.empty() || more.empty() ? "" : " ") + more;
    };
    add(start.name);
    const std::string group =
        start.cat + (start.cat.empty() || start.phase.empty() ? "" : " ") + start.phase;
    if (!group.empty())
        add('(' + group + ')');
    return words;
}

} // namespace

const DayStart* findStart(const RaceDay& day, std::int64_t id) {
    return entryOfDay(day.starts, id);
}

const DayFilm* findFilm(const RaceDay& day, std::int64_t id) {
    return entryOfDay(day.films, id);
}

const DayFilm* findFilmFrom(const RaceDay& day, const std::string& from) {
    const auto found = std::ranges::find(day.films, from, &DayFilm::from);
    return found == day.films.end() ? nullptr : &*found;
}

const DayFilm* findFilmOf(const RaceDay& day, std::int64_t start) {
    const auto found = std::ranges::find_if(day.films, [&](const DayFilm& film) {
        return std::ranges::find(film.starts, start) != film.starts.end();
    });
    return found == day.films.end() ? nullptr : &*found;
}

std::string presentName(const RaceDay& day, const std::string& from) {
    const DayFilm* const film = findFilmFrom(day, from);
    return film && !film->film.empty() ? film->film : from;
}

std::vector<std::string> linesOfThoseOut(const RaceDay& day) {
    std::vector<std::string> lines;
    for (const std::string out : {DidNotStart, DidNotFinish}) {
        std::string names;
        for (const DayStart& start : day.starts)
            if (start.out == out)
                names += (names.empty() ? "" : ", ") + startInWords(start);
        if (!names.empty())
            lines.push_back(out + ": " + names);
    }
    return lines;
}

std::filesystem::path raceDayPath(const std::filesystem::path& splitFile) {
    return std::filesystem::path(splitFile).replace_extension(".kvday");
}

std::optional<RaceDay> readRaceDay(const std::filesystem::path& file) {
    if (!isTaken(file))
        return std::nullopt;
    auto day = decode<RaceDay>(JsonDocument::fromFile(file));
    checkDay(day);
    return day;
}

void writeRaceDay(const RaceDay& day, const std::filesystem::path& file) {
    writeFileSafely(file, encode(day));
}

} // namespace kavela
