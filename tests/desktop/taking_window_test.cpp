#include "desktop/patience.h"
#include "desktop/taking/taking_window.h"

#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_view.h"
#include "desktop/refusals.h"
#include "desktop/saving.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/course_dialog.h"
#include "desktop/taking/gate_strip.h"
#include "films/season_films.h"
#include "sample/races.h"
#include "splitdata/loader.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::FilmDeck;
using desktop::FilmPicture;
using desktop::TakingWindow;
using desktop::Workspace;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Two runs of a race of the sample season, and their films.
struct Evening {
    splittakerdata031 race;
    std::vector<std::pair<fs::path, std::string>> films;
};

/// Films take seconds to make, and ctest starts a process for each test: they are made once and
/// kept beside the program.
std::string filmOf(const films::PlannedFilm& film) {
    const fs::path kept = fs::path(KAVELA_FILM_FOLDER) / film.name.filename();
    if (fs::exists(kept))
        return contentOf(kept);
    fs::create_directories(kept.parent_path());
    std::string made = films::makeFilm(*film.scene);
    writeFileSafely(kept, made);
    return made;
}

const Evening& evening() {
    static const Evening made = [] {
        Evening evening;
        evening.race = sample::holdRace(sample::harbourNight());
        evening.race.athletes.resize(2);
        for (const films::PlannedFilm& film :
             films::sessionFilms(evening.race, {}, [](const fs::path&) { return true; }))
            evening.films.emplace_back(film.name, filmOf(film));
        return evening;
    }();
    return made;
}

class TakingWindowTest : public ::testing::Test {
protected:
    TakingWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_answer;
        });
        fs::create_directory(films());
        for (const auto& [name, content] : evening().films)
            (void)m_folder.add("films/" + name.filename().string(), content);
    }

    fs::path films() const { return m_folder.path() / "films"; }
    fs::path splitFile() const { return films() / "films.kvx"; }

    std::unique_ptr<TakingWindow> openWindow(const fs::path& path) {
        auto window = std::make_unique<TakingWindow>(m_workspace, autosave());
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        if (!window->open(QString::fromStdString(path.string())))
            return nullptr;
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
        return window;
    }

    Autosave autosave() const {
        return Autosave(QString::fromStdString((m_folder.path() / "autosave").string()));
    }

    static void press(TakingWindow& window, QKeyCombination keys) {
        if (QApplication::activeWindow() != &window)
            QApplication::setActiveWindow(&window); // no window manager does
        QWidget* const focus = window.focusWidget() ? window.focusWidget() : &window;
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    static FrameNumber shownFrame(const TakingWindow& window) {
        const FilmPicture* const shown = window.deck().shown(0);
        return shown && !shown->isPreview ? shown->frame.number : -1;
    }

    /// Waits until the frame on the screen is the one asked for.
    static bool settles(const TakingWindow& window, FrameNumber frame) {
        return QTest::qWaitFor([&] { return shownFrame(window) == frame; }, Patience);
    }

    /// Goes to a frame as a coach does: seconds first, then frame by frame.
    static void stepTo(TakingWindow& window, FrameNumber frame) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return shownFrame(window) >= 0; }, Patience));
        while (shownFrame(window) != frame) {
            const FrameNumber from = shownFrame(window);
            const FrameNumber way = frame - from;
            const bool isFar = std::abs(way) >= 50;
            const Qt::Key arrow = way > 0 ? Qt::Key_Right : Qt::Key_Left;
            press(window, isFar ? (Qt::SHIFT | arrow) : QKeyCombination(arrow));
            ASSERT_TRUE(settles(window, from + (isFar ? 50 : 1) * (way > 0 ? 1 : -1)));
        }
    }

    /// Fills the dialog that the next key opens, by keys, and closes it with Enter.
    static void fillCourse(const infodata031& course) {
        QTimer::singleShot(0, [course] {
            auto* const dialog =
                qobject_cast<desktop::CourseDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            const auto type = [&](const char* field, const QString& text) {
                auto* const edit = dialog->findChild<QLineEdit*>(field);
                edit->selectAll();
                QTest::keyClicks(edit, text);
            };
            QStringList upGates;
            for (const auto gate : course.upGates)
                upGates.append(QString::number(gate));
            type("gates", QString::number(course.gates));
            type("upGates", upGates.join(' '));
            auto* const splits = dialog->findChild<QSpinBox*>("splits");
            splits->selectAll();
            QTest::keyClicks(splits, QString::number(course.totalsplits));
            QTest::keyClick(dialog, Qt::Key_Return);
        });
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    bool m_answer = true;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
};

/// The frame of a stored mark, on films of 50 frames a second.
FrameNumber frameOf(const CMTime& stamp) {
    return stamp.value * 50 / stamp.timescale;
}

