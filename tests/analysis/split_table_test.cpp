#include "analysis/split_table.h"

#include "analysis/plain_table.h"
#include "analysis/races.h"

#include <gmock/gmock.h>

#include <random>

namespace kavela::test {

namespace {

using testing::Each;
using testing::ElementsAre;

/// Races of every shape that a file can hold: ties, sections that were not timed, columns of zeros
/// only, absurd negative times, lists that are too short or too long, penalties by gate or section.
class RandomRace {
public:
    explicit RandomRace(std::uint64_t seed) : m_dice(seed) {}

    splittakerdata031 make() {
        splittakerdata031 race = raceOf(below(20) == 0 ? below(3) : 5 + below(9), {});
        m_zeroPercent = below(3) * 15;
        m_negativePercent = below(4) == 0 ? 10 + 60 * below(2) : 0;
        m_isCoarse = below(2) == 0;
        m_emptySection = below(14);
        course(race.info, below(2) == 0);
        const bool hasReal = below(6) > 0;
        for (std::int64_t left = below(12) == 0 ? below(2) : 1 + below(25); left > 0; --left)
            race.athletes.push_back(run(race.info, hasReal));
        return race;
    }

private:
    std::int64_t below(std::int64_t limit) {
        return static_cast<std::int64_t>(m_dice() % static_cast<std::uint64_t>(limit));
    }

    void course(infodata031& info, bool hasSections) {
        info.gates = 18 + below(8);
        info.definedsections.resize(hasSections ? static_cast<std::size_t>(info.totalsplits) : 0);
        for (std::int64_t gate = 1; gate <= info.gates && !info.definedsections.empty(); ++gate)
            info.definedsections[static_cast<std::size_t>(below(info.totalsplits))].push_back(gate);
    }

    double time() {
        if (below(100) < m_zeroPercent)
            return 0;
        const double seconds = m_isCoarse ? static_cast<double>(20 + below(5)) / 2
                                          : static_cast<double>(9000 + below(4000)) / 1000;
        return below(100) < m_negativePercent ? -seconds : seconds;
    }

    athletedata031 run(const infodata031& info, bool hasReal) {
        athletedata031 made;
        sectiondata030& timing = made.sectioninfo;
        const std::int64_t length = below(8) == 0 ? below(16) : info.totalsplits;
        for (std::int64_t k = 0; k < length; ++k)
            timing.times.push_back(k == m_emptySection ? 0 : time());
        for (auto left = below(3) == 0 ? below(info.gates) : info.gates; left > 0; --left)
            timing.pens.push_back(below(8) > 0 ? 0 : 2 + 48 * below(2));
        timing.totalpen = 2 * below(4);
        timing.sprinttime = time();
        timing.realtime = hasReal ? time() * 10 : 0;
        return made;
    }

