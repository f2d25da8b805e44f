#include "desktop/compose/compare_window.h"

#include "desktop/closing.h"
#include "desktop/compose/compare_films_panel.h"
#include "desktop/compose/compare_form.h"
#include "desktop/compose/compare_player.h"
#include "desktop/compose/compare_view.h"
#include "desktop/compose/jobs_window.h"
#include "desktop/compose/range_line.h"
#include "desktop/compose/render_queue.h"
#include "desktop/numbered_film.h"
#include "desktop/race_fixture.h"
#include "desktop/saving.h"
#include "desktop/shell/tables/column_table.h"
#include "video/index.h"

#include <QComboBox>

#include <filesystem>

namespace kavela::test {
namespace {

using desktop::CompareRequest;
using desktop::CompareWindow;
using desktop::JobsWindow;
using desktop::RenderJob;
using desktop::RenderQueue;
using ::testing::HasSubstr;

constexpr int CompareWait = 30000; // milliseconds

class CompareWindowTest : public RaceWindowTest {
protected:
    QString film(const char* name) const {
        const fs::path path = m_folder.path() / name;
        if (!fs::exists(path))
            fs::create_symlink(numberedFilm(), path);
        return QString::fromStdString(path.string());
    }

    /// Two films without marks, the second half a second ahead; small, without words.
    CompareWindow& compareTwo() {
        m_desktop.openCompare(
            {.runs = {}, .films = {{film("one.mp4"), "One", 1}, {film("two.mp4"), "Two", 1.5}}});
        CompareWindow& window = *m_desktop.windowsOf<CompareWindow>().back();
        window.document().edit("size", [](composejob002& job) {
            job.captions = {false, false, false, false, false, false};
            job.output.width = 640;
            job.output.height = 180;
            job.range = {"free", 0, 0, 0, 4};
        });
        return window;
    }

    static bool shows(const CompareWindow& window, int left, int right) {
        return QTest::qWaitFor(
            [&] {
                const QImage image = window.player().image();
                if (image.isNull())
                    return false;
                const QRect half(0, 0, image.width() / 2, image.height());
                return numberIn(image.copy(half)) == left &&
                       numberIn(image.copy(half.translated(half.width(), 0))) == right;
            },
            CompareWait);
    }

    static bool isPrepared(const CompareWindow& window) {
        return QTest::qWaitFor([&] { return window.player().prepared().has_value(); }, CompareWait);
    }
};

TEST_F(CompareWindowTest, ShowsFilmsAsTheyAreHeldTogether) {
    CompareWindow& window = compareTwo();
    ASSERT_TRUE(shows(window, 50, 75));
    window.player().seek(2);
    EXPECT_TRUE(shows(window, 150, 175));
    window.player().step(-3);
    EXPECT_TRUE(shows(window, 147, 172));
    window.document().edit("start", [](composejob002& job) { job.films[1].startsAt = 3; });
    EXPECT_TRUE(shows(window, 147, 247)) << "the moment stays while the films are moved";
    window.document().undoStack().undo();
    EXPECT_TRUE(shows(window, 147, 172));
}

TEST_F(CompareWindowTest, PlaysToTheEndAndBeginsThereAgain) {
    CompareWindow& window = compareTwo();
    ASSERT_TRUE(isPrepared(window));
    window.player().seek(3.7);
    window.togglePlaying();
    EXPECT_TRUE(window.player().isPlaying());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.player().isPlaying(); }, CompareWait));
    EXPECT_DOUBLE_EQ(window.player().position(), 4);
    window.togglePlaying();
    EXPECT_LT(window.player().position(), 1);
    window.player().pause();
}

TEST_F(CompareWindowTest, PlaysBySpaceAndChoosesByEnterInTheListToo) {
    CompareWindow& window = compareTwo();
    ASSERT_TRUE(isPrepared(window));
    auto& list = *window.findChild<desktop::ColumnTable*>("candidates");
    QApplication::setActiveWindow(&window);
    list.setFocus();
    list.choose(0, 0);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_TRUE(window.player().isPlaying());
    EXPECT_EQ(window.document().value().films.size(), 2U) << "nothing is taken out";
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(window.player().isPlaying());
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(window.document().value().films.size(), 1U);
}

TEST_F(CompareWindowTest, TakesAPartThatIsDraggedAndOneThatIsMarkedHere) {
    CompareWindow& window = compareTwo();
    ASSERT_TRUE(isPrepared(window));
    desktop::RangeLine& line = window.line();
    line.resize(520, line.height());
    const int end = line.placeOf(4);
    const int middle = line.placeOf(2);
    QTest::mousePress(&line, Qt::LeftButton, {}, {end, 25});
    QTest::mouseMove(&line, {middle, 25});
    QTest::mouseRelease(&line, Qt::LeftButton, {}, {middle, 25});
    EXPECT_NEAR(window.document().value().range.to, 2, 0.2);
    EXPECT_EQ(window.document().value().range.kind, "free");

    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return window.player().prepared() && window.player().prepared()->length < 3; },
        CompareWait));
    window.player().seek(1);
    window.beginHere();
    EXPECT_NEAR(window.document().value().range.from, 1, 1e-6);
}

