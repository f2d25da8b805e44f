#include "desktop/cross/cross_window.h"

#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/cross/course_strip.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/desktop.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/patience.h"
#include "desktop/refusals.h"
#include "desktop/saving.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"
#include "films/season_films.h"
#include "sample/races.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::CrossWindow;
using desktop::TrialMode;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* FilmName = "ada.mov";

/// A film of a run. It takes seconds to make: it is kept beside the program.
std::string film() {
    splittakerdata031 race = sample::holdRace(sample::harbourNight());
    race.athletes.resize(1);
    const auto planned = films::sessionFilms(race, {}, [](const fs::path&) { return true; });
    const fs::path kept = fs::path(KAVELA_FILM_FOLDER) / planned.front().name.filename();
    if (fs::exists(kept))
        return contentOf(kept);
    fs::create_directories(kept.parent_path());
    std::string made = films::makeFilm(*planned.front().scene);
    writeFileSafely(kept, made);
    return made;
}

/// Trials of Ada, whose film is there, and of Bea, whose film is not.
splittakerdata031 twoTrials() {
    splittakerdata031 race;
    race.info.title = "Cross";
    race.info.totalsplits = 1;
    race.athletes.resize(1); // a slalom run beside the cross
    race.crossracedata.crossinfo = {"Heats", "K1W", {1, 2, 3, 4}, 3};
    ttdata030 trial;
    trial.athlete = "Ada";
    trial.videoname = FilmName;
    race.crossracedata.timetrials = {trial, trial};
    race.crossracedata.timetrials[1].athlete = "Bea";
    race.crossracedata.timetrials[1].videoname = "gone.mov";
    return race;
}

splittakerdata031 timedTrials(int count) {
    splittakerdata031 race = twoTrials();
    race.crossracedata.timetrials.clear();
    for (int k = 0; k < count; ++k) {
        ttdata030& trial = race.crossracedata.timetrials.emplace_back();
        trial.athlete = std::string(1, static_cast<char>('A' + k));
        trial.time = 60 + k;
    }
    return race;
}

class CrossWindowTest : public ::testing::Test {
protected:
    CrossWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_answer;
        });
        fs::create_directory(folder());
    }

    void TearDown() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    fs::path folder() const { return m_folder.path() / "cross"; }
    fs::path file() const { return folder() / "cross.kvx"; }
    QString path() const { return QString::fromStdString(file().string()); }
    desktop::Autosave autosave() const {
        return desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string()));
    }

    void open(const splittakerdata031& race) {
        ASSERT_TRUE(saveSplitFile(race, file(), m_recorder.log()));
        reopen();
    }

    void reopen() {
        m_window.reset();
        m_window = std::make_unique<CrossWindow>(m_workspace, autosave());
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        ASSERT_TRUE(m_window->open(path()));
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QApplication::processEvents();
    }

    void openWithFilm(const splittakerdata031& race) {
        (void)m_folder.add(std::string("cross/") + FilmName, film());
        ASSERT_NO_FATAL_FAILURE(open(race));
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !m_window->deck().stamps().empty(); }, Patience));
    }

    void press(QKeyCombination keys) {
        if (QApplication::activeWindow() != m_window.get())
            QApplication::setActiveWindow(m_window.get());
        QWidget* const focus = m_window->focusWidget() ? m_window->focusWidget() : m_window.get();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    void type(const char* field, const char* text) {
        auto& edit = part<QLineEdit>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        press(Qt::Key_Return);
    }

    /// So many frames on, until that frame stands on the screen.
    void goOn(int frames) {
        for (int i = 0; i < frames; ++i) {
            const auto before = m_window->deck().stamps();
            ASSERT_THAT(before, SizeIs(1));
            press(Qt::Key_Right);
            const double target = before.front().seconds() + 0.02;
            ASSERT_TRUE(QTest::qWaitFor(
                [&] {
                    const auto stamps = m_window->deck().stamps();
                    return !stamps.empty() && std::abs(stamps.front().seconds() - target) < 0.001;
                },
                Patience));
        }
    }

    void markThrice() {
        for (int i = 0; i < 3; ++i) {
            press(Qt::Key_M);
            ASSERT_NO_FATAL_FAILURE(goOn(2));
        }
    }

    void choose(const char* name, int index) {
        auto& combo = part<QComboBox>(name);
        combo.setCurrentIndex(index);
        emit combo.activated(index);
    }

    template <class T>
    T& part(const char* name) const {
        return *m_window->findChild<T*>(name);
    }

    std::string text(const char* label) const { return part<QLabel>(label).text().toStdString(); }
    const crossdata030& cross() const { return m_window->document().cross(); }
    const ttdata030& trial(std::size_t place = 0) const { return cross().timetrials.at(place); }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    bool m_answer = true;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<CrossWindow> m_window;
};

