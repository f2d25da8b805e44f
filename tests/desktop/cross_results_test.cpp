#include "desktop/cross_fixture.h"

namespace kavela::test {
namespace {

TEST_F(CrossPagesTest, ListsTheResultsOfEachRound) {
    crossdata030 cross = freshCross();
    cross.eliphase[0].generals = {order(2, {Ada, Bea, Cleo, Dora}), order(4, {Bea, Ada, Dora}),
                                  order(5, {Bea, Dora, Ada}), order(7, {Dora, Bea, Ada})};
    cross.eliphase[0].actions = {{{at(1)}, Dora, {Bea}, true, "Left", "Gate 7", ""},
                                 {{at(2)}, Dora, {Bea, Ada}, false, "Left", "Gate 7", ""}};
    cross.eliphase.push_back({"", {Dora, Bea}, {order(2, {Bea, Dora})}, {}});
    ASSERT_NO_FATAL_FAILURE(open(cross));
    auto& first = part<ColumnTable>("heat1Places", &m_results);
    EXPECT_EQ(row(first, 0), "Dora Moss|1|4|3|0|→ goes on");
    EXPECT_EQ(row(first, 1), "Bea Rill|2|2|1|1|→ goes on");
    EXPECT_EQ(row(first, 3), "Cleo Weir|–|3|0|0|out");
    const auto ground = [&](int place) { return first.cellAt(place, 0).data(Qt::BackgroundRole); };
    EXPECT_TRUE(ground(1).isValid()) << "who goes on is seen from afar";
    EXPECT_FALSE(ground(3).isValid());
    EXPECT_EQ(part<QLabel>("heat1Missing", &m_results).text(),
              "⚠ Not all boats were seen at the last gate.");
    EXPECT_EQ(row(part<ColumnTable>("heat2Places", &m_results), 0), "Bea Rill|1|1|0|0|")
        << "nobody has won yet";
    EXPECT_EQ(part<QLabel>("heat2Missing", &m_results).text(),
              "⚠ Not finished. Gates without an order: 4, 5, 7.");
    EXPECT_EQ(row(part<ColumnTable>("attackers", &m_results), 2), "Dora Moss|2|1|50 %|0|0|–");
    EXPECT_EQ(row(part<ColumnTable>("attackPlaces", &m_results), 0), "Gate 7, Left|2|1|50 %");
    QSignalSpy wanted(&m_results, &ResultsPage::heatWanted);
    auto& title = part<QLabel>("heat2", &m_results);
    QTest::mouseClick(&title, Qt::LeftButton, {}, {8, title.height() / 2});
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted[0][0].value<std::size_t>(), 1U);
}

TEST_F(CrossPagesTest, CopiesResultsForASpreadsheet) {
    crossdata030 cross = freshCross();
    cross.eliphase[0].generals = {order(7, {Ada, Bea})};
    ASSERT_NO_FATAL_FAILURE(open(cross));
    QApplication::setActiveWindow(&m_results);
    auto& table = part<ColumnTable>("heat1Places", &m_results);
    table.setFocus();
    table.selectRow(1);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Boat\tPlace\tStart\tGained\tLost\tOutcome\nBea Rill\t2\t2\t0\t0\t\n");
    table.clearFocus();
    m_results.copy();
    EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 5) << "also what is not selected";
    m_document.editCross("heats removed", [](crossdata030& all) { all.eliphase.clear(); });
    EXPECT_TRUE(part<QLabel>("noResults", &m_results).isVisible());
}

} // namespace
} // namespace kavela::test
