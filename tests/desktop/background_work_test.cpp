#include "desktop/shell/background_work.h"

#include "common/temp_folder.h"
#include "common/text_file.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_copy.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <vector>

namespace kavela::test {
namespace {

using desktop::BackgroundWork;
using desktop::WorkSteps;

/// Until a piece is asked to stop.
void waitForCancel(const WorkSteps& steps) {
    while (!steps.isCancelled())
        QThread::yieldCurrentThread();
}

TEST(BackgroundWorkTest, BringsAResultThatOnlyMovesOnTheInterfaceThread) {
    BackgroundWork work;
    std::unique_ptr<int> got;
    const QThread* workedOn = nullptr;
    const QThread* toldOn = nullptr;
    work.run(
        [&] {
            workedOn = QThread::currentThread();
            return std::make_unique<int>(7);
        },
        [&](std::unique_ptr<int> result) {
            toldOn = QThread::currentThread();
            got = std::move(result);
        });
    EXPECT_TRUE(work.isRunning());
    EXPECT_FALSE(got) << "never from within the call";
    QTRY_VERIFY(got);
    EXPECT_EQ(*got, 7);
    EXPECT_EQ(toldOn, QThread::currentThread());
    EXPECT_NE(workedOn, toldOn);
    EXPECT_FALSE(work.isRunning());
}

/// The windows wait once for a disk that does not answer, not for each of its files.
TEST(BackgroundWorkTest, BringsWhatIsAwaitedAtOnceAndWaitsForNothingElseWhileItTakesLong) {
    BackgroundWork work;
    std::vector<int> got;
    const auto take = [&](int result) { got.push_back(result); };
    work.runAwaited([] { return 1; }, take);
    EXPECT_THAT(got, ::testing::ElementsAre(1));
    EXPECT_FALSE(work.isRunning());

    const auto gate = std::make_shared<QSemaphore>();
    const auto patience = desktop::disk::patience();
    desktop::disk::setPatience(std::chrono::milliseconds(1));
    work.runAwaited(
        [gate] {
            gate->acquire();
            return 2;
        },
        take);
    desktop::disk::setPatience(patience); // longer than any test
    work.runAwaited(
        [gate] {
            gate->acquire();
            return 3;
        },
        take);
    EXPECT_THAT(got, ::testing::SizeIs(1));
    gate->release(2);
    QTRY_COMPARE(got.size(), 3UL);
    QApplication::processEvents();
    EXPECT_THAT(got, ::testing::UnorderedElementsAre(1, 2, 3)) << "each is told once";
}

/// Nobody could answer it under a dialog that takes all clicks.
TEST(BackgroundWorkTest, ShowsNothingOverAQuestionThatItsEndAsks) {
    QWidget window;
    window.show();
    BackgroundWork work;
    bool isAsked = false;
    bool isCovered = true;
    work.runOver(
        {&window, "Reading…"}, [] { return 1; },
        [&](int) {
            isAsked = true;
            isCovered = QTest::qWaitFor(
                [&] {
                    auto* const dialog = window.findChild<QProgressDialog*>();
                    return dialog && dialog->isVisible();
                },
                1000);
        });
    QTRY_VERIFY(isAsked);
    QTRY_VERIFY(!isCovered);
}

TEST(BackgroundWorkTest, TellsWhatAPieceThrew) {
    BackgroundWork work;
    std::string told;
    bool isDone = false;
    work.run(
        []() -> int { throw std::runtime_error("no disk"); }, [&](int) { isDone = true; },
        {.failed = [&](const std::exception_ptr& fault) { told = desktop::messageOf(fault); }});
    QTRY_VERIFY(!told.empty());
    EXPECT_EQ(told, "no disk");
    EXPECT_FALSE(isDone);
}

/// Finished or not when its owner goes: neither is told, and what runs hears that it may stop.
TEST(BackgroundWorkTest, TellsNothingToAWindowThatIsGone) {
    int told = 0;
    const auto isStopped = std::make_shared<std::atomic<bool>>(false);
    const auto isOver = std::make_shared<QSemaphore>();
    {
        BackgroundWork finished;
        finished.run([isOver] { isOver->release(); }, [&] { ++told; });
        isOver->acquire();
        QThreadPool::globalInstance()->waitForDone(); // its end is on its way
        BackgroundWork running;
        running.run(
            [isStopped, isOver](const WorkSteps& steps) {
                isOver->release();
                waitForCancel(steps);
                *isStopped = true;
            },
            [&] { ++told; }, {.cancelled = [&] { ++told; }});
        isOver->acquire();
    }
    QThreadPool::globalInstance()->waitForDone();
    QApplication::processEvents();
    EXPECT_TRUE(*isStopped);
    EXPECT_EQ(told, 0);
}

TEST(BackgroundWorkTest, GivesUpWhatItIsAskedTo) {
    BackgroundWork work;
    int told = 0;
    const auto isRunning = std::make_shared<QSemaphore>();
    work.run(
        [isRunning](const WorkSteps& steps) {
            isRunning->release();
            waitForCancel(steps);
        },
        [&] { ++told; }, {.cancelled = [&] { ++told; }});
    isRunning->acquire();
    work.cancel();
    EXPECT_FALSE(work.isRunning());
    bool isNextDone = false;
    work.run([] {}, [&] { isNextDone = true; });
    QTRY_VERIFY(isNextDone);
    EXPECT_EQ(told, 0);
}

TEST(BackgroundWorkTest, ShowsHowFarItIsAndIsCancelledByTheCoach) {
    QWidget window;
    window.show();
    BackgroundWork work;
    QStringList ends;
    work.runOver(
        {&window, "Copying", true},
        [](const WorkSteps& steps) {
            steps.tellProgress(1, 4);
            waitForCancel(steps);
        },
        [&] { ends << "done"; }, {.cancelled = [&] { ends << "cancelled"; }});
    EXPECT_FALSE(window.isEnabled());
    auto* const progress = window.findChild<QProgressDialog*>();
    ASSERT_TRUE(progress);
    QTRY_VERIFY(progress->isVisible());
    const auto* const bar = progress->findChild<QProgressBar*>();
    QTRY_COMPARE(bar->value() * 4, bar->maximum());
    progress->findChild<QPushButton*>()->click();
    QTRY_COMPARE(ends, QStringList("cancelled"));
    EXPECT_TRUE(window.isEnabled());
    QTRY_VERIFY(!window.findChild<QProgressDialog*>());
}

/// A window that outlives the owner of its work is free again.
TEST(BackgroundWorkTest, FreesAWindowWhoseWorkIsGivenUp) {
    QWidget window;
    {
        BackgroundWork work;
        work.runOver({&window, "Reading"}, waitForCancel, [] {});
        EXPECT_FALSE(window.isEnabled());
    }
    QTRY_VERIFY(window.isEnabled());
}

TEST(BackgroundWorkTest, ACopyThatIsCancelledLeavesNothing) {
    const TempFolder folder;
    const QString from = QString::fromStdString(folder.add("a.mov", "film").string());
    const QString to = QString::fromStdString((folder.path() / "b.mov").string());
    BackgroundWork work;
    QStringList ends;
    const auto isRunning = std::make_shared<QSemaphore>();
    work.run(
        [from, to, isRunning](const WorkSteps& steps) {
            isRunning->release();
            waitForCancel(steps);
            return desktop::copyFile(from, to, steps);
        },
        [&](desktop::CopyEnd) { ends << "done"; });
    isRunning->acquire();
    work.cancel();
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_THAT(folder.names(), ::testing::ElementsAre("a.mov"));
    work.run(
        [from, to](const WorkSteps& steps) { return desktop::copyFile(from, to, steps); },
        [&](desktop::CopyEnd end) { ends << (end == desktop::CopyEnd::Done ? "there" : "?"); });
    QTRY_COMPARE(ends, QStringList("there"));
    EXPECT_EQ(readTextFile(folder.path() / "b.mov"), "film");
}

} // namespace
} // namespace kavela::test
