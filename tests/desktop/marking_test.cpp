#include "desktop/patience.h"
#include "desktop/taking/taking_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/closing.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_view.h"
#include "desktop/film/time_line.h"
#include "desktop/numbered_film.h"
#include "desktop/shell/workspace.h"
#include "splitdata/loader.h"
#include "splittaking/annotations/time_losses.h"
#include "splittaking/marking.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::FilmDeck;
using desktop::FilmView;
using desktop::TakingWindow;
using desktop::Workspace;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Frames = std::vector<FrameNumber>;

/// Runs of a race, each with its film of numbered frames.
class MarkingTest : public ::testing::Test {
protected:
    MarkingTest() {
        m_workspace.setAlerts(&m_recorder);
        fs::create_directory(folder());
    }
    void TearDown() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    fs::path folder() const { return m_folder.path() / "race"; }
    fs::path file() const { return folder() / "race.kvx"; }

    static splittakerdata031 race(int runs, std::int64_t splits) {
        splittakerdata031 race;
        race.info.totalsplits = splits;
        race.info.gates = 4;
        race.info.upGates = {2};
        for (int run = 0; run < runs; ++run) {
            athletedata031& made = race.athletes.emplace_back();
            made.names = {"Athlete " + std::to_string(run + 1)};
            made.cat = "K1M";
            made.videoname = {"run" + std::to_string(run + 1) + ".mp4"};
        }
        return race;
    }

    void placeFilms(const splittakerdata031& race, const fs::path& where) const {
        for (const athletedata031& run : race.athletes)
            fs::create_symlink(numberedFilm(), where / run.videoname.front());
    }

    void open(const splittakerdata031& race) {
        ASSERT_TRUE(saveSplitFile(race, file(), m_recorder.log()));
        reopen();
    }

    void reopen() {
        m_window.reset();
        m_window = std::make_unique<TakingWindow>(
            m_workspace,
            desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        ASSERT_TRUE(m_window->open(QString::fromStdString(file().string())));
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QApplication::processEvents();
    }

    void openWithFilms(int runs, std::int64_t splits) {
        const splittakerdata031 made = race(runs, splits);
        placeFilms(made, folder());
        ASSERT_NO_FATAL_FAILURE(open(made));
        ASSERT_TRUE(settles(0));
        // Before that a press waits, and is no mark yet when it is looked for at once.
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return deck().index(0) && deck().index(0)->isComplete(); }, Patience));
    }

    FilmDeck& deck() const { return m_window->deck(); }
    FilmView& view() const { return *m_window->findChild<FilmView*>(); }
    /// As a coach sees it.
    FrameNumber seen() const { return numberIn(view().image()); }

    bool settles(FrameNumber frame) const {
        return QTest::qWaitFor(
            [&] {
                const auto* const shown = deck().shown(0);
                return shown && !shown->isPreview && seen() == frame;
            },
            Patience);
    }

    void press(QKeyCombination keys) {
        if (QApplication::activeWindow() != m_window.get())
            QApplication::setActiveWindow(m_window.get());
        QWidget* const focus = m_window->focusWidget() ? m_window->focusWidget() : m_window.get();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
    }
    void press(std::initializer_list<QKeyCombination> keys) {
        for (const QKeyCombination& each : keys)
            press(each);
    }

    const athletedata031& run(int index = 0) const { return m_window->document().run(index); }

    static FrameNumber frameOf(const CMTime& stamp) {
        return std::llround(stamp.seconds() * NumberedRate);
    }

    /// The start and the splits of a run.
    Frames marked(int run = 0) const {
        const RunMarks marks = m_window->document().marks(run);
        Frames frames;
        if (marks.start)
            frames.push_back(frameOf(marks.start->front()));
        for (const Stamps& stamps : marks.marks)
            frames.push_back(frameOf(stamps.front()));
        return frames;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<TakingWindow> m_window;
};

