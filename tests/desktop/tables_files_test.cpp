#include "desktop/tables_fixture.h"

#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text_file.h"
#include "desktop/taking/taking_window.h"
#include "performance/race_tables.h"
#include "splitdata/loader.h"
#include "tables/packed.h"
#include "tables/table_text.h"

#include <QApplication>
#include <QClipboard>

#include <utility>

/// What lists are opened from, and where what was made of them is kept.
namespace kavela::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

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

} // namespace
} // namespace kavela::test
