#include "splittaking/marking.h"

#include "common/number_text.h"
#include "splittaking/penalties.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;

CMTime at(std::int64_t value, std::int32_t timescale = 1000) {
    return {value, timescale, 1, 0};
}

/// A run started at 2 s with splits of 10, 12.346 and 5 s, filmed by two cameras.
RunMarks threeSplits() {
    return {Stamps{at(2000), at(500)},
            {{at(12000), at(10500)}, {at(24346), at(22846)}, {at(29346), at(27846)}}};
}

auto seconds(const std::vector<double>& times) {
    return Pointwise(testing::DoubleNear(1e-9), times);
}

} // namespace

TEST(Marking, MeasuresFromMarkToMark) {
    RunMarks run;
    EXPECT_EQ(markNext(run, {at(2000)}, 7), std::nullopt);
    EXPECT_THAT(splitTimes(run), IsEmpty()) << "the start records no split";
    EXPECT_EQ(markNext(run, {at(12000)}, 7), std::nullopt);
    EXPECT_EQ(markNext(run, {at(24346)}, 7), std::nullopt);
    EXPECT_THAT(splitTimes(run), seconds({10, 12.346}));
    EXPECT_EQ(hundredthsText(splitTimes(run)[1]), "12.35");

    RunMarks withoutStart;
    EXPECT_EQ(markSplit(withoutStart, {at(12000)}, 7), std::nullopt);
    EXPECT_THAT(splitTimes(withoutStart), ElementsAre(12)) << "from the start of the video";
}

TEST(Marking, RefusesMoreSplitsThanTheCourseHas) {
    RunMarks run = threeSplits();
    const RunMarks before = run;
    for (const std::int64_t limit : {3, 2, 0, -1})
        EXPECT_EQ(
            markNext(run, {at(40000)}, limit),
            (Alert{"Be careful!", "You have already reached the limited split number. Please, "
                                  "press Save or choose more splits"}));
    EXPECT_EQ(markSplit(run, {}, 7), (Alert{"", "Video has not been added"}));
    EXPECT_EQ(run, before);
}

/// A start at 2 s, splits at 12, 24.346 and 29.346 s.
TEST(Marking, KeepsTheMarksInTheOrderOfTime) {
    struct Row {
        const char* name;
        std::int64_t moment;
        std::vector<double> times;
        std::string refusal;
    };
    const std::vector<double> before{10, 12.346, 5};
    for (const Row& row : {
             Row{"behind all", 31346, {10, 12.346, 5, 2}, ""},
             Row{"missed between two", 20000, {10, 8, 4.346, 5}, ""},
             Row{"missed behind the start", 4000, {2, 8, 12.346, 5}, ""},
             Row{"before the start", 1000, before, "This frame lies before the start at 2.00."},
             Row{"on the start", 2000, before, "The start is marked on this frame already."},
             Row{"on a split", 24346, before, "Split 2 is marked on this frame already."},
         }) {
        RunMarks run = threeSplits();
        const auto refused = markNext(run, {at(row.moment), at(row.moment - 1500)}, 7);
        EXPECT_EQ(refused ? refused->text : "", row.refusal) << row.name;
        EXPECT_THAT(splitTimes(run), seconds(row.times)) << row.name;
        EXPECT_EQ(markAt(run, at(row.moment)).has_value(),
                  row.refusal.empty() || refused->text.ends_with("already."))
            << row.name;
    }
    RunMarks full = threeSplits();
    for (const std::int64_t moment : {1000, 12000, 20000, 40000})
        EXPECT_EQ(markNext(full, {at(moment)}, 3).value_or(Alert()).title, "Be careful!")
            << "there is no room for a fourth, wherever it lies: " << moment;
    full.marks[1].clear();
    EXPECT_FALSE(markNext(full, {at(20000)}, 3)) << "but for the one that was not seen";
    EXPECT_EQ(markAt(full, at(20000)), 2U);
    RunMarks unstarted{std::nullopt, {{at(12000)}}};
    EXPECT_FALSE(markNext(unstarted, {at(3000)}, 7));
    EXPECT_EQ(markAt(unstarted, at(3000)), 0U);
}

