#include "video/writing/film_cut.h"

#include "common/temp_folder.h"
#include "video/clips.h"
#include "video/frame_source.h"
#include "video/writing/unfinished_file.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <chrono>

/// Both ends of a piece, by the numbers in its frames.
namespace kavela {
namespace {

struct CutCase {
    const char* clip = "";
    CutKind kind = CutKind::Copy;
};

class Cutting : public ::testing::TestWithParam<CutCase> {
protected:
    static std::vector<int> numbersOf(const std::filesystem::path& film) {
        const auto index = readVideoIndex(film);
        FrameSource source(index, std::make_shared<FrameCache>(std::size_t{32} << 20));
        std::vector<int> numbers;
        for (FrameNumber i = 0; i < index->frameCount(); ++i) {
            const FramePtr samples = source.frame(i).frame.samples;
            numbers.push_back(samples ? numberIn(*samples) : -1);
        }
        return numbers;
    }

    test::TempFolder m_folder;
};

TEST_P(Cutting, KeepsThePieceThatWasAskedFor) {
    const auto film = readVideoIndex(clip(GetParam().clip));
    constexpr FrameNumber First = 67;
    constexpr FrameNumber Last = 103;
    const auto piece = cutFilm(film, {GetParam().kind, First, Last, m_folder.path() / "piece"});
    ASSERT_TRUE(piece);
    const std::vector<int> numbers = numbersOf(*piece);
    // A copied piece can hold some frames more on which its last one builds.
    const std::size_t most = GetParam().kind == CutKind::Exact ? 37 : 41;
    ASSERT_GE(numbers.size(), 37U);
    EXPECT_LE(numbers.size(), most);
    for (std::size_t i = 0; i < 37; ++i)
        EXPECT_EQ(numbers[i], First + static_cast<FrameNumber>(i));
    EXPECT_EQ(readVideoIndex(*piece)->facts().rotation, film->facts().rotation);
    EXPECT_EQ(m_folder.names().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Clips, Cutting,
    ::testing::Values(CutCase{"h264_50.mp4"}, CutCase{"h264_50.mp4", CutKind::Exact},
                      CutCase{"short_groups.mp4"}, CutCase{"open_h264.mkv"},
                      CutCase{"variable.mp4"}, CutCase{"variable.mp4", CutKind::Exact},
                      CutCase{"rotated.mp4"}, CutCase{"open_hevc.mp4", CutKind::Exact},
                      CutCase{"stream.ts", CutKind::Exact}),
    [](const auto& tested) {
        std::string name = tested.param.clip;
        name.resize(name.find('.'));
        return name + (tested.param.kind == CutKind::Copy ? "Copied" : "Exact");
    });

TEST(StoppedCut, LeavesNothing) {
    const auto film = readVideoIndex(clip("h264_50.mp4"));
    const test::TempFolder folder;
    for (const CutKind kind : {CutKind::Copy, CutKind::Exact}) {
        std::stop_source stop;
        EXPECT_FALSE(cutFilm(film, {kind, 20, 150, folder.path() / "piece"}, stop.get_token(),
                             [&](double fraction) {
                                 if (fraction > 0.3)
                                     stop.request_stop();
                             }));
        EXPECT_THAT(folder.names(), ::testing::IsEmpty());
    }
}

TEST(UnfinishedFile, ClearsUpAfterAProgramThatWasKilled) {
    const test::TempFolder folder;
    const auto leave = [&](const std::string& name, int minutes) {
        std::filesystem::last_write_time(folder.add(name, "half"),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::minutes(minutes));
    };
    leave(".a.mp4.999999999-0.tmp", 60);
    leave(".a.mp4.999999998-0.tmp", 1); // perhaps of another machine
    leave(".a.mp4." + std::to_string(::getpid()) + "-7.tmp", 60);
    leave(".a.mp4.mp4.999999999-0.tmp", 60);
    UnfinishedFile(folder.path() / "a.mp4").finish();
    EXPECT_THAT(folder.names(),
                ::testing::UnorderedElementsAre("a.mp4", ".a.mp4.999999998-0.tmp",
                                                ".a.mp4." + std::to_string(::getpid()) + "-7.tmp",
                                                ".a.mp4.mp4.999999999-0.tmp"));
}

} // namespace
} // namespace kavela
