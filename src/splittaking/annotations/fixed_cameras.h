#pragma once

#include "splittaking/annotations/film_marks.h"

/// The fixed cameras of a run and their synchronisation marks: the dates at which each camera saw
/// the same moments, in the same order. Cameras and marks are counted from 0; edits throw
/// std::out_of_range for what does not exist.
namespace kavela {

/// Adds the film of a fixed camera. Returns its number.
std::size_t attachFixedCamera(athletedata031& run, std::string film);

/// Takes a camera off the run with its marks and its moments of tags; the numbers of the cameras
/// behind it go down by one everywhere.
void detachFixedCamera(athletedata031& run, std::size_t camera);

/// The marks of a camera, those of all its records one after the other.
[[nodiscard]] std::vector<ReferenceDate> fixMarksOf(const athletedata031& run, std::size_t camera);

/// Adds a mark behind the camera's last one.
void addFixMark(athletedata031& run, std::size_t camera, ReferenceDate date);
void moveFixMark(athletedata031& run, std::size_t camera, std::size_t mark, ReferenceDate date);
void removeFixMark(athletedata031& run, std::size_t camera, std::size_t mark);

/// How two cameras' clocks lie to each other.
struct ClockOffset {
    double seconds = 0;    ///< by which the second camera's clock is ahead: the median of the marks
    double spread = 0;     ///< from the smallest to the largest offset of a single mark
    std::size_t marks = 0; ///< moments marked on both
};

/// Nothing without a moment marked on both cameras.
[[nodiscard]] std::optional<ClockOffset> offsetBetween(const athletedata031& run, std::size_t first,
                                                       std::size_t second);

} // namespace kavela
