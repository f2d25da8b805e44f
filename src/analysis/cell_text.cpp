#include "analysis/cell_text.h"

#include "analysis/analysis_rules.h"
#include "common/number_text.h"

#include <cmath>

namespace kavela {

namespace {

constexpr const char* None = "–";

std::string gapText(std::optional<double> gap) {
    return gap ? signedHundredths(*gap) : None;
}

std::string percentText(std::optional<double> percent) {
    return percent ? hundredthsText(*percent) + " %" : None;
}

/// A time of 0 was not taken; a gap of 0 is one.
std::string hundredthsOrNothing(double seconds) {
    return seconds == 0 ? "" : hundredthsText(seconds);
}

std::string hundredthsOrNothing(std::optional<double> figure) {
    if (!figure)
        return {};
    return roundedToHundredths(*figure) == 0 ? "0.00" : hundredthsText(*figure); // no minus
}

} // namespace

std::string signedHundredths(double seconds) {
    const double rounded = roundedToHundredths(seconds);
    if (rounded == 0)
        return "0.00"; // also for what is a little less
    return rounded > 0 ? '+' + hundredthsText(seconds) : hundredthsText(seconds);
}

std::string cellNumber(const SplitTable& table, const TableFigures& figures, std::size_t row,
                       std::size_t column, CellContent content, const TableReference& reference) {
    switch (content) {
    case CellContent::Time:
        return hundredthsOrNothing(table.rows[row].cells[column].value);
    case CellContent::Gap:
        return hundredthsOrNothing(figures.gap(row, column, reference));
    case CellContent::Rank: {
        const std::optional<int> rank = figures.rank(row, column);
        return rank ? std::to_string(*rank) : "";
    }
    case CellContent::PercentBehind:
        return hundredthsOrNothing(figures.percentBehind(row, column));
    case CellContent::Percentile: {
        const std::optional<double> percentile = figures.percentile(row, column);
        return percentile ? std::to_string(std::lround(*percentile)) : "";
    }
    }
    return {};
}

std::string comparisonNumber(const ComparisonRow& row, const TableFigures& figures,
                             std::size_t column, CellContent content,
                             const TableReference& reference) {
    const double value = row.values[column];
    switch (content) {
    case CellContent::Time:
        return hundredthsOrNothing(value);
    case CellContent::Gap:
        return hundredthsOrNothing(figures.gapOf(value, column, reference));
    case CellContent::PercentBehind:
        return hundredthsOrNothing(figures.percentBehindOf(value, column));
    case CellContent::Rank:
    case CellContent::Percentile:
        break;
    }
    return {};
}

std::string cellText(const SplitTable& table, const TableFigures& figures, std::size_t row,
                     std::size_t column, CellContent content, const TableReference& reference,
                     Why* why) {
    switch (content) {
    case CellContent::Time:
        return table.rows[row].cells[column].text;
    case CellContent::Gap:
        return gapText(figures.gap(row, column, reference, why));
    case CellContent::Rank: {
        const std::optional<int> rank = figures.rank(row, column, why);
        return rank ? std::to_string(*rank) : None;
    }
    case CellContent::PercentBehind:
        return percentText(figures.percentBehind(row, column, why));
    case CellContent::Percentile: {
        const std::optional<double> percentile = figures.percentile(row, column, why);
        return percentile ? std::to_string(std::lround(*percentile)) : None;
    }
    }
    return None;
}

std::string comparisonText(const ComparisonRow& row, const TableFigures& figures,
                           std::size_t column, CellContent content, const TableReference& reference,
                           Why* why) {
    const double value = row.values[column];
    if (why && value != 0)
        why->input(row.name.empty() ? "ideal run" : row.name, value);
    switch (content) {
    case CellContent::Time:
        if (why && value != 0)
            why->result(ruleOf(AnalysisRule::OtherTime), value, hundredthsText(value));
        return value == 0 ? None : hundredthsText(value);
    case CellContent::Gap:
        return gapText(figures.gapOf(value, column, reference, why));
    case CellContent::PercentBehind:
        return percentText(figures.percentBehindOf(value, column, why));
    case CellContent::Rank:
    case CellContent::Percentile:
        break;
    }
    return None;
}

} // namespace kavela
