#include "desktop/patience.h"
#include "desktop/taking/day/day_desk.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/busy_threads.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/film_view.h"
#include "desktop/numbered_film.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/day/day_panel.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QLabel>
#include <QTest>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::DayDesk;
using desktop::TakingWindow;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double RaceMoment = 7e8;
constexpr const char* ThreeBoats = "7,Ann Lee,K1W,10:00:00\n8,Bo Kim,K1W,10:01:30\n"
                                   "9,Cy Ott,K1W,10:03:00\n";

/// A race with a start list, in whose folder films appear.
class RaceDayTest : public ::testing::Test {
protected:
    RaceDayTest() {
        m_workspace.setAlerts(&m_recorder);
        fs::create_directories(folder());
    }
    void TearDown() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    fs::path folder() const { return m_folder.path() / "race"; }
    fs::path file() const { return folder() / "race.kvx"; }

    static QDateTime midnight() {
        return QDateTime::fromSecsSinceEpoch(
                   static_cast<qint64>(RaceMoment + SecondsFrom1970To2001))
            .date()
            .startOfDay();
    }

    /// A film that began so many seconds behind ten o'clock, by the date of its file.
    static void addFilm(const fs::path& film, int seconds) {
        fs::create_directories(film.parent_path());
        fs::copy_file(numberedFilm(), film);
        setDate(film, seconds);
    }

    static void setDate(const fs::path& film, int seconds) {
        QFile file(QString::fromStdString(film.string()));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const int ended = 36000 + seconds + NumberedFrames / NumberedRate;
        ASSERT_TRUE(file.setFileTime(midnight().addSecs(ended), QFileDevice::FileModificationTime));
    }

    void open() {
        m_window.reset();
        m_window = std::make_unique<TakingWindow>(
            m_workspace,
            desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        desk().films().watched().setPace({50, 0});
        ASSERT_TRUE(m_window->open(QString::fromStdString(file().string())));
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QApplication::processEvents();
    }

    /// A race of so many splits and four gates, without a run.
    void openRace(std::int64_t splits, const char* starts) {
        splittakerdata031 race;
        race.info.totalsplits = splits;
        race.info.gates = 4;
        race.info.date = ReferenceDate{RaceMoment};
        ASSERT_TRUE(saveSplitFile(race, file(), m_recorder.log()));
        ASSERT_NO_FATAL_FAILURE(open());
        desk().takeStarts(parseStartList(starts), "Heats", desk().date());
    }

    DayDesk& desk() const { return m_window->day(); }
    /// With the films that are matched by then.
    const std::vector<DayLine>& lines() const {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !desk().isMatching(); }, Patience));
        return desk().lines();
    }

    bool isFilmed(std::size_t count) const {
        return QTest::qWaitFor([&] { return filmed() == count; }, Patience);
    }
    std::size_t filmed() const {
        return static_cast<std::size_t>(std::ranges::count_if(
            lines(), [](const DayLine& line) { return line.match.has_value(); }));
    }

    /// "7 a.mp4" for each start, without a film the bib alone.
    std::vector<std::string> matched() const { return shown(lines()); }
    std::vector<std::string> shown(const std::vector<DayLine>& lines) const {
        std::vector<std::string> told;
        for (const DayLine& line : lines)
            told.push_back(std::to_string(line.start.bib) +
                           (line.match ? ' ' + desk().nameOfFilm(line.match->from) : ""));
        return told;
    }

    /// "Ann Lee: a.mp4" for each run.
    std::vector<std::string> runs() const {
        std::vector<std::string> told;
        for (int run = 0; run < m_window->document().runCount(); ++run) {
            const athletedata031& record = m_window->document().run(run);
            told.push_back((record.names.empty() ? "" : record.names.front()) + ": " +
                           record.videoname.front());
        }
        return told;
    }

    void press(QKeyCombination keys) {
        ++m_keys;
        if (QApplication::activeWindow() != m_window.get())
            QApplication::setActiveWindow(m_window.get());
        QWidget* const focus = m_window->focusWidget() ? m_window->focusWidget() : m_window.get();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
    }

    std::string told() const {
        return m_window->findChild<desktop::FilmView*>()->flashed().toStdString();
    }

    /// The film of a run is in front and goes on by itself.
    bool playsOn(const std::string& film) {
        const auto& deck = m_window->deck();
        const auto isShown = [&] {
            return !deck.films().isEmpty() &&
                   deck.films().front().endsWith('/' + QString::fromStdString(film)) &&
                   deck.stamp(0).has_value();
        };
        if (!QTest::qWaitFor(isShown, Patience))
            return false;
        const double from = deck.stamp(0)->seconds();
        return QTest::qWaitFor([&] { return isShown() && deck.stamp(0)->seconds() > from; },
                               Patience);
    }

    std::string contentIn(const std::string& name) const { return contentOf(folder() / name); }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{RaceMoment}; }};
    std::unique_ptr<TakingWindow> m_window;
    int m_keys = 0;
};

