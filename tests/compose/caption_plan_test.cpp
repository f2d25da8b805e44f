#include "compose/caption_plan.h"

#include <gmock/gmock.h>

namespace kavela {
namespace {

using ::testing::ElementsAre;

class Captions : public ::testing::Test {
protected:
    Captions() {
        m_runs = {{"A. Fast", "K1M", {10.0, 12.0, 15.0}, {0.0, 2.0, 5.0}, {0, 2}},
                  {"B. Slow", "K1M", {20.0, 22.5, std::nullopt, 27.0}, {0.0, 2.5, {}, 7.0}, {50}}};
    }
    [[nodiscard]] CaptionPlan plan(Synchronise how = Synchronise::Start,
                                   CaptionChoice choice = {}) const {
        return {m_runs, {"Top", ""}, choice, TimeMap({m_runs[0].marks, m_runs[1].marks}, how)};
    }
    static std::string textOf(const CaptionPlan& plan, CaptionKind kind, std::size_t film,
                              double common) {
        std::string text;
        for (const Caption& caption : plan.at(common))
            if (caption.kind == kind && caption.film == film)
                text += (text.empty() ? "" : "|") + caption.text;
        return text;
    }

    std::vector<CaptionedRun> m_runs;
};

TEST_F(Captions, TheClockRunsFromTheStartAndStopsAtTheFinish) {
    const CaptionPlan captions = plan();
    EXPECT_EQ(textOf(captions, CaptionKind::RunClock, 0, -1), "0.00");
    EXPECT_EQ(textOf(captions, CaptionKind::RunClock, 0, 1.25), "1.25");
    EXPECT_EQ(textOf(captions, CaptionKind::RunClock, 0, 9), "5.00");
    EXPECT_EQ(textOf(captions, CaptionKind::RunClock, 1, 6.5), "6.50");
    EXPECT_EQ(textOf(captions, CaptionKind::RunClock, 1, 9), "7.00");
}

TEST_F(Captions, ASplitTimeAndItsGapStayForTwoSeconds) {
    const CaptionPlan captions = plan();
    EXPECT_EQ(textOf(captions, CaptionKind::Split, 1, 2.49), "");
    EXPECT_EQ(textOf(captions, CaptionKind::Split, 1, 2.5), "Split 1  2.50  +0.50");
    EXPECT_EQ(textOf(captions, CaptionKind::Split, 1, 4.49), "Split 1  2.50  +0.50");
    EXPECT_EQ(textOf(captions, CaptionKind::Split, 1, 4.5), "");
    EXPECT_EQ(textOf(captions, CaptionKind::Split, 0, 2), "Split 1  2.00") << "the first has none";
    EXPECT_EQ(textOf(captions, CaptionKind::Split, 1, 5), "Split 2  –") << "not marked";
    EXPECT_EQ(gapText(-0.416), "\u22120.42");
    EXPECT_EQ(gapText(-0.001), "0.00");
}

TEST_F(Captions, PenaltiesCountFromTheSplitThatEndsTheirSection) {
    const CaptionPlan captions = plan();
    EXPECT_EQ(textOf(captions, CaptionKind::Penalty, 0, 4.9), "");
    EXPECT_EQ(textOf(captions, CaptionKind::Penalty, 0, 5), "+2 s");
    EXPECT_EQ(textOf(captions, CaptionKind::Penalty, 1, 2.5), "+50 s");
}

TEST_F(Captions, TheSectionIsTheOneThatTheFirstRunIsIn) {
    const CaptionPlan captions = plan();
    EXPECT_EQ(textOf(captions, CaptionKind::Section, 0, -0.5), "");
    EXPECT_EQ(textOf(captions, CaptionKind::Section, 0, 1), "Top");
    EXPECT_EQ(textOf(captions, CaptionKind::Section, 0, 3), "Section 2");
    EXPECT_EQ(textOf(captions, CaptionKind::Section, 0, 6), "");
}

TEST_F(Captions, WaitingAndStretchingAreSaidWhateverIsChosen) {
    const CaptionChoice nothing{false, false, false, false, false, false};
    const CaptionPlan waiting = plan(Synchronise::Waiting, nothing);
    EXPECT_THAT(waiting.at(2.2), ElementsAre(Caption{CaptionKind::Waits, 0, "waits 0.50 s"}));
    EXPECT_TRUE(waiting.at(1).empty());
    EXPECT_TRUE(waiting.gaps().empty());
    const CaptionPlan stretched = plan(Synchronise::Stretched, nothing);
    EXPECT_THAT(stretched.at(1), ElementsAre(Caption{CaptionKind::Stretch, 0, "×0.80"}));
}

TEST_F(Captions, AGapIsKnownWhenBothHavePassed) {
    m_runs[1] = {"B. Slow", "", {20.0, 22.5, 26.0}, {0.0, 2.5, 6.0}, {}};
    const CaptionPlan captions = plan();
    ASSERT_EQ(captions.gaps().size(), 1U);
    const GapLine& line = captions.gaps().front();
    EXPECT_THAT(line.points(), ElementsAre(GapPoint{0, 0}, GapPoint{2.5, 0.5}, GapPoint{6, 1}));
    EXPECT_EQ(line.knownAt(2.4), 1U);
    EXPECT_THAT(line.upTo(1.25), ElementsAre(GapPoint{0, 0}, GapPoint{1.25, 0.25}));
}

} // namespace
} // namespace kavela
