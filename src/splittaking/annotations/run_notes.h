#pragma once

#include "common/blob.h"
#include "splittaking/annotations/film_marks.h"

#include <string_view>

/// What is noted on a run as a whole or on a split, without a mark on the film.
namespace kavela {

/// The comment on a split, counted from 1; empty when there is none.
[[nodiscard]] std::string splitComment(const athletedata031& run, std::size_t split);

/// Writes the comment on a split. The list is filled up to it; an empty comment beyond the list's
/// end adds nothing. Throws std::out_of_range for split 0 and splits beyond MostSplits.
void setSplitComment(athletedata031& run, std::size_t split, std::string text);

/// Adds to the give-ups, or takes away below 0; there are never fewer than none.
void addGiveUps(athletedata031& run, std::int64_t more);

enum class Scorer { Athlete, Coach };

/// A score is 0 for none and 10 at best.
inline constexpr double BestScore = 10;

/// Throws std::invalid_argument for a score outside 0 to BestScore.
void setScore(athletedata031& run, Scorer scorer, double score);

/// The team radio of a run. Edits throw std::out_of_range for a recording that does not exist;
/// places are counted from 0.
std::size_t addTeamRadio(athletedata031& run, Blob recording);
void removeTeamRadio(athletedata031& run, std::size_t recording);
void moveTeamRadio(athletedata031& run, std::size_t from, std::size_t to);

/// The extension of a sound file by its first bytes: ".m4a", ".mp3", ".wav", ".aiff", ".caf",
/// ".ogg", ".flac", ".aac", ".amr"; ".bin" when they tell nothing.
[[nodiscard]] std::string_view soundExtension(const Blob& recording);

} // namespace kavela