TEST_F(RaceDayTest, NeedsTwoKeysMoreThanSplitsAndPenaltiesForARun) {
    addFilm(folder() / "IMG_0001.mp4", 2);
    addFilm(folder() / "IMG_0002.mp4", 92);
    addFilm(folder() / "IMG_0003.mp4", 182);
    constexpr int Splits = 2;
    ASSERT_NO_FATAL_FAILURE(openRace(Splits, ThreeBoats));
    ASSERT_TRUE(isFilmed(3));
    press(Qt::Key_U);
    const std::vector<std::string> films{"IMG_0001.mp4", "IMG_0002.mp4", "IMG_0003.mp4"};
    for (int run = 0; run < 3; ++run) {
        ASSERT_TRUE(playsOn(films[static_cast<std::size_t>(run)]));
        m_keys = 0;
        int penalties = 0;
        for (int mark = 0; mark <= Splits; ++mark) {
            press(Qt::Key_M);
            if (mark == 1) {
                press(Qt::Key_T);
                press(Qt::Key_F);
                penalties = 2;
            }
            ASSERT_TRUE(playsOn(films[static_cast<std::size_t>(run)]));
        }
        press(Qt::Key_U);
        EXPECT_LE(m_keys, Splits + penalties + 2);
        const auto& timing = m_window->document().run(run).sectioninfo;
        EXPECT_TRUE(timing.isfullrun);
        EXPECT_THAT(timing.pens, ElementsAre(2, 50, 0, 0));
        EXPECT_EQ(lines()[static_cast<std::size_t>(run)].state, StartState::Timed);
    }
    EXPECT_THAT(told(), HasSubstr("No film waits"));
    EXPECT_THAT(runs(), ElementsAre("Ann Lee: IMG_0001.mp4", "Bo Kim: IMG_0002.mp4",
                                    "Cy Ott: IMG_0003.mp4"));
    EXPECT_EQ(m_window->document().run(2).phase, "Heats");
    EXPECT_THAT(desk().glance().text().toStdString(), HasSubstr("No run waiting"));
}

TEST_F(RaceDayTest, NamesAFilmOnceItIsAgreedToAndNeverOverAnother) {
    addFilm(folder() / "IMG_0001.mp4", 2);
    (void)m_folder.add("race/Ann Lee Heats.mp4", "another film");
    const std::uintmax_t bytes = fs::file_size(folder() / "IMG_0001.mp4");
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    ASSERT_TRUE(isFilmed(1));
    press(Qt::Key_U);
    ASSERT_TRUE(playsOn("IMG_0001.mp4"));
    EXPECT_TRUE(fs::exists(folder() / "IMG_0001.mp4")) << "opening it names nothing";
    const auto isCalled = [&](const char* name) {
        return fs::exists(folder() / name) && fs::file_size(folder() / name) == bytes &&
               contentIn("Ann Lee Heats.mp4") == "another film" &&
               m_window->document().run(0).videoname.front() == name;
    };
    press(Qt::Key_G);
    EXPECT_TRUE(isCalled("Ann Lee Heats (2).mp4"));
    EXPECT_FALSE(fs::exists(folder() / "IMG_0001.mp4"));
    EXPECT_TRUE(playsOn("Ann Lee Heats (2).mp4"));
    EXPECT_EQ(lines()[0].match->state, MatchState::Agreed);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_TRUE(isCalled("IMG_0001.mp4"));
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    EXPECT_TRUE(isCalled("Ann Lee Heats (2).mp4"));
    press(Qt::CTRL | Qt::Key_Z);
    press(Qt::CTRL | Qt::Key_Z); // the run too
    EXPECT_EQ(m_window->document().runCount(), 0);
    EXPECT_TRUE(isFilmed(1));
    EXPECT_THAT(matched(), ElementsAre("7 IMG_0001.mp4", "8", "9"));
}