TEST(Marking, RefusesToMoveAMarkOntoItsNeighbourOrBeyond) {
    RunMarks run = threeSplits();
    struct Row {
        std::size_t mark;
        std::int64_t moment;
        const char* refusal;
    };
    for (const Row& row : {Row{2, 12001, ""}, Row{2, 29345, ""}, Row{3, 99000, ""}, Row{0, -5, ""},
                           Row{2, 12000, "Split 1 is marked on this frame already."},
                           Row{2, 11000, "This frame lies before split 1 at 12.00."},
                           Row{2, 30000, "This frame lies after split 3 at 29.35."},
                           Row{0, 12000, "Split 1 is marked on this frame already."},
                           Row{1, 1999, "This frame lies before the start at 2.00."}}) {
        const auto refused = refusalToMove(run, row.mark, at(row.moment));
        EXPECT_EQ(refused ? refused->text : "", row.refusal) << row.mark << " to " << row.moment;
    }
    run.marks[1].clear();
    EXPECT_FALSE(refusalToMove(run, 3, at(13000)));
    EXPECT_TRUE(refusalToMove(run, 3, at(11000))) << "beyond one that was not seen";
}

TEST(Marking, EditsAsACoachNeeds) {
    struct Row {
        const char* name;
        void (*edit)(RunMarks&);
        std::vector<double> times;
    };
    for (const Row& row : {
             Row{"move", [](RunMarks& r) { moveMark(r, 2, {at(24000)}); }, {10, 12, 5.346}},
             Row{"move the last",
                 [](RunMarks& r) { moveMark(r, 3, {at(30346)}); },
                 {10, 12.346, 6}},
             Row{"move back over another",
                 [](RunMarks& r) { moveMark(r, 2, {at(11000)}); },
                 {10, -1, 18.346}},
             Row{"remove", [](RunMarks& r) { removeMark(r, 1); }, {22.346, 5}},
             Row{"take back", [](RunMarks& r) { removeLastMark(r); }, {10, 12.346}},
             Row{"start later", [](RunMarks& r) { setStart(r, {at(5000)}); }, {7, 12.346, 5}},
             Row{"split not seen", [](RunMarks& r) { moveMark(r, 2, {}); }, {10, 0, 17.346}},
         }) {
        RunMarks run = threeSplits();
        row.edit(run);
        EXPECT_THAT(splitTimes(run), seconds(row.times)) << row.name;
    }
    RunMarks run = threeSplits();
    EXPECT_THROW(moveMark(run, 0, {}), std::out_of_range);
    EXPECT_THROW(removeMark(run, 4), std::out_of_range);
    for (int i = 0; i < 5; ++i)
        removeLastMark(run);
    EXPECT_EQ(run, RunMarks{}) << "the start goes last";
}

TEST(Marking, KeepsTheRecordTrueToTheSplits) {
    athletedata031 run;
    RunMarks marks = threeSplits();
    applyMarks(marks, run, 3);
    EXPECT_TRUE(run.sectioninfo.isfullrun);
    EXPECT_EQ(run.sectioninfo.splitnum, 3);
    EXPECT_NEAR(run.sectioninfo.totaltime, 27.346, 1e-9);
    EXPECT_EQ(run.sectioninfo.cmtimes, marks.marks);

    removeLastMark(marks);
    applyMarks(marks, run, 3);
    EXPECT_FALSE(run.sectioninfo.isfullrun);
    EXPECT_EQ(run.sectioninfo.splitnum, 2);
    EXPECT_THAT(run.sectioninfo.times, seconds({10, 12.346, 0}));
    EXPECT_THAT(run.sectioninfo.cmtimes[2], IsEmpty());
    EXPECT_EQ(marksOf(run.sectioninfo), marks);
    applyMarks(marks, run, INT64_MAX); // a damaged file
    EXPECT_LT(run.sectioninfo.times.size(), 10000U);
}

