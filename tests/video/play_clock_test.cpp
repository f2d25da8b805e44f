#include "video/play_clock.h"

#include <gtest/gtest.h>

#include <vector>

namespace kavela {
namespace {

PlayClock::Moment at(double seconds) {
    return PlayClock::Moment(std::chrono::duration_cast<PlayClock::Moment::duration>(
        std::chrono::duration<double>(seconds)));
}

PlayClock clockFrom(double start, double end) {
    PlayClock clock;
    clock.setRange(start, end, at(0));
    clock.seek(start, at(0));
    return clock;
}

TEST(PlayClock, GoesWithTheRateAndStaysInTheFilm) {
    PlayClock clock = clockFrom(2, 12);
    EXPECT_DOUBLE_EQ(clock.position(at(5)), 2);
    clock.play(at(5));
    EXPECT_DOUBLE_EQ(clock.position(at(6)), 3);
    clock.setRate(-0.25, at(6));
    EXPECT_DOUBLE_EQ(clock.position(at(8)), 2.5);
    clock.setRate(8, at(8));
    EXPECT_DOUBLE_EQ(clock.position(at(9)), 10.5);
    EXPECT_FALSE(clock.isAtLimit(at(9)));
    EXPECT_DOUBLE_EQ(clock.position(at(20)), 12);
    EXPECT_TRUE(clock.isAtLimit(at(20)));
}

TEST(PlayClock, PausedStaysAndPlaysOnFromThere) {
    PlayClock clock = clockFrom(0, 100);
    clock.play(at(0));
    clock.pause(at(3));
    EXPECT_DOUBLE_EQ(clock.position(at(50)), 3);
    clock.play(at(50));
    EXPECT_DOUBLE_EQ(clock.position(at(51)), 4);
    clock.seek(90, at(51));
    EXPECT_DOUBLE_EQ(clock.position(at(52)), 91);
    clock.setRate(0, at(52));
    EXPECT_FALSE(clock.isPlaying());
}

TEST(PlayClock, PlayAtTheEndStartsAgain) {
    PlayClock clock = clockFrom(1, 5);
    clock.seek(5, at(0));
    clock.play(at(0));
    EXPECT_DOUBLE_EQ(clock.position(at(1)), 2);
    clock.pause(at(1));
    clock.setRate(-1, at(1));
    clock.seek(1, at(1));
    clock.play(at(1));
    EXPECT_DOUBLE_EQ(clock.position(at(2)), 4);
}

TEST(PlayRates, StepInTheirDirection) {
    const std::vector<double> rates = {0.125, 0.25, 0.5, 1, 2, 4, 8};
    for (const double direction : {-1.0, 1.0}) {
        for (std::size_t i = 1; i < rates.size(); ++i) {
            EXPECT_EQ(fasterRate(direction * rates[i - 1]), direction * rates[i]);
            EXPECT_EQ(slowerRate(direction * rates[i]), direction * rates[i - 1]);
        }
        EXPECT_EQ(slowerRate(direction * 0.125), direction * 0.125);
        EXPECT_EQ(fasterRate(direction * 8), direction * 8);
        EXPECT_EQ(fasterRate(direction * 3), direction * 4);
    }
}

TEST(Shuttle, FollowsTheEditingDesk) {
    PlayClock still = clockFrom(0, 10);
    PlayClock forward = still;
    forward.play(at(0));
    PlayClock fastBack = forward;
    fastBack.setRate(-4, at(0));
    using enum ShuttleKey;
    EXPECT_EQ(shuttle(still, L, false), (ShuttleStep{true, 1, 0}));
    EXPECT_EQ(shuttle(still, J, false), (ShuttleStep{true, -1, 0}));
    EXPECT_EQ(shuttle(forward, L, false), (ShuttleStep{true, 2, 0}));
    EXPECT_EQ(shuttle(forward, J, false), (ShuttleStep{true, -1, 0}));
    EXPECT_EQ(shuttle(fastBack, J, false), (ShuttleStep{true, -8, 0}));
    EXPECT_EQ(shuttle(fastBack, L, false), (ShuttleStep{true, 1, 0}));
    EXPECT_EQ(shuttle(fastBack, K, false), (ShuttleStep{false, 1, 0}));
    EXPECT_EQ(shuttle(still, L, true), (ShuttleStep{false, 1, 1}));
    EXPECT_EQ(shuttle(still, J, true), (ShuttleStep{false, 1, -1}));
}

} // namespace
} // namespace kavela
