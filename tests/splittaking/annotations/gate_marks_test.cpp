#include "splittaking/annotations/gate_marks.h"

#include "splittaking/annotations/moments.h"
#include "splittaking/annotations/time_losses.h"
#include "splittaking/annotations/upstream_gates.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr CMTime None = NotMarked;

CMTime infinite() {
    return {1, 1, 1 | 4, 0};
}

} // namespace

TEST(FilmMarks, MeasureToTheTick) {
    struct Row {
        const char* name;
        CMTime from;
        CMTime to;
        double seconds;
    };
    constexpr std::int64_t Day = 90000LL * 86400;
    for (const Row& row : {
             Row{"same scale", at(1, 30000), at(3004, 30000), 3003.0 / 30000},
             Row{"late on the film", at(Day * 1000 + 1, 90000), at(Day * 1000 + 3001, 90000),
                 3000.0 / 90000},
             Row{"other scale", at(1000, 600), at(2500, 1000), 5.0 / 6},
             Row{"before the film", at(-250), at(250), 0.5},
             Row{"backwards", at(900), at(400), -0.5},
             Row{"extreme", at(INT64_MIN, 1), at(INT64_MAX, 1), 18446744073709551615.0},
             Row{"no scale", at(5, 0), at(900), 0},
             Row{"infinite", infinite(), at(900), 0},
         })
        EXPECT_EQ(secondsFrom(row.from, row.to), row.seconds) << row.name;
    EXPECT_EQ(orderOf(at(1, 3), at(333333333, 1000000000)), std::strong_ordering::greater);
    EXPECT_EQ(orderOf(at(1, 25), at(24, 600)), std::strong_ordering::equal);
}

TEST(GateMarks, StandInOneListWhateverIsMarkedFirst) {
    using Edit = void (*)(GateMarks&);
    struct Row {
        const char* name;
        GateMarks before;
        Edit edit;
        GateMarks after;
    };
    const CMTime e = at(100);
    const CMTime m = at(200);
    const CMTime x = at(300);
    for (const Row& row : {
             Row{"entrance first",
                 {},
                 [](auto& l) { setMark(l, GateMark::Entrance, at(100)); },
                 {e}},
             Row{"exit first", {}, [](auto& l) { setMark(l, GateMark::Exit, at(300)); }, {None, x}},
             Row{"middle first",
                 {},
                 [](auto& l) { setMark(l, GateMark::Middle, at(200)); },
                 {None, m, None}},
             Row{"middle last",
                 {e, x},
                 [](auto& l) { setMark(l, GateMark::Middle, at(200)); },
                 {e, m, x}},
             Row{"move the exit",
                 {e, m, x},
                 [](auto& l) { setMark(l, GateMark::Exit, at(1)); },
                 {e, m, at(1)}},
             Row{"of more marks",
                 {e, m, m, x},
                 [](auto& l) { setMark(l, GateMark::Exit, at(1)); },
                 {e, m, m, at(1)}},
             Row{"clear the middle",
                 {e, m, x},
                 [](auto& l) { clearMark(l, GateMark::Middle); },
                 {e, x}},
             Row{"clear a middle of more",
                 {e, m, m, x},
                 [](auto& l) { clearMark(l, GateMark::Middle); },
                 {e, None, m, x}},
             Row{"clear the exit", {e, x}, [](auto& l) { clearMark(l, GateMark::Exit); }, {e}},
             Row{"clear the exit after the middle",
                 {e, m, x},
                 [](auto& l) { clearMark(l, GateMark::Exit); },
                 {e, m, None}},
             Row{"clear the entrance",
                 {e, x},
                 [](auto& l) { clearMark(l, GateMark::Entrance); },
                 {None, x}},
             Row{"clear the only one",
                 {None, x},
                 [](auto& l) { clearMark(l, GateMark::Exit); },
                 {}},
             Row{"clear what is not there",
                 {e},
                 [](auto& l) { clearMark(l, GateMark::Middle); },
                 {e}},
         }) {
        GateMarks marks = row.before;
        row.edit(marks);
        EXPECT_EQ(marks, row.after) << row.name;
    }
}

TEST(GateMarks, TellTimes) {
    EXPECT_EQ(timesOf(GateMarks{at(100), at(220), at(301)}), (GateTimes{0.201, 0.12, 0.081}));
    EXPECT_EQ(timesOf(GateMarks{at(100), at(301)}), (GateTimes{0.201, 0, 0}));
    EXPECT_EQ(timesOf(GateMarks{None, at(220), at(301)}), (GateTimes{0, 0, 0.081}));
    EXPECT_EQ(timesOf(GateMarks{at(100)}), GateTimes{});
    EXPECT_EQ(faultOfMarks(GateMarks{at(100), at(220), at(301)}), std::nullopt);
    EXPECT_THAT(faultOfMarks(GateMarks{at(301), at(100)}),
                Optional(std::string("The exit is marked before the entrance.")));
    EXPECT_THAT(faultOfMarks(GateMarks{at(100), at(400), at(301)}),
                Optional(std::string("The exit is marked before the middle.")));
}