TEST_F(CompareWindowTest, ShowsFilmsWithoutMarksToTheirEnd) {
    m_desktop.openCompare(
        {.runs = {}, .films = {{film("one.mp4"), "One", 1}, {film("two.mp4"), "Two", 1.5}}});
    CompareWindow& window = *m_desktop.windowsOf<CompareWindow>().back();
    ASSERT_TRUE(isPrepared(window));
    EXPECT_EQ(window.document().value().range.kind, "run");
    const auto index = readVideoIndex(numberedFilm());
    EXPECT_NEAR(window.player().prepared()->length, index->secondsOf(index->frameCount() - 1) - 1,
                1e-6);
}

TEST_F(CompareWindowTest, OffersSplitsByNumberAndTitle) {
    CompareWindow& window = compareTwo();
    desktop::CompareForm& form = window.form();
    form.showSplits(3, {"bridge", "", "upstream 6"});
    auto* const choice = form.findChild<QComboBox*>("fromSplit");
    ASSERT_NE(choice, nullptr);
    QStringList offered;
    for (int i = 0; i < choice->count(); ++i)
        offered.append(choice->itemText(i));
    EXPECT_EQ(offered, QStringList({"the start", "1 bridge", "2", "3 upstream 6"}));
    choice->setCurrentIndex(3);
    EXPECT_EQ(window.document().value().range.fromSplit, 3);
    window.document().undoStack().undo();
    EXPECT_EQ(choice->currentText(), "the start");
    window.document().edit("split", [](composejob002& job) { job.range.fromSplit = 7; });
    EXPECT_EQ(choice->currentText(), "7") << "a split that no run has is told, not hidden";
    EXPECT_EQ(window.document().value().range.fromSplit, 7);
}

TEST_F(CompareWindowTest, WritesItsFileFromWhereItStands) {
    CompareWindow& window = compareTwo();
    fs::create_directory(m_folder.path() / "jobs");
    const fs::path job = m_folder.path() / "jobs" / "pair.json";
    ASSERT_TRUE(savedAs(window, QString::fromStdString(job.string())));
    EXPECT_EQ(readComposeJob(job).films[0].film, "../one.mp4");
    ASSERT_TRUE(closes(window));

    m_desktop.open(QString::fromStdString(job.string()));
    CompareWindow& again = *m_desktop.windowsOf<CompareWindow>().back();
    EXPECT_EQ(again.document().value().films[1].film, film("two.mp4").toStdString());
    EXPECT_TRUE(shows(again, 50, 75));
    EXPECT_FALSE(again.document().isDirty());
}

TEST_F(CompareWindowTest, ChoosesFilmsInATable) {
    CompareWindow& window = compareTwo();
    window.addFiles({film("three.mp4"), film("four.mp4"), film("five.mp4")});
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return window.films().candidates().size() == 5; }, CompareWait));
    window.document().edit("layout", [](composejob002& job) {
        job.layout = "ghost";
        job.sound = 2;
    });
    window.films().toggle(2);
    EXPECT_EQ(window.document().value().layout, "side by side") << "a ghost takes two";
    window.films().toggle(3);
    window.films().toggle(4);
    EXPECT_EQ(window.document().value().films.size(), 4U);
    EXPECT_THAT(window.told().toStdString(), HasSubstr("Four"));
    window.films().toggle(0);
    EXPECT_EQ(window.document().value().films[0].film, film("two.mp4").toStdString());
    EXPECT_EQ(window.document().value().sound, 1) << "the same film is heard";
}

TEST_F(CompareWindowTest, SaysWhichFilmCannotBeHeldThere) {
    CompareWindow& window = compareTwo();
    window.document().edit("split", [](composejob002& job) {
        job.synchronise = "split";
        job.split = 2;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.view().message().isEmpty(); }, CompareWait));
    EXPECT_THAT(window.view().message().toStdString(), HasSubstr("Film 1: split 2"));
    window.document().undoStack().undo();
    EXPECT_TRUE(shows(window, 50, 75));
    EXPECT_TRUE(window.view().message().isEmpty());
}

