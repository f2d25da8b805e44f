#include "desktop/slit_fixture.h"

namespace kavela::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

TEST_F(SlitWindowTest, AProposalBringsTheRunThatItIsHeldFor) {
    SlitWindow& window = openWithRace();
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()),
                         crossingsAt({0.2, 0.76, 1.32, 1.88}));
    window.stage().setHair(0.5);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(hairFrame(), 38);
    EXPECT_EQ(window.runTable().currentPlace(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(markedFrame(0, 1), -1);
    EXPECT_EQ(markedFrame(1, 1), 38);
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    EXPECT_EQ(hairFrame(), 10);
    EXPECT_EQ(window.runTable().currentPlace(), 0);

    ColumnTable& proposals = window.proposalTable();
    const auto click = [&](int row) {
        const QModelIndex index = proposals.model()->index(row, 0);
        proposals.scrollTo(index);
        const QRect cell = proposals.visualRect(index);
        QTest::mouseClick(proposals.viewport(), Qt::LeftButton, {}, cell.center());
    };
    click(2);
    EXPECT_EQ(hairFrame(), 66);
    EXPECT_EQ(window.runTable().currentPlace(), 2);
    click(3); // falls to no run
    EXPECT_EQ(hairFrame(), 94);
    EXPECT_EQ(window.runTable().currentPlace(), 2);
}

TEST_F(SlitWindowTest, EnterOnceTooOftenIsTold) {
    SlitWindow& window = openWithRace();
    window.stage().setHair(20.5);
    press(Qt::Key_Return);
    EXPECT_THAT(window.told().toStdString(), Not(HasSubstr("Ann Lee")));
    press(Qt::Key_Return); // the next run, for which nothing was looked
    EXPECT_EQ(markedFrame(1, 1), 20) << "two boats can be side by side";
    EXPECT_THAT(window.told().toStdString(), HasSubstr("Ann Lee"));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(markedFrame(1, 1), -1);
    EXPECT_EQ(markedFrame(0, 1), 20);

    for (int run = 1; run < 3; ++run) {
        window.runTable().choose(run);
        window.stage().setHair(20.5 + 30 * run);
        press(Qt::Key_Return);
    }
    ASSERT_EQ(markedFrame(2, 1), 80);
    const int steps = m_taking->document().undoStack().index();
    press(Qt::Key_Return); // all are marked
    EXPECT_EQ(m_taking->document().undoStack().index(), steps);
    EXPECT_THAT(window.told().toStdString(), HasSubstr("Cy Dal"));
    EXPECT_THAT(window.told().toStdString(), Not(HasSubstr("Bo Fox")));
}

TEST_F(SlitWindowTest, UndoTakesBackLinesRefusalsAndMarksInTheirOrder) {
    SlitWindow& window = openWithRace();
    const QKeyCombination undo = Qt::CTRL | Qt::Key_Z;
    const QKeyCombination redo = Qt::CTRL | Qt::SHIFT | Qt::Key_Z;
    const auto refused = [&] { return window.line() ? window.line()->refused.size() : 0; };
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()), crossingsAt({0.4, 1.6}));
    window.stage().setHair(20.5);
    press(Qt::Key_Return);
    ASSERT_EQ(markedFrame(0, 1), 20);
    window.stage().setHair(80.5);
    press(Qt::Key_Delete);
    ASSERT_EQ(refused(), 1U);
    press(Qt::Key_Return);
    ASSERT_EQ(markedFrame(1, 1), 80);

    press(undo);
    EXPECT_EQ(markedFrame(1, 1), -1);
    EXPECT_EQ(refused(), 1U);
    press(undo);
    EXPECT_EQ(refused(), 0U);
    EXPECT_EQ(markedFrame(0, 1), 20);
    press(undo);
    EXPECT_EQ(markedFrame(0, 1), -1);
    press(undo);
    EXPECT_THAT(window.keeping().file().lines, IsEmpty());
    for (int i = 0; i < 4; ++i)
        press(redo);
    EXPECT_EQ(refused(), 1U);
    EXPECT_EQ(markedFrame(1, 1), 80);

    // A line that is removed comes back, also in the file.
    window.removeLine();
    press(undo);
    EXPECT_EQ(refused(), 1U);
    disk::waitForAll();
    const auto kept = readSlitFile(slitFileOf(film()));
    ASSERT_TRUE(kept);
    EXPECT_THAT(kept->lines, SizeIs(1));

    // What is marked after split taking took its steps back is later than the lines.
    window.turnArrow();
    window.setSplit(1); // as it is: no step
    const bool isTurned = window.line()->fromLeft;
    m_taking->undo();
    m_taking->undo();
    window.runTable().choose(2);
    window.stage().setHair(90.5);
    window.mark();
    ASSERT_EQ(markedFrame(2, 1), 90);
    press(undo);
    EXPECT_EQ(markedFrame(2, 1), -1);
    EXPECT_EQ(window.line()->fromLeft, isTurned);
    press(undo);
    EXPECT_EQ(window.line()->fromLeft, !isTurned);
}

TEST_F(SlitWindowTest, UndoTakesNudgesOfALineBackAtOnceAndNothingElseWithThem) {
    SlitWindow& window = openWithRace();
    auto& overlay = window.stage().overlay();
    const double drawn = window.line()->x1;
    const auto nudge = [&](int times) {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&overlay, Qt::Key_Right);
    };
    nudge(3);
    ASSERT_EQ(window.line()->x1, drawn + 3);
    window.turnArrow();
    nudge(2);
    window.undoStep();
    EXPECT_EQ(window.line()->x1, drawn + 3);
    nudge(2);
    window.undoStep();
    EXPECT_EQ(window.line()->x1, drawn + 3) << "what was nudged after a step back";
    window.undoStep();
    window.undoStep();
    ASSERT_TRUE(window.line());
    EXPECT_EQ(window.line()->x1, drawn);
    window.redoStep();
    EXPECT_EQ(window.line()->x1, drawn + 3);
}

} // namespace
} // namespace kavela::test
