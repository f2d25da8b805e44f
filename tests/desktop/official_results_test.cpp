#include "desktop/tables_fixture.h"

#include "common/json_encode.h"
#include "desktop/busy_threads.h"
#include "desktop/taking/official_dialog.h"
#include "desktop/taking/taking_window.h"

/// Official results beside the films.
namespace kavela::test {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class OfficialResultsTest : public TablesWindowTest {
protected:
    static void awaitCompared(OfficialDialog& dialog) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return !dialog.isReading() && !dialog.isComparing(); }, 20000));
    }
};

TEST_F(OfficialResultsTest, TakesOfficialResultsOverLineByLine) {
    m_program.openOfficialDifferences(add("race.kvx", encode(raceOnFilm())));
    ASSERT_THAT(m_program.windowsOf<TakingWindow>(), SizeIs(1));
    TakingWindow& window = *m_program.windowsOf<TakingWindow>().front();
    OfficialDialog& dialog = showOfficialDifferences(window, m_workspace);
    EXPECT_THAT(window.findChildren<OfficialDialog*>(), SizeIs(1)) << "one for a window";
    awaitCompared(dialog);
    ASSERT_THAT(dialog.differences(), SizeIs(1)) << "a touch that was not noted";
    EXPECT_EQ(dialog.differences().front().kind, OfficialDifferenceKind::MissingPenalty);
    dialog.openList(add("other.csv", "Name;Time;Pen\nBell Anna;90;0\nKos Eva;95;2\n"));
    awaitCompared(dialog);
    ASSERT_THAT(dialog.differences(), SizeIs(1));
    EXPECT_EQ(dialog.differences().front().kind, OfficialDifferenceKind::TimeOff);
    dialog.takeOverCurrent();
    EXPECT_EQ(window.document().run(1).sectioninfo.realtime, 95);
    EXPECT_EQ(window.document().run(1).sectioninfo.times, std::vector<double>({40, 51}));
    awaitCompared(dialog);
    EXPECT_THAT(dialog.differences(), IsEmpty());
    EXPECT_EQ(window.document().undoStack().count(), 1);
    window.undo();
    EXPECT_EQ(window.document().run(1).sectioninfo.realtime, 0);
    awaitCompared(dialog);
    EXPECT_THAT(dialog.differences(), SizeIs(1)) << "it follows what is taken back";
}

/// What is asked for while the race is compared waits for the differences as they are then.
TEST_F(OfficialResultsTest, ComparesOfficialResultsBesideTheWindow) {
    m_program.openOfficialDifferences(add("race.kvx", encode(raceOnFilm())));
    TakingWindow& window = *m_program.windowsOf<TakingWindow>().front();
    TakingDocument& race = window.document();
    OfficialDialog& dialog = showOfficialDifferences(window, m_workspace);
    awaitCompared(dialog);
    ASSERT_THAT(dialog.differences(), SizeIs(1));
    {
        const BusyThreads busy;
        dialog.takeOverCurrent();
        EXPECT_TRUE(dialog.isComparing());
        EXPECT_THAT(dialog.differences(), SizeIs(1)) << "what is shown stays meanwhile";
        dialog.takeOverCurrent();
    }
    awaitCompared(dialog);
    EXPECT_THAT(dialog.differences(), IsEmpty());
    EXPECT_EQ(race.undoStack().count(), 1) << "it was none any more";
    window.undo();
    awaitCompared(dialog);
    ASSERT_THAT(dialog.differences(), SizeIs(1));
    {
        const BusyThreads busy;
        race.moveRun(0, 1); // Anna's run, which it is about
        dialog.takeOverCurrent();
        EXPECT_EQ(race.undoStack().count(), 1);
    }
    awaitCompared(dialog);
    EXPECT_EQ(race.undoStack().count(), 2);
    EXPECT_EQ(race.run(1).sectioninfo.realpen, 2);
    EXPECT_EQ(race.run(0).sectioninfo.realtime, 0);
}

} // namespace
} // namespace kavela::test
