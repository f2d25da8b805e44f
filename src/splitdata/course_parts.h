#pragma once

#include "splitdata/course_design.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// A drawing of a course taken by its parts, as a hand does: which one is near, moved, turned,
/// taken out. Everything leaves the drawing that it is given alone where a drawing is returned.
namespace kavela {

/// What can be taken hold of.
struct CoursePart {
    enum class Kind { Bank, Gate, SplitLine, Line, Text };
    Kind kind = Kind::Gate;
    std::size_t index = 0; ///< among its like
    /// A point of a bank or line; 0 for the left pole or end and 1 for the right one of a gate or
    /// split line; none for the whole.
    std::optional<std::size_t> point = {};

    friend bool operator==(const CoursePart&, const CoursePart&) = default;
};

/// All wholes, in the order in which they are gone through: gates by number, split lines by split,
/// then banks, lines and texts as they were drawn.
[[nodiscard]] std::vector<CoursePart> partsOf(const coursedesign001& design);

/// Whether it is there.
[[nodiscard]] bool hasPart(const coursedesign001& design, const CoursePart& part);

/// The points that it is made of: all of a whole, one of a point; empty where it is not there.
[[nodiscard]] std::vector<coursepoint001> pointsOf(const coursedesign001& design,
                                                   const CoursePart& part);

/// The middle between its outermost points. Throws std::out_of_range where it is not there.
[[nodiscard]] coursepoint001 middleOf(const coursedesign001& design, const CoursePart& part);

/// What a hand at a point takes hold of: a pole, an end or a point of a line before the whole that
/// it belongs to, what is drawn later before what lies below it. Nothing where all is farther away
/// than `reach`.
[[nodiscard]] std::optional<CoursePart> partNear(const coursedesign001& design,
                                                 const coursepoint001& at, double reach);

/// Moved by so many widths of the picture; never farther from the picture than is kept.
[[nodiscard]] coursedesign001 movedPart(coursedesign001 design, const CoursePart& part, double dx,
                                        double dy);

/// The pole or end pulled to a point. That of a gate turns it about its other pole and leaves it as
/// wide as it is, as poles hang from one bar.
[[nodiscard]] coursedesign001 pulledPart(coursedesign001 design, const CoursePart& part,
                                         const coursepoint001& to);

/// A gate or split line turned about its middle, clockwise by degrees; anything else stays.
[[nodiscard]] coursedesign001 turnedPart(coursedesign001 design, const CoursePart& part,
                                         double degrees);

/// Without it. A point leaves a line, and the line goes with its last but one; half a gate is none.
[[nodiscard]] coursedesign001 withoutPart(coursedesign001 design, const CoursePart& part);

/// The first number from 1 to `gates` that no drawn gate has; the one after the last where all are
/// drawn or the race has none yet.
[[nodiscard]] std::int64_t nextGateNumber(const coursedesign001& design, std::int64_t gates);
/// The same of the splits.
[[nodiscard]] std::int64_t nextSplitNumber(const coursedesign001& design, std::int64_t splits);

/// "gate 7", "split 2", "bank 1", "line of Stern", "text": for messages and steps of undo.
[[nodiscard]] std::string courseNameOf(const coursedesign001& design, const CoursePart& part);

/// A line drawn by hand with fewer points: those that lie within `tolerance` of the way between
/// their neighbours go. First and last stay.
[[nodiscard]] std::vector<coursepoint001> smoothed(std::span<const coursepoint001> points,
                                                   double tolerance);

} // namespace kavela
