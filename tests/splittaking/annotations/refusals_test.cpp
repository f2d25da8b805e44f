#include "splittaking/annotations/refusals.h"

#include "splittaking/annotations/camera_sync.h"
#include "splittaking/annotations/marks_list.h"
#include "splittaking/annotations/moments.h"
#include "splittaking/annotations/strokes.h"
#include "splittaking/annotations/upstream_gates.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;
using ::testing::StartsWith;

TEST(Refusals, LetEqualNotesStandOnce) {
    athletedata031 run = timedRun();
    run.sectioninfo.pens.assign(8, 0);
    addMicroSplit(run, at(8000));
    EXPECT_TRUE(refusalOfMicroSplit(run, {8, 1, 1, 0})) << "the same moment in another scale";
    EXPECT_FALSE(refusalOfMicroSplit(run, at(8020)));
    addStroke(run, {at(9000)}, HandCode::Left);
    EXPECT_TRUE(refusalOfStroke(run, at(9000), HandCode::Left));
    EXPECT_FALSE(refusalOfStroke(run, at(9000), HandCode::Right));
    addTag(run, 0, "Wave", at(7000));
    EXPECT_THAT(refusalOfTag(run, 0, "Wave", at(7000)),
                Optional(std::string("The tag Wave is marked on this frame already.")));
    EXPECT_FALSE(refusalOfTag(run, 0, "Eddy", at(7000)));
    EXPECT_FALSE(refusalOfTag(run, 1, "Wave", at(7000))) << "on another film";
    PenaltyDetail touch{.gate = 3};
    addPenalty(run, touch, 8);
    EXPECT_THAT(refusalOfPenalty(run, touch),
                Optional(std::string("Gate 3 has this penalty already.")));
    touch.polekind = 1;
    EXPECT_FALSE(refusalOfPenalty(run, touch)) << "the other pole";
    attachFixedCamera(run, "gate5.mp4");
    markSync(run, 0, at(4000), at(9000), std::nullopt);
    EXPECT_TRUE(refusalOfSync(run, 0, at(4000), at(9000)));
    EXPECT_FALSE(refusalOfSync(run, 0, at(4000), at(9020)));
}

TEST(Refusals, KeepTheMarksOfAGateInTheirOrder) {
    const GateMarks gate{at(1000), at(2000), at(3000)};
    struct Row {
        GateMark which;
        std::int64_t moment;
        const char* refusal;
    };
    for (const Row& row :
         {Row{GateMark::Entrance, 1999, ""}, Row{GateMark::Middle, 2999, ""},
          Row{GateMark::Exit, 2001, ""},
          Row{GateMark::Entrance, 2500, "This frame lies after the middle at 2.00."},
          Row{GateMark::Middle, 500, "This frame lies before the entrance at 1.00."},
          Row{GateMark::Middle, 3000, "The exit is marked on this frame already."},
          Row{GateMark::Exit, 1500, "This frame lies before the middle at 2.00."}})
        EXPECT_EQ(refusalOfGateMark(gate, row.which, at(row.moment)).value_or(""), row.refusal);
    EXPECT_THAT(refusalOfGateMark(GateMarks{at(1000)}, GateMark::Exit, at(900), NamesOfRoll),
                Optional(std::string("This frame lies before the start of the roll at 1.00.")));
}

/// Every kind of mark of a run, moved onto its neighbour and a little.
TEST(Refusals, LetNoMarkBeMovedOverItsNeighbour) {
    athletedata031 run = timedRun();
    addMicroSplit(run, at(8000));
    addMicroSplit(run, at(9000));
    addStroke(run, {at(3000)}, HandCode::Right);
    addStroke(run, {at(3500)}, HandCode::Right);
    markUpstream(run, course(), 3, GateMark::Entrance, at(9000));
    markUpstream(run, course(), 3, GateMark::Exit, at(10000));
    run.timeslosses = {lossOverSplit(run, timedRun(), 2)};
    addTag(run, 0, "Wave", at(7000));
    addTag(run, 0, "Wave", at(7500));
    struct Row {
        const char* name;
        MarkHandle handle;
        std::int64_t neighbour;
    };
    for (const Row& row :
         {Row{"start", {MarkKind::Start}, 12000}, Row{"split", {MarkKind::Split, 1}, 12000},
          Row{"split on the second camera", {MarkKind::Split, 1, 1}, 10500},
          Row{"micro split", {MarkKind::MicroSplit, 1}, 8000},
          Row{"stroke", {MarkKind::Stroke, 1}, 3000}, Row{"gate", {MarkKind::Upstream, 0, 1}, 9000},
          Row{"stretch", {MarkKind::TimeLoss, 0, 1}, 12000},
          Row{"other stretch", {MarkKind::TimeLoss, 0, 0, FilmKind::Versus}, 24000},
          Row{"tag", {MarkKind::Tag, 0, 1}, 7000}}) {
        EXPECT_TRUE(refusalOfMove(run, row.handle, at(row.neighbour))) << row.name;
        EXPECT_FALSE(refusalOfMove(run, row.handle, at(row.neighbour + 20)) &&
                     refusalOfMove(run, row.handle, at(row.neighbour - 20)))
            << row.name;
    }
    EXPECT_THAT(refusalOfMove(run, {MarkKind::TimeLoss, 0, 0}, at(25000)),
                Optional(StartsWith("This frame lies after the end of the stretch at 24.00")));
}

TEST(MarksList, TellsTheTimeOfTheRunWhateverTheFilm) {
    athletedata031 run = timedRun(); // started at 2 s; its second camera is 1.5 s behind
    run.timeslosses = {lossAgainst(run, timedRun())};
    setMark(run.timeslosses[0], LossMark::OwnStart, at(21480));
    setMark(run.timeslosses[0], LossMark::VersusStart, at(20600));
    setMark(run.timeslosses[0], LossMark::VersusEnd, at(22780));
    addTag(run, 1, "Eddy", at(18500));
    (void)setFixedMoment(run, addTag(run, 0, "Wave", at(19000)), 0, at(119000));
    const auto list = [&](const OwnSeconds& own) {
        std::vector<std::string> lines;
        for (const ListedMark& listed : marksList(run, annotationLanes(run, course()).marks, own)) {
            const auto text = [](std::optional<double> seconds) {
                return seconds ? std::to_string(std::llround(*seconds * 100)) : "-";
            };
            if (listed.mark.kind == MarkKind::TimeLoss || listed.mark.kind == MarkKind::Tag)
                lines.push_back(text(listed.seconds) + " " + text(listed.filmSeconds));
        }
        return lines;
    };
    const auto inStep = [](std::int64_t, double seconds) { return std::optional(seconds - 100); };
    EXPECT_THAT(list(inStep),
                ElementsAre("1700 -", "1700 11900", "1800 1850", "1948 -", "1948 2060", "- 2278"));
    EXPECT_THAT(list([](std::int64_t, double) { return std::nullopt; }),
                ElementsAre("1700 -", "1800 1850", "1948 -", "1948 2060", "- 2278", "- 11900"))
        << "by the film's own clock where it tells nothing of the run";
}

} // namespace
} // namespace kavela::test
