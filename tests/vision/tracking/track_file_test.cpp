#include "vision/track_file.h"

#include "common/error.h"
#include "common/temp_folder.h"
#include "vision/film_track.h"

#include <gmock/gmock.h>

#include <functional>

namespace kavela {
namespace {

FilmTrack smallTrack() {
    FilmTrack track;
    track.keys = {{3, {10, 20, 30, 40}}, {9, {12, 22, 30, 40}}};
    track.points = {
        {3, 0.06, {25, 40}, 1, 1}, {4, 0.08, {25.5, 40.25}, 1.02, 0.8}, {9, 0.18, {27, 42}, 1, 1}};
    track.cameras = {{3, {}}, {4, {1, 0.01, 2.5, -1}}};
    return track;
}

TEST(TrackFile, KeepsAPathAndItsKnownPoints) {
    const test::TempFolder folder;
    const auto path = trackPathOf(folder.path() / "run 7.final.mp4");
    EXPECT_EQ(path.filename(), "run 7.final.track.json");
    const KnownPlane plane{4, {{{1, 2}, 0, 0}, {{3, 4.5}, 1.2, 0}}};
    track001 record{.film = "run 7.final.mp4", .width = 1920, .height = 1080};
    takeTrack(record, smallTrack());
    takePlane(record, plane);
    writeTrack(record, path);
    const track001 read = readTrack(path);
    EXPECT_EQ(trackOf(read), smallTrack());
    EXPECT_EQ(planeOf(read), plane);
}

TEST(TrackFile, SaysWhatIsWrongAndWhere) {
    struct Wrong {
        const char* place;
        std::function<void(track001&)> spoil;
    };
    const std::vector<Wrong> wrongs{
        {"boxes[1].frame", [](track001& record) { record.boxes[1].frame = 3; }},
        {"boxes[0]", [](track001& record) { record.boxes[0].width = 0; }},
        {"points[0].frame", [](track001& record) { record.points[0].frame = -1; }},
        {"points[1].size", [](track001& record) { record.points[1].size = 0; }},
        {"cameras[1]", [](track001& record) { record.cameras[1].a = record.cameras[1].b = 0; }},
        {"cameras[1]",
         [](track001& record) { record.cameras[1].a = record.cameras[1].b = 1e-200; }},
        {"points[2].frame",
         [](track001& record) { record.points[2].frame = 1'000'000'000'000'000; }},
        {"points[2]", [](track001& record) { record.points[2].x = -1e300; }},
        {"plane.points", [](track001& record) { record.plane.points.resize(5); }}};
    const test::TempFolder folder;
    for (const Wrong& wrong : wrongs) {
        track001 record;
        takeTrack(record, smallTrack());
        wrong.spoil(record);
        writeTrack(record, folder.path() / "wrong.track.json");
        try {
            static_cast<void>(readTrack(folder.path() / "wrong.track.json"));
            ADD_FAILURE() << wrong.place;
        } catch (const DecodeError& error) {
            EXPECT_EQ(error.fault().path, wrong.place);
        }
    }
}

TEST(FilmTrack, LosesOnlyWhatABoxLedToWhenThatIsTakenAway) {
    const FilmTrack left = withoutKey(smallTrack(), 9);
    ASSERT_EQ(left.keys.size(), 1U);
    EXPECT_EQ(left.points.size(), 1U); // what ran towards the box is followed anew
    EXPECT_EQ(left.cameras.size(), 2U);
    EXPECT_TRUE(withoutKey(left, 3).points.empty());
    EXPECT_EQ(withoutKey(smallTrack(), 5), smallTrack());
}

TEST(FilmTrack, PlacesOfBeforeAreShownWhereTheCameraSeesThemNow) {
    const FilmTrack track = smallTrack();
    const auto there = track.seenFrom(track.points[0], 4);
    ASSERT_TRUE(there);
    const PicturePlace back = track.cameras[1].toFirst(*there);
    EXPECT_NEAR(back.x, 25, 1e-9);
    EXPECT_NEAR(back.y, 40, 1e-9);
    EXPECT_FALSE(track.seenFrom(track.points[2], 4)); // nothing is known of the camera at frame 9
}

} // namespace
} // namespace kavela
