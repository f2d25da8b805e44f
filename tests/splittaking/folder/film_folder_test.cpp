#include "common/json_encode.h"
#include "common/temp_folder.h"
#include "splitdata/document.h"
#include "splitdata/loader.h"
#include "splittaking/folder/film_filter.h"
#include "splittaking/folder/film_list.h"
#include "splittaking/folder/film_naming.h"
#include "splittaking/folder/film_renaming.h"
#include "splittaking/folder/film_tags.h"
#include "splittaking/folder/watched_films.h"
#include "splittaking/video_names.h"

#include <gmock/gmock.h>

/// A folder of films: what is found in it, and what its films are called.
namespace kavela {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

ListedFilm semifinalOf(const char* file, std::vector<std::string> names) {
    ListedFilm film;
    film.path = fs::path("/films") / file;
    film.names = std::move(names);
    film.category = "K1W";
    film.phase = "Semifinal";
    film.bib = 12;
    return film;
}

TEST(FilmFilter, FindsByWhatACoachTypes) {
    const ListedFilm film = semifinalOf("IMG_0231.mp4", {"Ondřej Skalboř"});
    for (const char* const typed :
         {"", "k1w 12 semi", "K1W", "k1", "wk1", "012", "skalbor", "ONDŘEJ semi", "231", "img"})
        EXPECT_TRUE(FilmFilter(typed).passes(film)) << typed;
    for (const char* const typed : {"final", "1", "k1m", "k1w 13", "albor", "c1w", "2"})
        EXPECT_FALSE(FilmFilter(typed).passes(film)) << typed;
    EXPECT_TRUE(FilmFilter("semi roll").passes(film, "Roll in gate 4"));
}

TEST(ShownPart, CountsWhatPlayedOnceAndNoJumps) {
    ShownPart part;
    for (int tenth = 0; tenth <= 70; ++tenth)
        part.show(tenth / 10.0, true);
    for (int tenth = 70; tenth >= 0; --tenth) // the same again, backwards
        part.show(tenth / 10.0, true);
    EXPECT_FALSE(part.isWatched(10));
    part.show(9.95, true); // a jump to the end
    EXPECT_FALSE(part.isWatched(10));
    part.show(7.5, false); // steps of somebody who rests
    EXPECT_FALSE(part.isWatched(10));
    part.show(7.1, true);
    part.show(8.1, true); // fast forward leaves frames out
    EXPECT_TRUE(part.isWatched(10));
    EXPECT_FALSE(part.isWatched(0)) << "of unknown length";
}

TEST(WatchedFilms, ForgetTheFirstOnes) {
    std::vector<std::string> watched;
    for (std::size_t film = 0; film <= MostWatchedFilms; ++film)
        EXPECT_TRUE(addWatched(watched, std::to_string(film)));
    EXPECT_EQ(watched.size(), MostWatchedFilms);
    EXPECT_EQ(watched.front(), "1");
    EXPECT_TRUE(addWatched(watched, "1"));
    EXPECT_EQ(watched.size(), MostWatchedFilms) << "once each";
    EXPECT_EQ(watched.back(), "1");
    EXPECT_FALSE(addWatched(watched, "1"));
}

TEST(FilmNaming, NeverGivesANameTwiceOrOneThatIsTaken) {
    const std::vector<ListedFilm> films{
        semifinalOf("a.MOV", {"Ann Lee", "Bea/Fox"}), semifinalOf("b.MOV", {"Ann Lee", "Bea/Fox"}),
        semifinalOf("c.mp4", {"Cleo"}), semifinalOf("Dora Semifinal.mp4", {"Dora"}),
        semifinalOf("e.mp4", {})};
    const std::vector<std::string> taken{
        "a.MOV", "b.MOV", "c.mp4", "Dora Semifinal.mp4", "e.mp4", "CLEO semifinal.MP4"};
    const auto planned = planNames(films, "{name} { Phase }", taken);
    EXPECT_EQ(planned[0].to, "Ann Lee + Bea-Fox Semifinal.MOV");
    EXPECT_EQ(planned[1].to, "Ann Lee + Bea-Fox Semifinal 2.MOV");
    EXPECT_EQ(planned[2].to, "Cleo Semifinal 2.mp4") << "disks do not tell cases apart";
    EXPECT_FALSE(planned[3].isOther()) << "its own name is no hindrance";
    EXPECT_THAT(planned[4].fault, HasSubstr("no name"));
    EXPECT_FALSE(planned[4].isOther());
    EXPECT_FALSE(faultOfNaming("{bib} {name}"));
    EXPECT_TRUE(faultOfNaming("{any} {name}"));
    EXPECT_TRUE(faultOfNaming("{nmae}"));
    EXPECT_EQ(filmFacts(planned[0].to, "{name} {phase}").phase, "Semifinal") << "reads back";
}

TEST(FilmNaming, LeavesAtTheEndWhichCameraFilmed) {
    const std::vector<ListedFilm> films{semifinalOf("ann semi Cam 2.MOV", {"Ann Lee"}),
                                        semifinalOf("ann semi.MOV", {"Ann Lee"}),
                                        semifinalOf("Ann Lee Semifinal GoPro.MOV", {"Ann Lee"})};
    const auto planned = planNames(films, "{name} {phase}", {});
    EXPECT_EQ(planned[0].to, "Ann Lee Semifinal Cam 2.MOV");
    EXPECT_EQ(planned[1].to, "Ann Lee Semifinal.MOV");
    EXPECT_FALSE(planned[2].isOther());
}

class FilmFolderTest : public ::testing::Test {
protected:
    FilmFolderTest() {
        for (const char* const film : {"a.mp4", "b.mp4", "c.mp4"})
            (void)m_folder.add(film, film);
        athletedata031 run;
        run.names = {"Ann Lee"};
        run.cat = "K1W";
        run.videoname = {"a.mp4", "b.mp4"};
        run.sectioninfo.times = {10.0};
        run.sectioninfo.cmtimes = {{CMTime{500, 50, 1, 0}, CMTime{700, 50, 1, 0}}};
        customData020 roll;
        roll.videoInt = 1;
        roll.tags = {"Roll"};
        roll.cmTimes = {CMTime{50, 50, 1, 0}};
        run.customData = {roll};
        run.fixcameras = {"c.mp4"};
        splittakerdata031 race;
        race.athletes = {run};
        (void)m_folder.add("race.kvx", encode(race));
        addFilmTag(path("a.mp4"), {"Boof", CMTime{100, 50, 1, 0}});
    }

