#include "splitdata/course_design.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "splitdata/png_text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr std::string_view CourseKeyword = "kavela-course";
/// A background as base64, and the drawing.
constexpr std::size_t MostCourseText = 2 * MostCourseBytes;
constexpr const char* TooLargeCourse = "the picture of the course is too large to be kept";
constexpr double FlattestCourse = 0.01; ///< height of width
constexpr double WidestCourseMetres = 100'000;

/// What is read first: later releases may have changed everything else.
struct CourseVersion {
    std::int64_t version = 0;
};
BOOST_DESCRIBE_STRUCT(CourseVersion, (), (version))

bool isNear(const coursepoint001& point) {
    return std::abs(point.x) <= FarthestFromCourse && std::abs(point.y) <= FarthestFromCourse;
}

bool areNear(const std::vector<coursepoint001>& points) {
    return std::ranges::all_of(points, isNear);
}

/// Every number is told from what is no number by being near.
bool isWithinCourse(const coursedesign001& design) {
    return std::ranges::all_of(design.banks, areNear) &&
           std::ranges::all_of(
               design.gates,
               [](const coursegate001& gate) { return isNear(gate.left) && isNear(gate.right); }) &&
           std::ranges::all_of(
               design.splitlines,
               [](const coursesplitline001& line) { return isNear(line.a) && isNear(line.b); }) &&
           std::ranges::all_of(design.lines,
                               [](const courseline001& line) { return areNear(line.points); }) &&
           std::ranges::all_of(design.texts,
                               [](const coursetext001& text) { return isNear(text.at); });
}

std::size_t pointsOf(const coursedesign001& design) {
    std::size_t points = 0;
    for (const auto& bank : design.banks)
        points += bank.size();
    for (const courseline001& line : design.lines)
        points += line.points.size();
    return points;
}

bool isNumbered(const coursedesign001& design) {
    return std::ranges::all_of(design.gates,
                               [](const coursegate001& gate) { return gate.number > 0; }) &&
           std::ranges::all_of(design.splitlines,
                               [](const coursesplitline001& line) { return line.split > 0; });
}

/// What speaks against a drawing; empty where nothing does.
std::string faultOfCourse(const coursedesign001& design) {
    if (std::max({design.banks.size(), design.gates.size(), design.splitlines.size(),
                  design.lines.size(), design.texts.size()}) > MostCourseParts ||
        pointsOf(design) > MostCoursePoints)
        return "the drawing of the course has too many parts";
    if (!isWithinCourse(design))
        return "a part of the drawing lies far outside the picture";
    if (!isNumbered(design))
        return "gates and splits of the drawing are numbered from 1";
    if (!(design.size >= 0 && design.size <= WidestCourseMetres))
        return "the width of the picture in metres is not possible";
    return {};
}

std::string textOfCourse(const coursedesign001& design) {
    try {
        return encode(design);
    } catch (const EncodeError& error) {
        throw CourseError(error.what()); // a name that is no text
    }
}

/// Nothing for what is no drawing of this release.
std::optional<coursedesign001> courseOfText(const std::string& text) {
    try {
        const JsonDocument json = JsonDocument::fromText(text);
        if (decode<CourseVersion>(json).version != coursedesign001().version)
            return {};
        auto design = decode<coursedesign001>(json);
        if (faultOfCourse(design).empty())
            return design;
    } catch (const DecodeError&) {
        // A picture is a picture, whatever stands beside it.
    }
    return {};
}

} // namespace

std::optional<StoredCourse> courseIn(std::span<const unsigned char> picture) {
    if (picture.size() > MostCourseBytes)
        return {};
    const std::optional<std::string> text = textInPng(picture, CourseKeyword, MostCourseText);
    if (!text)
        return {};
    std::optional<coursedesign001> design = courseOfText(*text);
    const std::optional<PngSize> size = pngSize(picture);
    if (!design || !size || size->width == 0 || size->height == 0)
        return {};
    const double height = static_cast<double>(size->height) / static_cast<double>(size->width);
    if (height < FlattestCourse || height > FarthestFromCourse)
        return {};
    return StoredCourse{std::move(*design), height};
}

std::optional<StoredCourse> courseIn(const Blob& picture) {
    return courseIn(std::span<const unsigned char>(picture.bytes.list()));
}

Blob withCourse(std::span<const unsigned char> png, const coursedesign001& design) {
    if (std::string fault = faultOfCourse(design); !fault.empty())
        throw CourseError(fault);
    const std::string text = textOfCourse(design);
    if (text.size() > MostCourseText)
        throw CourseError(TooLargeCourse);
    std::vector<unsigned char> bytes = withTextInPng(png, CourseKeyword, text);
    if (bytes.size() > MostCourseBytes)
        throw CourseError(TooLargeCourse);
    return Blob{std::move(bytes)};
}

} // namespace kavela
