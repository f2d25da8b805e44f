#pragma once

#include "splittaking/annotations/film_marks.h"

#include <array>
#include <bitset>
#include <span>
#include <string>

/// All marks of a run in one list: what a time line draws, jumps between, and moves.
///
/// Penalties, strategies, comments and scores have no moment on a film, and the synchronisation
/// marks of fixed cameras are dates: none of these are listed.
namespace kavela {

enum class MarkKind { Start, Split, MicroSplit, Upstream, Stroke, TimeLoss, Tag };

inline constexpr std::size_t MarkKinds = 7;

/// Which kinds are shown.
using MarkFilter = std::bitset<MarkKinds>;

[[nodiscard]] MarkFilter onlyKinds(std::span<const MarkKind> kinds);

/// Whose film a mark lies on: one of the run's, one of its fixed cameras', or the one of the other
/// run of a time loss.
enum class FilmKind { Own, Fixed, Versus };

/// A film of a run. The number counts in `videoname` and `fixcameras`; of another run's film it is
/// the time loss that names it.
struct FilmOfRun {
    FilmKind kind = FilmKind::Own;
    std::int64_t number = 0;

    friend auto operator<=>(const FilmOfRun&, const FilmOfRun&) = default;
};

/// Leads from a mark of the list back to its record, all counted from 0. Good until the next edit
/// of the run.
struct MarkHandle {
    MarkKind kind = MarkKind::Start;
    std::size_t record = 0; ///< split, micro split, upstream, stroke, time loss, record of tags
    std::size_t entry = 0;  ///< camera, mark of the gate or of the stretch, tag
    FilmKind film = FilmKind::Own;

    friend bool operator==(const MarkHandle&, const MarkHandle&) = default;
};

/// One mark. Its moment may lie before the film's first frame or after its last one.
struct LaneMark {
    MarkKind kind = MarkKind::Start;
    int lane = 0; ///< row of the time line, from 0; see laneTitles()
    FilmOfRun film;
    CMTime time;
    double seconds = 0; ///< of the film
    std::string text;
    MarkHandle handle;
};

/// The rows of the time line and the marks on them.
struct AnnotationLanes {
    std::vector<std::string> titles; ///< rows that hold a mark, by number; each tag name has one
    std::vector<LaneMark> marks;     ///< by time, whatever their film; equal times by row
};

/// Every mark of a run that is a moment of a film, whether or not the run still has that film.
[[nodiscard]] AnnotationLanes annotationLanes(const athletedata031& run, const infodata031& info);

/// The marks of some kinds on one film, in order.
[[nodiscard]] std::vector<LaneMark> marksOn(std::span<const LaneMark> marks, const FilmOfRun& film,
                                            MarkFilter kinds);

/// Place in the list of the nearest mark after or before a moment of a film, among the kinds
/// shown; of several at one time the first one. Nothing when there is none.
[[nodiscard]] std::optional<std::size_t> nextMark(std::span<const LaneMark> marks,
                                                  const FilmOfRun& film, const CMTime& moment,
                                                  MarkFilter kinds);
[[nodiscard]] std::optional<std::size_t> previousMark(std::span<const LaneMark> marks,
                                                      const FilmOfRun& film, const CMTime& moment,
                                                      MarkFilter kinds);

/// Moves a mark on its film; what is computed from it follows. The stamps of the run's other
/// cameras at the same mark move by the same time. The start moves the times of strokes and micro
/// splits with it. Returns the mark's handle after that. Throws std::out_of_range when there is no
/// such mark, std::invalid_argument when `moment` is no moment of a film.
MarkHandle moveLaneMark(athletedata031& run, const infodata031& info, const MarkHandle& handle,
                        const CMTime& moment);

/// Removes a mark. A split mark is taken out on all cameras, and those after it move up; without
/// its start a run is timed from the start of the film. A stroke, micro split or tag goes as a
/// whole; a tag's moment on a fixed camera, a mark of a gate and of a time loss alone. Throws
/// std::out_of_range when there is no such mark.
void removeLaneMark(athletedata031& run, const infodata031& info, const MarkHandle& handle);

} // namespace kavela