    std::mt19937_64 m_dice;
    std::int64_t m_zeroPercent = 0;
    std::int64_t m_negativePercent = 0;
    std::int64_t m_emptySection = 0;
    bool m_isCoarse = false;
};

/// One cell as the plain rules want it.
struct PlainCell {
    std::optional<int> column;
    double value = 0;
    std::string penalty;
};

std::vector<PlainCell> plainRow(const PlainTable& plain, std::size_t run) {
    std::vector<PlainCell> row;
    for (int section = 1; section <= plain.race.info.totalsplits; ++section) {
        const auto s = static_cast<std::size_t>(section);
        const bool isCompared = section <= 10;
        const auto penalty = static_cast<int>(plain.penalty(run, s));
        row.push_back({isCompared ? std::optional(section) : std::nullopt,
                       plain.sectionValue(run, s),
                       isCompared ? " (" + std::to_string(penalty) + ")" : ""});
    }
    row.push_back({11, plain.totalValue(run), ""});
    row.push_back({12, plain.race.athletes[run].sectioninfo.sprinttime, ""});
    row.push_back({13, plain.race.athletes[run].sectioninfo.realtime, ""});
    return row;
}

void expectTint(const TableCell& cell, const PlainTable& plain) {
    const auto tint =
        cell.column ? plain.tint(static_cast<std::size_t>(*cell.column), cell.value) : PlainClear;
    EXPECT_EQ(bandName(cell.band.value()), tint.band);
    EXPECT_EQ(cell.background.has_value(), tint.colour.has_value());
    if (const auto& got = cell.background; got && tint.colour) {
        EXPECT_EQ((Rgba{got->red, got->green, got->blue, got->alpha}), *tint.colour);
    }
    EXPECT_FALSE(cell.foreground);
}

void expectTable(const RaceSet& set, const PlainTable& plain) {
    const ValueKind kind = plain.isAccumulated ? ValueKind::Accumulated : ValueKind::Sections;
    const TableSettings settings{kind, plain.penaltiesIncluded, true, "Training"};
    const SplitTable table = makeSplitTable(set, settings);
    ASSERT_EQ(table.rows.size(), plain.race.athletes.size());
    for (std::size_t run = 0; run < table.rows.size(); ++run) {
        const auto wanted = plainRow(plain, run);
        const auto& cells = table.rows[run].cells;
        EXPECT_EQ(table.rows[run].isFullRun, plain.isFull(run));
        ASSERT_EQ(cells.size(), wanted.size());
        for (std::size_t i = 0; i < cells.size(); ++i) {
            SCOPED_TRACE("run " + std::to_string(run) + ", cell " + std::to_string(i));
            EXPECT_EQ(cells[i].column, wanted[i].column);
            EXPECT_EQ(cells[i].value, wanted[i].value);
            EXPECT_EQ(cells[i].text, plain.text(wanted[i].value, true) + wanted[i].penalty);
            expectTint(cells[i], plain);
        }
    }
}

std::vector<std::string> bandsOf(const RaceSet& set, std::size_t cell,
                                 ValueKind kind = ValueKind::Sections) {
    const SplitTable table = makeSplitTable(set, {kind, false, false, "Training"});
    std::vector<std::string> bands;
    for (const TableRow& row : table.rows)
        bands.emplace_back(bandName(row.cells[cell].band.value()));
    return bands;
}

} // namespace

TEST(SplitTable, FollowsThePlainRulesOnAnyRace) {
    for (std::uint64_t seed = 1; seed <= 250 && !testing::Test::HasFailure(); ++seed) {
        const splittakerdata031 race = RandomRace(seed).make();
        const RaceSet set = makeRaceSet(race, "race.kvx");
        for (const bool isAccumulated : {false, true}) {
            for (const bool penaltiesIncluded : {false, true}) {
                SCOPED_TRACE(testing::Message()
                             << "seed " << seed << ", accumulated " << isAccumulated
                             << ", with penalties " << penaltiesIncluded);
                const PlainTable plain{race, isAccumulated, penaltiesIncluded};
                EXPECT_EQ(sectionColumns(set, penaltiesIncluded), plain.sectionColumns());
                EXPECT_EQ(accumulatedColumns(set), plain.accumulatedColumns());
                expectTable(set, plain);
            }
        }
    }
}

TEST(SplitTable, ClimbsTheWholeScaleOverElevenEvenSteps) {
    std::vector<athletedata031> runs;
    for (int k = 0; k <= 10; ++k)
        runs.push_back(runOf({20.0 + k}));
    runs.push_back(runOf({0}));
    EXPECT_THAT(bandsOf(makeRaceSet(raceOf(1, runs), "a.kvx"), 0),
                ElementsAre("fastest", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "clear"));
}

TEST(SplitTable, WhitensATotalColumnWithAMissingTotalFromElevenSectionsOn) {
    for (const std::size_t sections : {10U, 11U}) {
        const RaceSet set =
            makeRaceSet(raceOf(static_cast<std::int64_t>(sections),
                               {runOf(std::vector<double>(sections, 9)),
                                runOf(std::vector<double>(sections, 10)), runOf({})}),
                        "a.kvx");
        EXPECT_THAT(bandsOf(set, sections, ValueKind::Accumulated),
                    sections == 11 ? ElementsAre("marked", "marked", "clear")
                                   : ElementsAre("fastest", "10", "clear"));
        EXPECT_THAT(bandsOf(set, sections), ElementsAre("fastest", "10", "clear"))
            << "a run without a total is not full and so has no entry among the plain totals";
    }
}

TEST(SplitTable, ComparesSprintsWithRealTimesWhereSumsAreShown) {
    splittakerdata031 race = raceOf(1, {runOf({30}), runOf({30})});
    race.athletes[0].sectioninfo.sprinttime = 90;
    race.athletes[0].sectioninfo.realtime = 95;
    race.athletes[1].sectioninfo.sprinttime = 100;
    race.athletes[1].sectioninfo.realtime = 90;
    const RaceSet set = makeRaceSet(race, "a.kvx");
    EXPECT_THAT(bandsOf(set, 2, ValueKind::Accumulated), ElementsAre("fastest", "clear"));
    EXPECT_THAT(bandsOf(set, 3, ValueKind::Accumulated), Each("clear"));
    EXPECT_THAT(bandsOf(set, 2), ElementsAre("fastest", "10"));
    EXPECT_THAT(bandsOf(set, 3), ElementsAre("10", "fastest"));
}

TEST(SplitTable, WritesTimesToTheHundredth) {
    struct Row {
        double value;
        const char* inTraining;
        const char* inRace;
    };
    for (const Row& row :
         {Row{2.125, "2.13", "2.13"}, Row{-2.125, "-2.13", "-2.13"}, Row{12.346, "12.35", "12.35"},
          Row{0.004, "0.00", "0.00"}, Row{0, "-", "0.00"}, Row{-0.0, "-", "0.00"}}) {
        EXPECT_EQ(timeText(row.value, true), row.inTraining);
        EXPECT_EQ(timeText(row.value, false), row.inRace);
    }
}

TEST(SplitTable, ColoursOnlyTextsInRaceModeEqualToTheHundredth) {
    const RaceSet set = makeRaceSet(
        raceOf(1, {runOf({20.001}), runOf({20.0049}), runOf({20.0051}), runOf({0})}), "a.kvx");
    std::vector<std::optional<Colour>> colours;
    for (const TableRow& row : makeSplitTable(set, {}).rows) {
        EXPECT_FALSE(row.cells[0].band);
        EXPECT_FALSE(row.cells[0].background);
        colours.push_back(row.cells[0].foreground);
    }
    EXPECT_THAT(colours, ElementsAre(NamedGreen, NamedGreen, NamedRed, std::nullopt));
}

} // namespace kavela::test