TEST_F(MarkingTest, APictureThatStandsIsSharpInAViewThatWasMadeLarger) {
    ASSERT_NO_FATAL_FAILURE(openWithFilms(1, 3));
    const int before = view().image().width();
    press({Qt::Key_F9, Qt::Key_F9});
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const QSize made = view().image().size();
            const int wanted = made.scaled(view().size(), Qt::KeepAspectRatio).width();
            return made.width() > before && wanted <= made.width() + 1;
        },
        Patience));
    EXPECT_EQ(seen(), 0);
}

TEST_F(MarkingTest, TakesAHundredPressesOfAHundredDuringSeeksAndWhilePlaying) {
    constexpr int Runs = 4;
    ASSERT_NO_FATAL_FAILURE(openWithFilms(Runs, 30));
    int presses = 0;
    for (int run = 0; run < Runs; ++run) {
        Frames meant;
        for (const int milliseconds : {50, 70, 100, 130, 60, 200, 80, 500, 50, 90, 110, 60, 50}) {
            const bool isFar = meant.size() == 4;
            press(isFar ? QKeyCombination(Qt::Key_PageDown) : Qt::SHIFT | Qt::Key_Right);
            QTest::qWait(milliseconds);
            meant.push_back((meant.empty() ? 0 : meant.back()) + (isFar ? 500 : 50));
            press(Qt::Key_M);
        }
        EXPECT_THAT(marked(run), ElementsAreArray(meant)) << "run " << run + 1;
        press(Qt::CTRL | Qt::Key_4); // strokes may be marked in any order
        Frames watched;
        for (const int faster : {0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3}) {
            if (const auto split = 1 + watched.size() / 4 * 4; faster == 0) {
                press(static_cast<Qt::Key>(Qt::Key_0 + split));
                ASSERT_TRUE(settles(meant[split]));
            }
            const FrameNumber from = seen();
            for (int times = 0; times <= faster; ++times)
                press(Qt::Key_L);
            ASSERT_EQ(deck().rate(), 1 << faster);
            QTest::qWait(50);
            ASSERT_TRUE(QTest::qWaitFor([&] { return seen() > from; }, Patience));
            watched.push_back(seen());
            press(Qt::Key_M);
            press(Qt::Key_K);
            QApplication::processEvents();
            EXPECT_EQ(seen(), watched.back()) << "it stops there";
        }
        Frames strokes;
        for (const auto& stroke : this->run(run).strokes)
            strokes.push_back(frameOf(stroke.cmtimes.front()));
        EXPECT_THAT(strokes, testing::UnorderedElementsAreArray(watched)) << "run " << run + 1;
        presses += static_cast<int>(meant.size() + strokes.size());
        press({Qt::CTRL | Qt::Key_1, QKeyCombination(Qt::Key_Down)});
    }
    EXPECT_EQ(presses, 100);
}

TEST_F(MarkingTest, MarksTheFrameEachPressMeantWhateverIsAskedAfterIt) {
    ASSERT_NO_FATAL_FAILURE(openWithFilms(1, 6));
    press({Qt::Key_M, Qt::Key_PageDown, Qt::Key_M, Qt::SHIFT | Qt::Key_Right, Qt::Key_M,
           Qt::Key_Right, Qt::Key_Right, Qt::Key_M, Qt::Key_PageDown, Qt::Key_M, Qt::Key_Home});
    EXPECT_THAT(marked(), ElementsAre(0, 500, 550, 552, 1052));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(marked(), ElementsAre(0, 500, 550, 552));
    // The last mark follows to the frame that is on its way, and on by frames.
    press({Qt::Key_3, Qt::SHIFT | Qt::Key_Right, Qt::SHIFT | Qt::Key_M, Qt::ALT | Qt::Key_Left});
    EXPECT_THAT(marked(), ElementsAre(0, 500, 550, 601));
    ASSERT_TRUE(settles(602)) << "the frame shown stays";
    // Playing through a jump: what is on the screen still is from before it.
    press({Qt::Key_L, Qt::Key_L, Qt::Key_L, Qt::Key_PageDown, Qt::Key_M, Qt::Key_K});
    ASSERT_THAT(marked(), SizeIs(5));
    EXPECT_THAT(marked().back(), testing::AllOf(testing::Ge(1102), testing::Le(1160)));
    ASSERT_TRUE(settles(marked().back())) << "and stopping goes to the same frame";
}

