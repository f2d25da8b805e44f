#include "report/run_sheet.h"

#include "report/course_drawing.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "report/sheet_lists.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

using report::PagedReport;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

CMTime at(double seconds) {
    return {static_cast<std::int64_t>(seconds * 600), 600, 1, 0};
}

athletedata031 sheetRun(std::string name, std::string category, std::vector<double> times) {
    athletedata031 run;
    run.names = {std::move(name)};
    run.cat = std::move(category);
    run.phase = "Final";
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.pens.assign(6, 0);
    return run;
}

/// Three sections of two gates; the run in question is the first.
splittakerdata031 smallRace() {
    splittakerdata031 race;
    race.info.title = "Mill Race";
    race.info.gates = 6;
    race.info.upGates = {4};
    race.info.totalsplits = 3;
    race.info.splitTitles = {"Weir", "Bridge", "Pool"};
    race.info.definedsections = {{1, 2}, {3, 4}, {5, 6}};
    race.athletes = {sheetRun("TŮŇKOVÁ Eliška", "K1W", {30, 21, 40}),
                     sheetRun("Other", "K1W", {30.5, 20.25, 41}),
                     sheetRun("Faster elsewhere", "K1M", {25, 15, 30})};
    race.athletes[0].pos = 7;
    race.athletes[0].sectioninfo.pens = {0, 2, 0, 50, 0, 0};
    race.athletes[0].sectioninfo.totalpen = 52;
    return race;
}

void annotate(athletedata031& run) {
    run.sectioninfo.cmtimes = {{at(40)}, {at(61)}, {at(101)}};
    run.sectioninfo.comments = {"", "Too wide", "Good\nfinish"};
    run.upstreams = {{4, 1, 1, {at(50), at(51.5), at(53)}, 3, 1.5, 1.25}};
    run.timeslosses = {{"Other", 0, 0, 0, 0, {"Late turn", "Pole"}, {}, {}, 0.75, 3.7, "Look up"}};
    run.customData = {{0, {"Boof"}, {at(47.5)}, "", 0, {}}};
    for (int i = 0; i < 20; ++i)
        run.strokes.push_back({{at(11 + i)}, 1.0 + i, i % 2, 0});
}

class RunSheet : public testing::Test {
protected:
    std::vector<std::string> pagesOf(const PagedReport& report) {
        writePdf(report, m_folder.path() / "sheet.pdf");
        return test::pagesOf(m_folder.path() / "sheet.pdf");
    }
    /// The text of the only page of the first run's sheet.
    std::string textOf(const splittakerdata031& race) {
        const auto pages = pagesOf(*report::runSheet(race, 0));
        EXPECT_THAT(pages, SizeIs(1));
        return pages.front();
    }

    TempFolder m_folder;
};

std::string lineWith(const std::string& text, const std::string& sought) {
    const std::size_t found = text.find(sought);
    if (found == std::string::npos)
        return {};
    const std::size_t begin = text.rfind('\n', found) + 1;
    return text.substr(begin, text.find('\n', found) - begin);
}

} // namespace

TEST_F(RunSheet, TellsTheRunAgainstItsCategory) {
    const std::string text = textOf(smallRace());
    for (const char* part : {"TŮŇKOVÁ Eliška", "Mill Race", "Final", "K1W", "143.00", "91.00",
                             "52 (1 touch, 1 missed gate)", "2 of 2", "+51.25"})
        EXPECT_THAT(text, HasSubstr(part));
    EXPECT_THAT(lineWith(text, "Weir"), AllOf(HasSubstr("30.00"), HasSubstr("best")));
    EXPECT_THAT(lineWith(text, "Bridge"), AllOf(HasSubstr("+0.75"), HasSubstr("50")));
    EXPECT_THAT(text, Not(HasSubstr("Strokes")));
}

TEST_F(RunSheet, TellsWhatIsNotedOnTheRun) {
    splittakerdata031 race = smallRace();
    annotate(race.athletes[0]);
    const std::string text = textOf(race);
    for (const char* part : {"Upstream gates", "1.50", "1.25", "Time losses", "+0.75", "+3.7 %",
                             "Late turn, Pole. Look up", "Boof", "37.50 s", "Too wide", "finish"})
        EXPECT_THAT(text, HasSubstr(part));
    EXPECT_THAT(lineWith(text, "30.00"), AllOf(HasSubstr(" 20 "), HasSubstr("60.0")));
}

