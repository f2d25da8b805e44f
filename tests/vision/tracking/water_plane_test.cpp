#include "vision/water_plane.h"

#include "vision/track_error.h"

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

namespace kavela {
namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

/// Where a camera 4 m above the water that looks down a little sees a place on it.
PicturePlace seenByCamera(double x, double y) {
    const double depth = y * 0.96 + 4 * 0.28;
    return {640 + 1200 * x / depth, 360 + 1200 * (4 * 0.96 - y * 0.28) / depth};
}

PlanePoint known(double x, double y) {
    return {seenByCamera(x, y), x, y};
}

TEST(WaterPlane, GivesMetresAllOverAFieldThatFourPointsSpan) {
    const WaterPlane plane({known(-3, 10), known(3, 11), known(-4, 22), known(5, 25)});
    EXPECT_FALSE(plane.isScaleOnly());
    for (const double x : {-6.0, 0.0, 4.5})
        for (const double y : {9.0, 14.0, 30.0}) {
            const auto place = plane.at(seenByCamera(x, y));
            ASSERT_TRUE(place) << x << ' ' << y;
            EXPECT_NEAR(place->x, x, 1e-6);
            EXPECT_NEAR(place->y, y, 1e-6);
        }
    // The sky has no place on the water.
    EXPECT_FALSE(plane.at({640, -600}));
}

TEST(WaterPlane, OfTwoPointsGivesAScaleOnlyAndSaysSo) {
    const WaterPlane plane({{{100, 200}, 0, 0}, {{180, 260}, 2, 0}});
    EXPECT_TRUE(plane.isScaleOnly());
    const auto from = plane.at({100, 200});
    const auto to = plane.at({100, 400});
    EXPECT_NEAR(std::hypot(to->x - from->x, to->y - from->y), 4, 1e-9);
}

TEST(WaterPlane, RefusesPointsThatTellNothing) {
    struct Case {
        std::vector<PlanePoint> points;
        const char* text;
    };
    const std::vector<Case> cases{
        {{known(0, 10), known(3, 10), known(0, 20)}, "there are 3"},
        {{known(0, 10), known(1, 10), known(2, 10), known(0, 20)}, "lie on a line"},
        {{{{5, 5}, 0, 0}, {{5, 5}, 2, 0}}, "one spot"},
        // Clicked crosswise: no flat water is seen so.
        {{{{100, 300}, 0, 0}, {{300, 310}, 2, 0}, {{320, 100}, 0, 5}, {{90, 110}, 2, 5}},
         "exchanged"}};
    for (const Case& one : cases)
        EXPECT_THAT([&] { WaterPlane plane(one.points); },
                    ThrowsMessage<TrackError>(HasSubstr(one.text)));
}

} // namespace
} // namespace kavela
