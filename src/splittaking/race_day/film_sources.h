#pragma once

#include "splittaking/race_day/race_day.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace kavela {

/// A file of a folder that is looked through.
struct FilmFile {
    std::string path; ///< in that folder; bare names in the folder of the race
    std::uintmax_t bytes = 0;
    bool isWhole = true;
    bool isBroken = false; ///< it rests and cannot be read: no film will come of it
};

/// A film of the day and where it is.
struct DaySource {
    std::string from;     ///< what it is known by: its name when it came
    std::size_t file = 0; ///< its place in the list that it is read from
    bool isHere = false;  ///< in the folder of the race; otherwise on the card
};

/// The films that are whole, each once: one that was copied from the card is known by the name that
/// it has there, whatever it is called in the folder of the race now. A film of the card whose name
/// another film has already comes with the next number that is free: "IMG_0001 (2).MP4". So no film
/// ever takes the name of another one.
[[nodiscard]] std::vector<DaySource> daySources(const RaceDay& day, std::span<const FilmFile> here,
                                                std::span<const FilmFile> card);

} // namespace kavela
