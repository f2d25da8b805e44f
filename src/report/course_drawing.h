#pragma once

#include "report/page_builder.h"
#include "report/typeface.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace kavela::report {

/// A gate of a run's course, in the order in which they are paddled.
struct RunGate {
    std::int64_t number = 0;
    bool isUpstream = false;
    std::int64_t penalty = 0; ///< s: 0, 2 or 50; others only come from damaged files
    std::size_t section = 0;  ///< place in the titles; beyond them for a gate of no section
};

struct RunCourse {
    std::vector<RunGate> gates;
    std::vector<QString> sectionTitles; ///< empty for a course without defined sections
    std::size_t leftOut = 0;            ///< gates after those, of a course beyond all measure
    QString remark;                     ///< at the right of the title
};

/// The most gates that a drawing shows.
inline constexpr std::size_t MostDrawnGates = 52;

/// Puts a schematic river with the gates in order, in one row or two: upstream gates have a mark
/// that points against the stream, penalties a patch with their seconds, and sections are divided
/// by lines. Nothing for a course without gates.
void putCourse(PageBuilder& pages, const RunCourse& course, const Typeface& typeface);

} // namespace kavela::report
