#pragma once

#include "common/alerts.h"
#include "splitdata/records.h"
#include "splitdata/run_marks.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Marks that are made on one film of a camera, whichever camera of a run that is: one long film of
/// all runs, a film of each, or a fixed camera's beside the runs' own.
namespace kavela {

/// What a film is to a run.
struct CameraOfRun {
    std::size_t camera = 0; ///< counted from 0, of the run's own films or of its fixed cameras
    bool isFixed = false;

    friend bool operator==(const CameraOfRun&, const CameraOfRun&) = default;
};

/// Nothing for a run without that film, known by its bare name.
[[nodiscard]] std::optional<CameraOfRun> filmOfRun(const athletedata031& run,
                                                   std::string_view film);

/// The moment of a mark on that film: 0 is the start, 1 the first split. Nothing where it is not
/// taken, or where the run does not tell how that film lies beside its first one.
[[nodiscard]] std::optional<CMTime> markOnFilm(const athletedata031& run, const RunMarks& marks,
                                               const CameraOfRun& film, std::size_t mark);

/// Sets or moves a mark to a moment of that film; the other cameras' stamps follow by what other
/// marks of the run tell. Splits before it that are not marked stay so. Returns why it cannot lie
/// there: behind its neighbours, on a film that does not tell how it lies beside the run's first
/// one, or beyond the splits of the course; the marks are then as they were.
[[nodiscard]] std::optional<Alert> setMarkOnFilm(const athletedata031& run, RunMarks& marks,
                                                 const CameraOfRun& film, std::size_t mark,
                                                 const CMTime& moment, std::int64_t totalsplits);

/// Takes a mark away without moving those behind it; nothing for one that is not there.
void clearMark(RunMarks& marks, std::size_t mark);

/// Shifts the time of a mark by a part of a frame, in seconds, which its stamp cannot tell: what
/// its section gains the next one loses. For a timing whose marks were applied.
void refineMark(sectiondata030& timing, std::size_t mark, double seconds);

/// Which run each crossing of a line belongs to, when runs start in the order of the list.
/// `marked` is when each run was marked there, in seconds of the film; crossings are in order of
/// time. A crossing at a mark is that run's; the others go to the runs not marked in between, in
/// turn. Nothing for a crossing that no run is left for.
[[nodiscard]] std::vector<std::optional<std::size_t>>
runsOfCrossings(std::span<const double> crossings, std::span<const std::optional<double>> marked);

} // namespace kavela
