#include "splittaking/race_day/day_edits.h"
#include "splittaking/race_day/film_naming.h"
#include "splittaking/race_day/film_sources.h"
#include "splittaking/race_day/growing_films.h"
#include "splittaking/race_day/start_list.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/temp_folder.h"
#include "sample/races.h"
#include "splittaking/video_names.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string toldStarts(const std::vector<DayStart>& starts) {
    std::string text;
    for (const DayStart& start : starts)
        text += std::to_string(start.bib) + ' ' + start.name + ' ' + start.cat + ' ' +
                (start.starttime < 0 ? "-" : timeOfDayText(start.starttime)) + '\n';
    return text;
}

TEST(StartList, ReadsWhatOrganisersWriteAndCoachesPaste) {
    struct Row {
        const char* name;
        const char* text;
        const char* starts;
    };
    for (const Row& row :
         {Row{"plain", "7,Ann Lee,K1W,10:01:30\n8,Bo Kim,K1W,10:03",
              "7 Ann Lee K1W 10:01:30\n"
              "8 Bo Kim K1W 10:03:00\n"},
          Row{"titled", "Start time;Nation;Name;Bib\n10:03:00;FRA;Bo;8\r\n10:01:30.5;;Ann;7\n",
              "7 Ann  10:01:30.5\n8 Bo  10:03:00\n"},
          Row{"pasted",
              "Bib\tSurname\tFirst name\tClass\tOrder\n8\tKim\tBo\tC1M\t2\n"
              "7\tLee\tAnn\tC1M\t1",
              "7 Ann Lee C1M -\n8 Bo Kim C1M -\n"},
          Row{"by its lines", "12,\"Lee, Ann\"\n\n,Bo \"\"B\"\" Kim",
              "12 Lee, Ann  -\n"
              "0 Bo \"B\" Kim  -\n"}}) {
        const StartList list = parseStartList(row.text);
        EXPECT_EQ(toldStarts(list.starts), row.starts) << row.name;
        EXPECT_THAT(list.refused, IsEmpty()) << row.name;
    }
}

TEST(StartList, TellsTheLineAndTheReasonOfWhatItCannotTake) {
    const StartList list = parseStartList("bib,name,cat,start\n1,Ann,K1W,10:00\n"
                                          "x,Bo,K1W,10:01\n-3,Bo,K1W,10:01\n1,Cy,K1W,10:02\n\n"
                                          "4,,K1W,10:03\n5,Di,K1W,25:00\n6,Ed,K1W\n"
                                          "7,Flo,K1W,5\n5,Di,K1W,10:04\n"
                                          "8,Gus,K1W,10:05:0042,Ida,K1W\n");
    EXPECT_EQ(toldStarts(list.starts), "1 Ann K1W 10:00:00\n5 Di K1W 10:04:00\n");
    EXPECT_THAT(
        list.refused,
        ElementsAre(RefusedLine{3, "the bib \"x\" is no number above 0"},
                    RefusedLine{4, "the bib \"-3\" is no number above 0"},
                    RefusedLine{5, "the bib 1 is on line 2 already"},
                    RefusedLine{7, "there is no name"},
                    RefusedLine{8, "the start \"25:00\" is neither a time of day such as 10:01:30 "
                                   "nor a number in an order"},
                    RefusedLine{9, "there is no start time, which the others have"},
                    RefusedLine{10, "there is no start time, which the others have"},
                    RefusedLine{12, "the start \"10:05:0042\" is neither a time of day such as "
                                    "10:01:30 nor a number in an order"}));
}

TEST(StartList, OfTheSampleIsTakenWhole) {
    const auto race = sample::holdRace(sample::harbourNight());
    const StartList list = parseStartList(sample::startList(race, 72000));
    EXPECT_THAT(list.refused, IsEmpty());
    ASSERT_THAT(list.starts, SizeIs(race.info.resultsCSVdata.size()));
    EXPECT_EQ(list.starts.front().cat, "C1M");
    EXPECT_EQ(list.starts.back().starttime,
              72000 + 60.0 * static_cast<double>(list.starts.size() - 1));
}

TEST(StartList, CorrectsTheBoatsOfItsPhaseAndLeavesTheOthers) {
    RaceDay day = withStarts({}, parseStartList("1,Ann,K1W,10:00\n2,Bo,K1W,10:01"), "Heats");
    day = withFilm(std::move(day), "a.mp4", {2});
    day = withStarts(std::move(day), parseStartList("2,Bo Kim,K1W,9:59\n3,Cy,K1W,10:02"), "Heats");
    day = withStarts(std::move(day), parseStartList("1,Ann,K1W,14:00"), "Final");
    EXPECT_EQ(toldStarts(day.starts), "2 Bo Kim K1W 09:59:00\n1 Ann K1W 10:00:00\n"
                                      "3 Cy K1W 10:02:00\n1 Ann K1W 14:00:00\n");
    EXPECT_EQ(day.starts[0].id, 2) << "it keeps its film";
    EXPECT_EQ(day.starts[3].phase, "Final");
}

