#include "desktop/tables/tables_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "common/text_file.h"
#include "desktop/busy_threads.h"
#include "desktop/charts/series_chart.h"
#include "desktop/desktop.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/official_dialog.h"
#include "desktop/taking/taking_window.h"
#include "desktop/why/why_window.h"
#include "performance/race_tables.h"
#include "results/team_file.h"
#include "splitdata/document.h"
#include "splitdata/loader.h"
#include "tables/packed.h"
#include "tables/table_text.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QTest>

#include <memory>

/// Any list as a table, and official results beside the films, as a coach uses them.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::desktop;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* FinalList = "Pos;Name;Class;Time;Pen\n"
                                  "1;Bell Anna;K1W;95.50;0\n"
                                  "2;Novak Petr;K1M;92.10;2\n"
                                  "3;Lis Eva;K1W;fast;0\n"
                                  "4;Hora Jan;K1M;DNF;0\n"
                                  "5;Kos Iva;K1W;99.25;4\n"
                                  "6;Mach Ota;K1M;90.75;0\n";
constexpr int NameOfList = 1;
constexpr int ClassOfList = 2;
constexpr int TimeOfList = 3;

athletedata031 runOnFilm(const std::string& name, double second, std::int64_t penalty = 0) {
    athletedata031 run;
    run.names = {name};
    run.cat = "K1W";
    run.phase = "Final";
    run.sectioninfo.times = {40, second};
    run.sectioninfo.totalpen = penalty;
    return run;
}

splittakerdata031 raceOnFilm() {
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.totalsplits = 2;
    race.athletes = {runOnFilm("Anna Bell", 50), runOnFilm("Eva Kos", 51, 2)};
    race.info.resultsCSVdata = {{1, 4, "Anna Bell", "CZE", 90, 2, 92},
                                {2, 5, "Eva Kos", "CZE", 91, 2, 93}};
    return race;
}

class TablesWindowTest : public ::testing::Test {
protected:
    TablesWindowTest() { m_workspace.setAlerts(&m_recorder); }

    QString add(const char* name, const std::string& content) {
        return QString::fromStdString(m_folder.add(name, content).string());
    }

    TablesWindow& last() { return *m_program.windowsOf<TablesWindow>().back(); }

    static void await(TablesWindow& window) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isReading(); }, 20000));
    }

    static void awaitCompared(OfficialDialog& dialog) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return !dialog.isReading() && !dialog.isComparing(); }, 20000));
    }

    TablesWindow& openTable(const QString& path, const QString& list = {}) {
        m_program.openTables({path}, list);
        await(last());
        return last();
    }

    TablesWindow& openFinal() { return openTable(add("final.csv", FinalList)); }

    /// The texts of a column from the top down.
    static QStringList column(const TablesWindow& window, int number) {
        const QAbstractItemModel& model = *window.table().model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, number).data().toString());
        return texts;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    Desktop m_program{m_workspace,
                      Autosave(QString::fromStdString((m_folder.path() / "kept").string()))};
};

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

