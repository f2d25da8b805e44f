#include "analysis/run_figures.h"

#include "sample/races.h"

#include <gmock/gmock.h>

/// The numbers of a run as a whole, and what they are made of.
namespace kavela {
namespace {

RaceSet filmedRace() {
    return makeRaceSet(sample::holdRace(sample::riversideCup()), "races/riverside_cup.kvx");
}

double toldSum(const Reason& reason) {
    double sum = 0;
    for (const Input& input : reason.inputs)
        sum += input.value;
    return sum;
}

} // namespace

TEST(RunFigures, AddUpFromThePlacesTheyTell) {
    const RaceSet set = filmedRace();
    std::size_t penalised = 0;
    std::size_t sure = 0;
    for (std::size_t run = 0; run < set.alldata.size(); ++run) {
        const auto penalties = explainRunFigure(set, run, RunFigure::Penalties);
        ASSERT_TRUE(penalties);
        EXPECT_EQ(penalties->value, toldSum(*penalties)) << run;
        penalised += penalties->inputs.empty() ? 0 : 1;
        double bySection = 0;
        for (std::size_t section = 0; section < set.definedsections.size(); ++section) {
            Why why;
            const auto seconds = static_cast<double>(sectionPenalty(set, run, section, &why));
            EXPECT_EQ(toldSum(why.reason()), seconds) << run << ", " << section;
            bySection += seconds;
        }
        EXPECT_EQ(bySection, penalties->value) << run;
        if (const auto total = explainRunFigure(set, run, RunFigure::Total)) {
            EXPECT_NEAR(toldSum(*total), total->value, 1e-9) << run;
            EXPECT_EQ(total->inputs.front().place->run,
                      static_cast<std::size_t>(set.alldata[run].athleteInt));
            sure += total->inputs.front().plusMinus == 0.02 ? 1 : 0;
        }
    }
    EXPECT_GT(penalised, 3U);
    EXPECT_GT(sure, set.alldata.size() / 2) << "the films have 50 frames a second";
}

TEST(RunFigures, SayWhatDoesNotAddUpAndWhatIsNotThere) {
    RaceSet set = filmedRace();
    set.alldata[0].sectioninfo.totalpen += 2;
    const auto penalties = explainRunFigure(set, 0, RunFigure::Penalties);
    ASSERT_TRUE(penalties);
    EXPECT_THAT(penalties->notes, testing::ElementsAre(testing::HasSubstr("does not add up")));
    set.alldata[0].sectioninfo.realtime = 0;
    EXPECT_FALSE(explainRunFigure(set, 0, RunFigure::Real));
    EXPECT_FALSE(explainRunFigure(set, set.alldata.size(), RunFigure::Total));
}

} // namespace kavela
