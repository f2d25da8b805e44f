#include "page/clips/page_clips.h"

#include "../video/clips.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

/// The clips of runs that lie beside a page.
namespace kavela::test {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;
using testing::UnorderedElementsAre;

namespace {

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

} // namespace

TEST(PageClips, AreCutWithTheirPicturesAndTakeThePlaceOfEarlierOnes) {
    const TempFolder folder;
    const fs::path target = folder.path() / "page" / "cup 0.2 run 7";
    const std::vector<page::ClipOrder> orders{{clip("h264_50.mp4"), 0.5, 1.5, target}};
    for (int call = 0; call < 2; ++call) {
        std::vector<std::size_t> done;
        EXPECT_THAT(page::cutClips(orders, {}, [&](std::size_t count) { done.push_back(count); }),
                    SizeIs(0));
        EXPECT_THAT(done, testing::ElementsAre(1U));
        EXPECT_THAT(namesIn(folder.path() / "page"),
                    UnorderedElementsAre("cup 0.2 run 7.mp4", "cup 0.2 run 7.jpg"));
    }
    const auto film = readVideoIndex(target.string() + ".mp4");
    EXPECT_NEAR(static_cast<double>(film->frameCount()), 51, 8);
    EXPECT_THAT(contentOf(target.string() + ".jpg"), StartsWith("\xFF\xD8"));
}

TEST(PageClips, AFilmThatCannotBeCutIsToldAndTheOthersAreCut) {
    const TempFolder folder;
    const fs::path damaged = folder.add("damaged.mp4", "no film");
    const fs::path page = folder.path() / "page";
    const auto faults = page::cutClips(
        std::vector<page::ClipOrder>{{folder.path() / "missing.mp4", 0, 1, page / "a"},
                                     {damaged, 0, 1, page / "b"},
                                     {clip("h264_50.mp4"), 900, 901, page / "c"},
                                     {clip("h264_50.mp4"), 0, 1, page / "d"}});
    ASSERT_THAT(faults, SizeIs(3));
    EXPECT_THAT(faults[0].reason, HasSubstr("not there"));
    EXPECT_EQ(faults[1].film, damaged);
    EXPECT_THAT(faults[2].reason, HasSubstr("behind the end"));
    EXPECT_THAT(namesIn(page), UnorderedElementsAre("d.mp4", "d.jpg"));
}

} // namespace kavela::test
