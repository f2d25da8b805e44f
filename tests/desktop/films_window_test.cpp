#include "desktop/folder/films_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/fetch/fetch_window.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/film_view.h"
#include "desktop/folder/film_browser.h"
#include "desktop/folder/film_playing.h"
#include "desktop/folder/film_tiles.h"
#include "desktop/folder/rename_films_dialog.h"
#include "desktop/folder/tag_mode.h"
#include "desktop/numbered_film.h"
#include "desktop/share/share_window.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/document.h"
#include "splittaking/folder/film_tags.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

/// The window of films, over a folder of films whose frames carry their numbers.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::desktop;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

constexpr int FilmPatience = 20000; // milliseconds

/// Two seconds of the numbered film; they begin with its first frame.
fs::path shortFilm() {
    const fs::path kept = numberedFilm().parent_path() / "numbered-two-seconds.mp4";
    if (fs::exists(kept))
        return kept;
    const fs::path fresh = kept.string() + '.' + std::to_string(::getpid()) + ".mp4";
    const std::string command = "ffmpeg -v error -y -i '" + numberedFilm().string() +
                                "' -c copy -t 2 '" + fresh.string() + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
    fs::rename(fresh, kept);
    return kept;
}

class FilmsWindowTest : public ::testing::Test {
protected:
    FilmsWindowTest() {
        fs::create_directory(films());
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setChoice([this](const Alert& question, const QStringList&) {
            m_questions.push_back(question.text);
            return m_choice;
        });
    }
    ~FilmsWindowTest() override {
        m_window.reset();
        disk::waitForAll();
    }

    [[nodiscard]] fs::path films() const { return m_folder.path() / "films"; }
    [[nodiscard]] QString pathOf(const char* name) const {
        return QString::fromStdString((films() / name).string());
    }
    void addFilm(const char* name) const { fs::copy_file(shortFilm(), films() / name); }
    /// A split file that times these films from a frame on, each.
    void addRace(const std::vector<std::pair<std::string, int>>& starts) const {
        splittakerdata031 race;
        for (const auto& [film, frame] : starts) {
            athletedata031 run;
            run.names = {"Ann Lee"};
            run.videoname = {film};
            run.sectioninfo.times = {0.5};
            run.sectioninfo.cmtimes = {{CMTime{frame + 25, 50, 1, 0}}};
            race.athletes.push_back(run);
        }
        std::ofstream(films() / "race.kvx", std::ios::binary) << encode(race);
    }
    FilmsWindow& open() {
        m_window = std::make_unique<FilmsWindow>(m_workspace);
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        m_window->show();
        EXPECT_TRUE(m_window->open(QString::fromStdString(films().string())));
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return !m_window->shelf().isReading(); }, FilmPatience));
        return *m_window;
    }
    [[nodiscard]] int numberShown() const {
        const FilmPicture* const picture = m_window->stage().deck().shown(0);
        return picture && !picture->isPreview ? numberIn(picture->image) : -1;
    }
    [[nodiscard]] bool comesTo(const QString& film, int number) const {
        return QTest::qWaitFor(
            [&] { return m_window->stage().films().value(0) == film && numberShown() == number; },
            FilmPatience);
    }
    [[nodiscard]] bool comesToRest() const {
        return QTest::qWaitFor([this] { return m_window->stage().isAtEnd(); }, FilmPatience);
    }
    [[nodiscard]] QStringList shown() const {
        QStringList names;
        for (const QString& path : m_window->browser().shownFilms())
            names.append(path.section('/', -1));
        return names;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    int m_choice = -1;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<FilmsWindow> m_window;
};

TEST_F(FilmsWindowTest, FiltersListTilesAndCountAlike) {
    for (const char* const name :
         {"12 Ann Lee K1W Semifinal.mp4", "12 Ann Lee K1W Final.mp4", "3 Bo Fox C1M Semifinal.mp4"})
        addFilm(name);
    m_workspace.remember("filmNames", {"{bib} {name} {category} {phase}"});
    FilmsWindow& window = open();
    EXPECT_THAT(shown(), SizeIs(3));
    window.browser().filterLine().setText("k1w 12 semi");
    EXPECT_THAT(shown(), ElementsAre("12 Ann Lee K1W Semifinal.mp4"));
    EXPECT_EQ(window.browser().tiles().count(), 1);
    EXPECT_EQ(window.browser()
                  .tiles()
                  .textOf(shown().isEmpty() ? QString() : pathOf("12 Ann Lee K1W Semifinal.mp4"))
                  .title,
              "Ann Lee");
    window.browser().filterLine().clear();
    EXPECT_EQ(window.browser().tiles().count(), 3);
}