TEST_F(CrossWindowTest, MarksATrialByKeysUndoesItAndKeepsItInTheFile) {
    ASSERT_NO_FATAL_FAILURE(openWithFilm(twoTrials()));
    EXPECT_EQ(text("trialFront"), "M marks the start");
    ASSERT_NO_FATAL_FAILURE(markThrice());
    EXPECT_EQ(text("trialFront"), "M marks split 3");
    EXPECT_THAT(trial().splittimes, SizeIs(2));
    EXPECT_NEAR(trial().time, 0.08, 1e-9);
    EXPECT_EQ(trial().pos, 1);

    press(Qt::CTRL | Qt::SHIFT | Qt::Key_2);
    press(Qt::Key_N);
    EXPECT_EQ(text("trialFront"), "Gate 2: M marks the entrance");
    ASSERT_NO_FATAL_FAILURE(markThrice());
    EXPECT_EQ(text("trialFront"), "Gate 2 is marked");
    choose("gateStyle", 2);

    press(Qt::CTRL | Qt::SHIFT | Qt::Key_3);
    EXPECT_EQ(text("trialFront"), "M marks the start of the roll");
    ASSERT_NO_FATAL_FAILURE(markThrice());
    choose("rollDirection", 1);
    press(Qt::ALT | Qt::Key_Right); // the mark taken last

    const auto isMarked = [this] {
        ASSERT_THAT(trial().upstreams, SizeIs(1));
        EXPECT_EQ(trial().upstreams[0].gateNum, 2);
        EXPECT_EQ(trial().upstreams[0].style, 2);
        EXPECT_NEAR(timesOf(trial().upstreams[0].cmtimes).total, 0.08, 1e-9);
        EXPECT_NEAR(timesOf(trial().roll.cmtimes).total, 0.1, 1e-9);
        EXPECT_EQ(trial().roll.direction, 1);
        EXPECT_NEAR(trial().time, 0.08, 1e-9);
        EXPECT_THAT(m_window->trials().marks(), SizeIs(9));
    };
    ASSERT_NO_FATAL_FAILURE(isMarked());
    for (int step = 0; step < 12; ++step)
        press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(m_window->trials().marks(), IsEmpty());
    EXPECT_EQ(trial().time, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isWindowModified(); }));
    for (int step = 0; step < 12; ++step)
        press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    EXPECT_TRUE(m_window->isWindowModified());
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isWindowModified(); }));
    reopen();
    isMarked();
}

