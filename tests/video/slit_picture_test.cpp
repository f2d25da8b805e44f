#include "vision/slit_picture.h"

#include "clips.h"
#include "video/video_error.h"
#include "vision/slit_file.h"

#include "common/error.h"
#include "common/temp_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kavela {
namespace {

constexpr int NumberBits = 8; // in the first row of blocks

struct Read {
    std::shared_ptr<const VideoIndex> index;
    SlitPicture picture;
    SlitReading reading;
};

/// Across the middle of the first row of blocks of an upright film.
const SlitLine AcrossBlocks{{0, 20}, {320, 20}};

Read readClip(const std::string& name, const SlitOrder& order) {
    Read read;
    read.index = readVideoIndex(clip(name));
    read.reading = readSlits(read.index, order, {}, [&](std::size_t line, const auto& tile) {
        if (line == 0)
            read.picture.add(tile);
    });
    return read;
}

int brightness(const SlitPicture& picture, FrameNumber column, int y) {
    const SlitTile* const tile = picture.tileOf(column);
    const Picture& pixels = tile->levels[0];
    const auto x = static_cast<std::ptrdiff_t>(picture.first + column - tile->first);
    return pixels.pixels[static_cast<std::size_t>(y * pixels.bytesPerLine + x * 4 + 1)];
}

/// The lower bits of the number in a column over the blocks; `isBackwards` where the line begins
/// at the last one.
int numberInColumn(const SlitPicture& picture, FrameNumber column, bool isBackwards = false) {
    int number = 0;
    for (int bit = 0; bit < NumberBits; ++bit) {
        const int y = picture.height * (2 * bit + 1) / (2 * NumberBits);
        number |= (brightness(picture, column, y) > 127 ? 1 : 0)
                  << (isBackwards ? NumberBits - 1 - bit : bit);
    }
    return number;
}

class SlitOfClip : public ::testing::TestWithParam<const char*> {};

/// Deep colours and full ones, frames that are stored out of order, a variable rate.
TEST_P(SlitOfClip, HasAColumnForEachFrame) {
    const Read read = readClip(GetParam(), {.lines = {AcrossBlocks}});
    ASSERT_GT(read.reading.columns, 60);
    ASSERT_EQ(read.picture.columns, read.reading.columns);
    ASSERT_EQ(read.picture.height, 320);
    for (FrameNumber column = 0; column < read.picture.columns; ++column)
        ASSERT_EQ(numberInColumn(read.picture, column), column % 256) << "column " << column;
}

INSTANTIATE_TEST_SUITE_P(Films, SlitOfClip,
                         ::testing::Values("h264_50.mp4", "variable.mp4", "open_hevc.mp4",
                                           "intra.mov"));

TEST(SlitPicture, ShowsWhatIsLeftOfAFilmThatWasCutOff) {
    const Read read = readClip("cut_front.mp4", {.lines = {AcrossBlocks}});
    constexpr FrameNumber Torn = 10; // frames that build on what is not there any more
    ASSERT_GT(read.picture.columns, 60);
    ASSERT_LT(read.picture.columns, 200);
    EXPECT_EQ(read.picture.columns, read.reading.columns);
    for (FrameNumber column = 0; column < read.picture.columns - Torn; ++column)
        ASSERT_EQ(numberInColumn(read.picture, column), column);
}

TEST(SlitPicture, FollowsTheTurnOfTheFilm) {
    // Turned clockwise the first row of blocks is the right edge, from top to bottom.
    const auto index = readVideoIndex(clip("rotated.mp4"));
    const auto size = index->facts().shownSize;
    ASSERT_EQ(size, (VideoSize{180, 320}));
    const bool isRight = index->facts().rotation == 90;
    const double x = isRight ? size.width - 20 : 20;
    const Read read = readClip("rotated.mp4", {.lines = {{{x, 0}, {x, 320}}}});
    for (const FrameNumber column : {0, 1, 77, 119})
        EXPECT_EQ(numberInColumn(read.picture, column, !isRight), column);
}

TEST(SlitPicture, ReadsAPartForSeveralLinesAtOnce) {
    const auto index = readVideoIndex(clip("h264_50.mp4"));
    std::array<SlitPicture, 2> pictures;
    const SlitLine half{{0, 20}, {160, 20}};
    const SlitReading reading =
        readSlits(index, {.lines = {AcrossBlocks, half}, .first = 30, .last = 180}, {},
                  [&](std::size_t line, const auto& tile) { pictures[line].add(tile); });
    EXPECT_EQ(reading.columns, 151);
    for (const SlitPicture& picture : pictures) {
        EXPECT_EQ(picture.first, 30);
        EXPECT_EQ(picture.columns, 151);
    }
    EXPECT_EQ(numberInColumn(pictures[0], 0), 30);
    EXPECT_EQ(numberInColumn(pictures[0], 150), 180);
    EXPECT_EQ(pictures[1].height, 160);
    // Other levels show the mean of the same frames, all of them.
    const SlitTile& last = *pictures[0].tiles.back();
    EXPECT_EQ(last.levels[1].width, (last.columns + 7) / 8);
    EXPECT_EQ(last.levels[2].width, 1);
}

TEST(SlitPicture, KeepsToItsMemory) {
    const auto index = readVideoIndex(clip("h264_50.mp4"));
    SlitOrder order{.lines = {AcrossBlocks}};
    EXPECT_EQ(slitHeights(*index, order), std::vector{320});
    order.mostBytes = 200 * 4 * 100;
    const int height = slitHeights(*index, order).front();
    EXPECT_LE(height, 100);
    const Read read = readClip("h264_50.mp4", order);
    EXPECT_EQ(read.picture.height, height);
    EXPECT_EQ(numberInColumn(read.picture, 99), 99);
}

TEST(SlitPicture, EndsWhenItIsStopped) {
    const auto index = readVideoIndex(clip("h264_240.mp4"));
    std::stop_source stop;
    FrameNumber columns = 0;
    const SlitReading reading = readSlits(index, {.lines = {AcrossBlocks}}, stop.get_token(),
                                          [&](std::size_t, const auto& tile) {
                                              columns += tile->columns;
                                              stop.request_stop();
                                          });
    EXPECT_TRUE(reading.isStopped);
    EXPECT_EQ(columns, reading.columns);
    EXPECT_LT(columns, index->frameCount());
}

TEST(SlitPicture, TellsALineOutsideThePicture) {
    EXPECT_THROW((void)readClip("h264_50.mp4", {.lines = {{{0, 20}, {321, 20}}}}), VideoError);
    EXPECT_THROW((void)readClip("h264_50.mp4", {.lines = {{{5, 20}, {6, 20}}}}), VideoError);
}

TEST(SlitPicture, PlacesAndMomentsAgreeAtAVariableRate) {
    const auto index = readVideoIndex(clip("variable.mp4"));
    for (const FrameNumber frame : {0, 7, 119, 120, 199}) {
        const double middle = static_cast<double>(frame) + 0.5;
        EXPECT_NEAR(slitColumnAt(*index, 0, index->secondsOf(frame)), middle, 1e-6);
        EXPECT_NEAR(slitSecondsAt(*index, 0, middle), index->secondsOf(frame), 1e-9);
        EXPECT_EQ(slitFrameAt(*index, 0, middle + 0.3), frame);
    }
    const double between = (index->secondsOf(119) + index->secondsOf(120)) / 2;
    EXPECT_NEAR(slitColumnAt(*index, 0, between), 120, 1e-6);
    EXPECT_EQ(slitFrameAt(*index, 0, -3), 0);
    EXPECT_EQ(slitFrameAt(*index, 0, 1e6), 199);
}

TEST(SlitFile, KeepsLinesAndWhatWasRefused) {
    const test::TempFolder folder;
    const auto path = slitFileOf(folder.path() / "Bridge 1.mp4");
    EXPECT_EQ(path.filename(), "Bridge 1.slit.json");
    EXPECT_FALSE(readSlitFile(path).has_value());
    slitfile002 file{.width = 1920, .height = 1080, .lines = {{.split = 2, .x1 = 3.5, .x2 = 900}}};
    file.lines.front().refused.push_back({500, 10.02});
    writeSlitFile(file, path);
    const auto read = readSlitFile(path);
    ASSERT_TRUE(read && read->lines.size() == 1);
    EXPECT_EQ(read->lines.front().split, 2);
    EXPECT_EQ(lineOf(read->lines.front()), lineOf(file.lines.front()));
    EXPECT_TRUE(isRefused(read->lines.front(), 10.1)) << "another search finds it a little beside";
    EXPECT_FALSE(isRefused(read->lines.front(), 11));
    std::ofstream(path) << R"({"kavelaSlit":3,"width":1,"height":1,"lines":[]})";
    EXPECT_THROW((void)readSlitFile(path), DecodeError) << "of a later release";
}

TEST(SlitFile, KeepsWhatWasFoundForTheLineBoatAndFilmOfTheSearch) {
    const test::TempFolder folder;
    const auto path = folder.path() / "bridge.slit.json";
    slitfile002 file{.lines = {{.x2 = 900, .boatWidth = 60, .boatHeight = 20}}};
    Crossings found;
    found.frames = 3000;
    found.isHandHeld = true;
    found.proposals = {{500, 10.01, 0.7, 512, 10.25}};
    file.searches = {searchRecord(file.lines[0], found)};
    setTimingPoint(file, TimingPoint::Body);
    writeSlitFile(file, path);
    slitfile002 read = readSlitFile(path).value();
    EXPECT_EQ(timingPointOf(read), TimingPoint::Body);
    const auto again = foundOn(read, read.lines[0], 3000);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->proposals, found.proposals);
    EXPECT_EQ(again->notes.size(), 1U) << "of the camera";
    EXPECT_FALSE(foundOn(read, read.lines[0], 2999)) << "another film took its name";
    read.lines[0].boatWidth = 61;
    EXPECT_FALSE(foundOn(read, read.lines[0], 3000));
    file.timedAt = "stern";
    writeSlitFile(file, path);
    EXPECT_THROW((void)readSlitFile(path), DecodeError);
}

TEST(SlitFile, OfAnOlderReleaseIsTimedAtTheBow) {
    const test::TempFolder folder;
    const auto path = folder.add(
        "bridge.slit.json",
        R"({"kavelaSlit":1,"width":640,"height":360,"lines":[{"split":0,"x1":1,"y1":2,"x2":3,)"
        R"("y2":40,"fromLeft":false,"boatX":0,"boatY":0,"boatWidth":0,"boatHeight":0,)"
        R"("refused":[{"frame":7,"seconds":0.14}]}]})");
    const slitfile002 read = readSlitFile(path).value();
    EXPECT_EQ(read.kavelaSlit, 2);
    EXPECT_EQ(timingPointOf(read), TimingPoint::Bow);
    EXPECT_EQ(read.width, 640);
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(read.lines[0].y2, 40);
    EXPECT_TRUE(isRefused(read.lines[0], 0.2));
    EXPECT_TRUE(read.searches.empty());
}

} // namespace
} // namespace kavela