TEST_F(FilmsWindowTest, LooksAtEveryFilmAndKeepsThePictures) {
    addFilm("a.mp4");
    (void)std::ofstream(films() / "b.mp4");
    FilmsWindow& window = open();
    const auto isLookedAt = [&](const char* name) {
        return window.looks().lookOf(pathOf(name)) != nullptr;
    };
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return isLookedAt("a.mp4") && isLookedAt("b.mp4"); }, FilmPatience));
    EXPECT_FALSE(window.looks().lookOf(pathOf("a.mp4"))->picture.isNull());
    EXPECT_NEAR(window.looks().lookOf(pathOf("a.mp4"))->seconds.value_or(0), 2, 0.1);
    EXPECT_FALSE(window.looks().lookOf(pathOf("b.mp4"))->fault.isEmpty()) << "it says why";
}

TEST_F(FilmsWindowTest, OfTwoHundredFilmsThoseInSightAreLookedAtFirst) {
    constexpr int Many = 200;
    addFilm("1 Ann Lee K1W Final.mp4");
    for (int bib = 2; bib <= Many; ++bib)
        fs::create_hard_link(films() / "1 Ann Lee K1W Final.mp4",
                             films() / (std::to_string(bib) + " Ann Lee K1W Final.mp4"));
    m_workspace.remember("filmNames", {"{bib} {name} {category} {phase}"});
    m_window = std::make_unique<FilmsWindow>(m_workspace, QString()); // no picture from before
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->show();
    ASSERT_TRUE(m_window->open(QString::fromStdString(films().string())));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_window->shelf().isReading(); }, FilmPatience));
    ASSERT_THAT(shown(), SizeIs(Many));
    FilmBrowser& browser = m_window->browser();
    browser.filterLine().setText("117");
    EXPECT_THAT(shown(), ElementsAre("117 Ann Lee K1W Final.mp4"));
    browser.filterLine().clear();
    ASSERT_THAT(shown(), SizeIs(Many));

    QStringList looked;
    QObject::connect(&m_window->looks(), &ThumbnailStore::looked,
                     [&](const QString& film) { looked.append(film); });
    m_window->looks().forget();
    looked.clear();
    ColumnTable& list = browser.list();
    list.scrollToBottom();
    const QStringList seen = browser.shownFilms().mid(list.rowAt(0));
    ASSERT_GT(seen.size(), 3);
    ASSERT_LT(seen.size(), Many / 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return looked.size() >= seen.size() - 1; }, FilmPatience));
    for (const QString& film : looked.mid(0, seen.size() - 1)) // two are made at a time
        EXPECT_TRUE(seen.contains(film)) << film.toStdString();
    const QModelIndex cell = list.model()->index(list.rowAt(0), 1);
    const QImage picture =
        cell.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(64, 36)).toImage();
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.pixelColor(picture.rect().center()).alpha(), 255) << "its line shows it";
    m_window.reset();
    EXPECT_LT(looked.size(), Many) << "closing does not wait for the rest";
}

TEST_F(FilmsWindowTest, PlaysOneAfterTheOtherAndNotesThemAsWatched) {
    addFilm("a.mp4");
    addFilm("b.mp4");
    m_workspace.setPreference("autoplaynext", true);
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    EXPECT_FALSE(window.stage().deck().isPlaying()) << "choosing does not play";
    window.playing().playChosen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.stage().films().value(0) == pathOf("b.mp4"); },
                                FilmPatience));
    EXPECT_TRUE(window.shelf().isWatched(pathOf("a.mp4")));
    EXPECT_FALSE(window.shelf().isWatched(pathOf("b.mp4")));
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return window.shelf().isWatched(pathOf("b.mp4")); }, FilmPatience));
    EXPECT_THAT(m_workspace.preferences().array("watchedfiles"),
                ElementsAre(pathOf("a.mp4").toStdString(), pathOf("b.mp4").toStdString()));
}

TEST_F(FilmsWindowTest, ShowsAFilmWhosePictureCameLongBeforeItWasShown) {
    addFilm("a.mp4");
    addFilm("b.mp4");
    FilmDeck& deck = open().stage().deck();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    deck.openAhead(pathOf("b.mp4"));
    QTest::qWait(500);
    deck.open({pathOf("b.mp4")});
    EXPECT_TRUE(QTest::qWaitFor([&] { return deck.stamp(0).has_value(); }, 3000));
}

