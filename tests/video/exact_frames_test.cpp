#include "video/frame_source.h"

#include "video/machine_memory.h"

#include "clips.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

extern "C" {
#include <libavutil/frame.h>
}

/// Whichever way somebody comes to a frame, it is that frame, with the stamp that the file gives.
namespace kavela {
namespace {

struct ExactFilm {
    const char* clip;
    int frames;
    int firstNumber = 0; ///< in the blocks of frame 0
    bool isStamped = true;
};

class ExactFrames : public ::testing::TestWithParam<ExactFilm> {
protected:
    void SetUp() override {
        m_index = readVideoIndex(clip(GetParam().clip));
        ASSERT_EQ(m_index->frameCount(), GetParam().frames);
        m_source.emplace(m_index, std::make_shared<FrameCache>(MemoryBytes));
    }

    void expectExact(FrameNumber number) {
        const FrameSource::Result result = m_source->frame(number);
        ASSERT_EQ(result.outcome, FrameSource::Outcome::Found) << "frame " << number;
        EXPECT_EQ(numberIn(*result.frame.samples), number + GetParam().firstNumber);
        EXPECT_EQ(result.frame.number, number);
        EXPECT_EQ(result.frame.stamp, m_index->stampOf(number));
    }

    /// Less than a group of the long ones.
    static constexpr std::size_t MemoryBytes = 4 << 20;
    std::shared_ptr<const VideoIndex> m_index;
    std::optional<FrameSource> m_source;
};

TEST_P(ExactFrames, StampsAreThoseOfTheFile) {
    EXPECT_EQ(m_index->facts().hasEstimatedStamps, !GetParam().isStamped);
    if (!GetParam().isStamped)
        return;
    const auto probed = probedStamps(GetParam().clip);
    ASSERT_EQ(std::ssize(probed), m_index->frameCount());
    for (FrameNumber i = 0; i < m_index->frameCount(); ++i)
        ASSERT_EQ(m_index->frame(i).stamp, probed[static_cast<std::size_t>(i)]) << "frame " << i;
}

TEST(PreparedFrames, AreThereAndExactAndLeaveTheRestAsItWas) {
    const auto cache = std::make_shared<FrameCache>(std::size_t{64} << 20);
    FrameSource source(readVideoIndex(clip("h264_240.mp4")), cache);
    constexpr FrameCache::SourceId TheFilm = 0;
    const auto number = [&](FrameNumber wanted) {
        const FrameSource::Result result = source.frame(wanted);
        return result.frame.samples ? numberIn(*result.frame.samples) : -1;
    };
    ASSERT_EQ(number(10), 10);
    int interruptions = 0;
    while (!source.prepare(600, [&] { return ++interruptions % 40 == 0; }))
        if (interruptions % 3 == 0) { // somebody steps on meanwhile
            ASSERT_EQ(number(11 + interruptions / 40), 11 + interruptions / 40);
        }
    for (const FrameNumber near : {580, 600, 620})
        EXPECT_TRUE(cache->holds(TheFilm, near)) << "frame " << near;
    for (FrameNumber i = 580; i < 760; ++i)
        ASSERT_EQ(number(i), i) << "also where what was prepared ends";
    for (FrameNumber i = 60; i > 0; --i)
        ASSERT_EQ(number(i), i);
}

TEST(FrameMemory, IsAQuarterOfTheMachineAtMost) {
    EXPECT_EQ(frameMemory(std::size_t{1} << 30), std::size_t{256} << 20);
    EXPECT_EQ(frameMemory(std::size_t{64} << 30), std::size_t{768} << 20);
    EXPECT_GT(machineMemory(), std::size_t{64} << 20);
}

TEST_P(ExactFrames, ForwardBackwardAndAnywhere) {
    const FrameNumber count = m_index->frameCount();
    for (FrameNumber i = 0; i < count; ++i)
        expectExact(i);
    for (FrameNumber i = count - 1; i >= 0; --i)
        expectExact(i);
    std::mt19937 dice(7);
    for (int i = 0; i < 60; ++i)
        expectExact(static_cast<FrameNumber>(dice()) % count);
}

TEST_P(ExactFrames, StampsOfFramesLeadBackToThem) {
    for (FrameNumber i = 0; i < m_index->frameCount(); ++i) {
        ASSERT_EQ(m_index->frameAt(m_index->stampOf(i)), i);
        ASSERT_EQ(m_index->frameAt(m_index->secondsOf(i)), i);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Clips, ExactFrames,
    ::testing::Values(ExactFilm{"h264_30.mp4", 120}, ExactFilm{"h264_50.mp4", 200},
                      ExactFilm{"h264_60.mov", 290}, ExactFilm{"h264_120.mp4", 400},
                      ExactFilm{"h264_240.mp4", 800}, ExactFilm{"variable.mp4", 200},
                      ExactFilm{"variable.mkv", 200}, ExactFilm{"short_groups.mp4", 150},
                      ExactFilm{"open_h264.mkv", 160}, ExactFilm{"intra.mov", 100},
                      ExactFilm{"open_hevc.mp4", 240}, ExactFilm{"rotated.mp4", 120},
                      ExactFilm{"offset.mkv", 120}, ExactFilm{"stream.ts", 200},
                      ExactFilm{"edit_list.mp4", 135, 65}, ExactFilm{"numbers.avi", 100},
                      ExactFilm{"numbers_b.avi", 100, 0, false},
                      ExactFilm{"h264.avi", 150, 0, false}, ExactFilm{"raw.h264", 150, 0, false},
                      ExactFilm{"interlaced.ts", 100}),
    [](const auto& tested) {
        std::string name = tested.param.clip;
        std::ranges::replace(name, '.', '_');
        return name;
    });

} // namespace
} // namespace kavela
