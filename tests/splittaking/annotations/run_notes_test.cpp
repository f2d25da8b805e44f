#include "splittaking/annotations/run_notes.h"

#include "splittaking/annotations/camera_sync.h"
#include "splittaking/annotations/custom_tags.h"
#include "splittaking/annotations/fixed_cameras.h"
#include "splittaking/annotations/moments.h"
#include "splittaking/annotations/remembered_texts.h"
#include "splittaking/annotations/strategies.h"
#include "splittaking/annotations/strokes.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<double> microTimes(const athletedata031& run) {
    std::vector<double> times;
    for (const microsplitsdata025& split : run.microsplits)
        times.push_back(split.time);
    return times;
}

/// Strokes at thousandths of a second of the film.
std::vector<strokessdata025> strokesAt(std::initializer_list<std::int64_t> moments) {
    std::vector<strokessdata025> strokes;
    for (const std::int64_t moment : moments)
        strokes.push_back({{at(moment)}, 0, 0, 0});
    return strokes;
}

} // namespace

TEST(MicroSplits, StandInOrderAndCountFromTheStart) {
    athletedata031 run = timedRun();
    for (const std::int64_t moment : {15000, 5000, 9000})
        addMicroSplit(run, at(moment));
    EXPECT_THAT(microTimes(run), ElementsAre(3, 7, 13));
    EXPECT_EQ(moveMicroSplit(run, 0, at(10000)), 1U);
    EXPECT_THAT(microTimes(run), ElementsAre(7, 8, 13));
    removeMicroSplit(run, 1);
    EXPECT_THAT(microTimes(run), ElementsAre(7, 13));
    EXPECT_THROW(removeMicroSplit(run, 2), std::out_of_range);
    EXPECT_THROW(moveMicroSplit(run, 2, at(1)), std::out_of_range);

    athletedata031 untimed;
    addMicroSplit(untimed, at(5000));
    EXPECT_THAT(microTimes(untimed), ElementsAre(5)) << "from the start of the film";
}

TEST(Strokes, TellTheLiveRate) {
    struct Row {
        const char* name;
        std::vector<strokessdata025> strokes;
        std::int64_t now;
        std::optional<double> rate;
    };
    for (const Row& row : {
             Row{"none", {}, 1000, std::nullopt},
             Row{"one", strokesAt({500}), 1000, std::nullopt},
             Row{"two", strokesAt({0, 500}), 1000, 120.0},
             Row{"the last five of six intervals",
                 strokesAt({0, 9000, 9500, 10000, 10500, 11500, 12500}), 12500, 120.0},
             Row{"those to come do not count", strokesAt({0, 1000, 1100, 1200}), 1000, 60.0},
             Row{"after a glide", strokesAt({0, 500}), 3501, std::nullopt},
             Row{"as long as a glide", strokesAt({0, 500}), 3500, 120.0},
             Row{"out of order in the file", strokesAt({1000, 0}), 1000, 60.0},
             Row{"twice the same", strokesAt({500, 500}), 1000, std::nullopt},
         })
        EXPECT_EQ(strokeRateAt(row.strokes, at(row.now)), row.rate) << row.name;
    std::vector<strokessdata025> odd = strokesAt({0, 500});
    odd.push_back({{}, 0, 0, 0});
    odd.push_back({{at(3, 0)}, 0, 0, 0});
    EXPECT_EQ(strokeRateAt(odd, at(500)), 120.0);
}

TEST(Strokes, AreCountedBySection) {
    athletedata031 run = timedRun();
    for (const std::int64_t moment : {1000, 2000, 11999, 12000, 20000, 24000, 29000, 40000})
        addStroke(run, {at(moment)}, moment % 2000 == 0 ? HandCode::Left : HandCode::Right);
    run.strokes[4].hand = 7;
    const auto sections = strokesBySection(run);
    ASSERT_EQ(sections.size(), 3U);
    EXPECT_EQ(sections[0].left, 1U) << "at the start mark";
    EXPECT_EQ(sections[0].right, 1U);
    EXPECT_NEAR(sections[0].perMinute.value_or(0), 60 / 9.999, 1e-9)
        << "over the stretch that has marks";
    EXPECT_EQ(sections[1].left, 1U);
    EXPECT_EQ(sections[1].other, 1U);
    EXPECT_EQ(sections[2].total(), 1U) << "the finish ends the run";
    EXPECT_EQ(sections[2].perMinute, std::nullopt) << "one stroke has no rate";
    swapHand(run, 4);
    swapHand(run, 4);
    EXPECT_EQ(run.strokes[4].hand, 1);
    EXPECT_THROW(addStroke(run, {}, HandCode::Left), std::invalid_argument);
    EXPECT_THROW(moveStroke(run, 8, {at(1)}), std::out_of_range);
    run.sectioninfo.times = {0, 12};
    EXPECT_EQ(strokesBySection(run)[0].perMinute, std::nullopt);
}

