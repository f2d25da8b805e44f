#include "cli/program.h"
#include "films/season_films.h"
#include "vision/slit_file.h"

#include <gmock/gmock.h>

namespace kavela::films {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> namesOfAll() {
    std::vector<fs::path> names;
    (void)seasonFilms([&](const fs::path& name) {
        names.push_back(name);
        return false;
    });
    return names;
}

TEST(DemoVideos, MakesTheFilmsThatAreMissingAndKeepsTheOthers) {
    const test::Program kavela;
    ASSERT_EQ(kavela.call({"demo", "season"}).status, 0);
    const std::vector<fs::path> names = namesOfAll();
    EXPECT_EQ(names.size(), 20U + 21U + 8U + 14U + 1U); // the finals have two cameras
    const auto missing = std::ranges::find_if(names, [](const fs::path& name) {
        return name.filename() == "test Marit Elvestrøm Run 2.MOV";
    });
    ASSERT_NE(missing, names.end());
    for (const fs::path& name : names)
        if (name != *missing)
            (void)kavela.folder().add(fs::path("season") / name, "kept");

    const test::Ending ending = kavela.call({"demo", "season", "--videos"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, testing::HasSubstr("Made 1 film."));
    EXPECT_THAT(ending.errors, testing::IsEmpty());
    const fs::path season = kavela.folder().path() / "season";
    EXPECT_GT(fs::file_size(season / *missing), 100'000U);
    EXPECT_EQ(test::contentOf(season / names.front()), "kept");
    const auto lines = readSlitFile(season / "camera" / "sprint finish.slit.json");
    ASSERT_TRUE(lines) << "a newcomer sees at once what a line is";
    EXPECT_THAT(lines->lines, testing::SizeIs(2));
    for (const auto& entry : fs::recursive_directory_iterator(season))
        EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
}

TEST(DemoVideos, HelpTellsHowLongAndHowLarge) {
    const test::Ending ending = test::Program().call({"demo", "--help"});
    EXPECT_THAT(ending.output,
                testing::AllOf(testing::HasSubstr("--videos"), testing::HasSubstr("minute"),
                               testing::HasSubstr("MB")));
}

} // namespace
} // namespace kavela::films
