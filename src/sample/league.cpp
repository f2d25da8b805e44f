#include "sample/league.h"

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;

/// The same water with its upstream gates elsewhere.
Course hungAnew(Course course, std::vector<std::int64_t> upGates) {
    course.upGates = std::move(upGates);
    return course;
}

/// A race abroad, which the team's results have under this name.
Course mlynice() {
    return {.place = "Mlýnice",
            .water = "White water",
            .upGates = {4, 7, 11, 16, 19, 22},
            .sectionEnds = {3, 6, 9, 12, 15, 18, 21, 23},
            .sectionNames = {},
            .bestSeconds = 89.4,
            .latitude = 49.0561,
            .longitude = 20.3017};
}

RacePlan leagueRound(int number, Course course, std::chrono::year_month_day day) {
    const std::string name = std::to_string(number);
    return {.title = "League Round " + name,
            .event = "National League",
            .prefix = "league " + name,
            .course = std::move(course),
            .day = day,
            .categories = {"K1M", "C1M", "K1W", "C1W"},
            .phases = {{"Heats", 8, 1.01}, {"Final", 5, 1}}};
}

} // namespace

std::vector<RacePlan> leagueRounds() {
    std::vector<RacePlan> rounds{
        leagueRound(1, oldMill(), 2025y / 4 / 5),
        leagueRound(2, riverside(), 2025y / 4 / 26),
        leagueRound(3, harbour(), 2025y / 5 / 10),
        leagueRound(4, homeWater(), 2025y / 5 / 24),
        leagueRound(5, highland(), 2025y / 6 / 21),
        leagueRound(6, mlynice(), 2025y / 7 / 12),
        leagueRound(7, hungAnew(riverside(), {3, 7, 10, 14, 18, 21}), 2025y / 8 / 23),
        leagueRound(8, hungAnew(oldMill(), {3, 7, 10, 13, 16}), 2025y / 9 / 6)};
    RacePlan& abroad = rounds[5];
    abroad.title = "Mlýnice";
    abroad.event = "WC3";
    return rounds;
}

} // namespace kavela::sample