TEST(CustomTags, LeaveUnevenListsAsTheyAreElsewhere) {
    athletedata031 run;
    run.customData = {{1, {"Exit", "Edge"}, {at(100)}, "two", 0, {}},
                      {0, {}, {at(50), at(60)}, "", 2, {at(1), at(2), at(3)}}};
    const std::string other = jsonOf(run.customData[1]);
    moveTag(run, {0, 1}, at(300));
    EXPECT_EQ(jsonOf(run.customData[0].cmTimes), jsonOf(std::vector{at(100), at(300)}));
    EXPECT_THAT(run.customData[0].fixCMTimes, IsEmpty());
    EXPECT_EQ(addTag(run, 1, "Eyes", at(400)), (TagHandle{0, 2}));
    EXPECT_EQ(setFixedMoment(run, {0, 1}, 3, at(9)), (TagHandle{0, 1}));
    EXPECT_EQ(jsonOf(run.customData[0].fixCMTimes), jsonOf(std::vector{CMTime{}, at(9)}));
    EXPECT_EQ(jsonOf(run.customData[1]), other);

    EXPECT_EQ(tagsOf(run).size(), 6U);
    EXPECT_EQ(setFixedMoment(run, {0, 2}, 2, at(8)), (TagHandle{2, 0})) << "another camera";
    EXPECT_EQ(tagsOf(run).back().name, "Eyes");
    EXPECT_EQ(run.customData[0].tags.size(), 2U);
    renameTag(run, {1, 1}, "Line");
    EXPECT_THAT(run.customData[1].tags, ElementsAre("", "Line"));
    removeTag(run, {1, 2});
    removeTag(run, {2, 0});
    EXPECT_EQ(run.customData.size(), 2U);
    removeTag(run, {0, 0});
    removeTag(run, {0, 0});
    EXPECT_EQ(run.customData[0].comments, "two") << "a record with comments stays";
    EXPECT_THROW(removeTag(run, {0, 0}), std::out_of_range);
    EXPECT_THROW(moveTag(run, {5, 0}, at(1)), std::out_of_range);
}

TEST(CustomTags, OfferEachNameOnce) {
    infodata031 info;
    info.tags = {"Line", " Exit "};
    athletedata031 run;
    addTag(run, 0, "Eyes", at(1));
    addTag(run, 0, "LÍNE", at(2));
    const std::vector<std::string> saved{"exit", "", "Edge"};
    EXPECT_THAT(tagNames(info, saved, std::span(&run, 1)),
                ElementsAre("Line", "Exit", "Edge", "Eyes"));
    EXPECT_EQ(renameTags(run, "Eyes", "Look"), 1U);
    EXPECT_THAT(fittingTexts(std::vector<std::string>{"Too wide", "Late", "Café"}, "E "),
                ElementsAre("Too wide", "Late", "Café"));
    EXPECT_THAT(fittingTexts(std::vector<std::string>{"Too wide", "Café"}, "CAFE"),
                ElementsAre("Café"));
}

TEST(FixedCameras, LieToEachOtherAsTheirMarksSay) {
    athletedata031 run;
    for (const char* film : {"bridge.mov", "finish.mov", "drop.mov"})
        attachFixedCamera(run, film);
    for (const double seconds : {100.0, 200.0, 300.0})
        addFixMark(run, 0, {seconds});
    run.fixMarkDates.push_back({2, {{102.5}}});
    run.fixMarkDates.push_back({2, {}});
    addFixMark(run, 2, {202.25});
    addFixMark(run, 2, {302.75});
    addFixMark(run, 2, {999});
    const auto offset = offsetBetween(run, 0, 2);
    ASSERT_TRUE(offset);
    EXPECT_EQ(offset->seconds, 2.5);
    EXPECT_EQ(offset->spread, 0.5);
    EXPECT_EQ(offset->marks, 3U);
    moveFixMark(run, 2, 2, {302});
    removeFixMark(run, 2, 0);
    EXPECT_THAT(fixMarksOf(run, 2),
                ElementsAre(ReferenceDate{202.25}, ReferenceDate{302}, ReferenceDate{999}));
    EXPECT_THROW(moveFixMark(run, 2, 3, {1}), std::out_of_range);
    EXPECT_THROW(addFixMark(run, 3, {1}), std::out_of_range);

    markSync(run, 2, at(1000), at(4500), std::nullopt);
    EXPECT_EQ(lagOf(run, 2), 3.5);
    detachFixedCamera(run, 1);
    EXPECT_EQ(fixMarksOf(run, 1).size(), 3U);
    EXPECT_EQ(lagOf(run, 1), 3.5) << "numbers move up";
    detachFixedCamera(run, 1);
    EXPECT_EQ(lagOf(run, 1), std::nullopt);
    EXPECT_EQ(tagsOf(run).size(), 1U);
    EXPECT_EQ(offsetBetween(run, 0, 1), std::nullopt);
}