TEST_F(FilmsWindowTest, StaysAtTheEndWithoutThePreferenceAndAJumpIsNotWatched) {
    addFilm("a.mp4");
    addFilm("b.mp4");
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    window.stage().deck().seek(1.8);
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 90));
    window.stage().deck().play(1);
    ASSERT_TRUE(comesToRest());
    QApplication::processEvents();
    EXPECT_EQ(window.stage().films().value(0), pathOf("a.mp4"));
    EXPECT_FALSE(window.shelf().isWatched(pathOf("a.mp4")));
}

TEST_F(FilmsWindowTest, AClickPlaysOnlyWherePreferred) {
    addFilm("a.mp4");
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    ColumnTable& list = window.browser().list();
    const auto click = [&] {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.cellAt(0, 1)).center());
    };
    click();
    EXPECT_FALSE(window.stage().deck().isPlaying());
    m_workspace.setPreference("playonclick", true);
    click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.stage().deck().isPlaying(); }, FilmPatience));
}

TEST_F(FilmsWindowTest, BeginsAtTheFirstMarkAndLaysTwoFilmsInStep) {
    addFilm("a.mp4");
    addFilm("b.mp4");
    addRace({{"a.mp4", 20}, {"b.mp4", 35}});
    m_workspace.setPreference("startinCMTime", true);
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 20));
    window.browser().list().selectAll();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const FilmDeck& deck = window.stage().deck();
            return deck.cameras() == 2 && deck.stamps().size() == 2 && numberShown() == 20 &&
                   numberIn(deck.shown(1)->image) == 35;
        },
        FilmPatience));
}

TEST_F(FilmsWindowTest, TagsByAKeyAndPlaysWhatIsAroundATag) {
    fs::copy_file(numberedFilm(), films() / "a.mp4"); // half a minute
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    window.tags().setCurrentName("Boof");
    window.stage().deck().seek(10.0);
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 500));
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window.browser().list(), Qt::Key_M);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return window.shelf().film(pathOf("a.mp4"))->tags.size() == 1; }, FilmPatience));
    disk::waitForAll();
    EXPECT_EQ(readFilmTags(films()).films.at(0).tags.at(0).name, "Boof");
    EXPECT_THAT(m_workspace.preferences().array("savedtags"), ElementsAre("Boof"));

    window.browser().setPage(FilmBrowser::Tags);
    window.browser().tags().choose(0);
    window.playing().playChosen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.stage().deck().isPlaying(); }, FilmPatience));
    EXPECT_GE(window.stage().deck().position(), 7 - 0.1);
    ASSERT_TRUE(comesToRest());
    EXPECT_NEAR(window.stage().deck().end(), 13, 0.05) << "three seconds behind it";
    window.browser().setPage(FilmBrowser::List);
    window.playing().showChosen();
    EXPECT_GT(window.stage().deck().end(), 25) << "the whole film again";
}