/// Four boats, of which the first is timed, the second filmed; the third did not start.
std::vector<DayLine> fourLines() {
    RaceDay day =
        withStarts({}, parseStartList("1,A,K,10:00\n2,B,K,10:01\n3,C,K,10:02\n4,D,K,10:03"), "");
    day = withFilm(std::move(day), "a", {1});
    day = withFilm(std::move(day), "b", {2});
    day = withOut(std::move(day), 3, DidNotStart);
    return dayLines(day, matchFilms(day, {}), {1});
}

TEST(DayLines, SayHowFarBehindTheCoachIs) {
    auto lines = fourLines();
    EXPECT_EQ(glanceText(lines, 36020), "1 run waiting, the next starts in 40 s");
    EXPECT_EQ(glanceText(lines, 36061), "1 run waiting, the next starts in 119 s")
        << "the one between did not start";
    EXPECT_EQ(glanceText(lines, 30000), "1 run waiting, the next starts in 1 h 40 min");
    EXPECT_EQ(glanceText(lines, 36181), "1 run waiting");
    lines[3].state = StartState::Filmed;
    EXPECT_EQ(glanceText(lines, 36181), "2 runs waiting");
    EXPECT_EQ(nextUntimed(lines, 2), 3U);
    EXPECT_EQ(nextUntimed(lines, 4), 1U) << "from the first one on";
    EXPECT_EQ(nextUntimed(lines, 0), 1U);
    lines[1].state = StartState::NotFinished;
    EXPECT_EQ(nextUntimed(lines, 4), 3U);
    lines[3].state = StartState::Timed;
    EXPECT_EQ(nextUntimed(lines, 4), std::nullopt);
    EXPECT_EQ(glanceText(lines, 99999), "No run waiting");
}

TEST(DayOut, IsTakenBackByTheSameKey) {
    const RaceDay day = withStarts({}, parseStartList("1,A"), "");
    EXPECT_EQ(withOut(day, 1, DidNotStart).starts[0].out, "DNS");
    EXPECT_EQ(withOut(withOut(day, 1, DidNotStart), 1, DidNotFinish).starts[0].out, "DNF");
    EXPECT_EQ(withOut(withOut(day, 1, DidNotFinish), 1, DidNotFinish).starts[0].out, "");
}

TEST(RaceDayFile, ComesBackAsItWas) {
    const TempFolder folder;
    const auto file = raceDayPath(folder.path() / "cup.final.kvx");
    EXPECT_EQ(file.filename(), "cup.final.kvday");
    EXPECT_FALSE(readRaceDay(file));
    RaceDay day =
        withStarts({}, parseStartList("1,Ána / Bo,C2X,10:00:00.5\n2,Cy,C2X,10:01"), "Heats");
    day.date = "2026-05-16";
    day =
        withOffset(withOut(withFilm(std::move(day), "DCIM/a b.MP4", {1, 2}), 2, DidNotFinish), -7);
    writeRaceDay(day, file);
    EXPECT_EQ(encode(*readRaceDay(file)), encode(day));
}

TEST(RaceDayFile, IsRefusedWhereItCannotBe) {
    const TempFolder folder;
    const RaceDay good = withFilm(withStarts({}, parseStartList("1,A\n2,B"), ""), "x", {1});
    const auto reasonOf = [&](auto&& spoil) {
        RaceDay day = good;
        spoil(day);
        writeRaceDay(day, folder.path() / "day.kvday");
        try {
            (void)readRaceDay(folder.path() / "day.kvday");
        } catch (const DecodeError& error) {
            return std::string(error.what());
        }
        return std::string("none");
    };
    EXPECT_EQ(reasonOf([](RaceDay&) {}), "none");
    EXPECT_THAT(reasonOf([](RaceDay& day) { day.starts[1].id = 1; }), HasSubstr("starts[1]"));
    EXPECT_THAT(reasonOf([](RaceDay& day) { day.films[0].starts = {9}; }),
                HasSubstr("films[0]: there is no start 9"));
    EXPECT_THAT(reasonOf([](RaceDay& day) { day.racedayversion = 2; }), HasSubstr("later release"));
    EXPECT_THAT(reasonOf([](RaceDay& day) { day.starts[0].out = "DSQ"; }), HasSubstr("DSQ"));
}