    [[nodiscard]] fs::path path(const char* name) const { return m_folder.path() / name; }
    [[nodiscard]] athletedata031 run() const {
        return recogniseSplitFile(
                   path("race.kvx"), [](std::string_view) {}, [] { return ReferenceDate{}; })
            .document.athletes.at(0);
    }
    [[nodiscard]] std::vector<std::string> films() const {
        std::vector<std::string> names;
        for (const ListedFilm& film : listFilms(m_folder.path(), DefaultVideoPattern).films)
            names.push_back(film.path.filename().string());
        return names;
    }
    /// As if the program had been killed behind so many films.
    void cutOffAfter(std::size_t films) {
        (void)m_folder.add(".kavela-renaming.json",
                           R"({"films":[{"from":"a.mp4","to":"Ann 1.mp4"},)"
                           R"({"from":"b.mp4","to":"Ann 2.mp4"}]})");
        for (std::size_t film = 0; film < films; ++film)
            fs::rename(m_folder.path() / m_names[film].from, m_folder.path() / m_names[film].to);
    }

    test::TempFolder m_folder;
    const FilmRenames m_names{{"a.mp4", "Ann 1.mp4"}, {"b.mp4", "Ann 2.mp4"}};
};

TEST_F(FilmFolderTest, KnowsWhatSplitFileAndTagsTell) {
    (void)m_folder.add("broken.kvx", "{");
    FilmFolder listed = listFilms(m_folder.path(), DefaultVideoPattern);
    addKnownOfFilms(listed);
    ASSERT_EQ(listed.films.size(), 3U);
    EXPECT_THAT(listed.films[1].names, ElementsAre("Ann Lee"));
    EXPECT_EQ(listed.films[1].category, "K1W");
    ASSERT_TRUE(listed.films[1].firstMark);
    EXPECT_DOUBLE_EQ(listed.films[1].firstMark->seconds(), 4) << "on its own camera";
    EXPECT_THAT(listed.films[0].tags, ElementsAre(FilmTag{"Boof", CMTime{100, 50, 1, 0}, false}));
    EXPECT_THAT(listed.films[1].tags, ElementsAre(FilmTag{"Roll", CMTime{50, 50, 1, 0}, true}));
    EXPECT_THAT(listed.faults, ElementsAre(HasSubstr("broken.kvx")));
}

TEST_F(FilmFolderTest, RenamesWithAllThatKnowsTheFilmsAndBack) {
    for (const char* const beside : {"a.slit.json", "a.track.json", "a.srt"})
        (void)m_folder.add(beside, beside);
    renameFilms(m_folder.path(), m_names);
    EXPECT_EQ(test::contentOf(path("Ann 1.slit.json")), "a.slit.json");
    EXPECT_EQ(test::contentOf(path("Ann 1.track.json")), "a.track.json");
    EXPECT_EQ(test::contentOf(path("Ann 1.srt")), "a.srt");
    EXPECT_THAT(films(), ElementsAre("Ann 1.mp4", "Ann 2.mp4", "c.mp4"));
    EXPECT_THAT(run().videoname, ElementsAre("Ann 1.mp4", "Ann 2.mp4"));
    EXPECT_EQ(readFilmTags(m_folder.path()).films.at(0).film, "Ann 1.mp4");
    renameFilms(m_folder.path(), {{"c.mp4", "Fixed.mp4"}});
    EXPECT_THAT(run().fixcameras, ElementsAre("Fixed.mp4"));
    EXPECT_FALSE(interruptedRenaming(m_folder.path()));

    renameFilms(m_folder.path(), {{"Fixed.mp4", "c.mp4"}});
    renameFilms(m_folder.path(), reversed(m_names));
    EXPECT_THAT(films(), ElementsAre("a.mp4", "b.mp4", "c.mp4"));
    EXPECT_THAT(run().videoname, ElementsAre("a.mp4", "b.mp4"));
    EXPECT_EQ(test::contentOf(path("a.mp4")), "a.mp4") << "each its own again";
    EXPECT_TRUE(fs::exists(path("a.slit.json")));
}

TEST_F(FilmFolderTest, RefusesNamesThatAreTakenAndTouchesNothing) {
    EXPECT_THROW(renameFilms(m_folder.path(), {{"a.mp4", "x.mp4"}, {"b.mp4", "c.mp4"}}), FileError);
    EXPECT_THROW(renameFilms(m_folder.path(), {{"a.mp4", "../x.mp4"}}), FileError);
    EXPECT_THROW(renameFilms(m_folder.path(), {{"a.mp4", "x.mp4"}, {"b.mp4", "x.mp4"}}), FileError);
    EXPECT_THAT(films(), ElementsAre("a.mp4", "b.mp4", "c.mp4"));
    EXPECT_THAT(m_folder.names(),
                UnorderedElementsAre("a.mp4", "b.mp4", "c.mp4", "race.kvx", "film-tags.json"));
}

TEST_F(FilmFolderTest, TakesFilmsBackWhereWhatKnowsThemCannotFollow) {
    // What is written takes the place of a folder only where that can be replaced.
    fs::remove(path("film-tags.json"));
    fs::create_directory(path("film-tags.json"));
    EXPECT_THROW(renameFilms(m_folder.path(), m_names), FileError);
    EXPECT_THAT(films(), ElementsAre("a.mp4", "b.mp4", "c.mp4"));
    EXPECT_THAT(run().videoname, ElementsAre("a.mp4", "b.mp4"));
}

TEST_F(FilmFolderTest, CompletesOrUndoesWhatWasCutOffAnywhere) {
    for (std::size_t moved = 0; moved <= 2; ++moved) {
        cutOffAfter(moved);
        EXPECT_EQ(interruptedRenaming(m_folder.path()), m_names);
        EXPECT_THROW(renameFilms(m_folder.path(), {{"c.mp4", "d.mp4"}}), FileError)
            << "the one before comes first";
        completeRenaming(m_folder.path());
        EXPECT_THAT(films(), ElementsAre("Ann 1.mp4", "Ann 2.mp4", "c.mp4")) << moved;
        EXPECT_THAT(run().videoname, ElementsAre("Ann 1.mp4", "Ann 2.mp4")) << moved;
        renameFilms(m_folder.path(), reversed(m_names));

        cutOffAfter(moved);
        undoRenaming(m_folder.path());
        EXPECT_THAT(films(), ElementsAre("a.mp4", "b.mp4", "c.mp4")) << moved;
        EXPECT_THAT(run().videoname, ElementsAre("a.mp4", "b.mp4")) << moved;
        EXPECT_FALSE(interruptedRenaming(m_folder.path()));
    }
}

TEST_F(FilmFolderTest, LeavesAForeignFileUnderTheNewNameAlone) {
    cutOffAfter(0);
    (void)m_folder.add("Ann 2.mp4", "another film");
    EXPECT_THROW(completeRenaming(m_folder.path()), FileError);
    EXPECT_TRUE(interruptedRenaming(m_folder.path())) << "it can still be undone";
    undoRenaming(m_folder.path());
    EXPECT_EQ(test::contentOf(path("a.mp4")), "a.mp4");
    EXPECT_EQ(test::contentOf(path("b.mp4")), "b.mp4");
    EXPECT_EQ(test::contentOf(path("Ann 2.mp4")), "another film");
}

TEST_F(FilmFolderTest, NeverReplacesTagsThatItCannotRead) {
    (void)m_folder.add("film-tags.json", "by hand");
    EXPECT_THROW(addFilmTag(path("b.mp4"), {"Boof", CMTime{1, 50, 1, 0}}), DecodeError);
    EXPECT_EQ(test::contentOf(path("film-tags.json")), "by hand");
    fs::remove(path("film-tags.json"));
    addFilmTag(path("b.mp4"), {"Boof", CMTime{1, 50, 1, 0}});
    EXPECT_FALSE(removeFilmTag(path("b.mp4"), {"Boof", CMTime{2, 50, 1, 0}}));
    EXPECT_TRUE(removeFilmTag(path("b.mp4"), {"Boof", CMTime{1, 50, 1, 0}}));
    EXPECT_FALSE(fs::exists(path("film-tags.json"))) << "none is left";
}

} // namespace
} // namespace kavela
