#include "desktop/cross_fixture.h"

namespace kavela::test {
namespace {

TEST_F(CrossPagesTest, TakesOrdersByNumberAndLeavesOutBoatsThatWereNotSeen) {
    ASSERT_NO_FATAL_FAILURE(open(freshCross()));
    QSignalSpy flashes(&m_heats, &desktop::CrossPage::flashed);
    press({3, 2, 1, 2}); // the second press takes a boat back
    EXPECT_THAT(heat().generals, IsEmpty()) << "only shown until it is taken";
    m_heats.mark(at(10));
    ASSERT_THAT(heat().generals, SizeIs(1));
    EXPECT_THAT(heat().generals[0].order, ElementsAre(Cleo, Ada));
    EXPECT_EQ(heat().generals[0].time, at(10));
    EXPECT_EQ(flashes.size(), 1);
    EXPECT_EQ(m_heats.gate(), 4) << "the next gate follows";
    EXPECT_EQ(m_heats.selectedMark(), 0U) << "the order just taken can be moved";
    m_heats.moveMark(at(11));
    EXPECT_EQ(heat().generals[0].time, at(11));
    m_heats.mark(at(20));
    EXPECT_THAT(heat().generals.at(1).order, ElementsAre(Cleo, Ada)) << "as at the gate before";
    press({5});
    EXPECT_EQ(m_told, "This heat has 4 boats.");
    m_heats.removeMark();
    EXPECT_THAT(heat().generals, SizeIs(1));
    undoAll();
    EXPECT_FALSE(m_document.isDirty());
    EXPECT_THAT(heat().generals, IsEmpty());
}

TEST_F(CrossPagesTest, TakesASecondOrderAtAGateInPlaceOfTheFirst) {
    ASSERT_NO_FATAL_FAILURE(open(freshCross()));
    m_heats.mark(at(10));
    m_heats.stepGate(-1);
    type(part<QLineEdit>("orderComment"), "Late start");
    press({2, 1, 3, 4});
    m_heats.mark(at(12));
    ASSERT_THAT(heat().generals, SizeIs(1));
    EXPECT_THAT(heat().generals[0].order, ElementsAre(Bea, Ada, Cleo, Dora));
    EXPECT_EQ(heat().generals[0].time, at(12));
    EXPECT_EQ(heat().generals[0].comments, "Late start");
    EXPECT_EQ(m_heats.gate(), 2) << "a correction stays at its gate";
    m_heats.mark(at(13));
    EXPECT_EQ(heat().generals[0].time, at(13)) << "the same order at another frame";
}

TEST_F(CrossPagesTest, ShowsWhoWentPastWhom) {
    crossdata030 cross = freshCross();
    cross.eliphase[0].generals = {order(2, {Ada, Bea, Cleo, Dora}), order(5, {Dora, Ada, Bea})};
    ASSERT_NO_FATAL_FAILURE(open(cross));
    EXPECT_EQ(m_heats.gate(), 4) << "the first gate without an order";
    auto& grid = part<PlaceGrid>("placeGrid");
    ASSERT_THAT(grid.columns(), SizeIs(4));
    EXPECT_THAT(grid.columns()[1].boats, IsEmpty());
    const auto& boats = grid.columns()[2].boats;
    EXPECT_THAT((std::array{boats[0].change, boats[1].change, boats[2].change}),
                ElementsAre(3, -1, -1));
    EXPECT_EQ(desktop::changeText(3), "▲3");
    QTest::mouseClick(&grid, Qt::LeftButton, {}, grid.placeOf(2, 1).center().toPoint());
    EXPECT_EQ(m_heats.gate(), 5);
    EXPECT_EQ(m_heats.selectedMark(), 1U);
    EXPECT_EQ(part<QLabel>("orderTitle").text(), "Gate 5 · taken at 30.00");
    press({1});
    EXPECT_EQ(part<QLabel>("orderTitle").text(), "Gate 5 · not taken yet");
    ASSERT_THAT(grid.columns()[2].boats, SizeIs(1)) << "what is not taken yet is shown";
    click("resetOrder");
    EXPECT_THAT(grid.columns()[2].boats, SizeIs(3));
    EXPECT_FALSE(m_document.isDirty());
}

TEST_F(CrossPagesTest, SortsBoatsWithTheMouse) {
    ASSERT_NO_FATAL_FAILURE(open(freshCross()));
    auto& board = part<OrderBoard>("orderBoard");
    const auto place = [](int row) { return QPoint(100, PlaceGrid::RowHeight * row + 20); };
    QTest::mousePress(&board, Qt::LeftButton, {}, place(2));
    for (const int row : {1, 0})
        QTest::mouseMove(&board, place(row));
    QTest::mouseRelease(&board, Qt::LeftButton, {}, place(0));
    click("down1"); // Ada, Cleo, Bea, Dora
    click("seen3"); // Ada, Cleo, Dora
    click("up3");   // Ada, Dora, Cleo
    click("seen4"); // Bea again, as the last
    click("keepOrder");
    ASSERT_THAT(heat().generals, SizeIs(1));
    EXPECT_THAT(heat().generals[0].order, ElementsAre(Ada, Dora, Cleo, Bea));
    EXPECT_THAT(m_heats.marks(), IsEmpty()) << "without a film there is no moment";
    m_heats.stepGate(-1);
    m_heats.moveMark(at(9));
    click("seen4");
    click("keepOrder");
    EXPECT_THAT(heat().generals[0].order, ElementsAre(Ada, Dora, Cleo));
    EXPECT_EQ(heat().generals[0].time, at(9)) << "a correction keeps the moment";
}

TEST_F(CrossPagesTest, NotesAttacksByKeyAndInTheForm) {
    ASSERT_NO_FATAL_FAILURE(open(freshCross()));
    m_heats.addAttack(at(20));
    ASSERT_THAT(heat().actions, SizeIs(1));
    EXPECT_EQ(heat().actions[0].attacker, Bea);
    EXPECT_THAT(heat().actions[0].defenders, ElementsAre(Ada)) << "the likeliest attack";
    press({4, 2, 3, 4});
    EXPECT_EQ(heat().actions[0].attacker, Dora);
    EXPECT_THAT(heat().actions[0].defenders, ElementsAre(Bea, Cleo));
    EXPECT_EQ(m_told, "Dora Moss cannot attack and defend at once.");
    EXPECT_TRUE(part<ColumnTable>("attacks").copiedText().contains("\tBea Rill, Cleo Weir\t"))
        << "by their names, of which the table has room for the initials";
    m_heats.endAttack(at(22));
    EXPECT_THAT(heat().actions[0].time, ElementsAre(at(20), at(22)));
    click("attackSucceeded");
    click("defender2");
    type(*part<QComboBox>("attackSide").lineEdit(), "Inside line");
    type(part<QLineEdit>("attackComment"), "Hard");
    EXPECT_EQ(row(part<ColumnTable>("attacks"), 0),
              "20.00|22.00|Dora Moss|Cleo Weir|✓ passed|Inside line|Gate 2|Hard");
    EXPECT_GE(part<QComboBox>("attackSide").findText("Inside line"), 0) << "offered again";
    m_heats.addAttack(at(5));
    EXPECT_EQ(heat().actions[1].attacker, Dora) << "attacks stand in order of time";
    EXPECT_THAT(m_heats.marks(), SizeIs(3));
    m_heats.selectMark(2);
    m_heats.moveMark(at(23));
    EXPECT_THAT(heat().actions[1].time, ElementsAre(at(20), at(23)));
    m_heats.removeMark();
    EXPECT_THAT(heat().actions[1].time, ElementsAre(at(20))) << "the end only";
    auto& table = part<ColumnTable>("attacks");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualRect(table.cellAt(0, 2)).center());
    EXPECT_EQ(m_heats.selectedMark(), 0U);
    click("attackRemoval");
    ASSERT_THAT(heat().actions, SizeIs(1));
    EXPECT_EQ(heat().actions[0].attacker, Dora);
    undoAll();
    EXPECT_FALSE(m_document.isDirty());
    EXPECT_THAT(heat().actions, IsEmpty());
}

TEST_F(CrossPagesTest, TakesWhatIsTypedForAnAttackBeforeItShowsAnother) {
    ASSERT_NO_FATAL_FAILURE(open(freshCross()));
    m_heats.addAttack(at(20));
    m_heats.addAttack(at(30));
    begin(part<QLineEdit>("attackComment"), "Late");
    m_heats.selectMark(0);
    EXPECT_EQ(heat().actions[1].comments, "Late");
    EXPECT_EQ(part<QLineEdit>("attackComment").text(), "");
    begin(part<QLineEdit>("attackComment"), "Early");
    m_heats.moveMark(at(40));
    ASSERT_THAT(heat().actions, SizeIs(2));
    EXPECT_EQ(heat().actions[1].comments, "Early") << "it went behind the other one";
    EXPECT_EQ(heat().actions[0].comments, "Late");
    begin(*part<QComboBox>("attackSide").lineEdit(), "Wide");
    click("attackRemoval");
    m_document.undoStack().undo();
    EXPECT_EQ(heat().actions.at(1).side, "Wide") << "removed with what was typed";
    m_document.undoStack().undo();
    EXPECT_EQ(heat().actions.at(1).side, "") << "a step of its own";
}

TEST_F(CrossPagesTest, SavesAndReadsBackWhatWasTaken) {
    ASSERT_NO_FATAL_FAILURE(open(freshCross()));
    press({2, 1});
    m_heats.mark(at(10));
    m_heats.addAttack(at(12));
    m_heats.endAttack(at(13));
    m_heats.setFilm("other.MOV");
    const rounddata030 taken = heat();
    ASSERT_TRUE(saved(m_document));
    m_heats.mark(at(40));
    ASSERT_TRUE(m_document.reading(QString::fromStdString(file().string()), nullptr)()());
    EXPECT_EQ(heat().videoname, "other.MOV");
    EXPECT_EQ(m_heats.film(), "other.MOV");
    ASSERT_THAT(heat().generals, SizeIs(1));
    EXPECT_EQ(heat().generals[0].order, taken.generals[0].order);
    EXPECT_EQ(heat().generals[0].time, taken.generals[0].time);
    ASSERT_THAT(heat().actions, SizeIs(1));
    EXPECT_EQ(heat().actions[0].time, taken.actions[0].time);
    EXPECT_FALSE(m_document.isDirty());
}

/// As a file from elsewhere may be.
TEST_F(CrossPagesTest, ShowsAndKeepsWhatDoesNotFitTogether) {
    crossdata030 cross = freshCross();
    rounddata030& round = cross.eliphase[0];
    round.generals = {order(2, {Ada, Bea}, 10), order(99, {Stranger, Ada}),
                      order(2, {Stranger, Bea, Ada}, 900000)};
    round.actions = {{{at(50), at(40), at(60)}, Stranger, {Ada, "Nobody"}, true, "", "", ""},
                     {{}, Ada, {}, false, "", "", ""}};
    ASSERT_NO_FATAL_FAILURE(open(cross));
    const QString faults = part<QLabel>("heatFaults").text();
    for (const char* const fault : {"Gate 99: it is not on the cross course",
                                    "Gate 2: Una Known is not in this heat", "Attack 1:"})
        EXPECT_TRUE(faults.contains(fault)) << fault;
    EXPECT_THAT(m_heats.marks(), SizeIs(6)) << "also those far beyond the film";
    EXPECT_THAT(part<PlaceGrid>("placeGrid").columns(), SizeIs(6));
    m_heats.selectMark(1);
    EXPECT_EQ(part<QLabel>("orderTitle").text(), "Gate 99 · taken at 30.00");
    m_heats.mark(at(1));
    EXPECT_THAT(m_told, ::testing::HasSubstr("does not count for the course"));
    EXPECT_FALSE(m_document.isDirty());
    m_heats.selectMark(3);
    type(part<QLineEdit>("attackComment"), "Unclear");
    EXPECT_EQ(heat().actions[0].comments, "Unclear") << "strangers leave the rest editable";
    EXPECT_EQ(heat().actions[0].attacker, Stranger);
    m_heats.selectMark(2);
    m_heats.stepGate(0);
    m_heats.mark(at(11));
    EXPECT_THAT(heat().generals[2].order, ElementsAre(Stranger, Bea, Ada)) << "only moved";
    m_heats.stepGate(1);
    m_heats.mark(at(12));
    EXPECT_THAT(heat().generals.at(1).order, ElementsAre(Bea, Ada)) << "offered without strangers";
    undoAll();
    EXPECT_THAT(heat().generals, SizeIs(3));
}

TEST_F(CrossPagesTest, TellsWhyThereIsNothingToTake) {
    crossdata030 cross = freshCross();
    cross.crossinfo.gates.clear();
    cross.eliphase[0].athletes = {Ada};
    ASSERT_NO_FATAL_FAILURE(open(cross));
    press({1});
    m_heats.mark(at(1));
    m_heats.stepGate(1);
    EXPECT_EQ(m_told, "The cross course has no gates yet.");
    m_heats.addAttack(at(2));
    EXPECT_EQ(heat().actions.at(0).attacker, Ada) << "alone, against nobody";
    EXPECT_THAT(heat().actions.at(0).defenders, IsEmpty());
    m_document.editCross("course", [](crossdata030& changed) {
        changed.crossinfo.gates = {3};
        changed.eliphase[0].athletes.clear();
    });
    m_heats.stepGate(1);
    m_heats.mark(at(3));
    EXPECT_EQ(m_told, "No boat is named yet.");
    QSignalSpy refused(&m_heats, &desktop::CrossPage::refused);
    m_heats.addAttack();
    ASSERT_EQ(refused.size(), 1);
    EXPECT_EQ(refused[0][0].toString(), "This heat has no boats yet.");
    m_heats.stepRow(1);
    m_heats.removeMark();
    EXPECT_THAT(heat().generals, IsEmpty());
}

TEST_F(CrossPagesTest, AddsRenamesAndRemovesHeats) {
    crossdata030 cross = freshCross();
    cross.eliphase[0].generals = {order(2, {Bea, Ada})};
    ASSERT_NO_FATAL_FAILURE(open(cross));
    answerDialog({"Eve", "Eve"});
    click("addHeat");
    EXPECT_TRUE(m_isRefused);
    answerDialog({"Eve", "", "Fay"});
    click("addHeat");
    EXPECT_EQ(m_heats.heat(), 1U);
    EXPECT_THAT(heat(1).athletes, ElementsAre("Eve", "Fay"));
    m_heats.stepRow(-1);
    EXPECT_EQ(m_heats.heat(), 0U);
    answerDialog({"Bea Rill", "Ada Stone"});
    click("renameBoats");
    EXPECT_THAT(heat().athletes, ElementsAre(Bea, Ada, Cleo, Dora)) << "two boats swap names";
    EXPECT_THAT(heat().generals[0].order, ElementsAre(Ada, Bea));
    click("removeHeat");
    EXPECT_THAT(heat().athletes, ElementsAre("Eve", "Fay"));
    click("removeHeat");
    EXPECT_TRUE(part<QLabel>("noHeats").isVisible());
    press({1});
    m_heats.mark(at(1));
    EXPECT_EQ(m_told, "Add a heat first.");
    undoAll();
    EXPECT_THAT(heat().athletes, ElementsAre(Ada, Bea, Cleo, Dora));
}

} // namespace
} // namespace kavela::test
