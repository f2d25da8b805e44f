#include "report/race_report.h"
#include "report/report_table.h"

#include "analysis/races.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPainter>

namespace kavela::test {

namespace {

using report::RaceReport;
using report::ReportContent;
using report::ReportTable;
using report::RunColumn;
using report::TableView;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

athletedata031 named(const char* name, const char* phase, const char* category,
                     std::vector<double> times) {
    athletedata031 run = runOf(std::move(times));
    run.names = {name};
    run.phase = phase;
    run.cat = category;
    return run;
}

/// Two phases of two categories, told apart by the seconds of their runs.
RaceSet race() {
    splittakerdata031 race =
        raceOf(2, {named("Ann", "Heats", "K1W", {10, 20}), named("Bob", "Heats", "K1M", {9, 18}),
                   named("Cat", "Final", "K1W", {11, 0}), named("Dan", "Final", "K1M", {8, 19})});
    race.info.splitTitles = {"Weir", "Pool"};
    return makeRaceSet(std::move(race), "a.kvx");
}

ReportTable tableOf(const TableView& view, const TableSettings& settings = {}) {
    const RaceSet set = race();
    return report::reportTable(set, makeSplitTable(set, settings), settings, view);
}

std::vector<std::string> names(const report::ReportGroup& group) {
    std::vector<std::string> names;
    for (const report::ReportRow& row : group.rows)
        names.push_back(row.name.toStdString());
    return names;
}

std::vector<std::string> texts(const report::ReportRow& row) {
    std::vector<std::string> texts;
    for (const report::ReportCell& cell : row.cells)
        texts.push_back(cell.text.toStdString());
    return texts;
}

TableSettings training() {
    TableSettings settings;
    settings.colorMode = "Training";
    return settings;
}

report::ReportHeading cup() {
    report::ReportHeading heading;
    heading.title = "Cup";
    return heading;
}

/// How many pixels of the first page have a colour.
int pixelsOf(const RaceReport& report, const QColor& colour) {
    QImage page(report.layout().fullRectPixels(72).size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    report.paintPage(painter, 0);
    painter.end();
    int count = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            count += page.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

} // namespace

TEST(TableViewTest, HidesAndReordersColumns) {
    const ReportTable table = tableOf({.columns = std::vector<std::size_t>{2, 0, 99}});
    EXPECT_THAT(table.columns, ElementsAre("Total", "Weir"));
    EXPECT_THAT(texts(table.groups[0].rows[0]), ElementsAre("30.00", "10.00"));
    EXPECT_THAT(tableOf({.columns = std::vector<std::size_t>{}}).columns, IsEmpty());
}

TEST(TableViewTest, KeepsTitlesAsLongAsEachGroupStaysTogether) {
    const std::vector<RunColumn> all{RunColumn::Phase, RunColumn::Category, RunColumn::Place};
    const ReportTable parted =
        tableOf({.rows = std::vector<std::size_t>{3, 1, 99}, .runColumns = all});
    ASSERT_EQ(parted.groups.size(), 2U);
    EXPECT_EQ(parted.groups[0].title, "Final · K1M");
    EXPECT_THAT(parted.leads, ElementsAre(RunColumn::Place));
    EXPECT_THAT(parted.note.toStdString(), HasSubstr("all 4 runs"));

    RaceSet set = race();
    set.alldata[3].phase = "Heats"; // with Bob, but not beside him
    const ReportTable mixed =
        report::reportTable(set, makeSplitTable(set, {}), {},
                            {.rows = std::vector<std::size_t>{3, 0, 1, 2}, .runColumns = all});
    ASSERT_EQ(mixed.groups.size(), 1U);
    EXPECT_EQ(mixed.groups[0].title, "");
    EXPECT_THAT(names(mixed.groups[0]), ElementsAre("Dan", "Ann", "Bob", "Cat"));
    EXPECT_THAT(mixed.groups[0].rows[1].leads, ElementsAre("Heats", "K1W", ""));
    EXPECT_THAT(mixed.note.toStdString(), Not(HasSubstr("all 4")));
}

TEST(TableViewTest, SaysInEachCellAndInTheNoteWhatTheWindowSays) {
    struct Row {
        CellContent content;
        TableReference reference;
        const char* ofAnn; ///< in the first column: 10 s beside 9, 11 and 8
        const char* ofCat; ///< in the second: not timed
        const char* note;
    };
    for (const Row& row :
         {Row{CellContent::Time, {}, "10.00", "0.00", "Penalties are not included."},
          Row{CellContent::Gap, {}, "+2.00", "–", "Gaps in seconds to the best of each column."},
          Row{CellContent::Gap, {ReferenceKind::Median}, "+0.50", "–", "to the median of each"},
          Row{CellContent::Gap, {ReferenceKind::Run, 2}, "-1.00", "–", "to Cat, Final."},
          Row{CellContent::Gap, {ReferenceKind::Run, 0}, "0.00", "–", "to Ann, Heats."},
          Row{CellContent::Gap, {ReferenceKind::Values, 0, "Eva", {7, 1}}, "+3.00", "–", "to Eva."},
          Row{CellContent::Rank, {}, "3", "–", "Places within each column."},
          Row{CellContent::PercentBehind, {}, "25.00 %", "–", "Percent behind the best of each"},
          Row{CellContent::Percentile, {}, "50", "–", "Percentiles of each column"}}) {
        const ReportTable table = tableOf({.content = row.content, .reference = row.reference});
        EXPECT_EQ(table.groups[0].rows[0].cells[0].text, row.ofAnn) << row.note;
        EXPECT_EQ(table.groups[2].rows[0].cells[1].text, row.ofCat) << row.note;
        EXPECT_THAT(table.note.toStdString(), HasSubstr(row.note));
        EXPECT_TRUE(table.groups[3].rows[0].cells[0].isBest) << "colours follow the times";
    }
}

TEST(TableViewTest, PutsComparisonsAboveTheRuns) {
    const ReportTable table = tableOf(
        {.content = CellContent::Gap,
         .comparisons = {{{}, {}, {}, {}, {8.5, 18}}, {"Eva", "Old Cup", "Final", "K1W", {}}}});
    EXPECT_THAT(names(table.groups[0]), ElementsAre("Ideal run", "Eva, Old Cup"));
    EXPECT_EQ(table.groups[0].rows[0].cells[0].text, "+0.50");
    EXPECT_EQ(table.groups[0].rows[1].cells[0].text, "");
    EXPECT_EQ(table.rowCount(), 6U);
    EXPECT_THAT(table.note.toStdString(), Not(HasSubstr("all 4")));
}

TEST(TableViewTest, IsColouredFromBlueToOrangeAndSaysSo) {
    TempFolder folder;
    const QColor fastest(0x2F, 0x7B, 0xC4);
    const QColor slow(0xE6, 0x85, 0x1C);
    for (const ColourScale scale : {ColourScale::GreenRed, ColourScale::BlueOrange}) {
        const bool isBlue = scale == ColourScale::BlueOrange;
        const RaceReport report(cup(), race(), training(), ReportContent::Table,
                                {.content = CellContent::Gap, .scale = scale});
        EXPECT_EQ(pixelsOf(report, fastest) > 500, isBlue);
        EXPECT_EQ(pixelsOf(report, slow) > 500, isBlue);
        EXPECT_EQ(pixelsOf(report, QColor(0, 255, 0)) > 500, !isBlue);
        report::writePdf(report, folder.path() / "a.pdf");
        const std::string page = pagesOf(folder.path() / "a.pdf").front();
        EXPECT_THAT(page, HasSubstr(isBlue ? "fastest*, blue" : "fastest*, green"));
        EXPECT_THAT(page, HasSubstr("Gaps in seconds to the best of each column."));
        EXPECT_THAT(page, HasSubstr("+1.00"));
    }
    const ReportTable text = tableOf({.scale = ColourScale::BlueOrange});
    EXPECT_GT(text.groups[3].rows[0].cells[0].ink.blue(), 150);
    EXPECT_EQ(text.groups[0].rows[0].cells[0].ink.blue(), 0);
}

TEST(TableViewTest, FitsItsLegendAndLeadingColumnsOnThePage) {
    TempFolder folder;
    TableSettings settings = training();
    settings.penaltiesVisible = true;
    RaceSet set = race();
    for (analyzerdata& run : set.alldata)
        run.name = run.phase = run.category = std::string(300, 'W');
    for (const std::size_t columns : {0U, 1U, 5U}) {
        TableView view{.columns = std::vector<std::size_t>(columns, 1),
                       .rows = std::vector<std::size_t>{0, 1, 0},
                       .runColumns = {RunColumn::Phase, RunColumn::Category, RunColumn::Place},
                       .content = CellContent::Gap,
                       .reference = {ReferenceKind::Run, 0}};
        const RaceReport report(cup(), set, settings, ReportContent::Race, view);
        report::writePdf(report, folder.path() / "a.pdf");
        const std::string page = pagesOf(folder.path() / "a.pdf").back();
        EXPECT_THAT(page, HasSubstr("by tenths of the column"));
        EXPECT_THAT(page, HasSubstr("Gaps in seconds to WWW"));
    }
}

} // namespace kavela::test