TEST(UpstreamGates, AreMarkedInTheOrderOfTheCourse) {
    athletedata031 run;
    const infodata031 info = course();
    EXPECT_THAT(upstreamGates(info), ElementsAre(3, 6));
    using Next = NextUpstreamMark;
    for (const auto& [next, moment] : {std::pair{Next{3, GateMark::Entrance}, at(4000)},
                                       std::pair{Next{3, GateMark::Middle}, at(4500)},
                                       std::pair{Next{3, GateMark::Exit}, at(5250)},
                                       std::pair{Next{6, GateMark::Entrance}, at(9000)}}) {
        EXPECT_EQ(nextUpstreamMark(run, info, true), next);
        markUpstream(run, info, next.gate, next.which, moment);
    }
    EXPECT_EQ(nextUpstreamMark(run, info, false), (Next{6, GateMark::Exit}));
    EXPECT_THAT(upstreamsToMark(run, info), ElementsAre(6));
    markUpstream(run, info, 6, GateMark::Exit, at(11000));
    EXPECT_EQ(nextUpstreamMark(run, info, true), std::nullopt) << "a middle left out stays out";
    EXPECT_EQ(run.upstreams[0].time, 1.25);
    EXPECT_EQ(run.upstreams[0].timeEntrace, 0.5);
    EXPECT_EQ(run.upstreams[0].timeExit, 0.75);
    EXPECT_THROW(markUpstream(run, info, 4, GateMark::Exit, at(1)), std::out_of_range);
    EXPECT_THROW(clearUpstreamMark(run, 4, GateMark::Exit), std::out_of_range);

    run.upstreams[0].num = 5; // an upstream gate when the file was made
    markUpstream(run, info, 5, GateMark::Exit, at(6000));
    EXPECT_EQ(run.upstreams[0].time, 2);
    markUpstream(run, info, 3, GateMark::Exit, at(6000));
    EXPECT_EQ(run.upstreams[0].num, 3) << "before the gates that follow";
    clearUpstreamMark(run, 6, GateMark::Entrance);
    EXPECT_EQ(run.upstreams[2].time, 0);
}

TEST(Modes, SayWhyTheyCannotBeEntered) {
    infodata031 info = course();
    EXPECT_EQ(upstreamModeRefusal(info), std::nullopt);
    EXPECT_EQ(sectionModeRefusal(info), (Alert{"", messages::NoSections}));
    info.upGates = {0, 99};
    EXPECT_EQ(upstreamModeRefusal(info), (Alert{"", messages::NoUpstreams}));
    EXPECT_EQ(tagModeRefusal(false), (Alert{"", messages::NoAthleteSelected}));
    EXPECT_EQ(tagModeRefusal(true), std::nullopt);
}

TEST(TimeLosses, FollowTheirMarks) {
    athletedata031 versus = timedRun();
    versus.names = {"Bo", "Cy"};
    versus.sectioninfo.times[1] = 10;
    versus.sectioninfo.cmtimes[1] = {at(22000), at(20500)};
    timeloss031 loss = lossOverSplit(timedRun(), versus, 2);
    EXPECT_EQ(loss.versus, "Bo / Cy");
    EXPECT_EQ(loss.timeloss, 2);
    EXPECT_EQ(loss.timelossper, 20);
    setMark(loss, LossMark::VersusEnd, at(20000));
    EXPECT_EQ(loss.timeloss, 4);
    EXPECT_EQ(loss.timelossper, 50);
    setMark(loss, LossMark::OwnEnd, at(19000));
    EXPECT_EQ(loss.timelossper, -12.5) << "time gained";
    EXPECT_EQ(faultOfMarks(loss), std::nullopt);
    setMark(loss, LossMark::VersusEnd, at(12000));
    EXPECT_EQ(loss.timelossper, 0) << "nothing to compare with";
    EXPECT_THAT(faultOfMarks(loss), Optional(testing::HasSubstr("Bo / Cy")));
    clearMark(loss, LossMark::OwnStart);
    EXPECT_EQ(loss.timeloss, 0);
    EXPECT_EQ(stretchSeconds(loss, OwnSide), std::nullopt);
    EXPECT_EQ(lossOverSplit(timedRun(), versus, 9).timeloss, 0);
    EXPECT_EQ(lossOverSplit(timedRun(), versus, 1).timeloss, 0);
}

TEST(TimeLosses, TakeRecordsWithMissingMarks) {
    timeloss031 loss;
    clearMark(loss, LossMark::VersusEnd);
    EXPECT_THAT(loss.cmtimes, IsEmpty());
    setMark(loss, LossMark::VersusEnd, at(5));
    EXPECT_THAT(loss.cmtimes, ElementsAre(IsEmpty(), ElementsAre(None, at(5))));
    loss.cmtimes = {{at(0), at(2000), at(7)}, {at(0), at(1000)}, {at(3)}};
    setMark(loss, LossMark::OwnEnd, at(3000));
    EXPECT_THAT(loss.cmtimes, ElementsAre(ElementsAre(at(0), at(3000), at(7)),
                                          ElementsAre(at(0), at(1000)), ElementsAre(at(3))));
    EXPECT_EQ(loss.timeloss, 2);
    toggleReason(loss, "Late");
    toggleReason(loss, "Wide");
    toggleReason(loss, "Late");
    EXPECT_THAT(loss.reasons, ElementsAre("Wide"));
}

} // namespace kavela::test
