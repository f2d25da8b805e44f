#include "desktop/race_care_fixture.h"

namespace kavela::test {
namespace {

TEST_F(RaceCareTest, KeepsNameAndTotalsInViewWhileSectionsScroll) {
    for (const std::size_t sections : {7U, 12U, 20U}) {
        splittakerdata031 race = sample::holdRace(sample::harbourNight());
        race.info.totalsplits = static_cast<std::int64_t>(sections);
        race.info.splitTitles.resize(sections);
        for (athletedata031& run : race.athletes)
            run.sectioninfo.times.assign(sections, 12.34);
        m_workspace.setPreference("penaltiesVisible", true);
        RaceWindow* const window = show(write(race, (std::to_string(sections) + ".kvx").c_str()));
        ASSERT_TRUE(window);
        const desktop::FrozenTable& table = window->table();
        const QTableView& back = *table.backView();
        ASSERT_TRUE(back.isVisible()) << sections;
        EXPECT_EQ(back.x() + back.width() <= table.width(), true) << sections;
        for (int closing = 1; closing <= 3; ++closing)
            EXPECT_FALSE(back.isColumnHidden(window->model().columnCount() - closing)) << sections;
        window->table().setCurrentIndex(window->model().index(0, 0));
        for (int column = 1; column < FirstTime + static_cast<int>(sections); ++column) {
            press(*window, Qt::Key_Right);
            ASSERT_EQ(table.currentIndex().column(), column);
            EXPECT_TRUE(column < FirstTime || isInView(*window, column))
                << "section " << column - FirstTime + 1 << " of " << sections;
            EXPECT_FALSE(table.frozenView()->isColumnHidden(0));
            for (const QTableView* view : {table.frozenView(), table.backView()})
                EXPECT_TRUE(view->isAncestorOf(table.childAt(view->geometry().center())))
                    << "what stays lies over what scrolls";
        }
        window->close();
    }
}

TEST_F(RaceCareTest, LetsTheTotalsStandWhereTheyAreMoved) {
    RaceWindow* const window = show(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    QHeaderView* const header = window->table().horizontalHeader();
    const int total = header->count() - 3;
    const QTableView& back = *window->table().backView();
    EXPECT_FALSE(back.isColumnHidden(total));
    header->moveSection(total, FirstTime);
    EXPECT_TRUE(back.isColumnHidden(total)) << "it scrolls with the sections now";
    EXPECT_FALSE(back.isColumnHidden(total + 1));
}

TEST_F(RaceCareTest, KeepsTheWidthThatTheCoachGaveAColumn) {
    RaceWindow* const window = show(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    window->table().frozenView()->horizontalHeader()->resizeSection(0, 333);
    press(*window, Qt::Key_T);
    EXPECT_EQ(window->table().columnWidth(0), 333);
    EXPECT_EQ(window->table().frozenView()->columnWidth(0), 333);
}

TEST_F(RaceCareTest, SaysWhySectionsFromTheEleventhOnLookOtherwise) {
    splittakerdata031 race = smallRace();
    race.info.totalsplits = 12;
    const RaceWindow* const window = show(write(race));
    ASSERT_TRUE(window);
    const auto* const note = window->findChild<QLabel*>("note");
    EXPECT_TRUE(note->isVisible());
    EXPECT_THAT(note->text().toStdString(), HasSubstr("12 sections"));
    const auto tip = [&](int section) {
        return window->model()
            .headerData(FirstTime + section - 1, Qt::Horizontal, Qt::ToolTipRole)
            .toString()
            .toStdString();
    };
    EXPECT_THAT(tip(11), HasSubstr("first ten sections"));
    EXPECT_THAT(tip(10), ::testing::Not(HasSubstr("first ten sections")));
}

TEST_F(RaceCareTest, CopiesNumbersWithTheSignOfTheSystem) {
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    const QLocale before;
    QLocale::setDefault(QLocale("de_DE"));
    window->table().selectRow(rowOf(*window, "Bea"));
    press(*window, Qt::Key_V);
    press(*window, Qt::Key_I);
    press(*window, QKeySequence::Copy);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0],
              "Name\tPhase\tCat\tPlace\tStart\tStart penalty\tPool\tPool penalty\tFinish\t"
              "Finish penalty\tTotal\tSprint\tReal");
    EXPECT_EQ(lines[1], "Bea\tHeats\tC1W\t\t2,00\t2\t\t0\t\t0\t\t\t") << "untimed cells are empty";
    const QString csv = desktop::splitTableAsText(
        window->model(), {0}, {0, FirstTime, FirstTime + 3}, desktop::fileTable());
    EXPECT_EQ(csv, "Name;Start;Start penalty;Total\nAnn;10.00;0;60.00\n");
    press(*window, Qt::CTRL | Qt::Key_2);
    window->table().selectRow(0);
    press(*window, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text().section('\n', 1, 1),
              "Ann\tHeats\tK1W\t\t1,00\t1,00\t0,00\t0,00\t\t")
        << "gaps without plus and brackets";
    QLocale::setDefault(before);
}

} // namespace
} // namespace kavela::test
