#include "desktop/tables_fixture.h"

#include "common/text_file.h"
#include "desktop/charts/series_chart.h"
#include "desktop/why/why_window.h"
#include "results/team_file.h"
#include "tables/table_text.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>

#include <memory>

/// Any list as a table, as a coach works with it.
namespace kavela::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

TEST_F(TablesWindowTest, TakesEveryStepBackAndLeavesTheListAlone) {
    TablesWindow& window = openFinal();
    const QStringList names = column(window, NameOfList);
    ASSERT_THAT(names, SizeIs(6));
    window.table().choose(0, TimeOfList);
    window.sort(false);
    EXPECT_EQ(column(window, NameOfList).mid(0, 3),
              QStringList({"Mach Ota", "Novak Petr", "Bell Anna"}));
    window.derive(Derivation::Gap);
    EXPECT_EQ(column(window, 5).value(2).replace(',', '.'), "4.75");
    window.take(GroupStep{"Class"});
    EXPECT_EQ(column(window, 0).filter("("), QStringList({"K1M (3)", "K1W (3)"}));
    window.take(FilterStep{"Class", "K1W", true});
    EXPECT_THAT(column(window, 0), SizeIs(4)) << "a title and three rows";
    window.take(Pivot{"Class", "", "Time", PivotFunction::Least});
    EXPECT_EQ(column(window, 0), QStringList("K1W"));
    EXPECT_EQ(window.document().undoStack().count(), 5);
    while (window.document().undoStack().canUndo())
        window.document().undoStack().undo();
    EXPECT_EQ(column(window, NameOfList), names);
    EXPECT_EQ(window.table().model()->columnCount(), 5);
    EXPECT_EQ(readTextFile(m_folder.path() / "final.csv"), FinalList);
    window.take(RemoveStep{"No such column"});
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_FALSE(window.document().undoStack().canUndo()) << "what cannot be taken is no step";
}

TEST_F(TablesWindowTest, KeepsStepsAndNoTablesToTakeBack) {
    TablesWindow& window = openFinal();
    window.take(SortStep{"Name", false});
    window.take(KindStep{"Pen", ListColumnKind::Decimal});
    const std::string before = tableCsv(*window.document().table());
    const std::weak_ptr<const ListTable> table = window.document().table();
    window.take(FilterStep{"Class", "K1W", true});
    const std::string after = tableCsv(*window.document().table());
    EXPECT_TRUE(table.expired());
    window.undo();
    EXPECT_EQ(tableCsv(*window.document().table()), before);
    window.redo();
    EXPECT_EQ(tableCsv(*window.document().table()), after);
}

/// The cursor stands on what was added last.
TEST_F(TablesWindowTest, ReckonsWhatIsAddedNextFromTheSameColumn) {
    TablesWindow& window = openFinal();
    window.table().choose(0, TimeOfList);
    window.sort(false);
    window.derive(Derivation::Rank);
    window.derive(Derivation::Gap);
    EXPECT_EQ(column(window, 6).value(2).replace(',', '.'), "4.75") << "of the times";
}

TEST_F(TablesWindowTest, TellsWhatWasRefusedWithLineColumnAndReason) {
    TablesWindow& window = openFinal();
    const QAbstractItemModel& refused = *window.refused().model();
    ASSERT_EQ(refused.rowCount(), 1);
    EXPECT_EQ(refused.index(0, 0).data().toString(), "4");
    EXPECT_EQ(refused.index(0, 1).data().toString(), "4");
    EXPECT_EQ(refused.index(0, 2).data().toString(), "fast");
    EXPECT_THAT(window.status().toStdString(), HasSubstr("1 refused"));
    window.table().choose(0, TimeOfList);
    window.takeAtColumn([](const std::string& name) {
        return KindStep{name, ListColumnKind::Text};
    });
    EXPECT_EQ(refused.rowCount(), 0) << "as text it is taken";
    EXPECT_EQ(column(window, TimeOfList).value(2), "fast");
}

/// By the key, after the rows were moved; a place leads to the cell, or tells what stood there.
TEST_F(TablesWindowTest, TellsWhyAReckonedNumberIsWhatItIs) {
    TablesWindow& window = openFinal();
    window.take(parsedDerivedColumn("gap:Time"));
    window.take(SortStep{"Name", true});
    const int gap = 5;
    const qsizetype anna = column(window, NameOfList).indexOf("Bell Anna");
    window.show();
    window.table().choose(static_cast<int>(anna), gap);
    window.table().setFocus();
    QApplication::processEvents();
    const auto ask = [&]() -> WhyWindow* {
        QTest::keyClick(&window.table(), Qt::Key_F1, Qt::ShiftModifier);
        return window.findChild<WhyWindow*>();
    };
    WhyWindow* why = ask();
    ASSERT_TRUE(why);
    EXPECT_THAT(why->text().toStdString(), HasSubstr("4.75"));
    EXPECT_THAT(why->text().toStdString(), HasSubstr("final.csv · line 2 · column 4"));
    EXPECT_THAT(why->text().toStdString(), HasSubstr("final.csv · line 7 · column 4"));
    delete why;

    Place best;
    best.line = 7;
    best.column = TimeOfList + 1;
    EXPECT_TRUE(window.showOwnPlace(best));
    EXPECT_EQ(window.currentColumn(), std::optional<std::size_t>(TimeOfList));
    EXPECT_EQ(column(window, NameOfList).value(window.table().currentPlace()), "Mach Ota");
    EXPECT_FALSE(window.showOwnPlace(Place())) << "a run of a split file is shown elsewhere";

    window.take(Pivot{"Class", "", "Time", PivotFunction::Mean});
    window.table().choose(1, 1);
    why = ask();
    ASSERT_TRUE(why);
    EXPECT_THAT(why->text().toStdString(), HasSubstr("line 6 · column 4"));
    delete why;
    EXPECT_TRUE(window.showOwnPlace(best));
    EXPECT_THAT(window.status().toStdString(), HasSubstr("90.75"));
}