TEST_F(TakingWindowTest, TimesAnEveningByKeysAloneToTheFrame) {
    const splittakerdata031& race = evening().race;
    m_workspace.remember("filmNames", {"{any} {name} {phase}"});
    const auto window = openWindow(films());
    ASSERT_TRUE(window);
    ASSERT_EQ(window->document().runCount(), 2);
    fillCourse(race.info);
    press(*window, Qt::CTRL | Qt::Key_G);
    for (const athletedata031& run : race.athletes) {
        const sectiondata030& timing = run.sectioninfo;
        const FrameNumber first = frameOf(timing.cmtimes[0][0]);
        stepTo(*window, first - std::llround(timing.times[0] * 50));
        press(*window, Qt::Key_M);
        for (const auto& stamps : timing.cmtimes) {
            stepTo(*window, frameOf(stamps[0]));
            press(*window, Qt::Key_Return);
        }
        for (const std::int64_t penalty : timing.pens)
            press(*window, penalty == 2 ? Qt::Key_T : penalty == 50 ? Qt::Key_F : Qt::Key_0);
        press(*window, Qt::Key_Down);
    }
    press(*window, Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->document().isSaving(); }));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    const auto saved = readSplitFile(splitFile(), m_recorder.log(), m_recorder, systemNow);
    ASSERT_TRUE(saved);
    for (std::size_t i = 0; i < race.athletes.size(); ++i) {
        const athletedata031& taken = saved->athletes[i];
        const athletedata031& expected = race.athletes[i];
        EXPECT_EQ(taken.names, expected.names);
        EXPECT_EQ(taken.phase, expected.phase);
        EXPECT_EQ(taken.sectioninfo.cmtimes, expected.sectioninfo.cmtimes);
        EXPECT_EQ(taken.sectioninfo.pens, expected.sectioninfo.pens);
        EXPECT_EQ(taken.totaltouches, expected.totaltouches);
        EXPECT_EQ(taken.sectioninfo.isfullrun, expected.sectioninfo.isfullrun);
        for (std::size_t split = 0; split < expected.sectioninfo.times.size(); ++split)
            EXPECT_NEAR(taken.sectioninfo.times[split], expected.sectioninfo.times[split], 0.01);
    }
}

TEST_F(TakingWindowTest, ShowsTheFrameOfAStoredMarkAgain) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const auto window = openWindow(splitFile());
    ASSERT_TRUE(window);
    const auto& marks = evening().race.athletes[0].sectioninfo.cmtimes;
    press(*window, Qt::Key_3);
    EXPECT_TRUE(settles(*window, frameOf(marks[2][0])));
    EXPECT_EQ(window->deck().stamps(), marks[2]);
    press(*window, Qt::CTRL | Qt::Key_Right);
    EXPECT_TRUE(settles(*window, frameOf(marks[3][0])));
    EXPECT_FALSE(window->document().isDirty()) << "looking changes nothing";
}

TEST_F(TakingWindowTest, MovesAMarkByAFrameWhileTheFrameShownStays) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const auto window = openWindow(splitFile());
    ASSERT_TRUE(window);
    const sectiondata030 before = evening().race.athletes[0].sectioninfo;
    press(*window, Qt::Key_2);
    ASSERT_TRUE(settles(*window, frameOf(before.cmtimes[1][0])));
    press(*window, Qt::ALT | Qt::Key_Right);
    const sectiondata030& moved = window->document().run(0).sectioninfo;
    EXPECT_NEAR(moved.times[1], before.times[1] + 0.02, 1e-9);
    EXPECT_NEAR(moved.times[2], before.times[2] - 0.02, 1e-9);
    EXPECT_EQ(moved.times[0], before.times[0]);
    EXPECT_EQ(shownFrame(*window), frameOf(before.cmtimes[1][0]));
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(window->document().run(0).sectioninfo.times, before.times);
    EXPECT_FALSE(window->document().isDirty());
    press(*window, Qt::Key_Delete);
    EXPECT_EQ(window->document().run(0).sectioninfo.splitnum, before.splitnum - 1);
}

TEST_F(TakingWindowTest, RefusesTheSplitBeyondTheLast) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const auto window = openWindow(splitFile());
    ASSERT_TRUE(window);
    ASSERT_TRUE(settles(*window, 0));
    const auto times = window->document().run(0).sectioninfo.times;
    press(*window, Qt::Key_End); // behind the last mark
    press(*window, Qt::Key_M);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_recorder.alerts.empty(); }));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(messages::SplitLimitReached));
    EXPECT_EQ(window->document().run(0).sectioninfo.times, times);
}

TEST_F(TakingWindowTest, OffersTheWorkOfASessionThatWasCutOff) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const std::string saved = contentOf(splitFile());
    const auto edited = [this](bool isWanted) {
        m_answer = isWanted;
        const auto window = openWindow(splitFile());
        const std::string hand = window->document().run(0).hand;
        window->document().editRun(0, "hand", [](athletedata031& run) { run.hand = "Left!"; });
        return hand; // the window goes without being closed
    };
    (void)edited(true);
    EXPECT_EQ(contentOf(splitFile()), saved) << "never over the original";
    EXPECT_EQ(edited(true), "Left!");
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave));
    EXPECT_THAT(m_recorder.lines, Contains(messages::AutosaveFound));
    EXPECT_NE(edited(false), "Left!") << "the coach said no";
    const auto window = openWindow(splitFile());
    press(*window, Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->document().isSaving(); }));
    m_questions.clear();
    (void)openWindow(splitFile());
    EXPECT_THAT(m_questions, IsEmpty()) << "saved work is not offered";
}