TEST_F(TablesWindowTest, SavesWhatWasMadeBesideTheListAndGoesOnWithIt) {
    TablesWindow& window = openFinal();
    EXPECT_FALSE(window.document().isDirty()) << "looking at a list asks nothing";
    window.take(parsedDerivedColumn("gap:Time"));
    window.take(FilterStep{"Class", "K1W", true});
    EXPECT_TRUE(window.document().isDirty());
    EXPECT_TRUE(window.isWindowModified());
    const QString file = QString::fromStdString((m_folder.path() / "made.kvtable").string());
    bool isSaved = false;
    window.saveToBeside(file, [&](bool written) { isSaved = written; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isSaved; }));
    EXPECT_FALSE(window.document().isDirty());
    EXPECT_EQ(window.paths(), QStringList(file)) << "the next start shows what was made";
    EXPECT_EQ(readTextFile(m_folder.path() / "final.csv"), FinalList);

    const std::string table = tableCsv(*window.document().table());
    window.undo();
    EXPECT_TRUE(window.document().isDirty());
    fs::remove(m_folder.path() / "final.csv");
    m_program.open(QString::fromStdString(
        m_folder.add("sent.kvtable", readTextFile(file.toStdString())).string()));
    ASSERT_THAT(m_program.windowsOf<TablesWindow>(), SizeIs(2)) << "known by what it holds";
    await(last());
    EXPECT_EQ(tableCsv(*last().document().table()), table) << "the list is in it";
    EXPECT_FALSE(last().document().isDirty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

/// The list itself is never written, so what was made of it is kept under a name of its own.
TEST_F(TablesWindowTest, OffersWhatWasMadeAndNeverSaved) {
    TablesWindow& first = openFinal();
    first.take(FilterStep{"Class", "K1W", true});
    const std::string made = tableCsv(*first.document().table());
    const QString kept = first.document().path();
    EXPECT_THAT(kept.toStdString(), HasSubstr("final.kvtable"));
    EXPECT_EQ(first.paths(), QStringList(kept));
    first.document().keepWork();
    const Autosave autosave(QString::fromStdString((m_folder.path() / "kept").string()));
    const auto work = autosave.find(kept, true);
    ASSERT_TRUE(work);
    EXPECT_EQ(work->label.tool, "tables");

    TablesWindow other(m_workspace,
                       Autosave(QString::fromStdString((m_folder.path() / "others").string())));
    other.setAttribute(Qt::WA_DeleteOnClose, false);
    other.takeBack(work->content);
    EXPECT_EQ(tableCsv(*other.document().table()), made);
    EXPECT_TRUE(other.document().isDirty());
    EXPECT_EQ(other.document().origin().title, "final.csv");

    TablesWindow& second = *new TablesWindow(m_workspace, autosave);
    second.openList(first.document().origin().path, {});
    await(second);
    EXPECT_NE(second.document().path(), kept) << "two windows never keep work under one name";
    delete &second;
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

TEST_F(TablesWindowTest, KeepsTheTableWithARaceThatNobodyEdits) {
    const QString race = add("race.kvx", encode(raceOnFilm()));
    TablesWindow& window = openFinal();
    window.setChooseFile([race](const QString&) { return race; });
    const auto kept = [&] {
        return recogniseSplitFile(race.toStdString(), m_recorder.log(), systemNow).document;
    };
    bool isAgreed = false;
    int asked = 0;
    m_workspace.setAnswer([&](const Alert&) {
        ++asked;
        return isAgreed;
    });
    window.keepWithRace();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.status().contains("Kept"); }));
    const splittakerdata031 first = kept();
    EXPECT_EQ(first.athletes.size(), 2U);
    EXPECT_EQ(tableOf(raceTableLists(first.info, "officialresultsAnalysis").at(0)).rows(), 6U);

    window.take(FilterStep{"Class", "K1W", true});
    window.keepWithRace();
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
    EXPECT_EQ(kept().info.officialresultsAnalysis.bytes, first.info.officialresultsAnalysis.bytes);
    isAgreed = true;
    window.keepWithRace();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.status().contains("Kept"); }));
    EXPECT_EQ(tableOf(raceTableLists(kept().info, "officialresultsAnalysis").at(0)).rows(), 3U);

    ASSERT_TRUE(m_program.openTaking(race));
    m_recorder.alerts.clear();
    window.document().undoStack().undo();
    window.keepWithRace();
    ASSERT_THAT(m_recorder.alerts, SizeIs(1)) << "told at once, nothing is written";
    EXPECT_THAT(m_recorder.alerts.front(), HasSubstr("close it there"));
    EXPECT_EQ(asked, 2);
}

TEST_F(TablesWindowTest, NeverSavesOverItsList) {
    TablesWindow& window = openFinal();
    const QString list = window.paths().value(0);
    window.setChooseFile([list](const QString&) { return list; });
    window.saveCsv();
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_EQ(readTextFile(list.toStdString()), FinalList);
    const fs::path other = m_folder.path() / "other.csv";
    window.setChooseFile(
        [other](const QString&) { return QString::fromStdString(other.string()); });
    window.take(FilterStep{"Class", "K1M", true});
    window.saveCsv();
    await(window);
    EXPECT_EQ(readTextFile(other), tableCsv(*window.document().table()));
}

TEST_F(TablesWindowTest, AsksWhichOfTheListsOfARaceAndRemembersIt) {
    splittakerdata031 race = raceOnFilm();
    keepWithRace(race.info, tableOf(raceTableLists(race.info, "resultsCSVdata").at(0)));
    const QString path = add("race.kvx", encode(race));
    int asked = 0;
    m_workspace.setChoice([&](const Alert&, const QStringList& choices) {
        ++asked;
        EXPECT_THAT(choices, SizeIs(2));
        return 1;
    });
    EXPECT_EQ(openTable(path).shownView(), "officialresultsAnalysis");
    EXPECT_EQ(openTable(path, "resultsCSVdata").shownView(), "resultsCSVdata");
    EXPECT_EQ(asked, 1) << "a window of an earlier start knows its list";
    EXPECT_THAT(m_program.windowsOf<TablesWindow>(), SizeIs(2));
    EXPECT_EQ(column(last(), 2), QStringList({"Anna Bell", "Eva Kos"}));
}

