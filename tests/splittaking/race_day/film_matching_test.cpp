#include "splittaking/race_day/film_matching.h"

#include "splittaking/race_day/day_edits.h"

#include <gmock/gmock.h>

#include <map>

namespace kavela::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double TenOClock = 36000;
constexpr double Interval = 90;

/// Starts A, B, C … every ninety seconds from ten o'clock, or known by their order alone; those in
/// small letters did not start.
RaceDay dayOf(const std::string& starts, bool areTimed) {
    RaceDay day;
    for (const char letter : starts) {
        DayStart& start = day.starts.emplace_back();
        start.id = static_cast<std::int64_t>(day.starts.size());
        start.name = letter;
        start.out = letter >= 'a' ? DidNotStart : "";
        if (areTimed)
            start.starttime = TenOClock + Interval * static_cast<double>(start.id - 1);
    }
    return day;
}

/// Films called by when they began, in seconds behind ten o'clock.
std::vector<SeenFilm> filmsAt(const std::vector<double>& moments, double seconds = 100) {
    std::vector<SeenFilm> films;
    for (const double moment : moments)
        films.push_back({.from = std::to_string(std::lround(moment)),
                         .began = TenOClock + moment,
                         .seconds = seconds});
    return films;
}

/// "A0 C180": who is on which film.
std::string toldMatches(const RaceDay& day, const DayMatching& matching) {
    std::string text;
    for (const DayMatch& match : matching.matches)
        text += (text.empty() ? "" : " ") + findStart(day, match.start)->name + match.from;
    return text;
}

std::string matchedFilms(const RaceDay& day, const std::vector<SeenFilm>& films) {
    return toldMatches(day, matchFilms(day, films));
}

struct MatchRow {
    const char* name;
    const char* starts;
    std::vector<double> films;
    const char* byTime;
    const char* byOrder;
};

class FilmMatchingTest : public testing::TestWithParam<MatchRow> {};

TEST_P(FilmMatchingTest, FindsTheBoatOfEachFilm) {
    const MatchRow& row = GetParam();
    EXPECT_EQ(matchedFilms(dayOf(row.starts, true), filmsAt(row.films)), row.byTime);
    EXPECT_EQ(matchedFilms(dayOf(row.starts, false), filmsAt(row.films)), row.byOrder);
}

const std::vector<MatchRow> MatchRows = {
    {"Each", "ABCDE", {3, 92, 181, 274, 362}, "A3 B92 C181 D274 E362", "A3 B92 C181 D274 E362"},
    {"Swapped", "ABC", {181, 3, 92}, "A3 B92 C181", "A3 B92 C181"},
    {"Missing", "ABCDE", {3, 92, 274, 362}, "A3 B92 D274 E362", "A3 B92 D274 E362"},
    {"Extra",
     "ABCDE",
     {3, 92, 131, 181, 274, 362},
     "A3 B92 C181 D274 E362",
     "A3 B92 C131 D181 E274"},
    {"DidNotStart", "ABcDE", {3, 92, 274, 362}, "A3 B92 D274 E362", "A3 B92 D274 E362"},
    {"MovedUp", "ABcDE", {3, 92, 181, 274}, "A3 B92 D274", "A3 B92 D181 E274"},
    {"OnlyTheFirst", "ABC", {5}, "A5", "A5"},
    {"NoneYet", "ABC", {}, "", ""},
    {"MoreFilmsThanStarts", "AB", {0, 90, 400}, "A0 B90", "A0 B90"}};

