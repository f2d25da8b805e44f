#include "compose/layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace kavela {
namespace {

constexpr VideoSize Lying{1920, 1080};
constexpr VideoSize Upright{1080, 1920};

TEST(Layout, FitsEveryPictureIntoItsCellWithoutCutting) {
    for (const LayoutKind kind :
         {LayoutKind::SideBySide, LayoutKind::Stacked, LayoutKind::TwoByTwo,
          LayoutKind::PictureInPicture, LayoutKind::Ghost, LayoutKind::Wipe})
        for (const VideoSize whole : {VideoSize{1920, 1080}, {1280, 720}, {1078, 1434}}) {
            SCOPED_TRACE(static_cast<int>(kind));
            std::vector<VideoSize> films{Lying, Upright, {640, 480}, {720, 576}};
            films.resize(mostFilms(kind));
            const auto places = layOutFilms({kind, whole, 0.5}, films);
            ASSERT_EQ(places.size(), films.size());
            for (std::size_t i = 0; i < films.size(); ++i) {
                const PictureRect& p = places[i].picture;
                const PictureRect& cell = places[i].cell;
                EXPECT_GE(p.x, cell.x);
                EXPECT_GE(p.y, cell.y);
                EXPECT_LE(p.x + p.width, cell.x + cell.width);
                EXPECT_LE(p.y + p.height, cell.y + cell.height);
                EXPECT_LE(cell.x + cell.width, whole.width);
                EXPECT_LE(cell.y + cell.height, whole.height);
                EXPECT_EQ((p.x | p.y | p.width | p.height) % 2, 0);
                const double shape = double(films[i].width) / films[i].height;
                EXPECT_NEAR(p.width, p.height * shape, 2 + 2 * shape);
            }
        }
}

TEST(Layout, SideBySideFillsTheWidth) {
    const auto places = layOutFilms({LayoutKind::SideBySide, {1920, 1080}, 0.5}, {Lying, Lying});
    EXPECT_EQ(places[0].picture, (PictureRect{0, 270, 960, 540}));
    EXPECT_EQ(places[1].picture, (PictureRect{960, 270, 960, 540}));
}

TEST(Layout, InsetsDoNotTouchEachOther) {
    const auto places = layOutFilms({LayoutKind::PictureInPicture, {1920, 1080}, 0.5},
                                    {Lying, Upright, Upright, Lying});
    for (std::size_t i = 2; i < places.size(); ++i)
        EXPECT_LE(places[i].cell.y + places[i].cell.height, places[i - 1].cell.y);
}

bool rectsOverlap(const PictureRect& a, const PictureRect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

TEST(Layout, NoWordAndNoChartStandsOverAnInset) {
    for (const VideoSize whole : {VideoSize{1920, 1080}, {960, 540}, {1080, 1920}, {1080, 1080}})
        for (const std::size_t count : {2U, 3U, 4U}) {
            SCOPED_TRACE(std::to_string(whole.width) + " wide, " + std::to_string(count));
            std::vector<VideoSize> films{Lying, Lying, Upright, Lying};
            films.resize(count);
            const auto places = layOutFilms({LayoutKind::PictureInPicture, whole, 0.5}, films);
            const PictureRect chart = lowerStrip(places, whole, whole.height / 9 / 2 * 2);
            EXPECT_EQ(chart.y + chart.height, whole.height);
            EXPECT_GT(chart.width, whole.width / 2);
            for (std::size_t inset = 1; inset < count; ++inset) {
                EXPECT_FALSE(rectsOverlap(chart, places[inset].cell)) << inset;
                EXPECT_FALSE(rectsOverlap(places[0].words, places[inset].cell)) << inset;
                EXPECT_EQ(places[inset].words, places[inset].cell);
            }
            EXPECT_GT(places[0].words.height, whole.height / 2);
            EXPECT_GT(places[0].words.width, whole.width / 2);
        }
    const auto beside = layOutFilms({LayoutKind::SideBySide, {1920, 1080}, 0.5}, {Lying, Lying});
    EXPECT_EQ(lowerStrip(beside, {1920, 1080}, 120), (PictureRect{0, 960, 1920, 120}));
}

TEST(Layout, TheWordsOfAWipeStandOnTheirOwnSides) {
    for (const double wipe : {0.0, 0.3, 0.5, 0.8, 1.0}) {
        const auto places = layOutFilms({LayoutKind::Wipe, {1280, 720}, wipe}, {Lying, Upright});
        EXPECT_EQ(places[0].words.x, 0);
        EXPECT_EQ(places[0].words.width, places[1].words.x);
        EXPECT_EQ(places[1].words.x + places[1].words.width, 1280);
        EXPECT_GT(places[0].words.width, 400) << "they can be read wherever the line stands";
        EXPECT_GT(places[1].words.width, 400);
    }
    const auto middle = layOutFilms({LayoutKind::Wipe, {1280, 720}, 0.5}, {Lying, Upright});
    EXPECT_EQ(middle[1].words.x, middle[1].firstColumn) << "beside the line";
    const auto ghost = layOutFilms({LayoutKind::Ghost, {1280, 720}, 0.5}, {Lying, Lying});
    EXPECT_EQ(ghost[0].words, ghost[1].words) << "there is no side: they share the corners";
}

TEST(Layout, AGhostIsBroughtOverTheSameTwoPoints) {
    const PointPair below{{{0.25, 0.5}, {0.75, 0.5}}};
    const PointPair above{{{0.5, 0.25}, {0.5, 0.75}}}; // turned, and nearer together in pixels
    const auto places =
        layOutFilms({LayoutKind::Ghost, {1920, 1080}, 0.5}, {Lying, Lying}, {below, above});
    ASSERT_TRUE(places[1].alignment);
    EXPECT_EQ(places[1].opacity, 0.5);
    const Similarity& to = *places[1].alignment;
    for (std::size_t i = 0; i < 2; ++i) {
        const double x = above[i].x * 1920;
        const double y = above[i].y * 1080;
        EXPECT_NEAR(to.a * x - to.b * y + to.dx, below[i].x * 1920, 1e-6);
        EXPECT_NEAR(to.b * x + to.a * y + to.dy, below[i].y * 1080, 1e-6);
    }
    EXPECT_NEAR(std::hypot(to.a, to.b), 960.0 / 540, 1e-9);
    EXPECT_FALSE(similarityOf({{{1, 1}, {1, 1}}}, below)) << "two points in one say nothing";
}

} // namespace
} // namespace kavela
