#include "compose/compose_job.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/temp_folder.h"
#include "sample/season.h"
#include "vision/track_file.h"

#include <gmock/gmock.h>

#include <functional>

namespace kavela {
namespace {

using ::testing::HasSubstr;

composejob002 jobOfTwoRuns() {
    composejob002 job;
    job.films = {{.splitFile = "riverside.kvx", .run = 49},
                 {.splitFile = "riverside.kvx", .run = 50}};
    job.synchronise = "waiting";
    return job;
}

class ComposeJob : public ::testing::Test {
protected:
    ComposeJob() {
        for (const SampleFile& file : sampleSeason())
            if (file.name == "races/riverside_cup.kvx")
                static_cast<void>(m_folder.add("riverside.kvx", file.content));
    }
    test::TempFolder m_folder;
};

TEST_F(ComposeJob, TakesRunsFromTheirSplitFile) {
    const auto path = m_folder.path() / "job.json";
    writeComposeJob(jobOfTwoRuns(), path);
    const Composition composition = compositionOf(readComposeJob(path), m_folder.path());
    ASSERT_EQ(composition.films.size(), 2U);
    const ComposedFilm& film = composition.films.front();
    EXPECT_EQ(film.path.parent_path(), m_folder.path());
    EXPECT_FALSE(film.run.names.empty());
    ASSERT_GT(film.run.marks.size(), 3U);
    // What the tables show is what lies between the marks.
    EXPECT_NEAR(*film.run.marks[2] - *film.run.marks[0], *film.run.times[2], 0.011);
    EXPECT_EQ(composition.synchronise, Synchronise::Waiting);
    EXPECT_EQ(outputOf(jobOfTwoRuns(), path), m_folder.path() / "job.mp4");
}

TEST_F(ComposeJob, OfTheSampleSeasonComparesTwoWholeRuns) {
    for (const SampleFile& file : sampleSeason())
        static_cast<void>(m_folder.add(file.name.filename().string(), file.content));
    const auto job = readComposeJob(m_folder.path() / "compare_final.json");
    const Composition composition = compositionOf(job, m_folder.path());
    for (const ComposedFilm& film : composition.films)
        EXPECT_EQ(film.run.marks.size(), film.run.times.size()) << film.run.names;
    EXPECT_NE(composition.films[0].run.names, composition.films[1].run.names);
}

TEST_F(ComposeJob, SaysWhatIsWrongAndWhere) {
    struct Wrong {
        const char* place;
        const char* text;
        std::function<void(composejob002&)> spoil;
    };
    const std::vector<Wrong> wrongs{
        {"layout", "\"row\" is none of", [](auto& job) { job.layout = "row"; }},
        {"films", "1 films", [](auto& job) { job.films.pop_back(); }},
        {"films[1].run", "runs", [](auto& job) { job.films[1].run = 4000; }},
        {"films[0].run", "0 is not", [](auto& job) { job.films[0].run = 0; }},
        {"films[0].camera", "no film", [](auto& job) { job.films[0].camera = 9; }},
        {"films[1].splitFile", "", [](auto& job) { job.films[1].splitFile = "none.kvx"; }},
        {"films[0].points", "two points", [](auto& job) { job.films[0].points.resize(1); }},
        {"films[0].track", "no path", [](auto& job) { job.films[0].drawsPath = true; }},
        {"films[0].track", "none.json", [](auto& job) { job.films[0].track = "none.json"; }},
        {"films[1].zoom", "1 to 2", [](auto& job) { job.films[1].zoom = 3; }},
        {"speed", "0.125", [](auto& job) { job.speed = 0; }},
        {"sound", "no film", [](auto& job) { job.sound = 3; }},
        {"output.width", "even", [](auto& job) { job.output.width = 1281; }},
        {"output", "larger", [](auto& job) { job.output.width = job.output.height = 2400; }},
        {"range.to", "behind", [](auto& job) { job.range.kind = "free"; }},
        {"range.toSplit", "no film has a mark", [](auto& job) {
             job.range = {"splits", 0, 500, 0, 0};
         }}};
    for (const Wrong& wrong : wrongs) {
        composejob002 job = jobOfTwoRuns();
        wrong.spoil(job);
        try {
            static_cast<void>(compositionOf(job, m_folder.path()));
            ADD_FAILURE() << wrong.place;
        } catch (const DecodeError& error) {
            EXPECT_EQ(error.fault().path, wrong.place);
            EXPECT_THAT(error.fault().text, HasSubstr(wrong.text));
        }
    }
}

TEST_F(ComposeJob, TakesFilesOfBeforeFilmsHadPaths) {
    composejob002 job = jobOfTwoRuns();
    std::string text = encode(job);
    const std::string added = R"(,"track":"","drawsPath":false,"zoom":1)";
    for (std::size_t at = text.find(added); at != std::string::npos; at = text.find(added))
        text.erase(at, added.size());
    const composejob002 read = readComposeJob(m_folder.add("older.json", text));
    EXPECT_EQ(encode(read), encode(job));
    // What is wrong with an older one is told, not what it lacks by right.
    text.replace(text.find("\"wipe\":0.5"), 10, "\"wipe\":\"\"");
    try {
        static_cast<void>(readComposeJob(m_folder.add("wrong.json", text)));
        ADD_FAILURE();
    } catch (const DecodeError& error) {
        EXPECT_EQ(error.fault().path, "wipe");
    }
}

TEST_F(ComposeJob, ReadsThePathOfAFilm) {
    track001 track{.film = "phone.mp4", .width = 400, .height = 200};
    for (int frame = 0; frame < 100; ++frame)
        track.points.push_back({frame, frame / 50.0, 100.0 + frame, 50, 1, 1});
    track.points.erase(track.points.begin() + 40, track.points.begin() + 90);
    writeTrack(track, m_folder.path() / "phone.track.json");
    composejob002 job = jobOfTwoRuns();
    job.films[0].track = "phone.track.json";
    job.films[0].drawsPath = true;
    job.films[0].zoom = 2;
    const auto view = compositionOf(job, m_folder.path()).films[0].view;
    ASSERT_TRUE(view);
    EXPECT_NEAR(view->middleAt(0.4).x, 120.0 / 400, 1e-6);
    EXPECT_NEAR(view->middleAt(0.4).y, 0.25, 1e-9);
    EXPECT_NEAR(view->middleAt(1.29).x, (139.0 + 190) / 2 / 400, 0.01); // over the gap
    EXPECT_NEAR(view->middleAt(60).x, 199.0 / 400, 1e-6);
    // Without the camera's motion no other frame's place is known.
    EXPECT_LE(view->trailUpTo(30).size(), 1U);
    job.layout = "ghost";
    EXPECT_THROW(static_cast<void>(compositionOf(job, m_folder.path())), DecodeError);
}

TEST_F(ComposeJob, AFilmWithoutMarksStartsWhereItIsSaid) {
    composejob002 job = jobOfTwoRuns();
    job.films[1] = {.film = "phone.mp4", .names = "Guest", .startsAt = 3.5};
    job.synchronise = "start";
    const Composition composition = compositionOf(job, m_folder.path());
    EXPECT_EQ(composition.films[1].run.marks, (FilmMarks{3.5}));
    EXPECT_DOUBLE_EQ(timeMapOf(composition).filmSeconds(1, 2), 5.5);
}

} // namespace
} // namespace kavela
