#include "clips.h"
#include "common/temp_folder.h"
#include "video/thumbnail.h"
#include "video/video_error.h"

#include <gmock/gmock.h>

/// The small pictures of films.
namespace kavela {
namespace {

namespace fs = std::filesystem;

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