TEST_F(CompareWindowTest, AlignsByPointsThatAreClickedSideBySide) {
    CompareWindow& window = compareTwo();
    ASSERT_TRUE(shows(window, 50, 75));
    window.alignByPoints();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { // without a strip above and below
            const auto& prepared = window.player().prepared();
            return prepared && prepared->places[0].picture.height == prepared->size.height();
        },
        CompareWait))
        << window.player().prepared()->places[0].picture.height << " of "
        << window.player().prepared()->size.width() << 'x'
        << window.player().prepared()->size.height();
    for (const QPointF& point : {QPointF(0.1, 0.5), QPointF(0.4, 0.5), QPointF(0.6, 0.25)})
        emit window.view().clicked(point);
    EXPECT_TRUE(window.isAligning());
    emit window.view().clicked({0.9, 0.75});
    EXPECT_FALSE(window.isAligning());
    const composejob002& job = window.document().value();
    EXPECT_EQ(job.layout, "ghost");
    ASSERT_EQ(job.films[1].points.size(), 2U);
    EXPECT_NEAR(job.films[0].points[1].x, 0.8, 0.03);
    EXPECT_NEAR(job.films[1].points[0].x, 0.2, 0.03);
    EXPECT_NEAR(job.films[1].points[1].y, 0.75, 0.03);
}

TEST_F(CompareWindowTest, EscapeGivesAligningUp) {
    CompareWindow& window = compareTwo();
    QApplication::setActiveWindow(&window);
    window.view().setFocus();
    window.alignByPoints();
    ASSERT_TRUE(window.isAligning());
    QTest::keyClick(&window.view(), Qt::Key_Escape);
    EXPECT_FALSE(window.isAligning());
    EXPECT_TRUE(window.document().value().films[1].points.empty());
}

TEST_F(CompareWindowTest, ComposesOneAfterTheOtherWhileTheWindowIsGone) {
    CompareWindow& window = compareTwo();
    window.document().edit("part", [](composejob002& job) { job.range.to = 0.5; });
    const QString target = QString::fromStdString((m_folder.path() / "pair.mp4").string());
    RenderQueue& queue = RenderQueue::of(m_workspace);
    const auto first = window.composeTo(target);
    const auto second = window.composeTo(target);
    EXPECT_EQ(queue.find(second)->state, RenderJob::State::Waiting);
    QStringList asked;
    m_workspace.setChoice([&](const Alert&, const QStringList& choices) {
        asked = choices;
        return 2; // stay
    });
    window.close();
    EXPECT_EQ(asked.size(), 3);
    EXPECT_TRUE(window.isVisible());
    m_workspace.setChoice([](const Alert&, const QStringList&) { return 0; });
    window.document().undoStack().setClean();
    ASSERT_TRUE(closes(window));
    ASSERT_TRUE(QTest::qWaitFor([&] { return queue.openJobs() == 0; }, CompareWait));
    EXPECT_EQ(queue.find(first)->state, RenderJob::State::Done)
        << queue.find(first)->told.toStdString();
    EXPECT_THAT(queue.find(second)->target.toStdString(), HasSubstr("pair 2.mp4"));
    EXPECT_EQ(readVideoIndex(queue.find(second)->target.toStdString())->frameCount(), 25);
}

TEST_F(CompareWindowTest, LeavesNothingOfAFilmThatIsStopped) {
    CompareWindow& window = compareTwo();
    window.document().edit("part", [](composejob002& job) { job.range.to = 25; });
    RenderQueue& queue = RenderQueue::of(m_workspace);
    const QString target = QString::fromStdString((m_folder.path() / "long.mp4").string());
    const auto running = window.composeTo(target);
    const auto waiting = window.composeTo(target);
    JobsWindow& jobs = JobsWindow::showOf(m_workspace);
    ASSERT_TRUE(QTest::qWaitFor([&] { return queue.find(running)->done > 0.06; }, CompareWait));
    queue.stop(waiting);
    EXPECT_EQ(queue.find(waiting)->state, RenderJob::State::Stopped);
    jobs.stopChosen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return queue.openJobs() == 0; }, CompareWait));
    EXPECT_EQ(queue.find(running)->state, RenderJob::State::Stopped);
    for (const auto& entry : fs::directory_iterator(m_folder.path()))
        EXPECT_THAT(entry.path().filename().string(), ::testing::Not(HasSubstr("long")));
    queue.clearFinished();
    EXPECT_TRUE(queue.jobs().empty());
    jobs.close();
}

TEST_F(CompareWindowTest, IsReachedFromTheSelectedRunsOfARace) {
    RaceWindow* const race = open(copyOf(Examples / "races" / "riverside_cup.kvx"));
    ASSERT_NE(race, nullptr);
    race->view().selectRun(0);
    trigger(*race, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
    ASSERT_EQ(m_desktop.windowsOf<CompareWindow>().size(), 1);
    const composejob002& job = m_desktop.windowsOf<CompareWindow>().front()->document().value();
    ASSERT_EQ(job.films.size(), 1U);
    EXPECT_THAT(job.films[0].splitFile, HasSubstr("riverside_cup.kvx"));
    EXPECT_EQ(job.films[0].run, static_cast<std::int64_t>(race->view().selectedRuns().front()) + 1);
}

} // namespace
} // namespace kavela::test
