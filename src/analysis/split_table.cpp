#include "analysis/split_table.h"

#include "analysis/analysis_rules.h"
#include "analysis/run_place.h"
#include "common/number_text.h"
#include "splitdata/frame_step.h"
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
        constexpr std::size_t Closing = 3; // total, sprint, real
        std::vector<TableCell> cells;
        cells.reserve(m_sections + Closing);
        for (std::size_t column = 0; column < m_sections + Closing; ++column)
            cells.push_back(at(run, column, nullptr));
        return cells;
    }

    /// The cell of a run in a column of the table.
    [[nodiscard]] TableCell at(const analyzerdata& run, std::size_t column, Why* why) const {
        const sectionmaindata& section = run.sectioninfo;
        if (column < m_sections)
            return sectionCell(run, column, why);
        if (column == m_sections)
            return totalCell(run, why);
        const bool isSprint = column == m_sections + 1;
        const double time = isSprint ? section.sprinttime : section.realtime;
        if (why)
            why->input(isSprint ? "sprint" : "real", time, runPlace(run));
        return told(cell(isSprint ? SprintColumn : RealColumn, time, timeStanding(time)),
                    isSprint ? AnalysisRule::SprintTime : AnalysisRule::RealTime, why);
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

    /// The cell itself, told as the number that it is.
    static TableCell told(TableCell made, AnalysisRule rule, Why* why) {
        if (why) {
            why->result(ruleOf(rule), made.value, made.text);
            if (const std::string_view reason = reasonOf(made.standing); !reason.empty())
                why->note(std::string(reason));
        }
        return made;
    }

    [[nodiscard]] TableCell sectionCell(const analyzerdata& run, std::size_t i, Why* why) const {
        const sectionmaindata& section = run.sectioninfo;
        const std::int64_t penalty = entryOrZero(section.pens, i);
        const bool isAccumulated = m_settings.kind == ValueKind::Accumulated;
        double value = isAccumulated ? accumulated(section, i) : entryOrZero(section.times, i);
        AnalysisRule rule =
            isAccumulated ? AnalysisRule::AccumulatedTime : AnalysisRule::SectionTime;
        tellTimes(run, isAccumulated ? 0 : i, i + 1, why);
        if (includesPenalties()) {
            value += static_cast<double>(penalty);
            rule = AnalysisRule::SectionWithPen;
            if (why)
                why->input("penalties", static_cast<double>(penalty), runPlace(run, i + 1));
        }
        const bool compared = i < SectionColumns;
        TableCell made =
            cell(compared ? std::optional(static_cast<int>(i) + 1) : std::nullopt, value,
                 isAccumulated ? accumulatedStanding(section, i) : sectionStanding(section, i));
        if (m_settings.penaltiesVisible && compared)
            made.text += " (" + std::to_string(penalty) + ")";
        return told(std::move(made), rule, why);
    }

    [[nodiscard]] TableCell totalCell(const analyzerdata& run, Why* why) const {
        const sectionmaindata& section = run.sectioninfo;
        tellTimes(run, 0, section.times.size(), why);
        if (why && includesPenalties())
            why->input("penalties", static_cast<double>(section.totalpen), runPlace(run));
        return told(cell(TotalColumn, total(section), totalStanding(section, m_course)),
                    includesPenalties() ? AnalysisRule::TotalWithPen : AnalysisRule::Total, why);
    }

    /// The times of some sections, as far as the run has them.
    static void tellTimes(const analyzerdata& run, std::size_t from, std::size_t to, Why* why) {
        if (!why)
            return;
        const std::vector<double>& times = run.sectioninfo.times;
        const double step = frameStep(run.sectioninfo.cmtimes, run.upstreams).value_or(0);
        for (std::size_t i = from; i < std::min(to, times.size()); ++i)
            why->input("section " + std::to_string(i + 1), times[i], runPlace(run, i + 1),
                       times[i] == 0 ? 0 : step, HalfFrameTwice);
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

TableCell splitCell(const RaceSet& set, const TableSettings& settings, std::size_t run,
                    std::size_t column, Why* why) {
    return CellValues(settings, shownSections(set), set.totalsplits)
        .at(set.alldata[run], column, why);
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
