#pragma once

#include "splittaking/race_day/race_day.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

/// Which film shows which start, by when it was recorded and in which order.
namespace kavela {

/// Where it comes from when a recording began.
enum class RecordingTime { Camera, File };

/// A film that is whole.
struct SeenFilm {
    std::string from;   ///< the name that it came with
    double began = 0;   ///< seconds since the local midnight of the day; below 0 the day before
    double seconds = 0; ///< how long it is; 0 where that is not known
    RecordingTime source = RecordingTime::Camera;
    std::string crew = {};  ///< as its name tells; empty where it tells none
    std::string phase = {}; ///< likewise
};

/// How far a match is settled.
enum class MatchState {
    Proposed, ///< of no consequence yet
    Kept,     ///< the film was opened, shifted or given to the start by hand
    Agreed    ///< and named after the boat, by the coach's word
};

struct DayMatch {
    std::int64_t start = 0; ///< its id
    std::string from;       ///< the film
    MatchState state = MatchState::Proposed;
    double confidence = 0; ///< 0 to 1; 1 for what is not merely proposed
    std::string why;       ///< "4 s from its start", "by the order"
};

inline constexpr double SureConfidence = 0.7;
inline constexpr double LikelyConfidence = 0.4;

struct DayMatching {
    std::vector<DayMatch> matches;  ///< in the order of the starts; a film may show several
    std::vector<std::string> extra; ///< films of the day that show no boat of the list
    /// Seconds by which the camera's clock seems to be ahead of the start list, where that is more
    /// than a camera's place at the course explains and the coach has not agreed to it yet.
    std::optional<double> offeredOffset;
    std::size_t ofOtherDays = 0; ///< films that are left alone, for their dates
};

/// Matches films to starts. What is settled in the day stays; the films behind it follow it. A film
/// whose name tells a crew of the list is that crew's. The others are matched by the times of the
/// list, else by the order in which they were recorded, where a gap of twice the usual length is a
/// film that is missing. A boat that did not start has no film. An unusually long film shows the
/// next boat too, where that has none.
[[nodiscard]] DayMatching matchFilms(const RaceDay& day, std::span<const SeenFilm> films);

} // namespace kavela
