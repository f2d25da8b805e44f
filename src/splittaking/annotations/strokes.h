#pragma once

#include "splitdata/annotation_labels.h"
#include "splitdata/section_strokes.h"
#include "splittaking/annotations/film_marks.h"

#include <span>

/// Strokes and micro splits: marks in the run that stand in order of time.
namespace kavela {

/// Adds a micro split where its moment belongs and times it from the start of the run. Returns its
/// place.
std::size_t addMicroSplit(athletedata031& run, const CMTime& moment);

/// Moves a micro split and times it anew; returns its new place. Throws std::out_of_range when
/// there is none at `place`, counted from 0.
std::size_t moveMicroSplit(athletedata031& run, std::size_t place, const CMTime& moment);

/// Throws std::out_of_range when there is none at `place`.
void removeMicroSplit(athletedata031& run, std::size_t place);

/// Adds a stroke where it belongs, with the stamps of the run's cameras, and times it from the
/// start of the run. Returns its place. Throws std::invalid_argument without a stamp.
std::size_t addStroke(athletedata031& run, std::vector<CMTime> stamps, HandCode hand,
                      std::int64_t style = 0);

/// Moves a stroke and times it anew; returns its new place. Throws std::out_of_range when there is
/// none at `place`, counted from 0.
std::size_t moveStroke(athletedata031& run, std::size_t place, std::vector<CMTime> stamps);

/// Throws std::out_of_range when there is none at `place`.
void removeStroke(athletedata031& run, std::size_t place);

/// Left becomes right and anything else left. Throws std::out_of_range when there is none at
/// `place`.
void swapHand(athletedata031& run, std::size_t place);

/// Strokes per minute at a moment of the first camera's film: the median of the last five
/// intervals up to it, fewer where there are fewer. Nothing before the second stroke, and once the
/// boat has glided for longer than GlideSeconds.
[[nodiscard]] std::optional<double> strokeRateAt(std::span<const strokessdata025> strokes,
                                                 const CMTime& moment);

inline constexpr double GlideSeconds = 3;

} // namespace kavela