TEST(FilmNaming, FollowsThePatternAndIsReadBack) {
    struct Row {
        const char* pattern;
        const char* crew;
        const char* name;
    };
    for (const Row& row : {Row{"{name} {phase}", "Ann Lee", "Ann Lee Heats.MP4"},
                           Row{"{bib} - {name} ({category})", "Ann Lee", "7 - Ann Lee (K1W).MP4"},
                           Row{"{any} {name} {number}", "Ann Lee", "Ann Lee 3.MP4"},
                           Row{"{name} {phase}", "Ann / Bo", "Ann + Bo Heats.MP4"},
                           Row{"{name}", "../a:b\n", "+a b.MP4"}, Row{"{name}", "...", ""}}) {
        const DayStart start{1, 7, row.crew, "K1W", "Heats", 0, ""};
        EXPECT_EQ(filmNameOf(start, 3, row.pattern, "IMG_0231.MP4"), row.name) << row.pattern;
    }
    EXPECT_THAT(filmFacts("Ann + Bo Heats.MP4").names, ElementsAre("Ann", "Bo"));
}

TEST(FilmNaming, NeverTakesANameThatIsTaken) {
    const TempFolder folder;
    (void)folder.add("a.MP4", "1");
    (void)folder.add("a (2).MP4", "2");
    EXPECT_EQ(freeFilmName(folder.path(), "a.MP4"), "a (3).MP4");
    EXPECT_EQ(freeFilmName(folder.path(), "a.MP4", "a (2).MP4"), "a (2).MP4") << "its own";
    EXPECT_EQ(freeFilmName(folder.path(), "b.MP4"), "b.MP4");
}

TEST(DaySources, KnowAFilmWhereverItIsAndWhateverItIsCalled) {
    RaceDay day;
    filmFrom(day, "b.MP4").film = "Ann Heats.MP4";
    const std::vector<FilmFile> here{{"Ann Heats.MP4", 20, true, false},
                                     {"a.MP4", 10, true, false},
                                     {"c.MP4", 5, false, false},
                                     {"e.MP4", 5, false, true}};
    const std::vector<FilmFile> card{{"101/a.MP4", 11, true, false}, {"100/a.MP4", 10, true, false},
                                     {"100/b.MP4", 20, true, false}, {"100/c.MP4", 30, true, false},
                                     {"100/d.MP4", 1, false, false}, {"100/e.MP4", 5, true, false}};
    std::vector<std::string> told;
    for (const DaySource& source : daySources(day, here, card))
        told.push_back((source.isHere ? "here " : "card ") + source.from + ' ' +
                       (source.isHere ? here : card)[source.file].path);
    EXPECT_THAT(told,
                ElementsAre("here b.MP4 Ann Heats.MP4", "here a.MP4 a.MP4", "card c.MP4 100/c.MP4",
                            "card e (2).MP4 100/e.MP4", "card a (2).MP4 101/a.MP4"));
    told.clear();
    for (const DaySource& source : daySources(day, here, {})) // the card was pulled out
        told.push_back(source.from);
    EXPECT_THAT(told, ElementsAre("b.MP4", "a.MP4"));
}

TEST(GrowingFilms, AreWholeOnceTheyRestAndCanBeRead) {
    GrowingFilms films(2);
    EXPECT_THAT(films.look({{"a", {10, 1}}, {"b", {0, 1}}}, 0), IsEmpty());
    EXPECT_THAT(films.look({{"a", {20, 2}}, {"b", {0, 1}}}, 3), IsEmpty()) << "it grew";
    EXPECT_THAT(films.look({{"a", {20, 2}}, {"b", {0, 1}}}, 4), IsEmpty()) << "too soon";
    EXPECT_THAT(films.look({{"a", {20, 2}}, {"b", {0, 1}}}, 5), ElementsAre("a"))
        << "and nothing of an empty one";
    films.noteRead("a", false); // its end is not written yet
    EXPECT_THAT(films.growing(), ElementsAre("a", "b"));
    EXPECT_THAT(films.look({{"a", {20, 2}}}, 6), IsEmpty());
    EXPECT_THAT(films.look({{"a", {20, 2}}}, 7), ElementsAre("a"));
    films.noteRead("a", true);
    films.rename("a", "c");
    EXPECT_THAT(films.look({{"c", {20, 2}}}, 9), IsEmpty());
    EXPECT_TRUE(films.isWhole("c")) << "it has another name and is the same";
    EXPECT_THAT(films.look({{"c", {20, 3}}}, 12), IsEmpty());
    EXPECT_FALSE(films.isWhole("c")) << "another one came in its place";
    (void)films.look({}, 14);
    EXPECT_THAT(films.growing(), IsEmpty()) << "the card was pulled out";
}

} // namespace
} // namespace kavela::test