TEST_F(CrossWindowTest, MovesAndRemovesTheMarkThatIsSelectedOnTheTimeLine) {
    ASSERT_NO_FATAL_FAILURE(openWithFilm(twoTrials()));
    ASSERT_NO_FATAL_FAILURE(markThrice());
    press(Qt::Key_1);
    EXPECT_EQ(m_window->trials().selectedMark(), 1U);
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return m_window->deck().stamps() == trial().splittimes[0]; }, Patience));
    ASSERT_NO_FATAL_FAILURE(goOn(1));
    press(Qt::SHIFT | Qt::Key_M);
    EXPECT_EQ(trial().splittimes[0], m_window->deck().stamps());
    EXPECT_NEAR(trial().time, 0.08, 1e-9) << "the last split and the start stay";
    press(Qt::CTRL | Qt::Key_Left);
    EXPECT_EQ(m_window->trials().selectedMark(), 0U);
    press(Qt::ALT | Qt::Key_Right);
    EXPECT_NEAR(trial().time, 0.06, 1e-9);
    for (int step = 0; step < 3; ++step) // the start that was moved, and both splits
        press(Qt::CTRL | Qt::Key_Right);
    press(Qt::Key_Delete);
    EXPECT_THAT(trial().splittimes, SizeIs(1));
    EXPECT_NEAR(trial().time, 0.04, 1e-9);
    m_window->stage().dropMark(1, 1.005); // between two frames
    EXPECT_NEAR(trial().splittimes[0].front().seconds(), 1, 1e-9);
}

TEST_F(CrossWindowTest, KeepsAStartWithoutSplitsThroughOtherTrialsAndUndo) {
    ASSERT_NO_FATAL_FAILURE(openWithFilm(twoTrials()));
    press(Qt::Key_M);
    ASSERT_NO_FATAL_FAILURE(goOn(1));
    press(Qt::Key_Down);
    press(Qt::Key_M); // no film there
    EXPECT_THAT(text("crossTold"), HasSubstr("Nothing can be marked: gone.mov is not in"));
    EXPECT_EQ(text("trialFront"), "M marks the start");
    press(Qt::Key_Up);
    EXPECT_EQ(text("trialFront"), "M marks split 1");
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(text("trialFront"), "M marks the start");
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    press(Qt::Key_Down);
    m_window->trials().removeTrial();
    ASSERT_THAT(cross().timetrials, SizeIs(1));
    EXPECT_EQ(text("trialFront"), "M marks split 1") << "Ada's start is still hers";
    m_window->trials().removeTrial();
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(m_window->trials().marks(), SizeIs(1));
}

TEST_F(CrossWindowTest, FindsAStartWithoutSplitsAgainAfterACrash) {
    ASSERT_NO_FATAL_FAILURE(openWithFilm(twoTrials()));
    press(Qt::Key_M);
    QTRY_VERIFY(autosave().find(path()));
    const std::unique_ptr<CrossWindow> crashed = std::move(m_window); // it never ends
    ASSERT_NO_FATAL_FAILURE(reopen());
    EXPECT_THAT(m_questions, SizeIs(1));
    EXPECT_EQ(text("trialFront"), "M marks split 1");
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(CrossWindowTest, ListsAndEditsATrialWhoseFilmIsMissingAndKeepsCodesItDoesNotKnow) {
    splittakerdata031 race = twoTrials();
    ttdata030& bea = race.crossracedata.timetrials[1];
    bea.splittimes = {{{90, 30, 1, 0}}};
    bea.time = 2;
    bea.upstreams = {{4, {{60, 30, 1, 0}}, 9, 77}};
    bea.roll.style = 55;
    ASSERT_NO_FATAL_FAILURE(open(race));
    EXPECT_EQ(part<desktop::ColumnTable>("trials").cellAt(1, 3).data().toString(), "⚠ missing");
    press(Qt::Key_Down);
    EXPECT_THAT(m_window->trials().marks(), SizeIs(3));
    EXPECT_EQ(part<QComboBox>("rollStyle").currentText(), "55");
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_2);
    press(Qt::Key_4);
    EXPECT_EQ(part<QComboBox>("gateStyle").currentText(), "77");
    choose("gateDirection", 1);
    m_window->stage().goToMark(2);
    press(Qt::ALT | Qt::Key_Left);
    EXPECT_NEAR(trial(1).upstreams[0].cmtimes[0].seconds(), 1.99, 1e-6);
    EXPECT_EQ(trial(1).upstreams[0].direction, 1);
    EXPECT_EQ(trial(1).upstreams[0].style, 77);
    press(Qt::Key_Delete);
    EXPECT_THAT(trial(1).upstreams[0].cmtimes, IsEmpty());
    press(Qt::Key_Delete);
    EXPECT_THAT(trial(1).upstreams, IsEmpty()) << "without marks, the gate itself";
    EXPECT_EQ(part<QComboBox>("gateStyle").currentIndex(), -1) << "no style was told";
    EXPECT_EQ(trial(1).roll.style, 55);
}