TEST_F(MarkingTest, KeepsPressesThatCameBeforeTheFilmWasRead) {
    ASSERT_NO_FATAL_FAILURE(openWithFilms(3, 4));
    const std::initializer_list<QKeyCombination> split{Qt::Key_M, Qt::SHIFT | Qt::Key_Right,
                                                       Qt::Key_M};
    press(Qt::Key_Down);
    press(split);
    press(Qt::Key_Up); // before anything of that film was seen
    EXPECT_THAT(marked(1), ElementsAre(0, 50));
    EXPECT_THAT(marked(0), IsEmpty());
    press({Qt::Key_Down, Qt::Key_Down});
    press(split);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(marked(2), ElementsAre(0)) << "the press that waited was the last step";
    press({Qt::Key_M, Qt::ALT | Qt::Key_Right, Qt::CTRL | Qt::Key_S});
    EXPECT_THAT(marked(2), ElementsAre(0, 51));
    EXPECT_TRUE(closes(*m_window));
    const auto saved = recogniseSplitFile(file(), m_recorder.log(), m_workspace.clock()).document;
    ASSERT_THAT(saved.athletes, SizeIs(3));
    EXPECT_NEAR(saved.athletes[1].sectioninfo.times.at(0), 1, 1e-9);
    EXPECT_NEAR(saved.athletes[2].sectioninfo.times.at(0), 1.02, 1e-9);
}

TEST_F(MarkingTest, TakesNotesAtTheFrameOnItsWay) {
    ASSERT_NO_FATAL_FAILURE(openWithFilms(2, 2));
    press({Qt::CTRL | Qt::Key_4, Qt::Key_PageDown, Qt::Key_A, Qt::Key_Right, Qt::Key_D});
    ASSERT_THAT(run().strokes, SizeIs(2));
    EXPECT_EQ(frameOf(run().strokes[0].cmtimes.at(0)), 500);
    EXPECT_EQ(frameOf(run().strokes[1].cmtimes.at(0)), 501);
    press({Qt::CTRL | Qt::Key_5, Qt::Key_PageDown, Qt::Key_M});
    ASSERT_THAT(run().microsplits, SizeIs(1));
    EXPECT_NEAR(run().microsplits[0].cmtime.seconds(), 20.02, 1e-6);
    press({Qt::CTRL | Qt::Key_3, Qt::Key_Home, Qt::Key_M, Qt::SHIFT | Qt::Key_Right, Qt::Key_M});
    ASSERT_THAT(run().upstreams, SizeIs(1));
    EXPECT_EQ(frameOf(run().upstreams[0].cmtimes.at(1)), 50);
    press({Qt::CTRL | Qt::Key_7, Qt::Key_M, Qt::Key_PageDown});
    m_window->findChild<QPushButton*>("lossMark1")->click();
    press(Qt::Key_PageDown);
    ASSERT_THAT(run().timeslosses, SizeIs(1));
    const auto end = markOf(run().timeslosses[0], LossMark::OwnEnd);
    ASSERT_TRUE(end);
    EXPECT_EQ(frameOf(*end), 550) << "no frame that stands in";
}

