#pragma once

#include "common/blob.h"
#include "common/record.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

/// The drawing of a course as it can be edited. It stands within the picture of the course, a PNG
/// that any program shows: there, as a text under a keyword of its own. Places are counted from the
/// upper left corner of the picture in widths of the picture, both ways.
namespace kavela {

struct coursepoint001 {
    double x = 0;
    double y = 0;
    friend bool operator==(const coursepoint001&, const coursepoint001&) = default;
};
BOOST_DESCRIBE_STRUCT(coursepoint001, (), (x, y))

/// A gate, by its poles as a boat sees them. Whether it is upstream is told by the race alone.
struct coursegate001 {
    std::int64_t number = 0; ///< from 1
    coursepoint001 left;
    coursepoint001 right;
};
BOOST_DESCRIBE_STRUCT(coursegate001, (), (number, left, right))

/// Where the time of a split is taken: from bank to bank.
struct coursesplitline001 {
    std::int64_t split = 0; ///< from 1; its title is the race's
    coursepoint001 a;
    coursepoint001 b;
};
BOOST_DESCRIBE_STRUCT(coursesplitline001, (), (split, a, b))

/// The way of a run, or one that a coach wants paddled.
struct courseline001 {
    std::string name;
    std::vector<coursepoint001> points;
};
BOOST_DESCRIBE_STRUCT(courseline001, (), (name, points))

struct coursetext001 {
    std::string text;
    coursepoint001 at; ///< the middle of its left edge
};
BOOST_DESCRIBE_STRUCT(coursetext001, (), (text, at))

struct coursedesign001 {
    std::int64_t version = 1;
    double size = 0; ///< the width of the picture in metres; 0 where nobody measured it
    std::vector<std::vector<coursepoint001>> banks;
    std::vector<coursegate001> gates;
    std::vector<coursesplitline001> splitlines;
    std::vector<courseline001> lines;
    std::vector<coursetext001> texts;
    Blob background; ///< PNG or JPEG below the drawing, over the whole picture; empty for white
};
BOOST_DESCRIBE_STRUCT(coursedesign001, (),
                      (version, size, banks, gates, splitlines, lines, texts, background))

/// The most bytes of a picture of a course.
inline constexpr std::size_t MostCourseBytes = 2'000'000;
/// The most parts of one kind in a drawing, and the most points of all its lines together.
inline constexpr std::size_t MostCourseParts = 500;
inline constexpr std::size_t MostCoursePoints = 20'000;
/// How far from the picture a point may lie, in its widths.
inline constexpr double FarthestFromCourse = 4;

/// A drawing that cannot be kept, with what speaks against it.
class CourseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A drawing with the size of the picture that it was kept in.
struct StoredCourse {
    coursedesign001 design;
    double heightOfWidth = 1; ///< the picture's height in its widths
};

/// The drawing in a picture. Nothing where it is a picture only: of another program, one whose
/// drawing is damaged or of a later release, or one that is too large to be ours.
[[nodiscard]] std::optional<StoredCourse> courseIn(std::span<const unsigned char> picture);
[[nodiscard]] std::optional<StoredCourse> courseIn(const Blob& picture);

/// The PNG with the drawing in it. Throws CourseError for a drawing beyond the limits above, or
/// where the picture with it would be larger than `MostCourseBytes`; std::invalid_argument for what
/// is no whole PNG.
[[nodiscard]] Blob withCourse(std::span<const unsigned char> png, const coursedesign001& design);

} // namespace kavela
