#include "compose/job_paths.h"
#include "compose/split_moments.h"

#include <gmock/gmock.h>

#include <optional>
#include <utility>
#include <vector>

namespace kavela::test {
namespace {

using ::testing::ElementsAre;

TEST(JobPaths, LeadFromTheFolderAndBackAgain) {
    composejob002 job;
    job.films.resize(3);
    job.films[0].splitFile = "race.kvx";
    job.films[1].splitFile = "../other/race.kvx";
    job.films[1].film = "films/b.mp4";
    job.films[2].film = "/media/stick/c.mp4";
    const composejob002 full = withFullNames(job, "/home/coach/races");
    EXPECT_EQ(full.films[0].splitFile, "/home/coach/races/race.kvx");
    EXPECT_EQ(full.films[0].film, "") << "the run's own stays the run's own";
    EXPECT_EQ(full.films[1].splitFile, "/home/coach/other/race.kvx");
    EXPECT_EQ(full.output.file, "") << "beside the job stays beside it, wherever that is saved";

    const composejob002 back = withNamesFrom(full, "/home/coach/races");
    for (std::size_t film = 0; film < job.films.size(); ++film) {
        EXPECT_EQ(back.films[film].splitFile, job.films[film].splitFile);
        EXPECT_EQ(back.films[film].film, job.films[film].film) << "another disk keeps its name";
    }
    EXPECT_EQ(withNamesFrom(full, "/home/coach").films[0].splitFile, "races/race.kvx");
}

ComposedFilm filmMarkedAt(FilmMarks marks) {
    ComposedFilm film;
    film.run.marks = std::move(marks);
    return film;
}

TEST(SplitMoments, AreThoseOfWhoComesFirst) {
    Composition composition;
    composition.films = {filmMarkedAt({10.0, 20.0, std::nullopt, 40.0}),
                         filmMarkedAt({100.0, 108.0, 121.0})};
    const TimeMap map = timeMapOf(composition);
    const auto moments = splitMomentsOf(composition, map);
    EXPECT_THAT(moments, ElementsAre(SplitMoment{0, 0}, SplitMoment{1, 8}, SplitMoment{2, 21},
                                     SplitMoment{3, 30}));
    const CommonRange choice = choiceRangeOf(composition, map, {3600, 3600}, {0, 32});
    EXPECT_DOUBLE_EQ(choice.from, -ChoiceMarginSeconds) << "not the hour that the films last";
    EXPECT_DOUBLE_EQ(choice.to, 30 + ChoiceMarginSeconds);
}

TEST(SplitMoments, AreTakenWhereBothEndsOfAPartAreOnes) {
    const std::vector<SplitMoment> splits{{0, 0}, {1, 8}, {2, 21}};
    const RangeChoice between = rangeBetween(21, 8, splits);
    EXPECT_EQ(between.kind, RangeKind::Splits);
    EXPECT_EQ(between.fromSplit, 1U);
    EXPECT_EQ(between.toSplit, 2U);
    const RangeChoice free = rangeBetween(8, 15.5, splits);
    EXPECT_EQ(free.kind, RangeKind::Free);
    EXPECT_DOUBLE_EQ(free.from, 8);
    EXPECT_DOUBLE_EQ(free.to, 15.5);
}

TEST(SplitMoments, LeaveWholeFilmsToChooseFromWithoutMarks) {
    Composition composition;
    composition.films = {filmMarkedAt({5.0}), filmMarkedAt({0.0})};
    const CommonRange choice =
        choiceRangeOf(composition, timeMapOf(composition), {30, 40}, {0, 10});
    EXPECT_DOUBLE_EQ(choice.from, -5);
    EXPECT_DOUBLE_EQ(choice.to, 40);
}

TEST(ComposedRange, OfFilmsWithoutMarksGoesToTheEndOfTheLongest) {
    Composition composition;
    composition.films = {filmMarkedAt({5.0}), filmMarkedAt({2.0})};
    const TimeMap map = timeMapOf(composition);
    const CommonRange whole = rangeOf(composition, map, {90, 130});
    EXPECT_DOUBLE_EQ(whole.from, 0);
    EXPECT_DOUBLE_EQ(whole.to, 128) << "no minute, and none of the second before its start";
    EXPECT_DOUBLE_EQ(rangeOf(composition, map, {90, 0}).to, 85) << "the second one is missing";
    EXPECT_GT(rangeOf(composition, map).to, 0) << "a job is read before its films are";
    composition.films[0].run.marks = {5.0, 25.0};
    EXPECT_DOUBLE_EQ(rangeOf(composition, timeMapOf(composition), {90, 130}).to, 20 + TailSeconds);
}

} // namespace
} // namespace kavela::test
