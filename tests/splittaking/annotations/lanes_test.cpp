#include "splittaking/annotations/lanes.h"

#include "splittaking/annotations/custom_tags.h"
#include "splittaking/annotations/moments.h"
#include "splittaking/annotations/strokes.h"
#include "splittaking/annotations/time_losses.h"
#include "splittaking/annotations/upstream_gates.h"

#include <gmock/gmock.h>

#include <cmath>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

const MarkFilter All = MarkFilter().set();
constexpr FilmOfRun First{};

/// One mark of every kind.
athletedata031 annotatedRun() {
    athletedata031 run = timedRun();
    addMicroSplit(run, at(8000));
    markUpstream(run, course(), 3, GateMark::Entrance, at(9000));
    markUpstream(run, course(), 3, GateMark::Exit, at(10000));
    addStroke(run, {at(3000), at(1500)}, HandCode::Right);
    run.timeslosses = {lossOverSplit(run, timedRun(), 2)};
    setFixedMoment(run, addTag(run, 1, "Exit", at(7000)), 4, at(500));
    return run;
}

const LaneMark* find(const AnnotationLanes& lanes, const MarkHandle& handle) {
    for (const LaneMark& mark : lanes.marks)
        if (mark.handle == handle)
            return &mark;
    return nullptr;
}

std::vector<std::string> textsOf(std::span<const LaneMark> marks) {
    std::vector<std::string> texts;
    for (const LaneMark& mark : marks)
        texts.push_back(mark.text);
    return texts;
}

} // namespace

TEST(AnnotationLanes, ListEveryMarkByTime) {
    const AnnotationLanes lanes = annotationLanes(annotatedRun(), course());
    EXPECT_THAT(lanes.titles, ElementsAre("Start", "Splits", "Micro splits", "Upstream gates",
                                          "Strokes", "Time losses", "Exit"));
    EXPECT_THAT(textsOf(marksOn(lanes.marks, First, All)),
                ElementsAre("Start", "Right", "Micro 1", "Gate 3 entrance", "Gate 3 exit", "1-3",
                            "Loss against Ana, start: 0.00 s", "S2",
                            "Loss against Ana, end: 0.00 s", "7-8"));
    EXPECT_THAT(textsOf(marksOn(lanes.marks, {FilmKind::Own, 1}, All)),
                ElementsAre("Start", "Right", "Exit", "1-3", "S2", "7-8"));
    EXPECT_THAT(textsOf(marksOn(lanes.marks, {FilmKind::Fixed, 4}, All)), ElementsAre("Exit"));
    EXPECT_EQ(marksOn(lanes.marks, {FilmKind::Versus, 0}, All).size(), 2U);
    const MarkKind gates[] = {MarkKind::Upstream, MarkKind::MicroSplit};
    EXPECT_EQ(marksOn(lanes.marks, First, onlyKinds(gates)).size(), 3U);
}

TEST(AnnotationLanes, TakeOddMarksAsTheyAre) {
    athletedata031 run;
    run.microsplits = {{at(5, 0), 1}, {at(-3000), -3}, {{1, 1, 5, 0}, 2}, {at(1LL << 60, 1), 9}};
    run.strokes = {{{}, 1, 0, 0}, {{CMTime{}, at(9)}, 1, 5, 66}};
    run.upstreams = {{3, 0, 0, {at(1), at(2), at(3), at(4)}, 0, 0, 0}};
    run.timeslosses = {{}, {}};
    run.timeslosses[1].cmtimes = {{at(1), at(2), at(3)}, {}, {at(8)}};
    run.customData = {{-7, {"a", "b"}, {CMTime{}, at(6)}, "", 0, {at(1), at(2), at(3)}}};
    const AnnotationLanes lanes = annotationLanes(run, {});
    EXPECT_THAT(textsOf(marksOn(lanes.marks, First, All)),
                ElementsAre("Micro 2", "Gate 3 entrance", "Loss against , start: 0.00 s",
                            "Gate 3 middle", "Loss against , end: 0.00 s", "Gate 3",
                            "Loss against , 3: 0.00 s", "Gate 3 exit", "Micro 4"));
    EXPECT_THAT(textsOf(marksOn(lanes.marks, {FilmKind::Own, 1}, All)), ElementsAre("5, 66"));
    EXPECT_THAT(textsOf(marksOn(lanes.marks, {FilmKind::Own, -7}, All)), ElementsAre("b"));
    EXPECT_THAT(textsOf(marksOn(lanes.marks, {FilmKind::Fixed, 0}, All)),
                ElementsAre("a", "b", ""));
    EXPECT_THAT(annotationLanes({}, {}).marks, IsEmpty());
}

