#include "splittaking/race_day/film_sources.h"

#include "splittaking/race_day/film_naming.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace kavela {

namespace {

/// The name that a file of the race's folder came with.
std::string cameAs(const RaceDay& day, const std::string& name) {
    for (const DayFilm& film : day.films)
        if (!film.film.empty() && film.film == name)
            return film.from;
    return name;
}

std::string bareName(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

} // namespace

std::vector<DaySource> daySources(const RaceDay& day, std::span<const FilmFile> here,
                                  std::span<const FilmFile> card) {
    std::vector<DaySource> sources;
    std::map<std::string, const FilmFile*> known;
    for (std::size_t file = 0; file < here.size(); ++file) {
        const std::string from = cameAs(day, here[file].path);
        if (known.try_emplace(from, &here[file]).second && here[file].isWhole)
            sources.push_back({from, file, true});
    }
    std::vector<std::size_t> order(card.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t file) { return card[file].path; });
    for (const std::size_t file : order) {
        if (!card[file].isWhole)
            continue;
        for (int number = 1;; ++number) {
            const std::string from = numberedFilmName(bareName(card[file].path), number);
            const auto [found, isNew] = known.try_emplace(from, &card[file]);
            const FilmFile& there = *found->second;
            // One that still grows here is this one being copied, by whomever.
            const bool isOnItsWay = !isNew && !there.isWhole && !there.isBroken;
            if (isNew || isOnItsWay) {
                sources.push_back({from, file, false});
                found->second = &card[file];
                break;
            }
            if (there.isWhole && there.bytes == card[file].bytes)
                break;
        }
    }
    return sources;
}

} // namespace kavela
