#include "performance/table_work.h"

#include "common/error.h"
#include "tables/list_reader.h"
#include "tables/table_text.h"

#include <gmock/gmock.h>

/// What was made of a list comes back from its file.
namespace kavela::test {

namespace {

using testing::HasSubstr;

TableWork workOf(const std::vector<TableStep>& steps) {
    TableWork work;
    work.source = "day/final.csv";
    work.list = "Heats, 2";
    work.title = "final.csv, Heats";
    TableSteps taken(readList("A list of the day\nName;Cat;Time\nJan;K1M;1:30.5 (2)\n"
                              "Eva;\"a, by b\";95,5 (0)\nOta;K1M;quick\nIvo;K1M;DNF;more\n"));
    for (const TableStep& step : steps)
        taken = taken.with(step);
    work.steps = std::move(taken);
    return work;
}

std::string faultOf(const std::string& text) {
    try {
        (void)readTableWork(text);
    } catch (const DecodeError& error) {
        return error.what();
    }
    return {};
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, text.npos) << what;
    return at == text.npos ? text : text.replace(at, what.size(), by);
}

} // namespace

TEST(TableWorks, ComeBackWithEveryStepAndTheWholeList) {
    const TableWork work =
        workOf({TitlesStep{true}, KindStep{"Time", ListColumnKind::Time},
                parsedDerivedColumn("rank:Time down by Cat"),
                parsedDerivedColumn("total:Time,Time penalty"), FilterStep{"Cat", "a, by b", true},
                SortStep{"Name", true}, GroupStep{"Cat"}, TintStep{"Time", true},
                RemoveStep{"rank"}, Pivot{"Cat", "", "Time", PivotFunction::Median}});
    const std::string text = tableWorkText(work);
    EXPECT_TRUE(isTableWork(text));
    EXPECT_FALSE(isTableWork("Name;Time\n{a};92\n"));
    const TableWork back = readTableWork(text);
    EXPECT_EQ(back.source, work.source);
    EXPECT_EQ(back.list, work.list);
    EXPECT_EQ(back.title, work.title);
    EXPECT_EQ(back.steps->steps(), work.steps->steps());
    EXPECT_EQ(tableCsv(back.steps->table()), tableCsv(work.steps->table()));
    EXPECT_EQ(back.steps->table().refused, work.steps->table().refused);
    EXPECT_EQ(back.athletes, nullptr);
    EXPECT_EQ(tableWorkText(back), text);
}

TEST(TableWorks, KeepWhoIsMeant) {
    TableWork work = workOf({SortStep{"Name"}});
    work.athletes = std::make_shared<const std::vector<KnownAthlete>>(
        std::vector<KnownAthlete>{{"Jan Hora", {"MK1"}}, {"Jan Mach", {}}});
    work.answers = {{3, 1}, {4, std::nullopt}};
    const TableWork back = readTableWork(tableWorkText(work));
    EXPECT_EQ(back.steps->steps(), std::vector<TableStep>({SortStep{"Name"}}));
    ASSERT_TRUE(back.athletes);
    EXPECT_EQ(back.athletes->at(0).categories, std::vector<std::string>{"MK1"});
    EXPECT_EQ(back.answers, work.answers);
}

TEST(TableWorks, SayWhatIsWrongWithADamagedOne) {
    TableWork work = workOf({SortStep{"Name"}});
    work.athletes = std::make_shared<const std::vector<KnownAthlete>>();
    work.answers = {{3, std::nullopt}};
    const std::string text = tableWorkText(work);
    EXPECT_EQ(faultOf(text), "");
    EXPECT_THAT(faultOf(replaced(text, "\"sort\"", "\"shuffle\"")), HasSubstr("shuffle"));
    EXPECT_THAT(faultOf(replaced(text, "[\"Name\"]", "[]")), HasSubstr("steps"));
    EXPECT_THAT(faultOf(replaced(text, "[\"Name\"]", "[\"Bib\"]")), HasSubstr("Bib"));
    EXPECT_THAT(faultOf(replaced(text, "\"athlete\":-1", "\"athlete\":7")), HasSubstr("answers"));
    EXPECT_NE(faultOf(text.substr(0, text.size() / 2)), "");
}

} // namespace kavela::test