TEST_F(RunSheet, LeavesOutWhatARunDoesNotHave) {
    splittakerdata031 race;
    race.athletes.resize(1);
    const std::string text = textOf(race);
    for (const char* part : {"Splits", "Penalties by gate", "Upstream", "losses", "Tags",
                             "Comments", "Strokes", "more"})
        EXPECT_THAT(text, Not(HasSubstr(part)));
    EXPECT_THROW((void)report::runSheet(race, 1), std::out_of_range);
}

TEST_F(RunSheet, StaysOnOnePageWhateverIsNoted) {
    const std::string wide(5000, 'W');
    splittakerdata031 race = smallRace();
    race.info.gates = 4000;
    race.info.splitTitles.assign(300, wide);
    athletedata031& run = race.athletes[0];
    run.names = {wide, wide};
    run.phase = run.cat = wide;
    run.sectioninfo.times.assign(300, 1.5);
    annotate(run);
    run.sectioninfo.comments.clear();
    for (int i = 0; i < 200; ++i)
        run.sectioninfo.comments.push_back("Comment " + std::to_string(i) + ". " + wide);
    run.upstreams.assign(100, run.upstreams[0]);
    run.timeslosses.assign(100, {wide, 0, 0, 0, 0, {wide, wide}, {}, {}, 1e300, -1e300, wide});
    run.customData[0].tags.assign(100, "Tag");
    const std::string text = textOf(race);
    EXPECT_THAT(text, AllOf(HasSubstr("Comment 0."), HasSubstr("and 287 more"),
                            HasSubstr("and 3948 more gates")));
    EXPECT_EQ(countOf(text, " more"), 6U);
}

TEST_F(RunSheet, CountsTheRowsThatItLeavesOut) {
    splittakerdata031 race = smallRace();
    for (int i = 0; i < 200; ++i)
        race.athletes[0].sectioninfo.comments.push_back("Comment " + std::to_string(i) + ".");
    const std::string text = textOf(race);
    const std::size_t shown = countOf(text, "Comment ");
    EXPECT_GT(shown, 20U);
    EXPECT_THAT(text, HasSubstr("and " + std::to_string(200 - shown) + " more"));
}

TEST_F(RunSheet, SurvivesListsOfDifferentLengths) {
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    splittakerdata031 race = smallRace();
    race.info.definedsections = {{1, 99, -5}, {}, {1, 6}, {6}};
    race.info.upGates = {INT64_MIN, 4, 4, INT64_MAX};
    race.info.splitTitles = {"\xff"};
    athletedata031& run = race.athletes[0];
    annotate(run);
    run.sectioninfo.times = {30, NaN, -4, 1e308, 1e308};
    run.sectioninfo.pens = {2};
    run.sectioninfo.cmtimes = {{}, {at(1), {5, 0, 0, 0}}};
    run.sectioninfo.comments.assign(9, "\xff\xfe");
    run.customData = {{-1, {"A", "B"}, {}, "", 9, {at(1)}}, {70, {}, {at(3), {}}, "C", 0, {}}};
    run.upstreams = {{INT64_MIN, -7, 900, {}, NaN, -1e300, 0}};
    run.strokes = {{{}, NaN, 17, -1}, {{{1, -1, 9, 9}}, 0, 0, 0}};
    run.bm.resize(1);
    run.watchmotion.resize(1);
    const std::string text = textOf(race);
    EXPECT_THAT(text, AllOf(HasSubstr("not known by gate"), Not(HasSubstr("nan"))));
    EXPECT_THAT(text, AllOf(HasSubstr("s of film 71"), HasSubstr("30.00")));
}

TEST_F(RunSheet, SharesTheLinesOfAColumn) {
    using report::sharedLines;
    EXPECT_THAT(sharedLines({3, 2}, 10), ElementsAre(3, 2));
    EXPECT_THAT(sharedLines({100, 2, 100}, 12), ElementsAre(5, 2, 5));
    EXPECT_THAT(sharedLines({1, 1, 1}, 0), ElementsAre(0, 0, 0));
    EXPECT_THAT(sharedLines({}, 5), SizeIs(0));
}

} // namespace kavela::test
