#include "splitdata/course_design.h"

#include "common/json_encode.h"
#include "splitdata/course_parts.h"
#include "splitdata/png_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace kavela::test {

namespace {

using CourseBytes = std::vector<unsigned char>;
using Kind = CoursePart::Kind;

/// White, four by two pixels, and the same with a drawing; both made by another program.
constexpr auto PlainPicture = "iVBORw0KGgoAAAANSUhEUgAAAAQAAAACCAAAAABawyK/"
                              "AAAADklEQVR42mP4DwQMIAIAJ+IH+czzKkwAAAAASUVORK5CYII=";
constexpr auto ForeignDrawing =
    "iVBORw0KGgoAAAANSUhEUgAAAAQAAAACCAAAAABawyK/AAAADklEQVR42mP4DwQMIAIAJ+IH+czzKkwAAADuaVRYdGthdm"
    "VsYS1jb3Vyc2UAAQBlbgBMYXVmAHjaZY9BDoIwEEWvYv56QgQlJt17CsOiSMUGLAaqEQkncaGn8AbexyM4rSALN01n5v+X"
    "/zucVd3oykCEhEZfFUQUz4OYkEpTNBCbTYcLxJzQ8huEPfk5HOco7pOEkEurnLqDOR1SVUOsCKXaWYiv3yG9gw2EWuf7/"
    "9PC0XqmNcdS21KbAelHDkaQP88qnhIh/V8vPWhiGHngbng9iiqTs/f99gThWGljv3fvHltFQ0uO9NskjmfVZdC7H/"
    "PWWdYySE5lorGMD5DKbZHX1clkLEb/AbTpa5tY9AKFAAAAAElFTkSuQmCC";

CourseBytes bytesOf(const char* base64) {
    return blobFromBase64(base64).value().bytes.list();
}

class RandomCourse {
public:
    explicit RandomCourse(unsigned seed) : m_dice(seed) {}

    coursedesign001 next() {
        coursedesign001 design;
        design.size = number(0, 400);
        for (int i = count(3); i > 0; --i)
            design.banks.push_back(points());
        for (int i = count(25); i > 0; --i)
            design.gates.push_back({count(30) + 1, point(), point()});
        for (int i = count(6); i > 0; --i)
            design.splitlines.push_back({count(9) + 1, point(), point()});
        for (int i = count(4); i > 0; --i)
            design.lines.push_back({"Žofie \"Ř\" \U0001f6f6", points()});
        for (int i = count(4); i > 0; --i)
            design.texts.push_back({std::string("line\n\0end", 9), point()});
        std::vector<unsigned char> background(static_cast<std::size_t>(count(900)));
        std::ranges::generate(background, [&] { return static_cast<unsigned char>(count(255)); });
        design.background = Blob{std::move(background)};
        return design;
    }

private:
    int count(int most) { return std::uniform_int_distribution<int>(0, most)(m_dice); }
    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_dice);
    }
    coursepoint001 point() { return {number(-1, 2), number(-1, 2)}; }
    std::vector<coursepoint001> points() {
        std::vector<coursepoint001> all(static_cast<std::size_t>(count(300)));
        std::ranges::generate(all, [&] { return point(); });
        return all;
    }

    std::mt19937 m_dice;
};

coursedesign001 twoGates() {
    coursedesign001 design;
    design.gates = {{4, {0.4, 0.2}, {0.4, 0.3}}, {2, {0.8, 0.2}, {0.9, 0.2}}};
    design.banks = {{{0, 0.1}, {0.5, 0.1}, {1, 0.1}}};
    return design;
}

TEST(CourseDesign, AnyDrawingReadsBackLetterForLetterAndIsReplacedAsAWhole) {
    RandomCourse courses(1);
    CourseBytes picture = bytesOf(PlainPicture);
    for (int i = 0; i < 40; ++i) {
        const coursedesign001 design = courses.next();
        picture = withCourse(picture, design).bytes.list(); // over the one before
        const auto stored = courseIn(picture);
        ASSERT_TRUE(stored) << i;
        EXPECT_EQ(encode(stored->design), encode(design));
        EXPECT_EQ(stored->heightOfWidth, 0.5);
    }
    const CourseBytes last = withCourse(picture, {}).bytes.list();
    EXPECT_EQ(last, withCourse(bytesOf(PlainPicture), {}).bytes.list()); // nothing is left behind
}

TEST(CourseDesign, IsReadFromAnotherProgramsChunkWithLanguageAndTranslatedKeyword) {
    const auto stored = courseIn(bytesOf(ForeignDrawing));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->design.size, 250.5);
    ASSERT_EQ(stored->design.gates.size(), 1U);
    EXPECT_EQ(stored->design.gates[0].number, 7);
    EXPECT_EQ(stored->design.gates[0].right, (coursepoint001{0.5, 0.3125}));
    EXPECT_EQ(stored->design.lines.at(0).name, "Škoda \U0001f6f6");
}

TEST(CourseDesign, WhereverAByteIsDamagedThePictureIsAPictureOnly) {
    const CourseBytes whole = bytesOf(ForeignDrawing);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        CourseBytes damaged = whole;
        damaged[i] ^= 0x10U;
        EXPECT_FALSE(courseIn(damaged)) << "byte " << i;
        EXPECT_FALSE(courseIn(std::span(whole).first(i))) << "cut at " << i;
    }
}

