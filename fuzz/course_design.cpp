#include "splitdata/course_design.h"
#include "harness.h"
#include "splitdata/course_parts.h"
#include "splitdata/png_text.h"

#include <array>
#include <span>
#include <stdexcept>

namespace {

using namespace kavela;

/// A white picture of four by two pixels.
constexpr std::array<unsigned char, 71> WhitePng{
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44,
    0x52, 0x00, 0x00, 0x00, 0x04, 0x00, 0x00, 0x00, 0x02, 0x08, 0x00, 0x00, 0x00, 0x00, 0x5a,
    0xc3, 0x22, 0xbf, 0x00, 0x00, 0x00, 0x0e, 0x49, 0x44, 0x41, 0x54, 0x78, 0xda, 0x63, 0xf8,
    0x0f, 0x04, 0x0c, 0x20, 0x02, 0x00, 0x27, 0xe2, 0x07, 0xf9, 0xcc, 0xf3, 0x2a, 0x4c, 0x00,
    0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};

/// What was read can be kept again and reads back the same; so can what hands make of it.
void checkCourse(const StoredCourse& stored, std::span<const unsigned char> png) {
    const auto kept = [png](const coursedesign001& design) {
        try {
            const auto again = courseIn(withCourse(png, design));
            fuzz::require(again && encode(again->design) == encode(design));
        } catch (const CourseError& error) {
            fuzz::require(*error.what() != '\0');
        }
    };
    kept(stored.design);
    for (const CoursePart& part : partsOf(stored.design)) {
        fuzz::require(hasPart(stored.design, part) && !courseNameOf(stored.design, part).empty());
        kept(turnedPart(movedPart(stored.design, part, 9, -0.1), part, 33));
        fuzz::require(partsOf(withoutPart(stored.design, part)).size() + 1 ==
                      partsOf(stored.design).size());
        if (stored.design.gates.size() > 3)
            break;
    }
    (void)partNear(stored.design, {0.5, 0.25}, 0.1);
}

} // namespace

/// Pictures of courses as they come, and drawings behind a checksum that is right.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::span<const unsigned char> picture(bytes, size);
    if (const auto course = courseIn(picture))
        checkCourse(*course, picture);
    if (const auto text = textInPng(picture, "kavela-course", 5000))
        fuzz::require(text->size() <= 5000);
    const std::string_view drawing(reinterpret_cast<const char*>(bytes), size);
    const auto drawn = withTextInPng(WhitePng, "kavela-course", drawing);
    fuzz::require(textInPng(drawn, "kavela-course", size) == drawing);
    if (const auto course = courseIn(drawn))
        checkCourse(*course, drawn);
    return 0;
}
