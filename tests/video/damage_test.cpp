#include "video/frame_source.h"

#include "clips.h"
#include "video/video_error.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <random>

extern "C" {
#include <libavutil/frame.h>
}

namespace kavela {
namespace {

TEST(DamagedFilms, ShowAllThatIsLeftOfACutFile) {
    for (const char* const name : {"cut_front.mp4", "cut.mkv"}) {
        const auto index = readVideoIndex(clip(name));
        EXPECT_TRUE(index->facts().isCutOff) << name;
        FrameSource source(index, std::make_shared<FrameCache>(4 << 20));
        ASSERT_GT(index->frameCount(), 80) << name;
        // The last packets are those cut, and what builds on them.
        constexpr FrameNumber Tail = 8;
        for (FrameNumber i = index->frameCount() - Tail; i >= 0; --i) {
            const auto result = source.frame(i);
            ASSERT_EQ(result.outcome, FrameSource::Outcome::Found) << name << " frame " << i;
            EXPECT_EQ(numberIn(*result.frame.samples), i) << name;
        }
        for (FrameNumber i = 0; i <= index->frameCount(); ++i)
            static_cast<void>(source.frame(i));
    }
}

TEST(DamagedFilms, ALateStartHasNoFramesBeforeItsFirstKey) {
    const auto index = readVideoIndex(clip("joined_late.ts"));
    FrameSource source(index, std::make_shared<FrameCache>(4 << 20));
    const FrameNumber last = index->frameCount() - 1;
    const int lastNumber = numberIn(*source.frame(last).frame.samples);
    EXPECT_EQ(lastNumber, 199);
    for (FrameNumber i = last; i >= 0; --i) {
        const auto result = source.frame(i);
        if (lastNumber - (last - i) >= 40) {
            ASSERT_EQ(result.outcome, FrameSource::Outcome::Found) << i;
        }
        if (result.outcome == FrameSource::Outcome::Found && lastNumber - (last - i) >= 40) {
            EXPECT_EQ(numberIn(*result.frame.samples), lastNumber - (last - i));
        }
    }
}

/// Bytes changed anywhere: whatever comes of it, it ends.
class FlippedBytes : public ::testing::TestWithParam<const char*> {};

TEST_P(FlippedBytes, NeverCrashOrHang) {
    std::ifstream in(clip(GetParam()), std::ios::binary);
    const std::string whole{std::istreambuf_iterator<char>(in), {}};
    const auto path = std::filesystem::path(::testing::TempDir()) /
                      ("kavela-flipped-" + std::to_string(::getpid()));
    std::mt19937 dice(3);
    for (int round = 0; round < 8; ++round) {
        std::string damaged = whole;
        for (int i = 0; i < 1 << round; ++i)
            damaged[dice() % damaged.size()] = static_cast<char>(dice());
        std::ofstream(path, std::ios::binary) << damaged;
        try {
            const auto index = readVideoIndex(path);
            FrameSource source(index, std::make_shared<FrameCache>(4 << 20));
            for (FrameNumber i = 0; i < index->frameCount(); i += 3)
                static_cast<void>(source.frame(i));
            for (FrameNumber i = index->frameCount() - 1; i > index->frameCount() / 2; --i)
                static_cast<void>(source.frame(i));
        } catch (const VideoError& error) {
            EXPECT_EQ(error.path(), path);
        }
    }
    std::filesystem::remove(path);
}

INSTANTIATE_TEST_SUITE_P(Clips, FlippedBytes,
                         ::testing::Values("h264_50.mp4", "stream.ts", "variable.mkv", "h264.avi",
                                           "open_hevc.mp4", "raw.h264"));

TEST(FrameCache, KeepsTheMostRecentlyUsedUnderItsLimit) {
    const auto index = readVideoIndex(clip("h264_50.mp4"));
    FrameSource source(index, std::make_shared<FrameCache>(std::size_t{64} << 20));
    const FramePtr samples = source.frame(0).frame.samples;
    FrameCache cache(bytesOf(*samples) * 5 / 2);
    const auto film = cache.addSource();
    const auto other = cache.addSource();
    EXPECT_EQ(cache.fairShare(), cache.budget() / 2);
    cache.insert(film, 1, samples);
    cache.insert(film, 2, samples);
    EXPECT_NE(cache.find(film, 1), nullptr);
    cache.insert(other, 1, samples);
    EXPECT_TRUE(cache.holds(film, 1));
    EXPECT_FALSE(cache.holds(film, 2));
    EXPECT_LE(cache.usedBytes(), cache.budget());
    cache.removeSource(film);
    EXPECT_FALSE(cache.holds(film, 1));
    EXPECT_TRUE(cache.holds(other, 1));
    EXPECT_EQ(cache.usedBytes(), bytesOf(*samples));
}

TEST(FrameSource, WorksWithoutAnyMemoryToKeepFrames) {
    FrameSource source(readVideoIndex(clip("h264_50.mp4")), std::make_shared<FrameCache>(0));
    for (const FrameNumber number : {40, 39, 38, 120, 121, 119})
        EXPECT_EQ(numberIn(*source.frame(number).frame.samples), number);
}

TEST(FrameSource, GoesOnWhereItWasInterrupted) {
    FrameSource source(readVideoIndex(clip("h264_50.mp4")), std::make_shared<FrameCache>(4 << 20));
    int asked = 0;
    int interruptions = 0;
    FrameSource::Result result{FrameSource::Outcome::Interrupted, {}};
    while (result.outcome == FrameSource::Outcome::Interrupted && ++interruptions < 100)
        result = source.frame(199, [&] { return ++asked % 20 == 0; });
    ASSERT_EQ(result.outcome, FrameSource::Outcome::Found);
    EXPECT_EQ(numberIn(*result.frame.samples), 199);
    EXPECT_GT(interruptions, 3);
}

} // namespace
} // namespace kavela