TEST(Strategies, KeepTheChoiceOnItsOption) {
    strategy001 strategy;
    addOption(strategy, "Loop", 4.5);
    addOption(strategy, "Pivot", 4);
    addOption(strategy, "Spin");
    chooseOption(strategy, 0);
    EXPECT_EQ(bestOption(strategy), 1U);
    EXPECT_EQ(costOfChoice(strategy), 0.5);
    timeOption(strategy, 2, at(1000), at(4750));
    EXPECT_EQ(costOfChoice(strategy), 0.75);
    chooseOption(strategy, 1);
    removeOption(strategy, 0);
    EXPECT_EQ(strategy.optionInt, 0) << "the same option at its new place";
    removeOption(strategy, 0);
    EXPECT_EQ(optionsOf(strategy)[0].name, "Spin");
    EXPECT_TRUE(optionsOf(strategy)[0].isChosen);

    strategy = {"odd", {3}, {"A", "B"}, -4, ""};
    EXPECT_EQ(costOfChoice(strategy), std::nullopt);
    renameOption(strategy, 1, "C");
    EXPECT_EQ(jsonOf(strategy.times), "[3]") << "nothing is timed by a new name";
    for (const double bad : {-1.0, std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_THROW(setOptionSeconds(strategy, 0, bad), std::invalid_argument);
    EXPECT_THROW(chooseOption(strategy, 2), std::out_of_range);
    EXPECT_THROW(removeOption(strategy, 2), std::out_of_range);
}

TEST(RunNotes, StayWithinTheirLimits) {
    athletedata031 run;
    setSplitComment(run, 9, "");
    EXPECT_THAT(run.sectioninfo.comments, IsEmpty());
    setSplitComment(run, 2, "late");
    EXPECT_THAT(run.sectioninfo.comments, ElementsAre("", "late"));
    EXPECT_EQ(splitComment(run, 7), "");
    EXPECT_THROW(setSplitComment(run, 0, "x"), std::out_of_range);
    EXPECT_THROW(setSplitComment(run, SIZE_MAX, "x"), std::out_of_range);
    addGiveUps(run, 2);
    addGiveUps(run, -3);
    EXPECT_EQ(run.giveups, 0);
    addGiveUps(run, INT64_MAX);
    addGiveUps(run, 1);
    EXPECT_EQ(run.giveups, INT64_MAX);
    setScore(run, Scorer::Coach, 7.5);
    for (const double bad : {-0.5, 10.5, std::nan("")})
        EXPECT_THROW(setScore(run, Scorer::Coach, bad), std::invalid_argument);
    EXPECT_EQ(run.coachsscore, 7.5);
}

TEST(TeamRadio, IsKeptInOrderAndKnowsItsKind) {
    athletedata031 run;
    for (const char* text : {"RIFF....WAVE", "....ftypM4A ", "ID3", ""}) {
        const std::string_view bytes(text);
        addTeamRadio(run, {{bytes.begin(), bytes.end()}});
    }
    moveTeamRadio(run, 0, 3);
    moveTeamRadio(run, 2, 0);
    std::vector<std::string_view> kinds;
    for (const Blob& recording : run.sectioninfo.teamradio)
        kinds.push_back(soundExtension(recording));
    EXPECT_THAT(kinds, ElementsAre(".bin", ".m4a", ".mp3", ".wav"));
    removeTeamRadio(run, 3);
    EXPECT_THROW(removeTeamRadio(run, 3), std::out_of_range);
    EXPECT_THROW(moveTeamRadio(run, 0, 3), std::out_of_range);
}

} // namespace kavela::test
