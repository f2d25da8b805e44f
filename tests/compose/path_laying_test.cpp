#include "compose/path_laying.h"

#include "compose/frame_mixer.h"
#include "compose/picture_laying.h"
#include "video/clips.h"
#include "video/writing/plane_scaler.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace kavela {
namespace {

int shadeAt(const AVFrame& planes, int x, int y) {
    return planes.data[0][y * planes.linesize[0] + x];
}

/// Brighter from left to right by three a pixel.
AvOwner<AVFrame> slopingPicture() {
    AvOwner<AVFrame> picture = newPlanes({64, 32});
    for (int plane = 0; plane < 3; ++plane) {
        const int step = plane == 0 ? 1 : 2;
        for (int y = 0; y < 32 / step; ++y)
            for (int x = 0; x < 64 / step; ++x)
                picture->data[plane][y * picture->linesize[plane] + x] =
                    static_cast<std::uint8_t>(3 * x);
    }
    return picture;
}

TEST(PathLaying, APartGlidesBetweenPixelsAndKeepsToItsPlace) {
    const auto picture = slopingPicture();
    const auto whole = newPlanes({64, 32});
    darken(*whole);
    layPart({16, 8, 32, 16}, {10.5, 4}, *picture, *whole);
    EXPECT_EQ(shadeAt(*whole, 16, 8), 32); // 31.5
    EXPECT_EQ(shadeAt(*whole, 47, 23), 125);
    EXPECT_EQ(shadeAt(*whole, 15, 8), 16);
    EXPECT_EQ(shadeAt(*whole, 48, 8), 16);
    EXPECT_EQ(shadeAt(*whole, 16, 24), 16);
}

TEST(PathLaying, ATrailIsDrawnWithinItsPlaceOnly) {
    const auto whole = newPlanes({64, 32});
    darken(*whole);
    drawTrail({{0, 12}, {40, 12}}, {16, 8, 32, 16}, 0, *whole);
    EXPECT_EQ(shadeAt(*whole, 30, 12), 200);
    EXPECT_EQ(shadeAt(*whole, 15, 12), 16);
    EXPECT_EQ(shadeAt(*whole, 46, 12), 16);
    darken(*whole);
    drawTrail({{0, 12}, {40, 12}}, {16, 8, 32, 16}, 32, *whole);
    EXPECT_EQ(shadeAt(*whole, 30, 12), 16);
    EXPECT_EQ(shadeAt(*whole, 34, 12), 200);
}

TEST(PathLaying, AFollowedFilmIsShownTwiceAsLargeRoundItsPath) {
    FilmTrack track;
    // In the middle, then at the very edge, where the picture ends.
    for (FrameNumber frame = 0; frame < 100; ++frame)
        track.points.push_back(
            {frame, double(frame) / 50, {frame < 50 ? 200.0 : 399.0, 100}, 1, 1});
    Composition composition;
    composition.films.resize(2);
    for (ComposedFilm& film : composition.films) {
        film.path = clip(clipRecipes().front().name);
        film.run.marks = {0.0};
    }
    composition.films[0].view =
        std::make_shared<const PathView>(track, VideoSize{400, 200}, 2, true);
    composition.range = {RangeKind::Free, 0, 0, 0, 1.5};
    composition.layout.size = {640, 180};
    const auto films = openFilms(composition);
    FrameMixer mixer(composition, films, {640, 180}, nullptr);
    const PictureRect place = mixer.places()[0].picture;
    ASSERT_EQ(mixer.pictureSize(0), (VideoSize{2 * place.width, 2 * place.height}));
    EXPECT_EQ(mixer.pictureSize(1), (VideoSize{place.width, place.height}));
    // A picture that is bright at its right end alone: out of sight at first, in sight at the end.
    std::shared_ptr<AVFrame> bright(newPlanes(mixer.pictureSize(0)).release(), AvDeleter());
    darken(*bright);
    for (int y = 0; y < bright->height; ++y)
        for (int x = bright->width - 20; x < bright->width; ++x)
            bright->data[0][y * bright->linesize[0] + x] = 235;
    const auto whole = newPlanes({640, 180});
    const int right = place.x + place.width - 5;
    const int low = place.y + place.height - 5; // away from the trail
    const std::vector<PlanesPtr> pictures{bright, nullptr};
    mixer.mix(0.2, pictures, *whole);
    EXPECT_EQ(shadeAt(*whole, right, low), 16);
    mixer.mix(1.4, pictures, *whole);
    EXPECT_EQ(shadeAt(*whole, right, low), 235);
}

} // namespace
} // namespace kavela