TEST_F(TablesWindowTest, OpensWhatWasCopiedAndTellsWhatIsNoList) {
    m_program.openTables({add("report.xlsx", "%PDF-1.4 no list")});
    await(last());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_TRUE(last().isEmpty());
    QApplication::clipboard()->setText("Name\tTime\nAnna\t92.5\nEva\t93.5\n");
    last().openClipboard();
    EXPECT_EQ(column(last(), 0), QStringList({"Anna", "Eva"}));
    last().openClipboard();
    EXPECT_THAT(m_program.windowsOf<TablesWindow>(), SizeIs(2)) << "what is shown stays";
    m_program.open(add("official.csv", "1;4;BELL Anna;CZE;90.25;2\n2;5;KOS Eva;CZE;91.5;0\n"));
    EXPECT_THAT(m_program.windowsOf<TablesWindow>(), SizeIs(3)) << "known by what it holds";
    await(last());
    EXPECT_TRUE(last().document().hasList());
}

TEST_F(TablesWindowTest, TakesOfficialResultsOverLineByLine) {
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
TEST_F(TablesWindowTest, ComparesOfficialResultsBesideTheWindow) {
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

/// As an office program writes them: 84.90 is 84.9 in the file.
TEST_F(TablesWindowTest, OpensSpreadsheetsOfBothKinds) {
    const std::string xlsx = packed(
        {{"xl/workbook.xml",
          R"(<workbook><sheets><sheet name="Final" r:id="rId1"/></sheets></workbook>)"},
         {"xl/_rels/workbook.xml.rels",
          R"(<Relationships><Relationship Id="rId1" Target="worksheets/sheet1.xml"/>)"
          R"(</Relationships>)"},
         {"xl/worksheets/sheet1.xml",
          R"(<worksheet><sheetData><row r="1"><c r="A1" t="inlineStr"><is><t>Name</t></is></c>)"
          R"(<c r="B1" t="inlineStr"><is><t>Time</t></is></c></row>)"
          R"(<row r="2"><c r="A2" t="inlineStr"><is><t>Bell Anna</t></is></c>)"
          R"(<c r="B2"><v>84.9</v></c></row>)"
          R"(<row r="3"><c r="A3" t="inlineStr"><is><t>Kos Eva</t></is></c>)"
          R"(<c r="B3"><v>92.45</v></c></row></sheetData></worksheet>)"}});
    const auto text = [](const std::string& content) {
        return R"(<table:table-cell office:value-type="string"><text:p>)" + content +
               "</text:p></table:table-cell>";
    };
    const auto number = [](const std::string& value) {
        return R"(<table:table-cell office:value-type="float" office:value=")" + value + R"("/>)";
    };
    const auto row = [](const std::string& cells) {
        return "<table:table-row>" + cells + "</table:table-row>";
    };
    const std::string ods = packed(
        {{"content.xml",
          R"(<office:document-content><office:body><office:spreadsheet>)"
          R"(<table:table table:name="Final">)" +
              row(text("Name") + text("Time")) + row(text("Bell Anna") + number("84.9")) +
              row(text("Kos Eva") + number("92.45")) +
              "</table:table></office:spreadsheet></office:body></office:document-content>"}});
    for (const auto& [name, bytes] : {std::pair("final.xlsx", xlsx), std::pair("final.ods", ods)}) {
        TablesWindow& window = openTable(add(name, bytes));
        EXPECT_THAT(m_recorder.alerts, IsEmpty()) << name;
        EXPECT_EQ(column(window, 0), QStringList({"Bell Anna", "Kos Eva"})) << name;
        EXPECT_EQ(column(window, 1), QStringList({"84.90", "92.45"})) << name;
        window.table().choose(0, 1);
        window.sort(true);
        EXPECT_EQ(column(window, 0), QStringList({"Kos Eva", "Bell Anna"})) << name;
        EXPECT_EQ(readListBytes(m_folder.path() / name), bytes) << "it is never written";
    }
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
