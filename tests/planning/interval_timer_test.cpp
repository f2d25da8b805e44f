#include "planning/interval_timer.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

favInvervalSessions_v2 session(std::int64_t sets, std::int64_t reps, double work, double rest,
                               double setRest) {
    favInvervalSessions_v2 made;
    made.sets = sets;
    made.reps = reps;
    made.worktime = work;
    made.workrest = rest;
    made.setrest = setRest;
    return made;
}

/// "P10 W1.1 R1.1 …": phase, set and repetition of every step.
std::string courseOf(const IntervalPlan& plan) {
    std::string course;
    for (std::int64_t i = 0; i < plan.stepCount(); ++i) {
        const IntervalStep step = plan.step(i);
        course += "PWRSE"[static_cast<int>(step.phase)];
        course += std::to_string(step.set) + '.' + std::to_string(step.repetition) + '@' +
                  std::to_string(static_cast<int>(step.begin)) + ' ';
    }
    return course;
}

} // namespace

TEST(IntervalTimer, WalksThroughSetsAndRepetitions) {
    struct Case {
        const char* name;
        favInvervalSessions_v2 session;
        const char* course;
        double total;
        double work;
    };
    for (const Case& c : {
             Case{"sets and rests", session(2, 2, 15, 45, 240),
                  "P0.0@0 W1.1@10 R1.1@25 W1.2@70 S1.2@85 W2.1@325 R2.1@340 W2.2@385 E2.2@400 ",
                  390, 60},
             Case{"no rests", session(2, 2, 15, 0, 0),
                  "P0.0@0 W1.1@10 W1.2@25 W2.1@40 W2.2@55 E2.2@70 ", 60, 60},
             Case{"a rest between sets alone", session(2, 1, 15, 0, 5),
                  "P0.0@0 W1.1@10 S1.1@25 W2.1@30 E2.1@45 ", 35, 30},
             Case{"one piece", session(1, 1, 3600, 60, 60), "P0.0@0 W1.1@10 E1.1@3610 ", 3600,
                  3600},
         }) {
        const auto plan = IntervalPlan::of(c.session);
        ASSERT_TRUE(plan) << c.name;
        EXPECT_EQ(courseOf(*plan), c.course) << c.name;
        EXPECT_EQ(plan->sessionTime(), c.total) << c.name;
        EXPECT_EQ(plan->workTime(), c.work) << c.name;
    }
}

TEST(IntervalTimer, EveryMomentIsInTheStepThatHoldsIt) {
    // Lengths that are no binary fractions, so that a division lands a hair beside the step.
    for (const auto& made : {session(7, 13, 0.1, 0.3, 0.7), session(3, 6, 15, 45, 240),
                             session(5, 9, 1.1, 0, 0.1), session(50, 20, 0.7, 0, 0)}) {
        const auto plan = IntervalPlan::of(made, 0.9);
        ASSERT_TRUE(plan);
        for (std::int64_t i = 0; i < plan->stepCount(); ++i) {
            const IntervalStep step = plan->step(i);
            EXPECT_EQ(plan->stepAt(step.begin), i);
            EXPECT_EQ(plan->stepAt(step.begin + step.length / 2), i);
        }
        EXPECT_EQ(plan->stepAt(-1), 0);
        EXPECT_EQ(plan->stepAt(Infinity), plan->stepCount() - 1);
    }
}

TEST(IntervalTimer, RefusesWhatNobodyCanTrain) {
    constexpr auto Most = std::numeric_limits<std::int64_t>::max();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& bad :
         {session(0, 1, 1, 0, 0), session(1, 0, 1, 0, 0), session(-1, 5, 1, 0, 0),
          session(1, 1, 0, 0, 0), session(1, 1, -1, 0, 0), session(1, 2, 1, -1, 0),
          session(1, 1, nan, 0, 0), session(1, 1, 1, Infinity, 0), session(1, 1, 1, 0, nan),
          session(Most, Most, 1e-300, 0, 0), session(1, 1000000000, 60, 60, 0),
          session(1000000000, 1000000000, 1, 0, 0), session(1, 1, 1e308, 1e308, 1e308)}) {
        EXPECT_NE(whyNotTimed(bad), "");
        EXPECT_FALSE(IntervalPlan::of(bad));
    }
    const auto many = IntervalPlan::of(session(1000000000, 1000000000, 1e-20, 1e-20, 1e-20));
    ASSERT_TRUE(many) << "many, but within a day";
    EXPECT_GT(many->stepCount(), 1000000000000000000);
    EXPECT_GT(many->stepAt(PreparationTime + many->sessionTime() / 2), 1000000);
}

TEST(IntervalTimer, StartsPausesSkipsAndGoesBack) {
    IntervalRun run(*IntervalPlan::of(session(2, 2, 15, 45, 240)));
    EXPECT_EQ(run.elapsed(100), 0);
    run.start(100);
    EXPECT_EQ(run.remaining(103), 7);
    run.pause(104);
    EXPECT_EQ(run.remaining(500), 6) << "stands still";
    run.start(500);
    EXPECT_EQ(run.stepAt(506), 1);
    EXPECT_EQ(run.remaining(506), 15);
    run.back(510);
    EXPECT_EQ(run.elapsed(510), 10) << "to the start of the repetition";
    run.back(511);
    EXPECT_EQ(run.elapsed(511), 0) << "to the step before";
    for (int i = 0; i < 20; ++i)
        run.skip(512);
    EXPECT_EQ(run.plan().step(run.stepAt(512)).phase, IntervalPhase::End);
    EXPECT_EQ(run.remaining(900), 0);
    run.start(900);
    EXPECT_EQ(run.elapsed(901), 1) << "afresh";
}

} // namespace kavela::test
