#pragma once

#include "performance/official_lines.h"
#include "splitdata/document.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// Official results beside what was timed on the films: where they differ, and what to do about it.
namespace kavela {

/// Half a frame of 25 a second at the start and at the finish: so far apart two times may be that
/// tell the same.
inline constexpr double TwoMarksSeconds = 0.04;

/// Which runs of a race a list is about.
struct OfficialScope {
    std::string category;                 ///< empty: all
    std::string phase;                    ///< empty: all
    double uncertainty = TwoMarksSeconds; ///< seconds, of a time from the film
};

enum class OfficialDifferenceKind {
    MissingPenalty, ///< the list has more penalty seconds than we noted
    ExcessPenalty,  ///< the list has less
    TimeOff,        ///< the times are further apart than marks can be
    SwappedBib,     ///< two crews have each other's time: one was filmed under the other's name
    NoResult,       ///< the list says DNF and the like, we have a time
    Unfinished,     ///< the list has a time, our run is not timed to the end
    NotInList,      ///< the run has no line
    NotFilmed,      ///< the line has no run; there is nothing to take over
};

struct OfficialDifference {
    OfficialDifferenceKind kind{};
    std::optional<std::size_t> run;   ///< of the document, counted from 0
    std::optional<std::size_t> other; ///< the second run of a swapped bib
    std::optional<std::size_t> line;  ///< of the lines given, counted from 0
    std::string crew;
    std::string status; ///< what the list says instead of a time
    double time = 0;    ///< seconds, official: what taking over sets as the real time
    std::int64_t penalty = 0;
    bool isOpen = false; ///< whether there is something to take over
    std::string text;    ///< the difference and the proposal in a sentence
};

/// The lines matched to the runs by crew, category and, of several runs of a crew, the nearest
/// time; a crew in several lines takes the runs that are left. Differences come in the order of the
/// runs, then lines without a run. What was taken over before is none any more.
[[nodiscard]] std::vector<OfficialDifference>
officialDifferences(const splittakerdata031& document, std::span<const OfficialLine> lines,
                    const OfficialScope& scope = {});

/// Takes one difference over into the document: real time and penalty of the run, for a swapped bib
/// the crews of the two runs, for a run without a result that the list says so. The film's own
/// times stay. False, and nothing changed, where there is nothing to take over or the runs are not
/// the same any more.
[[nodiscard]] bool takeOver(splittakerdata031& document, const OfficialDifference& difference);

} // namespace kavela
