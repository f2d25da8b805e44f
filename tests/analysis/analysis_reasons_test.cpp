#include "analysis/analysis_reasons.h"

#include "analysis/analysis_rules.h"
#include "analysis/ideal_run.h"
#include "common/number_text.h"
#include "sample/races.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

/// What the table of a race shows, it can also explain.
namespace kavela {
namespace {

using testing::Optional;

const TableSettings Tinted{.colorMode = "Training"};

RaceSet sampleRace() {
    return makeRaceSet(sample::holdRace(sample::riversideCup()), "races/riverside_cup.kvx");
}

double sumOf(const std::vector<Input>& inputs) {
    double sum = 0;
    for (const Input& input : inputs)
        sum += input.value;
    return sum;
}

double inputOf(const Reason& reason, std::string_view name) {
    const auto found = std::ranges::find(reason.inputs, name, &Input::name);
    return found == reason.inputs.end() ? std::nan("") : found->value;
}

class ExplainedTable : public testing::TestWithParam<TableSettings> {
protected:
    void expectExplained(CellContent content, const TableReference& reference) {
        const ShownTable shown{m_set, GetParam(), m_table, m_figures, content, reference};
        std::size_t explained = 0;
        for (std::size_t row = 0; row < m_table.rows.size(); ++row)
            for (std::size_t column = 0; column < m_table.columns.size(); ++column) {
                const std::string text =
                    cellText(m_table, m_figures, row, column, content, reference);
                const Reason reason = explainCell(shown, row, column);
                ASSERT_NE(reason.rule, nullptr);
                if (text == "–")
                    continue; // there is no such figure: the time itself is told
                ++explained;
                EXPECT_EQ(reason.shown, text) << row << ", " << column;
                EXPECT_TRUE(m_table.rows[row].cells[column].value == 0 || !reason.inputs.empty())
                    << row << ", " << column;
            }
        EXPECT_GT(explained, 300U);
    }

