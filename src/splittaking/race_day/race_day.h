#pragma once

#include "common/record.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// A day at the race: who starts when, and which film shows whom. It is kept in a file beside the
/// split file, so that neither a crash nor a night loses any of it.
namespace kavela {

/// Why a boat is not to be timed; empty for one that is.
inline constexpr const char* DidNotStart = "DNS";
inline constexpr const char* DidNotFinish = "DNF";

/// Where only the order of the starts is known.
inline constexpr double NoStartTime = -1;

/// A line of the start list.
struct DayStart {
    std::int64_t id = 0;  ///< the same through all edits; above 0
    std::int64_t bib = 0; ///< 0 for none
    std::string name;     ///< of the crew: "A / B"
    std::string cat;
    std::string phase;
    double starttime = NoStartTime; ///< seconds since the local midnight of the day
    std::string out;                ///< empty, DidNotStart or DidNotFinish
};
BOOST_DESCRIBE_STRUCT(DayStart, (), (id, bib, name, cat, phase, starttime, out))

/// A film of which something is settled: it was opened, named, shifted or given to a start by hand.
struct DayFilm {
    std::int64_t id = 0; ///< the same through all edits; above 0
    std::string from;    ///< the bare name that it came with, which it is known by
    std::string film;    ///< the name that it was given in the folder of the race; empty for none
    std::vector<std::int64_t> starts; ///< in the order of its boats; empty for a film of no boat
    bool agreed = false;              ///< by the coach, who had it named after its boat
};
BOOST_DESCRIBE_STRUCT(DayFilm, (), (id, from, film, starts, agreed))

struct RaceDay {
    std::int64_t racedayversion = 1;
    std::string date;             ///< "2026-05-16", the local day
    std::string folder;           ///< that is watched; empty for the folder of the race
    bool hasclockoffset = false;  ///< the coach agreed to the offset
    double clockoffset = 0;       ///< seconds by which the camera is ahead of the start list
    std::vector<DayStart> starts; ///< in the order of starting
    std::vector<DayFilm> films;
};
BOOST_DESCRIBE_STRUCT(RaceDay, (),
                      (racedayversion, date, folder, hasclockoffset, clockoffset, starts, films))

/// The start of an id, or the film of one; null for none.
[[nodiscard]] const DayStart* findStart(const RaceDay& day, std::int64_t id);
[[nodiscard]] const DayFilm* findFilm(const RaceDay& day, std::int64_t id);
/// The film that came with a name; null where nothing of it is settled.
[[nodiscard]] const DayFilm* findFilmFrom(const RaceDay& day, const std::string& from);
/// The film that shows a start; null where none is settled.
[[nodiscard]] const DayFilm* findFilmOf(const RaceDay& day, std::int64_t start);

/// The name of a film in the folder of the race, by the name that it came with.
[[nodiscard]] std::string presentName(const RaceDay& day, const std::string& from);

/// Who is not to be timed, in the order of starting: "DNS: 12 Ann Lee (K1W Heats), 14 Bea Hill",
/// and the same of DNF; nothing of what nobody is.
[[nodiscard]] std::vector<std::string> linesOfThoseOut(const RaceDay& day);

/// The file of the day that belongs to a split file: "NAME.kvday" beside it.
[[nodiscard]] std::filesystem::path raceDayPath(const std::filesystem::path& splitFile);

/// The day of a file; nothing where there is no file. Throws FileError, or DecodeError where it is
/// none of ours, of a later release, or holds what cannot be.
[[nodiscard]] std::optional<RaceDay> readRaceDay(const std::filesystem::path& file);

/// Throws FileError, or EncodeError for texts that are not UTF-8.
void writeRaceDay(const RaceDay& day, const std::filesystem::path& file);

} // namespace kavela