TEST(AnnotationLanes, LeadToTheNeighbours) {
    const auto marks = annotationLanes(annotatedRun(), course()).marks;
    const auto text = [&](std::optional<std::size_t> place) {
        return place ? marks[*place].text : "none";
    };
    EXPECT_EQ(text(nextMark(marks, First, at(2000), All)), "Right");
    EXPECT_EQ(text(nextMark(marks, First, at(29000), All)), "none");
    EXPECT_EQ(text(previousMark(marks, First, at(2000), All)), "none");
    EXPECT_EQ(text(previousMark(marks, First, at(1201, 100), All)), "1-3") << "the first of two";
    const MarkKind splits[] = {MarkKind::Split};
    EXPECT_EQ(text(nextMark(marks, First, at(2000), onlyKinds(splits))), "1-3");
    EXPECT_EQ(text(previousMark(marks, {FilmKind::Own, 1}, at(10500), All)), "Exit");
}

TEST(AnnotationLanes, MoveEveryMarkByItsHandle) {
    const infodata031 info = course();
    const auto count = annotationLanes(annotatedRun(), info).marks.size();
    for (const LaneMark& mark : annotationLanes(annotatedRun(), info).marks) {
        SCOPED_TRACE(mark.text + " on film " + std::to_string(mark.film.number));
        athletedata031 run = annotatedRun();
        CMTime moment = mark.time;
        moment.value += 40;
        const MarkHandle handle = moveLaneMark(run, info, mark.handle, moment);
        const AnnotationLanes lanes = annotationLanes(run, info);
        EXPECT_EQ(lanes.marks.size(), count);
        const LaneMark* moved = find(lanes, handle);
        ASSERT_NE(moved, nullptr);
        EXPECT_EQ(moved->time, moment);
        EXPECT_EQ(moved->film, mark.film);
        EXPECT_THROW(moveLaneMark(run, info, handle, CMTime{}), std::invalid_argument);
    }
}

TEST(AnnotationLanes, LeaveTheRunAsItIsWhereNothingMoves) {
    const infodata031 info = course();
    athletedata031 run = annotatedRun();
    run.sectioninfo.times[2] = std::nextafter(5.0, 6.0); // measured elsewhere
    run.sectioninfo.totaltime = 27;
    run.sectioninfo.splitnum = 3;
    run.sectioninfo.isfullrun = true;
    for (const LaneMark& mark : annotationLanes(run, info).marks) {
        athletedata031 moved = run;
        moveLaneMark(moved, info, mark.handle, mark.time);
        EXPECT_EQ(jsonOf(moved), jsonOf(run)) << mark.text;
    }
}

TEST(AnnotationLanes, RemoveEveryMarkByItsHandle) {
    const infodata031 info = course();
    for (const LaneMark& mark : annotationLanes(annotatedRun(), info).marks) {
        SCOPED_TRACE(mark.text + " on film " + std::to_string(mark.film.number));
        athletedata031 run = annotatedRun();
        removeLaneMark(run, info, mark.handle);
        for (const LaneMark& left : annotationLanes(run, info).marks)
            EXPECT_FALSE(left.kind == mark.kind && left.film == mark.film &&
                         left.time == mark.time);
    }
    athletedata031 empty;
    for (const MarkKind kind :
         {MarkKind::Start, MarkKind::Split, MarkKind::MicroSplit, MarkKind::Upstream,
          MarkKind::Stroke, MarkKind::TimeLoss, MarkKind::Tag}) {
        EXPECT_THROW(removeLaneMark(empty, info, {kind}), std::out_of_range);
        EXPECT_THROW(moveLaneMark(empty, info, {kind}, at(1)), std::out_of_range);
    }
    EXPECT_EQ(jsonOf(empty), jsonOf(athletedata031{}));
}

TEST(AnnotationLanes, KeepWhatIsComputedTrue) {
    const infodata031 info = course();
    athletedata031 run = annotatedRun();
    moveLaneMark(run, info, {MarkKind::Split, 0, 1}, at(11000));
    EXPECT_THAT(run.sectioninfo.times, ElementsAre(10.5, 11.5, 5)) << "the cameras stay in step";
    moveLaneMark(run, info, {MarkKind::Start, 0, 0}, at(1000));
    EXPECT_EQ(run.sectioninfo.times[0], 11.5);
    EXPECT_EQ(run.microsplits[0].time, 7);
    EXPECT_EQ(run.strokes[0].time, 2);
    moveLaneMark(run, info, {MarkKind::Upstream, 0, 1}, at(10500));
    EXPECT_EQ(run.upstreams[0].time, 1.5);
    moveLaneMark(run, info, {MarkKind::TimeLoss, 0, 1, FilmKind::Versus}, at(22000));
    EXPECT_EQ(run.timeslosses[0].timeloss, 2);
    addStroke(run, {at(5000)}, HandCode::Left);
    EXPECT_EQ(moveLaneMark(run, info, {MarkKind::Stroke, 0, 1}, at(4500)).record, 1U);
    EXPECT_EQ(run.strokes[1].cmtimes[0], at(6000));
}

} // namespace kavela::test
