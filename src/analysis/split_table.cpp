#include "analysis/split_table.h"

#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

/// A course has some ten splits. A damaged file may claim any number; beyond this only those are
/// shown that some run has.
constexpr std::int64_t MostSplitsOfACourse = 100;

std::size_t shownSections(const RaceSet& set) {
    std::size_t longest = MostSplitsOfACourse;
    for (const analyzerdata& run : set.alldata)
        longest = std::max(longest, run.sectioninfo.times.size());
    const std::int64_t sections = std::max<std::int64_t>(set.totalsplits, 0);
    return std::min(static_cast<std::size_t>(sections), longest);
}

std::string sectionTitle(const RaceSet& set, std::size_t index) {
    const std::string title = entryOrZero(set.sectiontitles, index);
    return title.empty() ? "S" + std::to_string(index + 1) : title;
}

/// Values and texts of the cells, before any colour.
class CellValues {
public:
    CellValues(const TableSettings& settings, std::size_t sections, std::int64_t course)
        : m_settings(settings), m_sections(sections), m_course(course) {}

    [[nodiscard]] std::vector<TableCell> of(const analyzerdata& run) const {
        const sectionmaindata& section = run.sectioninfo;
        std::vector<TableCell> cells;
        cells.reserve(m_sections + 3);
        for (std::size_t i = 0; i < m_sections; ++i)
            cells.push_back(sectionCell(section, i));
        cells.push_back(cell(TotalColumn, total(section), totalStanding(section, m_course)));
        cells.push_back(cell(SprintColumn, section.sprinttime, timeStanding(section.sprinttime)));
        cells.push_back(cell(RealColumn, section.realtime, timeStanding(section.realtime)));
        return cells;
    }

private:
    [[nodiscard]] bool includesPenalties() const {
        return m_settings.penaltiesIncluded && m_settings.kind != ValueKind::Accumulated;
    }

    [[nodiscard]] TableCell cell(std::optional<int> column, double value,
                                 TimeStanding standing) const {
        TableCell made;
        made.column = column;
        made.value = value;
        // Penalties below 0, as a damaged file may have them, do not make a better time either.
        made.standing = standing == TimeStanding::Counts ? timeStanding(value) : standing;
        made.text = timeText(value, m_settings.isTinted());
        return made;
    }

    [[nodiscard]] TableCell sectionCell(const sectionmaindata& section, std::size_t i) const {
        const std::int64_t penalty = entryOrZero(section.pens, i);
        double value = entryOrZero(section.times, i);
        TimeStanding standing = sectionStanding(section, i);
        if (m_settings.kind == ValueKind::Accumulated) {
            value = accumulated(section, i);
            standing = accumulatedStanding(section, i);
        } else if (includesPenalties()) {
            value += static_cast<double>(penalty);
        }
        const bool compared = i < SectionColumns;
        TableCell made =
            cell(compared ? std::optional(static_cast<int>(i) + 1) : std::nullopt, value, standing);
        if (m_settings.penaltiesVisible && compared)
            made.text += " (" + std::to_string(penalty) + ")";
        return made;
    }

    /// The time after a section; one that a stopped run never reached keeps the last time.
    [[nodiscard]] static double accumulated(const sectionmaindata& section, std::size_t i) {
        const std::vector<double>& sums = section.accutimes;
        return sums.empty() ? 0 : sums[std::min(i, sums.size() - 1)];
    }

    [[nodiscard]] double total(const sectionmaindata& section) const {
        return section.totaltime +
               (includesPenalties() ? static_cast<double>(section.totalpen) : 0);
    }

    const TableSettings& m_settings;
    std::size_t m_sections;
    std::int64_t m_course; ///< sections of the course
};

void tintCells(SplitTable& table, const RaceSet& set, const TableSettings& settings) {
    const TableScales scales(set, settings.kind, settings.penaltiesIncluded);
    for (TableRow& row : table.rows) {
        for (TableCell& cell : row.cells) {
            cell.band = cell.column ? scales.bandOf(*cell.column, cell.value) : Band::Clear;
            cell.background = bandColour(*cell.band);
        }
    }
}

/// Marks the cells that show the least of what counts in their column.
void markBests(SplitTable& table) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        double best = 0;
        for (const TableRow& row : table.rows)
            if (const TableCell& cell = row.cells[column]; cell.standing == TimeStanding::Counts)
                best = best == 0 ? cell.value : std::min(best, cell.value);
        for (TableRow& row : table.rows) {
            TableCell& cell = row.cells[column];
            cell.isBest = cell.standing == TimeStanding::Counts &&
                          roundedToHundredths(cell.value) == roundedToHundredths(best);
        }
    }
}

/// In race mode the best of a column is green and all else red, where there is a best.
void colourTexts(SplitTable& table) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        const auto isBest = [&](const TableRow& row) { return row.cells[column].isBest; };
        if (!table.columns[column].number || std::ranges::none_of(table.rows, isBest))
            continue;
        for (TableRow& row : table.rows)
            if (TableCell& cell = row.cells[column]; cell.value != 0)
                cell.foreground = cell.isBest ? NamedGreen : NamedRed;
    }
}

} // namespace

std::vector<TableColumn> tableColumns(const RaceSet& set) {
    std::vector<TableColumn> columns;
    for (std::size_t i = 0; i < shownSections(set); ++i) {
        const bool compared = i < SectionColumns;
        columns.push_back({compared ? std::optional(static_cast<int>(i) + 1) : std::nullopt,
                           sectionTitle(set, i)});
    }
    columns.push_back({TotalColumn, "Total"});
    columns.push_back({SprintColumn, "Sprint"});
    columns.push_back({RealColumn, "Real"});
    return columns;
}

std::vector<double> countedValues(const TableRow& row) {
    std::vector<double> values;
    for (const TableCell& cell : row.cells)
        values.push_back(cell.standing == TimeStanding::Counts ? cell.value : 0);
    return values;
}

bool hasGreyed(const SplitTable& table) {
    return std::ranges::any_of(table.rows, [](const TableRow& row) {
        return std::ranges::any_of(row.cells, &TableCell::isGreyed);
    });
}

std::string timeText(double seconds, bool isTinted) {
    if (seconds == 0)
        return isTinted ? "-" : "0.00"; // also for a zero with a sign
    return hundredthsText(seconds);
}

SplitTable makeSplitTable(const RaceSet& set, const TableSettings& settings) {
    SplitTable table;
    table.columns = tableColumns(set);
    const CellValues values(settings, shownSections(set), set.totalsplits);
    table.rows.reserve(set.alldata.size());
    for (const analyzerdata& run : set.alldata)
        table.rows.push_back({&run, set.isFull(run), values.of(run)});
    markBests(table);
    if (settings.isTinted())
        tintCells(table, set, settings);
    else
        colourTexts(table);
    return table;
}

} // namespace kavela