INSTANTIATE_TEST_SUITE_P(Days, FilmMatchingTest, testing::ValuesIn(MatchRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FilmMatching, TellsAndOffersAClockThatIsOffByAnHour) {
    RaceDay day = dayOf("ABCDE", true);
    const auto films = filmsAt({3603, 3692, 3874, 3962}); // C is missing
    const DayMatching before = matchFilms(day, films);
    ASSERT_TRUE(before.offeredOffset);
    EXPECT_NEAR(*before.offeredOffset, 3600, 10);
    EXPECT_EQ(toldMatches(day, before), "A3603 B3692 D3874 E3962");
    for (const DayMatch& match : before.matches)
        EXPECT_LT(match.confidence, LikelyConfidence) << "nobody has agreed to that";
    day = withOffset(std::move(day), *before.offeredOffset);
    const DayMatching after = matchFilms(day, films);
    EXPECT_FALSE(after.offeredOffset);
    EXPECT_EQ(toldMatches(day, after), toldMatches(day, before));
    for (const DayMatch& match : after.matches)
        EXPECT_GE(match.confidence, SureConfidence);
}

TEST(FilmMatching, ProposesALongFilmForTheNextBoatToo) {
    for (const bool areTimed : {true, false}) {
        const RaceDay day = dayOf("ABCD", areTimed);
        auto films = filmsAt({0, 90, 270}, 60);
        films[1].seconds = 170;
        const DayMatching matching = matchFilms(day, films);
        EXPECT_EQ(toldMatches(day, matching), areTimed ? "A0 B90 C90 D270" : "A0 B90 C270");
        if (areTimed) {
            EXPECT_LT(matching.matches[2].confidence, LikelyConfidence);
        }
    }
}

TEST(FilmMatching, LeavesFilmsOfOtherDaysAloneUntilTheDateIsAgreedTo) {
    constexpr double Week = 7 * 86400;
    RaceDay day = dayOf("AB", true);
    const auto both = filmsAt({0, 90 - Week});
    EXPECT_EQ(matchedFilms(day, both), "A0");
    EXPECT_EQ(matchFilms(day, both).ofOtherDays, 1U);
    const auto early = filmsAt({-Week, 90 - Week});
    for (const auto& films : {early, filmsAt({3603})})
        EXPECT_FALSE(matchFilms(dayOf("", true), films).offeredOffset) << "of what list?";
    const DayMatching matching = matchFilms(day, early);
    EXPECT_THAT(matching.matches, IsEmpty());
    ASSERT_TRUE(matching.offeredOffset);
    day = withOffset(std::move(day), *matching.offeredOffset);
    EXPECT_EQ(matchFilms(day, early).matches.size(), 2U);
}

TEST(FilmMatching, BelievesTheNameOfAFilmMoreThanItsTime) {
    const RaceDay day = dayOf("ABC", true);
    auto films = filmsAt({0, 90});
    films[1].crew = "c";
    EXPECT_EQ(matchedFilms(day, films), "A0 C90");
    films[1].began -= 7 * 86400; // copied since
    EXPECT_EQ(matchedFilms(day, films), "A0 C90");
}

TEST(FilmMatching, TrustsATimeOfTheFileLess) {
    const RaceDay day = dayOf("AB", true);
    auto films = filmsAt({0, 90});
    films[1].source = RecordingTime::File;
    const DayMatching matching = matchFilms(day, films);
    EXPECT_GT(matching.matches[0].confidence, matching.matches[1].confidence);
}

/// The coach moves what is wrong by one key; what comes later follows.
TEST(FilmShift, MovesTheFilmsFromAStartOn) {
    struct Row {
        const char* name;
        const char* starts;
        std::int64_t from;
        int step;
        const char* after;
        const char* later; ///< with a film more, ninety seconds behind the last
    };
    for (const Row& row : {Row{"down", "ABCDE", 2, 1, "A0 C90 D180", "A0 C90 D180 E270"},
                           Row{"up", "ABCDE", 2, -1, "A0 B180", "A0 B180 C270"},
                           Row{"down over one that did not start", "ABcDEF", 2, 1, "A0 D90 E180",
                               "A0 D90 E180 F270"}}) {
        for (const bool areTimed : {false, true}) {
            RaceDay day = dayOf(row.starts, false);
            auto films = filmsAt({0, 90, 180});
            if (areTimed && row.starts == std::string_view("ABCDE"))
                day = dayOf(row.starts, true);
            day = withShift(day, matchFilms(day, films), row.from, row.step);
            EXPECT_EQ(matchedFilms(day, films), row.after) << row.name << areTimed;
            films = filmsAt({0, 90, 180, 270});
            EXPECT_EQ(matchedFilms(day, films), row.later) << row.name << areTimed;
        }
    }
}

TEST(FilmShift, ComesBackByTheOtherKeyAndForgetsWhatWasAgreed) {
    RaceDay day = dayOf("ABCD", true);
    const auto films = filmsAt({0, 90, 180});
    day = withKept(day, matchFilms(day, films), "90");
    filmFrom(day, "90").agreed = true;
    RaceDay moved = withShift(day, matchFilms(day, films), 2, 1);
    EXPECT_FALSE(findFilmFrom(moved, "90")->agreed) << "its name is another boat's now";
    moved = withShift(moved, matchFilms(moved, films), 2, -1);
    EXPECT_EQ(matchedFilms(moved, films), "A0 B90 C180");
}

TEST(FilmMatching, IsNotLedAstrayByASingleFilmOfAnOddBoat) {
    const RaceDay day = withFilm(dayOf("ABC", true), "0", {3});
    EXPECT_EQ(matchedFilms(day, filmsAt({0, 90})), "B90 C0");
}

TEST(FilmOfAStart, IsOnOneFilmAtATime) {
    RaceDay day = dayOf("ABC", false);
    day = withFilm(std::move(day), "x", {1, 2});
    day = withFilmToo(std::move(day), "y", 2);
    EXPECT_THAT(findFilmFrom(day, "x")->starts, ElementsAre(1));
    EXPECT_THAT(findFilmFrom(day, "y")->starts, ElementsAre(2));
    EXPECT_EQ(findFilmOf(day, 3), nullptr);
}

} // namespace
} // namespace kavela::test
