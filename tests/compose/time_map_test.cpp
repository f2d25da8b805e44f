#include "compose/sound_track.h"
#include "compose/time_map.h"

#include "common/error.h"
#include "compose/composition.h"

#include <gmock/gmock.h>

namespace kavela {
namespace {

/// The second is faster in the first section (1 against 2 s) and slower in the second (4 against
/// 3).
const std::vector<FilmMarks> TwoRuns{{10.0, 12.0, 15.0}, {20.0, 21.0, 25.0}};

struct Moment {
    double common = 0;
    double first = 0;
    double second = 0;
};

struct TimeCase {
    const char* name = "";
    Synchronise how = Synchronise::Start;
    std::size_t split = 0;
    std::vector<Moment> moments;
};

class TimeMapTable : public ::testing::TestWithParam<TimeCase> {};

TEST_P(TimeMapTable, SaysWhatEachFilmShows) {
    const TimeMap map(TwoRuns, GetParam().how, GetParam().split);
    for (const Moment& moment : GetParam().moments) {
        SCOPED_TRACE(moment.common);
        EXPECT_DOUBLE_EQ(map.filmSeconds(0, moment.common), moment.first);
        EXPECT_DOUBLE_EQ(map.filmSeconds(1, moment.common), moment.second);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Ways, TimeMapTable,
    ::testing::Values(
        TimeCase{"Start", Synchronise::Start, 0, {{-1, 9, 19}, {0, 10, 20}, {5, 15, 25}}},
        TimeCase{"Split", Synchronise::Split, 1, {{0, 10, 19}, {2, 12, 21}, {5, 15, 24}}},
        // The second waits at 21 from 1 to 2, the first at 15 from 5 to 6.
        TimeCase{"Waiting",
                 Synchronise::Waiting,
                 0,
                 {{-1, 9, 19},
                  {1, 11, 21},
                  {1.5, 11.5, 21},
                  {2, 12, 21},
                  {5, 15, 24},
                  {5.9, 15, 24.9},
                  {6, 15, 25},
                  {7, 16, 26}}},
        TimeCase{
            "Stretched",
            Synchronise::Stretched,
            0,
            {{-1, 9, 19}, {1, 11, 20.5}, {2, 12, 21}, {4, 13.5, 23}, {6, 15, 25}, {7, 16, 26}}}),
    [](const auto& tested) { return tested.param.name; });

TEST(TimeMap, TellsWhenAMomentIsFirstShown) {
    const TimeMap map(TwoRuns, Synchronise::Waiting);
    EXPECT_DOUBLE_EQ(map.commonAt(1, 21), 1) << "it arrives before it waits";
    EXPECT_DOUBLE_EQ(map.commonAt(0, 12), 2);
    EXPECT_DOUBLE_EQ(map.commonAt(1, 26), 7);
    EXPECT_DOUBLE_EQ(map.commonAt(0, 8), -2);
}

TEST(HeardSeconds, AreSilentWhileTheFilmWaitsOrIsSlowed) {
    const std::vector<FilmMarks> runs{{0.0, 1.0, 2.0}, {0.0, 1.5, 2.0}};
    const TimeMap waiting(runs, Synchronise::Waiting);
    const auto heard = [&](std::size_t film, double common) {
        return heardSeconds(waiting.pieces(film), common);
    };
    EXPECT_DOUBLE_EQ(heard(0, -1).value(), -1) << "before the first mark it runs by itself";
    EXPECT_DOUBLE_EQ(heard(0, 0.5).value(), 0.5);
    EXPECT_FALSE(heard(0, 1.2)) << "it waits at the first split";
    EXPECT_DOUBLE_EQ(heard(0, 2).value(), 1.5);
    EXPECT_FALSE(heard(1, 2.2)) << "now the other one does";
    EXPECT_DOUBLE_EQ(heard(1, 3).value(), 2.5);
    const TimeMap stretched(runs, Synchronise::Stretched);
    EXPECT_FALSE(heardSeconds(stretched.pieces(0), 0.5));
    EXPECT_DOUBLE_EQ(heardSeconds(stretched.pieces(1), 0.5).value(), 0.5) << "the slowest one";
}

TEST(TimeMap, PassesOverASplitThatOneFilmLacks) {
    const TimeMap map({{0.0, 1.0, 2.0}, {0.0, std::nullopt, 3.0}}, Synchronise::Waiting);
    EXPECT_DOUBLE_EQ(map.filmSeconds(0, 2.5), 2) << "it waits at the second split alone";
    EXPECT_DOUBLE_EQ(map.filmSeconds(1, 1.5), 1.5);
}

TEST(TimeMap, NamesTheFilmThatCannotBeHeld) {
    try {
        const TimeMap map({{0.0, 1.0}, {0.0, std::nullopt}}, Synchronise::Split, 1);
        FAIL();
    } catch (const DecodeError& error) {
        EXPECT_EQ(error.fault().path, "films[1]");
        EXPECT_THAT(error.fault().text, ::testing::HasSubstr("split 1 is not marked"));
    }
}

TEST(ComposedRate, IsTheFastestFilmsAtMostSixty) {
    EXPECT_EQ(composedRate({50, 60000 / 1001.0}), (FrameRate{60000, 1001}));
    EXPECT_EQ(composedRate({29.97}), (FrameRate{30000, 1001}));
    EXPECT_EQ(composedRate({239.76, 25}), (FrameRate{60000, 1001}));
    EXPECT_EQ(composedRate({120}), (FrameRate{60, 1}));
    EXPECT_EQ(composedRate({100}), (FrameRate{50, 1}));
    EXPECT_EQ(composedRate({47.6}), (FrameRate{48, 1})) << "variable";
    EXPECT_EQ(composedRate({0}), (FrameRate{50, 1}));
}

} // namespace
} // namespace kavela