TEST_F(RaceDayTest, MovesFilmsByOneKeyWithTheRunsThatWereOpened) {
    addFilm(folder() / "a.mp4", 0);
    addFilm(folder() / "b.mp4", 40);
    addFilm(folder() / "c.mp4", 130);
    ASSERT_NO_FATAL_FAILURE(openRace(2, "7,Ann Lee\n8,Bo Kim\n9,Cy Ott"));
    ASSERT_TRUE(isFilmed(3));
    press(Qt::Key_U);
    press(Qt::Key_U);
    ASSERT_THAT(runs(), ElementsAre("Ann Lee: a.mp4", "Bo Kim: b.mp4"));
    m_window->document().editRun(1, "typed", [](athletedata031& run) { run.names = {"Typed"}; });
    press(Qt::CTRL | Qt::Key_Up);
    ASSERT_EQ(desk().front(), lines()[0].start.id);
    press(Qt::ALT | Qt::Key_Down); // the first film is missing
    EXPECT_THAT(matched(), ElementsAre("7", "8 a.mp4", "9 b.mp4"));
    EXPECT_THAT(runs(), ElementsAre("Bo Kim: a.mp4", "Typed: b.mp4")) << "what was typed stays";
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(matched(), ElementsAre("7 a.mp4", "8 b.mp4", "9 c.mp4"));
    press(Qt::ALT | Qt::Key_Up); // the first one shows a forerunner
    EXPECT_THAT(matched(), ElementsAre("7 b.mp4", "8 c.mp4", "9"));
    EXPECT_THAT(runs(), ElementsAre(": a.mp4", "Typed: b.mp4"));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(runs(), ElementsAre("Ann Lee: a.mp4", "Typed: b.mp4"));
}

TEST_F(RaceDayTest, MatchesBesideTheWindowAndActsOnWhatIsThere) {
    addFilm(folder() / "a.mp4", 0);
    addFilm(folder() / "b.mp4", 90);
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    ASSERT_TRUE(isFilmed(2));
    const std::int64_t first = lines()[0].start.id;
    {
        const BusyThreads busy;
        desk().editStart(first, [](DayStart& start) { start.out = "DNS"; });
        EXPECT_TRUE(desk().isMatching());
        EXPECT_THAT(shown(desk().lines()), ElementsAre("7 a.mp4", "8 b.mp4", "9"))
            << "what is shown stays meanwhile";
        EXPECT_EQ(desk().lines()[0].state, StartState::NotStarted) << "the list is as it was typed";
        m_window->undo();
        press(Qt::ALT | Qt::Key_Down);
        EXPECT_FALSE(desk().isMatching());
        EXPECT_THAT(shown(desk().lines()), ElementsAre("7", "8 a.mp4", "9 b.mp4"));
    }
    EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(Patience));
    QApplication::processEvents();
    EXPECT_THAT(matched(), ElementsAre("7", "8 a.mp4", "9 b.mp4")) << "older answers count no more";
    m_window->document().discard();
}

TEST_F(RaceDayTest, SaysNothingOfClocksOnceTheListIsTakenBack) {
    addFilm(folder() / "a.mp4", 3600);
    addFilm(folder() / "b.mp4", 3690);
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    auto* const note = m_window->findChild<QLabel*>("dayNote");
    auto* const agree = m_window->findChild<QWidget*>("dayOffset");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !agree->isHidden(); }, Patience))
        << note->text().toStdString();
    m_window->undo();
    ASSERT_THAT(lines(), IsEmpty());
    QApplication::processEvents();
    EXPECT_TRUE(agree->isHidden());
    EXPECT_EQ(note->text().toStdString(), "");
    m_window->document().discard();
}

TEST_F(RaceDayTest, KeepsTheDayWithoutSavingTheRace) {
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    press(Qt::CTRL | Qt::Key_Down);
    press(Qt::SHIFT | Qt::Key_S);
    press(Qt::CTRL | Qt::Key_Down);
    press(Qt::SHIFT | Qt::Key_F);
    press(Qt::SHIFT | Qt::Key_F);
    const auto out = [this] {
        std::string told;
        for (const DayLine& line : lines())
            told += line.start.out + ';';
        return told;
    };
    EXPECT_EQ(out(), ";DNS;;");
    m_window->document().discard();
    ASSERT_NO_FATAL_FAILURE(open());
    EXPECT_EQ(out(), ";DNS;;");
    EXPECT_EQ(desk().glance().isVisible(), true);
    desk().editStart(lines()[0].start.id, [](DayStart& start) { start.name = "Ána"; });
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(lines()[0].start.name, "Ann Lee");
    m_window->document().discard();
}

