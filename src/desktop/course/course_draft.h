#pragma once

#include "report/course_picture.h"
#include "splitdata/course_parts.h"
#include "splitdata/records.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// A course while it is being drawn: the drawing, and what the race itself says of its gates.
struct CourseDraft {
    coursedesign001 design;
    double heightOfWidth = 0.625; ///< of the picture
    std::vector<std::int64_t> upGates;
    std::int64_t gates = 0;  ///< of the race; 0 where it has none yet
    std::int64_t splits = 0; ///< the same
    std::vector<QString> splitTitles;

    [[nodiscard]] report::CourseWords words() const { return {upGates, splitTitles}; }
};

/// What a race begins with: its drawing; otherwise its picture, to be drawn upon; otherwise white.
/// `fault` tells where there is a picture that cannot be shown.
[[nodiscard]] CourseDraft courseDraftOf(const infodata031& info, std::string& fault);

/// The race with the draft in it. Where it had no gates yet, it has those that were drawn. Throws
/// CourseError.
[[nodiscard]] infodata031 withDraft(infodata031 info, const CourseDraft& draft);

/// The middle, and how far and which way the right pole or end lies from it.
struct CourseSpan {
    coursepoint001 middle;
    coursepoint001 half;
};
/// With the gate or split line of the next number. Nothing where the race has no more of them.
[[nodiscard]] std::optional<CourseDraft> withNextGate(CourseDraft draft, const CourseSpan& span);
[[nodiscard]] std::optional<CourseDraft> withNextSplitLine(CourseDraft draft,
                                                           const CourseSpan& span);
/// How the last gate hangs, half of it: the next one mostly hangs alike.
[[nodiscard]] coursepoint001 usualHalfGate(const CourseDraft& draft);

/// The gate turned from downstream to upstream, or back.
[[nodiscard]] CourseDraft withDirectionTurned(CourseDraft draft, std::int64_t gate);

} // namespace kavela::desktop