TEST_F(TablesWindowTest, SortsByAClickAndBackwardsByTheNext) {
    TablesWindow& window = openFinal();
    QHeaderView* const header = window.table().horizontalHeader();
    emit header->sectionClicked(TimeOfList);
    EXPECT_EQ(column(window, NameOfList).front(), "Mach Ota");
    emit header->sectionClicked(TimeOfList);
    EXPECT_EQ(column(window, NameOfList).front(), "Kos Iva");
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
    emit header->sectionClicked(ClassOfList);
    EXPECT_EQ(column(window, NameOfList).front(), "Novak Petr") << "what is equal keeps its order";
}

TEST_F(TablesWindowTest, TintsAndDrawsTheNumbersOfTheTable) {
    TablesWindow& window = openFinal();
    window.take(TintStep{"Time", true});
    const auto ground = [&](int row) {
        return window.table().model()->index(row, TimeOfList).data(Qt::BackgroundRole);
    };
    EXPECT_TRUE(ground(5).isValid());
    EXPECT_FALSE(ground(3).isValid()) << "DNF is no time";
    const QVariant before = ground(5);
    window.setScale(ColourScale::BlueOrange);
    EXPECT_NE(ground(5), before);
    window.table().choose(0, TimeOfList);
    window.showChart();
    const ChartContent& content = window.chart().content();
    ASSERT_THAT(content.series, SizeIs(1));
    EXPECT_THAT(content.series[0].points, SizeIs(4));
    EXPECT_THAT(content.subtitle.toStdString(), HasSubstr("90.75 (Mach Ota)"));
    EXPECT_THAT(content.subtitle.toStdString(), HasSubstr("2 without a number"));
    emit window.chart().pointActivated(0, 2);
    EXPECT_EQ(window.table().currentPlace(), 4);
    window.take(GroupStep{"Class"});
    EXPECT_THAT(window.chart().content().series, SizeIs(2));
}

TEST_F(TablesWindowTest, AsksWhoIsMeantAndCanForgetTheAnswer) {
    myTeamToSaveStruct team;
    for (const char* name : {"BELL Anna", "NOVÁK Petr", "Novák Petr"})
        team.realMyTeam.emplace_back().name = name;
    const fs::path file = m_folder.path() / "team.kvteam";
    saveTeamFile(team, file);
    TablesWindow& window = openFinal();
    m_workspace.setChoice([](const Alert& question, const QStringList& choices) {
        EXPECT_THAT(question.title, HasSubstr("Novak Petr"));
        EXPECT_THAT(choices, SizeIs(3));
        return 2;
    });
    window.joinTeam(QString::fromStdString(file.string()));
    await(window);
    EXPECT_EQ(column(window, 5), QStringList({"BELL Anna", "Novák Petr", "", "", "", ""}));
    window.document().undoStack().undo();
    EXPECT_THAT(column(window, 5).value(1).toStdString(), HasSubstr("?"));
    EXPECT_THAT(window.document().unsureRows(), ElementsAre(1));
    window.document().undoStack().undo();
    EXPECT_EQ(window.table().model()->columnCount(), 5);
}

/// The lines below the first one were cut off.
TEST(TablesWindowStart, SaysWholeWhatCanBeOpenedInAnyFont) {
    const TempFolder folder;
    desktop::Workspace workspace(
        Preferences(folder.path() / "preferences.ini"), [](std::string_view) {}, systemNow);
    const QFont before = QApplication::font();
    for (const int points : {9, 18}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        desktop::TablesWindow window(
            workspace, Autosave(QString::fromStdString((folder.path() / "kept").string())));
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        window.show();
        QApplication::processEvents();
        int wrapped = 0;
        for (const QLabel* const label : window.findChildren<QLabel*>())
            if (label->isVisible() && label->wordWrap()) {
                ++wrapped;
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->text().toStdString() << " at " << points;
            }
        EXPECT_GT(wrapped, 0);
    }
    QApplication::setFont(before);
}

} // namespace
} // namespace kavela::test