TEST_F(MarkingTest, GoesWhereTheNextSplitIsToBeExpected) {
    ASSERT_NO_FATAL_FAILURE(openWithFilms(2, 2));
    QSignalSpy refused(&view(), &FilmView::refused);
    const auto lastWords = [&] { return view().flashed().toStdString(); };
    press(Qt::Key_E);
    EXPECT_THAT(lastWords(), HasSubstr("Mark the start first"));
    press({Qt::SHIFT | Qt::Key_Right, Qt::Key_M, Qt::Key_E});
    EXPECT_THAT(lastWords(), HasSubstr("No other run has split 1 yet"));
    EXPECT_EQ(refused.size(), 2) << "with a sound each time";
    press({Qt::SHIFT | Qt::Key_Right, Qt::SHIFT | Qt::Key_Right, Qt::Key_M, Qt::Key_PageDown,
           Qt::Key_M, Qt::Key_E});
    EXPECT_THAT(lastWords(), HasSubstr("All splits of this run are marked"));
    press(Qt::Key_Down);
    ASSERT_TRUE(settles(0));
    press({Qt::Key_Right, Qt::Key_Right, Qt::Key_M, Qt::Key_E});
    ASSERT_TRUE(settles(102)) << "two seconds after its start, as in the other run";
    const auto& line = *m_window->findChild<desktop::TimeLine*>();
    ASSERT_TRUE(line.expected());
    EXPECT_NEAR(*line.expected(), 2.04, 1e-9);
    for (int late = 0; late < 10; ++late)
        press(Qt::Key_Right);
    press(Qt::Key_M);
    EXPECT_NEAR(line.expected().value_or(0), 2.24 + 10 * 1.1, 1e-9) << "at the pace of this run";
    press(Qt::Key_E);
    ASSERT_TRUE(settles(662));
    press(Qt::Key_M);
    EXPECT_THAT(marked(1), ElementsAre(2, 112, 662));
    EXPECT_FALSE(line.expected());
}

TEST_F(MarkingTest, ComesBackToWhereARunWasLeft) {
    ASSERT_NO_FATAL_FAILURE(openWithFilms(2, 2));
    press({Qt::Key_PageDown, Qt::Key_Right, Qt::Key_Down});
    ASSERT_TRUE(settles(0));
    press({Qt::Key_Up, Qt::Key_Down, Qt::Key_Up});
    ASSERT_TRUE(settles(501));
    press({Qt::Key_PageDown, Qt::Key_M});
    EXPECT_THAT(marked(), ElementsAre(1001)) << "jumps count from there";
}

TEST_F(MarkingTest, AsksWhereMovedFilmsAreAndRemembersIt) {
    splittakerdata031 made = race(2, 2);
    const RunMarks marks{Stamps{{500, 50, 1, 0}}, {{{600, 50, 1, 0}}, {{900, 50, 1, 0}}}};
    applyMarks(marks, made.athletes[0], 2);
    fs::create_directories(m_folder.path() / "stick/day 1");
    placeFilms(made, m_folder.path() / "stick/day 1");
    ASSERT_NO_FATAL_FAILURE(open(made));
    const auto& line = *m_window->findChild<desktop::TimeLine*>();
    EXPECT_LT(line.placeOf(10) + 50, line.placeOf(12)) << "the marks lie apart without a film";
    EXPECT_LT(line.placeOf(12) + 50, line.placeOf(18));
    press(Qt::Key_M);
    EXPECT_THAT(view().flashed().toStdString(),
                AllOf(HasSubstr("Nothing can be marked"), HasSubstr("run1.mp4")));
    press({Qt::CTRL | Qt::Key_4, Qt::Key_A});
    EXPECT_THAT(run().strokes, IsEmpty());
    m_window->setChooseFolder([this](const QString&) {
        return QString::fromStdString((m_folder.path() / "stick").string());
    });
    QTest::mouseClick(m_window->findChild<QPushButton*>("filmQuestion"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !deck().films().isEmpty(); }, Patience));
    ASSERT_TRUE(settles(0));
    EXPECT_EQ(run().videoname.front(), "run1.mp4");
    EXPECT_FALSE(m_window->document().isDirty());
    ASSERT_NO_FATAL_FAILURE(reopen());
    ASSERT_TRUE(settles(0)) << "nobody is asked again";
}

} // namespace
} // namespace kavela::test