TEST_F(CrossWindowTest, AsksForTheCourseInPlaceAndRefusesWhatMakesNoSense) {
    splittakerdata031 race = twoTrials();
    race.crossracedata.crossinfo = {};
    ASSERT_NO_FATAL_FAILURE(open(race));
    EXPECT_TRUE(part<QLineEdit>("courseGates").isVisible());
    EXPECT_TRUE(part<QLineEdit>("courseGates").hasFocus());
    struct Case {
        const char* gates;
        const char* roll;
        const char* fault;
    };
    for (const Case& each : {Case{"1, x", "", "\"x\" is no gate number."},
                             Case{"1 2 1", "", "Gate 1 stands there twice."},
                             Case{"0", "", "\"0\" is no gate number."},
                             Case{"1, 2", "7", "gate 7, which is not on the course"},
                             Case{"1, 2", "x", "\"x\" is no gate number."}}) {
        type("courseRoll", each.roll);
        type("courseGates", each.gates);
        EXPECT_THAT(text("courseFault"), HasSubstr(each.fault)) << each.gates;
        EXPECT_FALSE(saved(*m_window));
    }
    EXPECT_THAT(cross().crossinfo.gates, ::testing::AnyOf(IsEmpty(), ElementsAre(1, 2)));
    type("courseGates", "4; 1 3");
    type("courseRoll", "3");
    type("courseCategory", "K1M");
    EXPECT_EQ(text("courseFault"), "");
    EXPECT_THAT(cross().crossinfo.gates, ElementsAre(4, 1, 3)) << "in the order of the course";
    EXPECT_EQ(cross().crossinfo.rollaftergate, 3);
    EXPECT_EQ(text("crossCourse"), "K1M · 3 gates · roll after 3");
}

TEST_F(CrossWindowTest, MakesHeatsFromTheTrialsAndLeavesThoseThatAreThere) {
    ASSERT_NO_FATAL_FAILURE(open(timedTrials(9)));
    auto& make = part<QPushButton>("makeHeats");
    make.click();
    ASSERT_THAT(cross().eliphase, SizeIs(2));
    EXPECT_THAT(cross().eliphase[0].athletes, ElementsAre("A", "D", "E", "H"));
    EXPECT_THAT(m_questions, IsEmpty());
    m_answer = false;
    make.click();
    EXPECT_THAT(cross().eliphase, SizeIs(2));
    m_answer = true;
    choose("boats", 0);
    make.click();
    EXPECT_THAT(m_questions, SizeIs(2));
    ASSERT_THAT(cross().eliphase, SizeIs(3));
    EXPECT_THAT(cross().eliphase[0].athletes, ElementsAre("A", "D", "E", "H"));
    press(Qt::CTRL | Qt::Key_Z);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(cross().eliphase, IsEmpty());
}