TEST_F(FilmsWindowTest, RenamesInOneStepThatIsUndoneWithSplitFileAndWatchedDot) {
    addFilm("Lee one.mp4");
    addFilm("Fox two.mp4");
    addRace({{"Lee one.mp4", 20}});
    FilmsWindow& window = open();
    const auto isThere = [&](const char* name) {
        return QTest::qWaitFor(
            [&] { return window.shelf().film(pathOf(name)) && !window.shelf().isReading(); },
            FilmPatience);
    };
    window.shelf().setWatched({pathOf("Lee one.mp4")}, true);
    window.shelf().rename({{"Lee one.mp4", "Lee 1.mp4"}, {"Fox two.mp4", "Fox 2.mp4"}});
    ASSERT_TRUE(isThere("Lee 1.mp4"));
    EXPECT_TRUE(window.shelf().isWatched(pathOf("Lee 1.mp4")));
    EXPECT_EQ(window.shelf().film(pathOf("Lee 1.mp4"))->names.at(0), "Ann Lee") << "of the file";
    EXPECT_TRUE(fs::exists(films() / "Fox 2.mp4"));
    window.shelf().undo();
    ASSERT_TRUE(isThere("Lee one.mp4"));
    EXPECT_EQ(window.shelf().film(pathOf("Lee one.mp4"))->names.at(0), "Ann Lee");
    EXPECT_TRUE(window.shelf().isWatched(pathOf("Lee one.mp4")));
    EXPECT_TRUE(fs::exists(films() / "Fox two.mp4"));
    EXPECT_FALSE(window.shelf().canUndo());
    EXPECT_TRUE(window.shelf().canRedo());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(FilmsWindowTest, UndoesTagsAndRenamingsInTheOrderInWhichTheyWereMade) {
    addFilm("Lee one.mp4");
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("Lee one.mp4"), 0));
    FilmShelf& shelf = window.shelf();
    const auto moments = [&](const char* name) {
        disk::waitForAll();
        std::vector<std::int64_t> found;
        for (const taggedfilm001& film : readFilmTags(films()).films)
            for (const filmtag001& tag : film.tags)
                found.push_back(film.film == name ? tag.moment.value : -1);
        return found;
    };
    const FilmTag early{"Boof", {10, 50, 1, 0}, false};
    const FilmTag late{"Late", {60, 50, 1, 0}, false};
    shelf.addTag(pathOf("Lee one.mp4"), early);
    shelf.rename({{"Lee one.mp4", "Lee 1.mp4"}});
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return shelf.film(pathOf("Lee 1.mp4")) && !shelf.isReading(); }, FilmPatience));
    shelf.addTag(pathOf("Lee 1.mp4"), late);
    shelf.moveTag(pathOf("Lee 1.mp4"), early, {20, 50, 1, 0});
    shelf.removeTag(pathOf("Lee 1.mp4"), late);
    EXPECT_THAT(moments("Lee 1.mp4"), ElementsAre(20));
    shelf.undo();
    EXPECT_THAT(moments("Lee 1.mp4"), UnorderedElementsAre(20, 60)) << "what was removed is back";
    shelf.undo();
    EXPECT_THAT(moments("Lee 1.mp4"), UnorderedElementsAre(10, 60)) << "a move is one step";
    shelf.undo();
    EXPECT_TRUE(fs::exists(films() / "Lee 1.mp4")) << "the name is older than the tag";
    EXPECT_THAT(moments("Lee 1.mp4"), ElementsAre(10));
    shelf.undo();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return shelf.film(pathOf("Lee one.mp4")) && !shelf.isReading(); }, FilmPatience));
    shelf.undo();
    EXPECT_THAT(moments("Lee one.mp4"), IsEmpty());
    EXPECT_FALSE(shelf.canUndo());
    shelf.redo();
    EXPECT_THAT(moments("Lee one.mp4"), ElementsAre(10));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(FilmsWindowTest, AFrameTakesATagOfOneNameOnce) {
    addFilm("a.mp4");
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    for (int press = 0; press < 3; ++press)
        window.tags().markHere();
    EXPECT_THAT(window.shelf().film(pathOf("a.mp4"))->tags, SizeIs(1));
}

TEST_F(FilmsWindowTest, TheFirstKeysAreTheFilmsAndFromTheFilterTheWayDownLeadsToThem) {
    addFilm("a.mp4");
    addFilm("b.mp4");
    FilmsWindow& window = open();
    QApplication::setActiveWindow(&window);
    FilmBrowser& browser = window.browser();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    EXPECT_EQ(QApplication::focusWidget(), &browser.list());
    for (const auto page : {FilmBrowser::List, FilmBrowser::Tiles}) {
        browser.setPage(page);
        QWidget* const front =
            page == FilmBrowser::List ? static_cast<QWidget*>(&browser.list()) : &browser.tiles();
        for (const auto key : {Qt::Key_Down, Qt::Key_Escape}) {
            window.typeFilter();
            ASSERT_EQ(QApplication::focusWidget(), &browser.filterLine());
            QTest::keyClick(&browser.filterLine(), key);
            EXPECT_EQ(QApplication::focusWidget(), front);
        }
    }
    browser.filterLine().setText("nobody");
    EXPECT_THAT(browser.list().accessibleDescription().toStdString(), HasSubstr("filter"))
        << "a folder that has films is not called empty";
}

TEST_F(FilmsWindowTest, OffersToUndoARenamingThatWasCutOff) {
    addFilm("now.mp4");
    std::ofstream(films() / ".kavela-renaming.json")
        << R"({"films":[{"from":"before.mp4","to":"now.mp4"}]})";
    m_choice = 1;
    FilmsWindow& window = open();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return window.shelf().film(pathOf("before.mp4")) != nullptr; }, FilmPatience));
    EXPECT_THAT(m_questions, SizeIs(1));
    EXPECT_FALSE(fs::exists(films() / ".kavela-renaming.json"));
    EXPECT_FALSE(fs::exists(films() / "now.mp4"));
}