TEST_F(RaceDayTest, KnowsRunsThatWereTimedBeforeThereWasAList) {
    splittakerdata031 race;
    race.info.totalsplits = 1;
    race.info.date = ReferenceDate{RaceMoment};
    for (const char* crew : {"Ann Lee", "Bea Roe"}) {
        athletedata031 run;
        run.names = {crew};
        run.phase = "Heats";
        run.sectioninfo.isfullrun = *crew == 'A';
        race.athletes.push_back(run);
    }
    ASSERT_TRUE(saveSplitFile(race, file(), m_recorder.log()));
    ASSERT_NO_FATAL_FAILURE(open());
    const StartList list = parseStartList("1,Ann Lee,K1W,10:00\n2,Bea Roe,K1W,10:01\n");
    desk().takeStarts(list, "Heats", desk().date());
    ASSERT_EQ(lines().size(), 2U);
    EXPECT_EQ(lines()[0].state, StartState::Timed);
    EXPECT_EQ(lines()[1].state, StartState::Waiting);
    desk().takeStarts(list, "Final", desk().date());
    EXPECT_EQ(std::ranges::count(lines(), StartState::Timed, &DayLine::state), 1) << "another run";
}

TEST_F(RaceDayTest, LeavesAFilmAloneThatIsStillWritten) {
    const std::string whole = contentOf(numberedFilm());
    (void)m_folder.add("race/a.mp4", whole.substr(0, whole.size() / 2));
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    const auto& watched = desk().films().watched();
    ASSERT_TRUE(QTest::qWaitFor([&] { return watched.growing() == 1; }, Patience));
    EXPECT_EQ(filmed(), 0U);
    press(Qt::Key_U);
    EXPECT_THAT(told(), HasSubstr("No film waits"));
    EXPECT_THAT(runs(), IsEmpty());
    (void)m_folder.add("race/a.mp4", whole);
    setDate(folder() / "a.mp4", 0);
    EXPECT_TRUE(isFilmed(1));
}

TEST_F(RaceDayTest, CopiesFromACardAndNeedsItNoMore) {
    const fs::path card = m_folder.path() / "card";
    addFilm(card / "DCIM/100/IMG_0001.mp4", 0);
    addFilm(card / "DCIM/100/IMG_0002.mp4", 90);
    (void)m_folder.add("race/IMG_0002.mp4", "of yesterday");
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    desk().watchFolder(QString::fromStdString(card.string()));
    const auto isHere = [&](const char* from) {
        const DaySource* const source = desk().films().source(from);
        return source && source->isHere;
    };
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return isHere("IMG_0001.mp4") && isHere("IMG_0002 (2).mp4"); }, Patience));
    fs::remove_all(card);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desk().films().watched().isCardAway(); }, Patience));
    EXPECT_THAT(matched(), ElementsAre("7 IMG_0001.mp4", "8 IMG_0002 (2).mp4", "9"));
    EXPECT_GE(lines()[0].match->confidence, LikelyConfidence) << "the copy has the film's date";
    EXPECT_EQ(contentIn("IMG_0002.mp4"), "of yesterday");
    press(Qt::Key_U);
    EXPECT_TRUE(playsOn("IMG_0001.mp4"));
    m_window->document().discard();
}

TEST_F(RaceDayTest, GivesASingleFilmToABoatInTheTable) {
    addFilm(folder() / "a.mp4", 0);
    addFilm(folder() / "b.mp4", 90);
    ASSERT_NO_FATAL_FAILURE(openRace(2, ThreeBoats));
    ASSERT_TRUE(isFilmed(2));
    m_window->showDay(true);
    auto& table = m_window->dayPanel().table();
    constexpr int FilmColumn = 6;
    const auto type = [&](int place, const char* film) {
        return table.model()->setData(table.cellAt(place, FilmColumn), QString(film), Qt::EditRole);
    };
    EXPECT_FALSE(type(2, "c.mp4")) << "there is none";
    EXPECT_TRUE(type(2, "a.mp4"));
    EXPECT_THAT(matched(), ElementsAre("7 a.mp4", "8 b.mp4", "9 a.mp4")) << "two boats on one film";
    EXPECT_TRUE(type(0, ""));
    EXPECT_THAT(matched(), ElementsAre("7", "8 b.mp4", "9 a.mp4"));
    table.choose(2);
    press(Qt::Key_O);
    ASSERT_TRUE(playsOn("a.mp4"));
    EXPECT_THAT(runs(), ElementsAre("Cy Ott: a.mp4"));
}

} // namespace
} // namespace kavela::test
