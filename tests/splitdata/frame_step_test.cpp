#include "splitdata/frame_step.h"

#include <gtest/gtest.h>

#include <limits>

/// Marks tell the frames of their film, or they do not.
namespace kavela::test {
namespace {

std::vector<CMTime> stamps(std::int32_t timescale, std::initializer_list<std::int64_t> values) {
    std::vector<CMTime> all;
    for (const std::int64_t value : values)
        all.push_back({value, timescale, 1, 0});
    return all;
}

} // namespace

TEST(FrameStep, IsThatOfTheFilm) {
    const auto of = [](const std::vector<CMTime>& marks) {
        return frameStep(std::span<const CMTime>(marks)).value_or(0);
    };
    EXPECT_DOUBLE_EQ(of(stamps(600, {12000, 12612, 13236, 13908, 14400, 15012, 15636, 16260})),
                     0.02);
    // 29.97 frames per second, from a film that does not begin at 0; one mark not taken
    std::vector<CMTime> marks =
        stamps(30000, {7 + 1001 * 10, 7 + 1001 * 205, 7 + 1001 * 431, 7 + 1001 * 640,
                       7 + 1001 * 911, 7 + 1001 * 1200, 7 + 1001 * 1401, 7 + 1001 * 1502});
    marks.insert(marks.begin() + 2, CMTime{});
    EXPECT_DOUBLE_EQ(of(marks), 1001 / 30000.0);
}

struct Unsure {
    const char* name;
    std::vector<CMTime> marks;
};

class UnsureFrames : public testing::TestWithParam<Unsure> {};

TEST_P(UnsureFrames, TellNothing) {
    EXPECT_EQ(frameStep(std::span<const CMTime>(GetParam().marks)), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    All, UnsureFrames,
    testing::Values(
        Unsure{"few", stamps(600, {12, 24, 48, 60})},
        Unsure{"variable", stamps(90000, {3001, 6011, 9002, 12013, 15004, 18011, 21007, 24002})},
        Unsure{"hundredths", stamps(100, {1204, 2311, 3407, 4518, 5603, 6620, 7719, 8831})},
        Unsure{"same", stamps(600, {12, 12, 12, 12, 12, 12, 12, 12})},
        Unsure{"damaged", stamps(600, {std::numeric_limits<std::int64_t>::min(), 0, 12, 24, 36, 48,
                                       60, 72, 84})}),
    [](const auto& row) { return row.param.name; });

} // namespace kavela::test
