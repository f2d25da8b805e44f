#include "analysis/analysis_rules.h"

#include <array>
#include <cstddef>

namespace kavela {

namespace {

/// In the order of AnalysisRule.
constexpr std::array AnalysisRuleTable{
    Rule{"cell.section", "The time from the mark before to the mark of this section.",
         "mark − mark before", ""},
    Rule{"cell.section.penalties", "The time of the section with the penalties of its gates.",
         "time + penalties", ""},
    Rule{"cell.accumulated", "The time from the start to the mark of this section.",
         "Σ sections up to here", ""},
    Rule{"cell.total", "All sections together, as timed from the video, without penalties.",
         "Σ sections", ""},
    Rule{"cell.total.penalties",
         "All sections together, as timed from the video, and the penalties.",
         "Σ sections + penalties", ""},
    Rule{"cell.sprint", "The sprint as it was timed for this run.", "sprint", ""},
    Rule{"cell.real", "The official time as it was entered for this run.", "real", ""},
    Rule{"cell.other", "A run of another race, held against the runs of this one.", "time", ""},
    Rule{"band", "The colour tells between which tenths of its column a time lies.",
         "tenth below < time ≤ tenth above", ""},
    Rule{"band.fastest", "The least time of its column has a colour of its own.", "time = least",
         ""},
    Rule{"band.marked", "A total column with a run that has no total stays white.", "white", ""},
    Rule{"band.clear", "What was not timed, or lies beside the scale, has no colour.", "no colour",
         ""},
    Rule{"reference.best", "The least of the column that counts.", "min values", ""},
    Rule{"reference.median", "The middle of the column, of what counts.", "median values", ""},
    Rule{"cell.gap", "The time less that of the reference.", "own − reference", ""},
    Rule{"cell.rank", "The place in the column: one more than are faster to the hundredth.",
         "1 + faster", ""},
    Rule{"cell.percent", "How far behind the best of the column.", "100 · (own / best − 1)", ""},
    Rule{"cell.percentile", "The share of the column that is as slow or slower.",
         "100 · slower or equal / timed", ""},
    Rule{"ideal.section", "The best time of the section that stands alone, whoever paddled it.",
         "min times", ""},
    Rule{"ideal.accumulated", "The best of every section up to here, put together.",
         "Σ bests up to here", ""},
    Rule{"ideal.total", "The best of every section, put together.", "Σ bests", ""},
    Rule{"run.penalties", "The seconds of all its touches and missed gates.", "Σ gates", ""},
    Rule{"section.penalty", "The seconds of touches and missed gates of the section.",
         "Σ gates of the section", ""},
    Rule{"real.penalties", "The official penalty seconds as they were entered for this run.",
         "real penalty", ""},
    Rule{"run.expected", "The expected time as split taking stored it with this run.", "expected",
         ""},
};
static_assert(AnalysisRuleTable.size() == static_cast<std::size_t>(AnalysisRule::ExpectedTime) + 1);

} // namespace

const Rule& ruleOf(AnalysisRule rule) {
    return AnalysisRuleTable[static_cast<std::size_t>(rule)];
}

std::span<const Rule> analysisRules() {
    return AnalysisRuleTable;
}

} // namespace kavela
