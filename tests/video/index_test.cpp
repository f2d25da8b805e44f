#include "video/index.h"

#include "clips.h"
#include "video/health.h"
#include "video/video_error.h"

#include <gmock/gmock.h>

#include <fstream>

namespace kavela {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// An index of frames with these stamps.
VideoIndex indexOf(const std::vector<std::int64_t>& stamps, TimeBase base, VideoFacts facts = {}) {
    facts.timeBase = base;
    std::vector<PacketRecord> packets;
    for (const std::int64_t stamp : stamps)
        packets.push_back(
            {.stamp = stamp, .decodingStamp = stamp, .bytes = 5000, .isKey = packets.empty()});
    return {std::move(facts), std::move(packets), true};
}

std::vector<std::int64_t> evenStamps(int count, std::int64_t step) {
    std::vector<std::int64_t> stamps;
    for (int i = 0; i < count; ++i)
        stamps.push_back(i * step);
    return stamps;
}

TEST(TimeStamps, AreWholeNumbersOfTheFilm) {
    EXPECT_EQ(stampOf(1001, {1, 30000}), (CMTime{1001, 30000, 1, 0}));
    EXPECT_EQ(stampOf(7, {1001, 30000}), (CMTime{7007, 30000, 1, 0}));
    EXPECT_EQ(stampOf(INT64_MAX / 2, {4, 2}), (CMTime{INT64_MAX - 1, 1, 3, 0}));
}

TEST(VideoIndex, OrdersByShowingAndLeavesOutWhatIsNotShown) {
    std::vector<PacketRecord> packets = {{.stamp = -20, .isKey = true, .isDiscarded = true},
                                         {.stamp = 30},
                                         {.stamp = 10},
                                         {.stamp = 20},
                                         {.stamp = 20}};
    const VideoIndex index({}, packets, true);
    ASSERT_EQ(index.frameCount(), 3);
    EXPECT_EQ(index.frame(0).packet, 2U);
    EXPECT_EQ(index.frame(2).stamp, 30);
    EXPECT_EQ(index.facts().sharedStamps, 1);
    EXPECT_EQ(index.packets().keyFor(10, 0), 0U);
}

TEST(VideoIndex, FindsTheFrameShownAtAMoment) {
    const VideoIndex index = indexOf({100, 140, 180, 300}, {1, 1000});
    struct Case {
        CMTime moment;
        std::optional<FrameNumber> frame;
    };
    const std::vector<Case> cases = {
        {{140, 1000, 1, 0}, 1},  {{7, 50, 1, 0}, 1},
        {{139, 1000, 1, 0}, 0},  {{0, 1, 1, 0}, 0},
        {{250, 1000, 1, 0}, 2},  {{9, 1, 1, 0}, 3},
        {{179, 1000, 1, 0}, 1},  {{14, 100, 3, 0}, 1},
        {{1, 5, 3, 0}, 2}, // 180 ms, as far as fifths of a second can tell
        {{140, 1000, 0, 0}, {}}, {{140, 1000, 5, 0}, {}},
        {{140, 0, 1, 0}, {}},    {{INT64_MAX, 1, 1, 0}, 3}};
    for (const Case& tested : cases)
        EXPECT_EQ(index.frameAt(tested.moment), tested.frame)
            << tested.moment.value << '/' << tested.moment.timescale;
    EXPECT_EQ(index.frameAt(0.1 + 0.2), 3);
    EXPECT_EQ(index.frameAt(0.2999), 2);
    EXPECT_EQ(index.frameAt(-5.0), 0);
    EXPECT_EQ(index.frameAt(std::nan("")), std::nullopt);
}

TEST(VideoIndex, UncertaintyIsHalfTheWayToTheFartherNeighbour) {
    const VideoIndex index = indexOf({0, 20, 40, 100}, {1, 1000});
    EXPECT_DOUBLE_EQ(index.uncertainty(0), 0.01);
    EXPECT_DOUBLE_EQ(index.uncertainty(1), 0.01);
    EXPECT_DOUBLE_EQ(index.uncertainty(2), 0.03);
    EXPECT_DOUBLE_EQ(index.uncertainty(3), 0.03);
}

TEST(VideoIndex, CanBeUsedWhileTheRestIsRead) {
    std::vector<std::shared_ptr<const VideoIndex>> beginnings;
    double fraction = 0;
    const auto whole = readVideoIndex(clip("h264_240.mp4"), {}, [&](const IndexProgress& progress) {
        EXPECT_GE(progress.fraction, fraction);
        fraction = progress.fraction;
        if (progress.soFar)
            beginnings.push_back(progress.soFar);
    });
    ASSERT_FALSE(beginnings.empty());
    for (const auto& beginning : beginnings) {
        EXPECT_FALSE(beginning->isComplete());
        ASSERT_GT(beginning->frameCount(), 150);
        for (FrameNumber i = 0; i < beginning->frameCount(); ++i)
            ASSERT_EQ(beginning->frame(i).stamp, whole->frame(i).stamp);
    }
}

TEST(VideoIndex, StopsWhenAsked) {
    std::stop_source stop;
    EXPECT_EQ(readVideoIndex(clip("h264_240.mp4"), stop.get_token(),
                             [&](const IndexProgress&) { stop.request_stop(); }),
              nullptr);
}

TEST(VideoIndex, RefusesWhatIsNoVideoWithItsPath) {
    const auto folder = std::filesystem::path(::testing::TempDir());
    const auto text = folder / "kavela-no-video.mp4";
    const auto empty = folder / "kavela-empty.mov";
    std::ofstream(text) << "Start 1, gate 2, gate 3\n";
    std::ofstream(empty).flush();
    const std::vector<std::pair<std::filesystem::path, std::string>> cases = {
        {folder / "absent.mov", "No such file"},
        {folder, "Is a directory"},
        {text, "no video that can be read"},
        {empty, "no video that can be read"},
        {clip("cut_back.mp4"), "the list of its frames is missing"}};
    for (const auto& [path, reason] : cases) {
        try {
            static_cast<void>(readVideoIndex(path));
            ADD_FAILURE() << path;
        } catch (const VideoError& error) {
            EXPECT_EQ(error.path(), path);
            EXPECT_THAT(error.reason(), HasSubstr(reason));
        }
    }
    std::filesystem::remove(text);
    std::filesystem::remove(empty);
}

TEST(VideoIndex, EstimatesStampsInOrderWhereTheFileHasNone) {
    for (const char* const name : {"numbers_b.avi", "h264.avi", "raw.h264"}) {
        const auto index = readVideoIndex(clip(name));
        const double interval = 1 / index->facts().nominalRate;
        for (FrameNumber i = 1; i < index->frameCount(); ++i)
            ASSERT_NEAR(index->secondsOf(i) - index->secondsOf(i - 1), interval, 1e-6) << name;
    }
}

std::vector<std::string> healthOf(const VideoIndex& index) {
    std::vector<std::string> lines;
    for (const HealthNote& note : checkHealth(index))
        lines.push_back(note.text);
    return lines;
}

TEST(Health, TellsEachOddityOfAFileInALine) {
    const std::vector<std::pair<const char*, std::vector<std::string>>> cases = {
        {"h264_50.mp4", {}},
        {"h264_60.mov", {}},
        {"offset.mkv", {"The film starts at 5.000 s, not at 0."}},
        {"rotated.mp4", {"Recorded turned by 270°, and shown upright."}},
        {"flattened.mp4",
         {"Slow motion: recorded at 240 frames a second, plays at 29.97. Times taken from it are "
          "8.01 times too long."}},
        {"open_hevc.mp4", {"10 bits a colour, shown with 8."}},
    };
    for (const auto& [name, lines] : cases)
        EXPECT_EQ(healthOf(*readVideoIndex(clip(name))), lines) << name;
}

std::vector<Oddity> odditiesOf(const char* name) {
    std::vector<Oddity> oddities;
    for (const HealthNote& note : checkHealth(*readVideoIndex(clip(name))))
        oddities.push_back(note.oddity);
    return oddities;
}

TEST(Health, KnowsWhatContainersLack) {
    EXPECT_THAT(odditiesOf("stream.ts"), ElementsAre(Oddity::FirstStamp, Oddity::NoStoredIndex));
    EXPECT_THAT(odditiesOf("raw.h264"),
                ElementsAre(Oddity::EstimatedStamps, Oddity::NoStoredIndex));
    EXPECT_THAT(odditiesOf("h264.avi"), ElementsAre(Oddity::EstimatedStamps));
    EXPECT_THAT(odditiesOf("cut_front.mp4"), ElementsAre(Oddity::CutOff, Oddity::Gaps));
    EXPECT_THAT(odditiesOf("cut.mkv"), ElementsAre(Oddity::CutOff, Oddity::NoStoredIndex));
    EXPECT_THAT(odditiesOf("interlaced.ts"),
                ElementsAre(Oddity::FirstStamp, Oddity::NoStoredIndex, Oddity::Interlaced));
    EXPECT_THAT(odditiesOf("variable.mp4"), ElementsAre(Oddity::VariableRate, Oddity::Gaps));
}

TEST(Health, TellsRateGapsAndRepeats) {
    constexpr TimeBase Milliseconds{1, 1000};
    auto gap = evenStamps(100, 20);
    for (std::size_t i = 60; i < 100; ++i)
        gap[i] += 400;
    EXPECT_THAT(healthOf(indexOf(gap, Milliseconds)),
                ElementsAre("1 gap where frames are missing, the longest of 0.420 s at 1.180 s."));

    std::vector<std::int64_t> rounded; // a third of a tick is lost now and then
    for (int i = 0; i < 100; ++i)
        rounded.push_back((i * 100 + 1) / 3);
    EXPECT_THAT(healthOf(indexOf(rounded, Milliseconds)), ElementsAre());

    std::vector<std::int64_t> wandering = {0};
    for (int i = 0; i < 100; ++i)
        wandering.push_back(wandering.back() + (i < 50 ? 20 : 25));
    EXPECT_THAT(healthOf(indexOf(wandering, Milliseconds)),
                ElementsAre("The frame rate varies, from 40 to 50 frames a second."));

    std::vector<PacketRecord> packets;
    for (int i = 0; i < 100; ++i)
        packets.push_back({.stamp = i, .bytes = i % 4 == 3 ? 30 : 9000, .isKey = i == 0});
    EXPECT_THAT(healthOf(VideoIndex({}, packets, true)),
                ElementsAre("About 25 of 100 frames repeat the picture before them."));
}

} // namespace
} // namespace kavela