TEST(Marking, FindsTheMarksBehindARecordExactly) {
    struct Row {
        const char* name;
        CMTime start;
        CMTime first;
        bool isExact = true;
    };
    for (const Row& row :
         {Row{"frames of 25", at(1200, 600), at(4752, 600)},
          Row{"NTSC", at(3003, 30000), at(3003 * 217, 30000)},
          Row{"another scale", at(12345, 24000), at(70000, 600)},
          Row{"days", at(90000LL * 86400 * 30, 90000), at(90000LL * 86400 * 30 + 1234567, 90000)},
          Row{"start of the video", at(0, 600), at(777, 600)},
          Row{"unusual scale", at(1234567, 999983), at(70000, 600), false}}) {
        SCOPED_TRACE(row.name);
        athletedata031 run;
        applyMarks({Stamps{row.start}, {{row.first}}}, run, 2);
        const RunMarks marks = marksOf(run.sectioninfo);
        ASSERT_TRUE(marks.start);
        const CMTime start = marks.start->front();
        EXPECT_NEAR(start.seconds(), row.start.seconds(), 1e-9);
        const bool isSame = static_cast<double>(start.value) * row.start.timescale ==
                            static_cast<double>(row.start.value) * start.timescale;
        EXPECT_EQ(isSame, row.isExact);
        EXPECT_EQ(start.flags, row.isExact ? 1U : 3U) << "a rounded stamp says so";
        EXPECT_THAT(marks.marks, ElementsAre(ElementsAre(row.first)));
    }
}

TEST(Marking, ReadsRecordsWithGaps) {
    sectiondata030 timing;
    timing.times = {10, 12, 0, 7, 0, 0};
    timing.cmtimes = {{}, {at(24000), at(23000)}, {}, {}, {}};
    const RunMarks run = marksOf(timing);
    EXPECT_EQ(run.start, (Stamps{at(2000), at(1000)}));
    EXPECT_THAT(run.marks, ElementsAre(Stamps{at(12000), at(11000)}, Stamps{at(24000), at(23000)},
                                       IsEmpty(), Stamps{at(31000), at(30000)}));
    EXPECT_THAT(splitTimes(run), ElementsAre(10, 12, 0, 7));

    timing.cmtimes = {{}, {}};
    EXPECT_EQ(marksOf(timing), RunMarks{}) << "without a stamp nothing is known of the film";
    timing.times = {1e300, -1e300};
    timing.cmtimes = {{at(INT64_MAX)}, {at(INT64_MIN, 0)}, {at(5, -7)}};
    EXPECT_EQ(marksOf(timing).marks, timing.cmtimes);
}

TEST(Penalties, KeepTheTotalsTrue) {
    athletedata031 run;
    setPenalty(run, 3, GatePenalty::Touch, 4);
    setPenalty(run, 4, GatePenalty::MissedGate, 4);
    setPenalty(run, 1, GatePenalty::Touch, 4);
    setPenalty(run, 3, GatePenalty::None, 4);
    EXPECT_THAT(run.sectioninfo.pens, ElementsAre(2, 0, 0, 50));
    EXPECT_EQ(run.sectioninfo.totalpen, 52);
    EXPECT_EQ(run.totaltouches, 1);
    EXPECT_EQ(run.totalfifties, 1);
    for (const std::int64_t gate : {0, 5, -1})
        EXPECT_THROW(setPenalty(run, gate, GatePenalty::Touch, 4), std::out_of_range);
}

TEST(Penalties, SurviveAnotherCourse) {
    athletedata031 run;
    run.sectioninfo.pens = {0, 2, 0, 50, 0, 0};
    EXPECT_THAT(fitPenalties(run, 8), IsEmpty());
    EXPECT_THAT(run.sectioninfo.pens, ElementsAre(0, 2, 0, 50, 0, 0, 0, 0));
    EXPECT_THAT(fitPenalties(run, 4), IsEmpty());
    EXPECT_THAT(fitPenalties(run, 1), ElementsAre(2, 4));
    EXPECT_THAT(run.sectioninfo.pens, ElementsAre(0, 2, 0, 50)) << "nothing is thrown away";
    EXPECT_EQ(run.sectioninfo.totalpen, 52);
    run.sectioninfo.pens = {INT64_MAX, INT64_MAX};
    EXPECT_THAT(fitPenalties(run, 2), IsEmpty());
    EXPECT_EQ(run.sectioninfo.totalpen, INT64_MAX);
}

} // namespace kavela::test
