#include "vision/band_recording.h"

#include "common/temp_folder.h"
#include "video/video_error.h"
#include "vision/river_film.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace kavela {
namespace {

using test::TempFolder;
using testing::ElementsAre;

BandRecording smallRecording() {
    BandRecording recording;
    recording.scene = {2, "body", 3, 5, 40, 12, {}};
    recording.scene.moments = {{2.5, 0.7, 2.52, "moved", {2.48, 2.5, 2.52}},
                               {-1, 0, 9.1, "missed", {}}};
    for (const bandmoment001& moment : recording.scene.moments) {
        std::vector<std::uint8_t> samples;
        for (std::size_t i = 0; i < moment.seconds.size() * 45; ++i)
            samples.push_back(static_cast<std::uint8_t>(i * 7));
        recording.bands.push_back(std::move(samples));
    }
    return recording;
}

TEST(BandRecording, ComesBackAsItWasWritten) {
    const TempFolder folder;
    const auto path = folder.path() / "river.kvband";
    const BandRecording written = smallRecording();
    writeBandRecording(written, path);
    const BandRecording read = readBandRecording(path);
    EXPECT_EQ(read.bands, written.bands);
    ASSERT_EQ(read.scene.moments.size(), 2U);
    EXPECT_EQ(read.scene.moments[0].seconds, written.scene.moments[0].seconds);
    EXPECT_EQ(read.scene.moments[1].judged, "missed");
    EXPECT_EQ(read.scene.timedAt, "body");
}

TEST(BandRecording, IsRefusedWhereItDoesNotFitTogether) {
    const TempFolder folder;
    const auto path = folder.path() / "river.kvband";
    BandRecording wrong = smallRecording();
    wrong.bands[0].pop_back();
    EXPECT_THROW(writeBandRecording(wrong, path), EncodeError);
    EXPECT_FALSE(std::filesystem::exists(path));
    wrong = smallRecording();
    wrong.scene.moments[1].judged = "maybe";
    EXPECT_THROW(writeBandRecording(wrong, path), DecodeError);
    wrong = smallRecording();
    wrong.scene.timedAt = "stern";
    EXPECT_THROW(writeBandRecording(wrong, path), DecodeError);

    writeBandRecording(smallRecording(), path);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
    EXPECT_THROW(static_cast<void>(readBandRecording(path)), FileError);
    std::ofstream(path) << "no archive";
    EXPECT_THROW(static_cast<void>(readBandRecording(path)), FileError);
    EXPECT_THROW(static_cast<void>(readBandRecording(folder.path() / "none")), FileError);
}

TEST(BandRecording, HoldsASecondRoundEachJudgedPlace) {
    const TempFolder folder;
    RiverRecipe recipe;
    recipe.seconds = 4;
    recipe.boats = 0;
    recipe.width = 160;
    recipe.height = 100;
    recipe.boatLength = 48;
    const RiverScene scene(recipe);
    const auto path = folder.path() / "river.mp4";
    writeRiverFilm(scene, path);
    const auto index = readVideoIndex(path);
    const auto taken = recordBands(index, scene.request(),
                                   {{Proposal{88, 1.76, 0.6, 100, 2.0}, 2.02},
                                    {Proposal{2, 0.04, 0.3, 5, 0.1}, {}},
                                    {{}, 3.9}},
                                   TimingPoint::Body);
    ASSERT_TRUE(taken);
    const auto& moments = taken->scene.moments;
    ASSERT_EQ(moments.size(), 3U);
    EXPECT_THAT((std::vector{moments[0].judged, moments[1].judged, moments[2].judged}),
                ElementsAre("moved", "refused", "missed"));
    EXPECT_EQ(moments[0].proposed, 2.0) << "of the point that is timed";
    EXPECT_NEAR(moments[0].seconds.front(), 1.02, 0.021);
    EXPECT_NEAR(moments[0].seconds.back(), 3.02, 0.021);
    EXPECT_EQ(moments[1].seconds.front(), 0);
    EXPECT_NEAR(moments[2].seconds.back(), 3.98, 1e-6);
    EXPECT_EQ(taken->bands[0].size(),
              moments[0].seconds.size() *
                  static_cast<std::size_t>(3 * taken->scene.rows * taken->scene.columns));
    EXPECT_THROW(static_cast<void>(recordBands(index, scene.request(), {}, TimingPoint::Bow)),
                 VideoError);
}

} // namespace
} // namespace kavela