TEST_F(TakingWindowTest, RefusesAnOlderFileAndAsksBeforeDeletingEverything) {
    const std::string older = contentOf(fs::path(KAVELA_EXAMPLES) / "older" / "release_0.28.kvx");
    (void)m_folder.add("films/films.kvx", older);
    m_answer = false;
    EXPECT_FALSE(openWindow(films()));
    EXPECT_THAT(m_questions,
                ElementsAre(::testing::AllOf(::testing::StartsWith(messages::OlderVersion),
                                             ::testing::HasSubstr("films.kvx is of release"))));
    EXPECT_EQ(contentOf(splitFile()), older);
    m_answer = true;
    desktop::TakingDocument document(m_workspace, autosave());
    const QString copy = QString::fromStdString((m_folder.path() / "copy.kvx").string());
    document.setChooseCopy([&](const QString&) { return copy; });
    EXPECT_TRUE(document.reading(QString::fromStdString(splitFile().string()), nullptr)()());
    EXPECT_EQ(document.path(), copy);
    EXPECT_GT(document.runCount(), 0);
    EXPECT_EQ(contentOf(splitFile()), older);
    m_questions.clear();
    fs::remove(splitFile());

    const auto window = openWindow(films());
    m_answer = false;
    window->document().reset(window.get());
    EXPECT_EQ(window->document().runCount(), 2);
    m_answer = true;
    window->document().reset(window.get());
    EXPECT_EQ(window->document().runCount(), 0);
    EXPECT_THAT(m_questions, ::testing::Each(::testing::StartsWith(messages::AskToDeleteAll)));
    press(*window, Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->document().isSaving(); }));
    EXPECT_THAT(m_recorder.alerts, Contains(messages::NothingToSave));
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(window->document().runCount(), 2);
}

TEST_F(TakingWindowTest, TakesARealTimeOnlyAsANumberAndRecomputesThen) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const auto window = openWindow(splitFile());
    auto* const field = window->findChild<QLineEdit*>("realTime");
    const auto type = [&](const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        press(*window, Qt::Key_Return);
    };
    const double before = window->document().run(0).sectioninfo.realtime;
    type("91s");
    EXPECT_THAT(refusalIn(*window), HasSubstr(messages::RealTimeNoNumber));
    EXPECT_EQ(window->document().run(0).sectioninfo.realtime, before);
    EXPECT_EQ(field->text(), "91s");
    EXPECT_FALSE(saved(*window)) << "over what was not taken";
    EXPECT_EQ(window->document().run(0).sectioninfo.splitnum, 6) << "Enter marked nothing";
    m_recorder.lines.clear();
    type("1:31,5");
    EXPECT_EQ(window->document().run(0).sectioninfo.realtime, 91.5);
    EXPECT_THAT(m_recorder.lines, Contains(::testing::StartsWith("current perfect time ")))
        << "with its line";
}

TEST_F(TakingWindowTest, AsksBeforeOverwritingWhatAnotherProgramWrote) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const auto window = openWindow(splitFile());
    window->document().editRun(0, "hand", [](athletedata031& run) { run.hand = "Left"; });
    fs::last_write_time(splitFile(), fs::last_write_time(splitFile()) + std::chrono::seconds(5));
    const std::string theirs = contentOf(splitFile());
    m_answer = false;
    EXPECT_FALSE(saved(window->document()));
    EXPECT_EQ(contentOf(splitFile()), theirs);
    m_answer = true;
    EXPECT_TRUE(saved(window->document()));
    EXPECT_NE(contentOf(splitFile()), theirs);
    EXPECT_THAT(m_questions, SizeIs(2));
}

TEST_F(TakingWindowTest, ExportsTableAndReportBesideTheFile) {
    ASSERT_TRUE(saveSplitFile(evening().race, splitFile(), m_recorder.log()));
    const auto window = openWindow(splitFile());
    const fs::path target = m_folder.path() / "out.kvx";
    const auto isExported = [&](const desktop::BesideFile& lists) {
        return isWritten([&](auto told) {
            window->document().exportTo(QString::fromStdString(target.string()), lists,
                                        window.get(), std::move(told));
        });
    };
    EXPECT_TRUE(isExported({true, true}));
    EXPECT_THAT(m_questions, IsEmpty());
    EXPECT_THAT(contentOf(m_folder.path() / "out.csv"), ::testing::StartsWith("Name;Phase;S1;P1;"));
    EXPECT_THAT(contentOf(m_folder.path() / "out.pdf"), ::testing::StartsWith("%PDF-"));
    m_answer = false;
    EXPECT_FALSE(isExported({false, false}));
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToOverwrite));
}

} // namespace
} // namespace kavela::test
