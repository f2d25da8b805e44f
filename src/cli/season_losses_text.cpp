#include "cli/losses_text.h"

#include "analysis/cell_text.h"
#include "common/display_text.h"
#include "common/text.h"

#include <fmt/format.h>

#include <array>
#include <filesystem>
#include <set>
#include <vector>

namespace kavela::cli {

namespace {

/// A column of the table of a season and its width.
struct SeasonLossColumn {
    std::string_view title;
    int width;
};

constexpr std::array SeasonLossColumns{SeasonLossColumn{"Runs", 5},  SeasonLossColumn{"Lost", 8},
                                       SeasonLossColumn{"%", 6},     SeasonLossColumn{"90 %", 15},
                                       SeasonLossColumn{"A run", 7}, SeasonLossColumn{"Of gap", 7}};
constexpr int SeasonFieldWidth = 10;
constexpr int SeasonKeyWidth =
    22; ///< the whole is as wide as the narrowest terminal, verdict apart
constexpr int SeasonKeyWidthIfNarrow = 11; ///< a line then fits into 80 columns
constexpr int WideEnough = 100;

std::string rangeText(const std::optional<Interval>& interval) {
    return interval ? say("{:+.1f} to {:+.1f}", interval->low, interval->high) : "too few";
}

std::string meanText(const MeanOf& mean) {
    if (mean.n == 0)
        return "not known";
    const std::string range =
        mean.interval ? say("{:+.2f} to {:+.2f}", mean.interval->low, mean.interval->high)
                      : "too few";
    return saidNumber(signedHundredths(mean.mean)) + " (" + range + ")";
}

std::string seasonRowText(const SeasonLossRow& row, std::string_view field, int keyWidth) {
    const std::array cells{std::to_string(row.runs),
                           saidNumber(signedHundredths(row.loss)),
                           fmt::format("{:+.1f}", row.percent),
                           rangeText(row.interval),
                           saidNumber(signedHundredths(row.perRun)),
                           row.share ? fmt::format("{:.0f} %", *row.share * 100)
                                     : std::string("–")};
    std::string text =
        "  " + fitted(field, SeasonFieldWidth) + fitted(printable(row.text), keyWidth);
    for (std::size_t i = 0; i < cells.size(); ++i)
        text += rightAligned(cells[i], SeasonLossColumns[i].width);
    return text + (row.interval ? "  " + std::string(verdictText(row.verdict)) : "") + '\n';
}

std::string seasonTable(const SeasonLosses& season, const Terminal& terminal) {
    const bool isNarrow = terminal.width > 0 && terminal.width < WideEnough;
    const int keyWidth = isNarrow ? SeasonKeyWidthIfNarrow : SeasonKeyWidth;
    std::string text = "  " + fitted("", SeasonFieldWidth + keyWidth);
    for (const SeasonLossColumn& column : SeasonLossColumns)
        text += rightAligned(column.title, column.width);
    text += '\n';
    std::string field;
    for (const SeasonLossRow& row : season.rows) {
        text += seasonRowText(row, row.field == field ? "" : row.field, keyWidth);
        field = row.field;
    }
    return text;
}

std::string clipText(const FactStore& facts, const LossClip& clip) {
    const std::string file = printable(pathText(facts.pathOf(facts.runs()[clip.run]).filename()));
    const std::string where =
        clip.gate ? say("gate {}", *clip.gate) : sectionsText(clip.first, clip.last);
    return say("      {} run {} {} {}\n", file, facts.runs()[clip.run].number, where,
               saidNumber(signedHundredths(clip.loss)));
}

std::string trainText(const FactStore& facts, const SeasonLosses& season) {
    if (season.train.empty())
        return "\nTrain: nothing stands out from these runs.\n";
    std::string text = "\nTrain\n";
    for (std::size_t i = 0; i < season.train.size(); ++i) {
        const SeasonLossRow& row = season.rows[season.train[i]];
        text += say("  {}. {}: {}, {} s a run\n", i + 1, row.field, printable(row.text),
                    saidNumber(signedHundredths(row.perRun)));
        for (const LossClip& clip : row.clips)
            text += clipText(facts, clip);
    }
    return text;
}

std::string runsText(const FactStore& facts, const SeasonLosses& season) {
    std::set<std::uint32_t> files;
    for (const std::size_t run : season.runs)
        files.insert(facts.runs()[run].file);
    return counted(static_cast<std::int64_t>(season.runs.size()), "whole run", "whole runs") +
           " in " + counted(static_cast<std::int64_t>(files.size()), "file", "files");
}

} // namespace

std::string seasonLossesText(const FactStore& facts, const std::string& athlete,
                             const LossReference& reference, const SeasonLosses& season,
                             const Terminal& terminal) {
    const std::string name = printable(athlete);
    std::string text = terminal.hasColours ? "\x1b[1m" + name + "\x1b[0m" : name;
    text += say(" · on {} · {}\n", textOf(reference), runsText(facts, season));
    text += "  gap a run " + meanText(season.gap) + '\n';
    text += "  penalties " + meanText(season.penalties) + '\n';
    if (!season.rows.empty())
        text += '\n' + seasonTable(season, terminal) + trainText(facts, season);
    return text + lossNotesText(season.notes);
}

} // namespace kavela::cli