TEST(CourseDesign, LaterReleasesAndDrawingsBeyondTheLimitsAreNotRead) {
    const CourseBytes plain = bytesOf(PlainPicture);
    const std::string good = encode(twoGates());
    const auto isRead = [&](const std::string& text) {
        return courseIn(withTextInPng(plain, "kavela-course", text)).has_value();
    };
    const auto with = [&](const std::string& from, const std::string& to) {
        std::string text = good;
        return text.replace(text.find(from), from.size(), to);
    };
    EXPECT_TRUE(isRead(good));
    EXPECT_FALSE(isRead(with("\"version\":1", "\"version\":2")));
    EXPECT_FALSE(isRead(with("\"size\":0", "\"size\":-1")));
    EXPECT_FALSE(isRead(with("\"number\":4", "\"number\":0")));
    EXPECT_FALSE(isRead(with("\"y\":0.1", "\"y\":1e300")));
    EXPECT_FALSE(isRead("[]"));
    EXPECT_FALSE(isRead(good + std::string(30U << 20U, ' '))); // 30 kB that unpack to 30 MB
}

TEST(CourseDesign, IsKeptInAPictureOfPixelsAsWell) {
    const CourseBytes pixels(3 * 6 * 4, 200);
    const auto stored =
        courseIn(withCourse(pngOf({6, 3}, std::span(pixels).first(54)), twoGates()));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->heightOfWidth, 0.5);
    EXPECT_THROW((void)pngOf({6, 3}, pixels), std::invalid_argument);
}

TEST(CourseDesign, WhatCouldNotBeReadBackIsNotKept) {
    const CourseBytes plain = bytesOf(PlainPicture);
    coursedesign001 far = twoGates();
    far.gates[0].left.x = NAN;
    EXPECT_THROW((void)withCourse(plain, far), CourseError);
    coursedesign001 many = twoGates();
    many.texts.resize(MostCourseParts + 1);
    EXPECT_THROW((void)withCourse(plain, many), CourseError);
    coursedesign001 large = twoGates();
    std::vector<unsigned char> noise(MostCourseBytes);
    std::mt19937 dice(3);
    std::ranges::generate(noise, [&] { return static_cast<unsigned char>(dice() & 0xffU); });
    large.background = Blob{std::move(noise)};
    EXPECT_THROW((void)withCourse(plain, large), CourseError);
    EXPECT_THROW((void)withCourse(CourseBytes{1, 2, 3}, twoGates()), std::invalid_argument);
}

TEST(CourseParts, AHandTakesPolesFirstAndTurnsGatesWithoutStretchingThem) {
    const coursedesign001 design = twoGates();
    EXPECT_EQ(partNear(design, {0.401, 0.299}, 0.02), (CoursePart{Kind::Gate, 0, 1}));
    EXPECT_EQ(partNear(design, {0.405, 0.25}, 0.02), (CoursePart{Kind::Gate, 0}));
    EXPECT_EQ(partNear(design, {0.25, 0.11}, 0.02), (CoursePart{Kind::Bank, 0}));
    EXPECT_FALSE(partNear(design, {0.25, 0.5}, 0.02));
    const auto pulled = pulledPart(design, {Kind::Gate, 0, 1}, {0.7, 0.2}).gates[0];
    EXPECT_EQ(pulled.left, design.gates[0].left);
    EXPECT_NEAR(pulled.right.x, 0.5, 1e-12);
    EXPECT_NEAR(pulled.right.y, 0.2, 1e-12);
    const auto turned = turnedPart(design, {Kind::Gate, 1}, 90).gates[1];
    EXPECT_NEAR(turned.left.x, 0.85, 1e-12);
    EXPECT_NEAR(turned.left.y, 0.15, 1e-12);
}

TEST(CourseParts, GoInTheOrderOfTheirNumbersWhichAreFilledUp) {
    coursedesign001 design = twoGates();
    EXPECT_EQ(partsOf(design),
              (std::vector<CoursePart>{{Kind::Gate, 1}, {Kind::Gate, 0}, {Kind::Bank, 0}}));
    EXPECT_EQ(nextGateNumber(design, 20), 1);
    design = withoutPart(design, {Kind::Gate, 1, 0}); // with one pole the gate goes
    EXPECT_EQ(design.gates.size(), 1U);
    EXPECT_EQ(nextGateNumber(design, 0), 5);
    design = withoutPart(design, {Kind::Bank, 0, 1});
    EXPECT_EQ(design.banks.at(0).size(), 2U);
    EXPECT_TRUE(withoutPart(design, {Kind::Bank, 0, 1}).banks.empty());
}

TEST(CourseParts, ALineByHandKeepsItsBendsAndEnds) {
    std::vector<coursepoint001> drawn;
    for (int i = 0; i <= 100; ++i)
        drawn.push_back({i * 0.01, i <= 50 ? 0.0 : (i - 50) * 0.01});
    const auto kept = smoothed(drawn, 0.001);
    EXPECT_EQ(kept, (std::vector<coursepoint001>{drawn.front(), drawn[50], drawn.back()}));
}

} // namespace

} // namespace kavela::test