TEST_F(FilmsWindowTest, ShowsWhatBecomesOfEachNameBeforeItIsDone) {
    ListedFilm film;
    film.path = "/films/a.mp4";
    film.names = {"Ann Lee"};
    ListedFilm unknown;
    unknown.path = "/films/b.mp4";
    RenameFilmsDialog dialog({film, unknown}, {"a.mp4", "b.mp4"}, "{name}", nullptr);
    EXPECT_EQ(dialog.names(), (FilmRenames{{"a.mp4", "Ann Lee.mp4"}}));
    EXPECT_THAT(dialog.planned().at(1).fault, HasSubstr("name"));
    dialog.patternLine().setText("{nmae}");
    EXPECT_FALSE(dialog.renameButton().isEnabled());
    EXPECT_THAT(dialog.names(), IsEmpty());
}

TEST_F(FilmsWindowTest, CutsBetweenTheEndsThatWereSetInEitherOrder) {
    addFilm("a.mp4");
    FilmsWindow& window = open();
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 0));
    EXPECT_FALSE(window.cutting().canCut());
    QSignalSpy refused(&window.cutting(), &FilmCutting::refused);
    QTest::keyClick(&window, Qt::Key_X);
    ASSERT_EQ(refused.size(), 1);
    EXPECT_THAT(refused.back().front().toString().toStdString(), HasSubstr("the ends of the cut"));
    window.stage().deck().seek(1.2);
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 60));
    window.tags().setCutFirst();
    QTest::keyClick(&window, Qt::Key_X, Qt::ShiftModifier);
    ASSERT_EQ(refused.size(), 2);
    EXPECT_THAT(refused.back().front().toString().toStdString(), HasSubstr("no end yet"));
    window.stage().deck().seek(0.4);
    ASSERT_TRUE(comesTo(pathOf("a.mp4"), 20));
    window.tags().setCutLast();
    ASSERT_TRUE(window.cutting().canCut());
    QStringList targets;
    for (const auto way : {FilmCutting::Way::Copy, FilmCutting::Way::Exact}) {
        targets << window.cutting().proposedTarget();
        window.cutting().cut(way, targets.back());
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.shelf().film(targets.back()) != nullptr; },
                                    FilmPatience));
    }
    for (const QString& target : targets) {
        window.browser().choose(target);
        EXPECT_TRUE(comesTo(target, 20)) << "its first frame is the one that was wanted";
    }
}

TEST_F(FilmsWindowTest, ComesBackWithTheSession) {
    addFilm("a.mp4");
    const QString shared = QString::fromStdString((m_folder.path() / "shared").string());
    ASSERT_TRUE(QDir().mkpath(shared));
    const auto kept = [this] {
        return Autosave(QString::fromStdString((m_folder.path() / "kept").string()));
    };
    {
        Desktop program(m_workspace, kept());
        program.openFilms(pathOf("a.mp4"));
        ASSERT_THAT(program.windowsOf<FilmsWindow>(), SizeIs(1));
        program.openFilms(QString::fromStdString(films().string()));
        EXPECT_THAT(program.windowsOf<FilmsWindow>(), SizeIs(1)) << "it comes to the front";
        program.openFetch();
        program.openShare(shared); // later, so that it has to tell of its folder by itself
    }
    Desktop next(m_workspace, kept());
    ASSERT_TRUE(next.restoreSession());
    ASSERT_THAT(next.windowsOf<ShareWindow>(), SizeIs(1));
    EXPECT_EQ(next.windowsOf<ShareWindow>().front()->paths(), QStringList{shared});
    EXPECT_THAT(next.windowsOf<TakingWindow>(), IsEmpty()) << "what it shares is not to be timed";
    ASSERT_THAT(next.windowsOf<FilmsWindow>(), SizeIs(1));
    EXPECT_EQ(next.windowsOf<FilmsWindow>().front()->shelf().folder().toStdString(),
              films().string());
    EXPECT_THAT(next.windowsOf<FetchWindow>(), SizeIs(1)) << "it shows no file, and was open";
}

TEST_F(FilmsWindowTest, AFolderAmongTheRecentFilesComesBackInTheirWindow) {
    addFilm("a.mp4");
    const QString folder = QString::fromStdString(films().string());
    open();
    m_window.reset();
    ASSERT_TRUE(m_workspace.recentFiles().contains(folder));
    Desktop program(m_workspace,
                    Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
    emit m_workspace.openRequested(folder);
    ASSERT_THAT(program.windowsOf<FilmsWindow>(), SizeIs(1)) << "not timed, which it could be";
    EXPECT_EQ(program.windowsOf<FilmsWindow>().front()->shelf().folder(), folder);
}

} // namespace
} // namespace kavela::test
