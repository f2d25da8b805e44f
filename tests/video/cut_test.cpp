#include "clips.h"
#include "common/temp_folder.h"
#include "video/copy_cut.h"
#include "video/frame_source.h"
#include "video/thumbnail.h"
#include "video/video_error.h"

#include <gmock/gmock.h>

/// Cuts by copying, and the small pictures of films.
namespace kavela {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;

class CopyCutTest : public ::testing::Test {
protected:
    static FilmStretch framesOf(const fs::path& film, FrameNumber first, FrameNumber last) {
        const auto index = readVideoIndex(film);
        return {index->stampOf(first), index->stampOf(last)};
    }

    /// The numbers in all frames that are shown.
    static std::vector<int> numbersIn(const fs::path& film) {
        const auto index = readVideoIndex(film);
        FrameSource frames(index, std::make_shared<FrameCache>(64U << 20U));
        std::vector<int> numbers;
        for (FrameNumber number = 0; number < index->frameCount(); ++number)
            numbers.push_back(numberIn(*frames.frame(number).frame.samples));
        return numbers;
    }

    test::TempFolder m_folder;
    fs::path m_target = m_folder.path() / "cut.mp4";
};

TEST_F(CopyCutTest, BeginsWithExactlyTheWantedFrame) {
    struct Case {
        const char* clip;
        int first;
        int last;
    };
    // At a key frame, before and behind one, far behind one, with frames reordered and a rate that
    // varies.
    for (const Case& cut : {Case{"short_groups.mp4", 12, 30}, Case{"short_groups.mp4", 35, 60},
                            Case{"h264_50.mp4", 90, 149}, Case{"open_h264.mkv", 40, 80},
                            Case{"rotated.mp4", 20, 60}, Case{"edit_list.mp4", 30, 70}}) {
        const fs::path film = clip(cut.clip);
        const auto before = numbersIn(film);
        ASSERT_TRUE(copyStretch(film, framesOf(film, cut.first, cut.last), m_target)) << cut.clip;
        const auto numbers = numbersIn(m_target);
        const auto wanted = static_cast<std::size_t>(cut.last - cut.first + 1);
        ASSERT_GE(numbers.size(), wanted) << cut.clip;
        EXPECT_LE(numbers.size(), wanted + 4) << cut.clip << ": reordered frames at its end";
        for (std::size_t i = 0; i < wanted - 4; ++i)
            ASSERT_EQ(numbers[i], before[static_cast<std::size_t>(cut.first) + i])
                << cut.clip << " at " << i;
        EXPECT_EQ(readVideoIndex(m_target)->facts().rotation,
                  readVideoIndex(film)->facts().rotation);
        fs::remove(m_target);
    }
}

TEST_F(CopyCutTest, LeavesNothingBehindWhereItCannotCut) {
    const fs::path film = clip("h264_50.mp4");
    const FilmStretch stretch = framesOf(film, 10, 50);
    EXPECT_THROW((void)copyStretch(film, {stretch.last, stretch.first}, m_target), VideoError);
    EXPECT_THROW((void)copyStretch(film, stretch, m_folder.path() / "cut.mkv"), FileError);
    EXPECT_THROW((void)copyStretch(film, stretch, m_folder.path() / "no folder" / "cut.mp4"),
                 FileError);
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_FALSE(copyStretch(film, stretch, m_target, stopped.get_token()));
    const fs::path longer = clip("h264_240.mp4");
    std::stop_source late;
    EXPECT_FALSE(copyStretch(longer, framesOf(longer, 10, 700), m_target, late.get_token(),
                             [&late](double) { late.request_stop(); }));
    EXPECT_THAT(m_folder.names(), IsEmpty());
    (void)m_folder.add("cut.mp4", "another film");
    EXPECT_THROW((void)copyStretch(film, stretch, m_target), FileError);
    EXPECT_EQ(test::contentOf(m_target), "another film");
}

TEST(Thumbnail, IsTheKeyFrameNearestToAThird) {
    const fs::path film = clip("short_groups.mp4"); // 150 frames, a key frame each 12
    const Thumbnail made = readThumbnail(film, {});
    ASSERT_TRUE(made.seconds);
    EXPECT_NEAR(*made.seconds, 3.0, 0.05);
    ASSERT_EQ(made.picture.width, ClipSize.width);
    // The blocks of the number stand in two rows of eight, the lowest bit first.
    int number = 0;
    for (int bit = 0; bit < 16; ++bit) {
        const auto at = static_cast<std::ptrdiff_t>((bit % 8 * 40 + 20) * 4) +
                        (bit / 8 * 40 + 20) * made.picture.bytesPerLine;
        number |= made.picture.pixels[at] > 127 ? 1 << bit : 0;
    }
    EXPECT_EQ(number, 48);
}

TEST(Thumbnail, ComesOfFilmsOfEveryKind) {
    for (const char* const name :
         {"open_hevc.mp4", "stream.ts", "numbers_b.avi", "intra.mov", "edit_list.mp4"}) {
        const Thumbnail made = readThumbnail(clip(name), {160, 160});
        EXPECT_TRUE(made.picture.pixels) << name;
        EXPECT_EQ(made.picture.width, 160) << name;
    }
    EXPECT_EQ(readThumbnail(clip("rotated.mp4"), {160, 160}).picture.height, 160) << "upright";
    test::TempFolder folder;
    EXPECT_THROW((void)readThumbnail(folder.add("no.mp4", "no film"), {}), VideoError);
}

} // namespace
} // namespace kavela