    RaceSet m_set = sampleRace();
    SplitTable m_table = makeSplitTable(m_set, GetParam());
    TableFigures m_figures{m_table};
};

TEST_P(ExplainedTable, ShowsInEveryCellWhatItExplains) {
    for (const CellContent content : {CellContent::Time, CellContent::Rank,
                                      CellContent::PercentBehind, CellContent::Percentile})
        expectExplained(content, {});
    for (const ReferenceKind kind :
         {ReferenceKind::Best, ReferenceKind::Median, ReferenceKind::Run})
        expectExplained(CellContent::Gap, {.kind = kind, .row = 3});
}

INSTANTIATE_TEST_SUITE_P(
    Settings, ExplainedTable,
    testing::Values(TableSettings{}, Tinted,
                    TableSettings{.penaltiesIncluded = true, .penaltiesVisible = true},
                    TableSettings{.kind = ValueKind::Accumulated, .colorMode = "Training"}));

TEST(TableReasons, AddUpToTheTotal) {
    const RaceSet set = sampleRace();
    for (const bool isIncluded : {false, true}) {
        const TableSettings settings{.penaltiesIncluded = isIncluded};
        const std::size_t total = tableColumns(set).size() - 3;
        for (std::size_t run = 0; run < set.alldata.size(); ++run) {
            Why why;
            const TableCell cell = splitCell(set, settings, run, total, &why);
            EXPECT_NEAR(sumOf(why.reason().inputs), cell.value, 1e-9) << run << isIncluded;
        }
    }
}

TEST(TableReasons, MakeTheFigureFromTheirInputs) {
    const RaceSet set = sampleRace();
    const SplitTable table = makeSplitTable(set, Tinted);
    const TableFigures figures(table);
    const TableReference reference{.kind = ReferenceKind::Median};
    const ShownTable gaps{set, Tinted, table, figures, CellContent::Gap, reference};
    const Reason gap = explainCell(gaps, 2, 1);
    EXPECT_DOUBLE_EQ(gap.value, inputOf(gap, "own") - inputOf(gap, "median"));
    EXPECT_EQ(gap.parts.front().rule, &ruleOf(AnalysisRule::MedianReference));
    const ShownTable percents{set, Tinted, table, figures, CellContent::PercentBehind, reference};
    const Reason percent = explainCell(percents, 2, 1);
    EXPECT_DOUBLE_EQ(percent.value, (percent.inputs[0].value / percent.inputs[1].value - 1) * 100);
}

/// The place leads to the mark on the film.
TEST(TableReasons, SayWhereATimeStands) {
    const RaceSet set = sampleRace();
    Why why;
    (void)splitCell(set, Tinted, 5, 2, &why);
    const Place place = why.reason().inputs.front().place.value();
    EXPECT_EQ(place.file, "races/riverside_cup.kvx");
    EXPECT_EQ(place.run, 5U);
    EXPECT_THAT(place.split, Optional(3U));
    EXPECT_EQ(place.moment, set.alldata[5].sectioninfo.cmtimes[2].front());
}

/// Every band lies between the tenths that are told.
TEST(TableReasons, ExplainTheColourOfEveryCell) {
    const RaceSet set = sampleRace();
    const SplitTable table = makeSplitTable(set, Tinted);
    std::set<std::string> bands;
    for (const TableRow& row : table.rows)
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            const std::string id =
                "band/" + std::to_string(row.run->athleteInt) + '/' + std::to_string(column + 1);
            const auto reason = explainRace(set, Tinted, id);
            ASSERT_TRUE(reason) << id;
            EXPECT_EQ(reason->shown, bandName(row.cells[column].band.value())) << id;
            EXPECT_EQ(reason->parts.front().value, row.cells[column].value) << id;
            EXPECT_EQ(inputOf(*reason, "time"), row.cells[column].value) << id;
            if (reason->rule == &ruleOf(AnalysisRule::Band) && reason->inputs.size() == 4) {
                EXPECT_LT(reason->inputs[2].value, row.cells[column].value + 1e-12) << id;
                EXPECT_GE(reason->inputs[3].value, row.cells[column].value) << id;
            }
            bands.insert(reason->shown);
        }
    EXPECT_GT(bands.size(), 10U);
    EXPECT_EQ(explainRace(set, Tinted, "band/5/99"), std::nullopt);
    EXPECT_EQ(explainRace(set, Tinted, "band/5/0"), std::nullopt);
    EXPECT_EQ(explainRace(set, Tinted, "band/500/1"), std::nullopt);
    EXPECT_EQ(explainRace(set, Tinted, "band/5/1/2"), std::nullopt);
}

TEST(IdealReasons, NameWhoPaddledEachBest) {
    const RaceSet set = sampleRace();
    const IdealRun ideal = idealRun(set);
    double sum = 0;
    for (std::size_t section = 1; section <= ideal.sections.size(); ++section) {
        const auto reason = explainRace(set, Tinted, "ideal/" + std::to_string(section));
        ASSERT_TRUE(reason);
        EXPECT_EQ(reason->value, ideal.sections[section - 1].time);
        EXPECT_EQ(reason->inputs.back().name,
                  set.alldata[ideal.sections[section - 1].run.value()].name);
        sum += reason->value;
    }
    const auto total = explainRace(set, Tinted, "ideal/total");
    ASSERT_TRUE(total);
    EXPECT_EQ(total->value, ideal.total);
    EXPECT_EQ(total->value, sum);
    EXPECT_EQ(total->parts.size(), ideal.sections.size());
    EXPECT_EQ(explainRace(set, Tinted, "ideal/0"), std::nullopt);
    EXPECT_EQ(explainRace(set, Tinted, "ideal/99"), std::nullopt);
}

/// The row of the ideal run under both kinds of times, and a run of another race.
TEST(ComparisonReasons, ExplainWhatTheRowShows) {
    const RaceSet set = sampleRace();
    for (const ValueKind kind : {ValueKind::Sections, ValueKind::Accumulated}) {
        const TableSettings settings{.kind = kind};
        const SplitTable table = makeSplitTable(set, settings);
        const TableFigures figures(table);
        ComparisonRow other = comparisonRow(set, set.alldata[4], settings);
        other.origin = "Spring opener";
        for (const ComparisonRow& row : {idealRow(set, settings), other})
            for (const CellContent content :
                 {CellContent::Time, CellContent::Gap, CellContent::PercentBehind})
                for (std::size_t column = 0; column < row.values.size(); ++column) {
                    const TableReference best;
                    const ShownTable shown{set, settings, table, figures, content, best};
                    const std::string text = comparisonText(row, figures, column, content, best);
                    const auto reason = explainComparison(shown, row, column);
                    EXPECT_EQ(reason ? reason->shown : "–", text) << column;
                }
    }
}

} // namespace
} // namespace kavela