TEST_F(CrossWindowTest, AddsRenamesAndRanksTrialsAndBringsFilmsIntoTheFolder) {
    ASSERT_NO_FATAL_FAILURE(open(timedTrials(2)));
    press(Qt::CTRL | Qt::Key_N);
    QTest::keyClicks(QApplication::focusWidget(), "Mia");
    press(Qt::Key_Return);
    ASSERT_THAT(cross().timetrials, SizeIs(3));
    EXPECT_EQ(trial(2).athlete, "Mia");
    EXPECT_EQ(m_window->trials().trial(), 2U);
    press(Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), "Zoe");
    press(Qt::Key_Return);
    EXPECT_EQ(trial(2).athlete, "Zoe");
    press(Qt::Key_F2);
    press(Qt::Key_Delete); // what is selected in the cell: the whole name
    press(Qt::Key_Return);
    EXPECT_THAT(refusalIn(*m_window), HasSubstr("needs the name of its athlete"));
    press(Qt::Key_Escape);
    EXPECT_EQ(trial(2).athlete, "Zoe");
    ASSERT_THAT(cross().timetrials, SizeIs(3)) << "Delete was meant for the cell";
    const QString outside = QString::fromStdString(m_folder.add("Lea Stein.mov", "x").string());
    m_window->setChooseFiles([&](const QString&, const QString&) { return QStringList(outside); });
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_I);
    QTRY_VERIFY(trial(2).videoname == "Lea Stein.mov");
    EXPECT_TRUE(fs::exists(folder() / "Lea Stein.mov"));
    press(Qt::CTRL | Qt::Key_I);
    EXPECT_THAT(cross().timetrials, SizeIs(3)) << "a film that a trial has is not taken again";
    press(Qt::CTRL | Qt::Key_Z);
    press(Qt::CTRL | Qt::Key_I);
    EXPECT_EQ(trial(3).athlete, "Lea Stein");
    auto& table = part<desktop::ColumnTable>("trials");
    EXPECT_EQ(table.cellAt(1, 0).data().toString(), "2");
    EXPECT_EQ(table.cellAt(2, 2).data().toString(), "–") << "not timed";
    m_window->trials().selectTrial(0);
    m_window->trials().removeTrial();
    EXPECT_EQ(trial(0).pos, 1) << "ranked anew";
    m_window->document().undoStack().setClean(); // nothing is asked at the end
}

TEST_F(CrossWindowTest, EditsAFileInOneWindowAtATimeAndOpensItAtTheNextStart) {
    ASSERT_TRUE(saveSplitFile(timedTrials(2), file(), m_recorder.log()));
    desktop::Desktop program(m_workspace, autosave());
    CrossWindow* const window = program.openCross(path());
    ASSERT_TRUE(window);
    EXPECT_EQ(program.openCross(path()), window);
    emit window->takingRequested(path());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return program.windowsOf<CrossWindow>().isEmpty(); }, Patience));
    ASSERT_THAT(program.windowsOf<desktop::TakingWindow>(), SizeIs(1));
    emit program.windowsOf<desktop::TakingWindow>().front()->crossRequested(path());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return program.windowsOf<desktop::TakingWindow>().isEmpty(); }, Patience));
    ASSERT_THAT(program.windowsOf<CrossWindow>(), SizeIs(1));
    desktop::Desktop next(m_workspace, autosave());
    EXPECT_TRUE(next.restoreSession());
    EXPECT_THAT(next.windowsOf<CrossWindow>(), SizeIs(1));
}

TEST_F(CrossWindowTest, BeginsARaceOnAFolderOfFilms) {
    (void)m_folder.add("cross/Ada Berg.mov", "x");
    (void)m_folder.add("cross/Bea Dahl.mov", "x");
    m_window = std::make_unique<CrossWindow>(m_workspace, autosave());
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(m_window->open(QString::fromStdString(folder().string())));
    EXPECT_EQ(m_window->document().runCount(), 0);
    ASSERT_THAT(cross().timetrials, SizeIs(2));
    EXPECT_EQ(trial(0).athlete, "Ada Berg");
    EXPECT_TRUE(saved(*m_window));
    EXPECT_THAT(m_recorder.alerts, ::testing::IsEmpty()) << "a race without any run is saved";
    EXPECT_FALSE(m_window->document().isDirty());
    EXPECT_TRUE(fs::exists(m_window->document().path().toStdString()));
}

} // namespace
} // namespace kavela::test
