#include "performance/loss_rules.h"

#include <array>
#include <cstddef>

namespace kavela {

namespace {

/// In the order of LossRule.
constexpr std::array LossRuleTable{
    Rule{"loss", "Time lost between two neighbouring marks that both runs have.", "own − reference",
         ""},
    Rule{"loss.percent", "Time lost in percent of the reference's time there.",
         "100 · (own − reference) / reference", ""},
    Rule{"loss.merged", "After a mark that was not taken the next time covers both sections.",
         "Σ times between the marks", ""},
    Rule{"loss.ideal", "The least time that stands alone, whoever paddled it.", "min times", ""},
    Rule{"loss.median", "The median of the finalists' times that stand alone.", "median times", ""},
    Rule{"loss.gap", "The difference of the totals, official where both have an official one.",
         "own total − reference total", ""},
    Rule{"loss.total", "All sections and the penalties, as timed from the video.",
         "Σ sections + penalties", ""},
    Rule{"loss.paddling", "What was lost on the water: all stretches together.", "Σ losses", ""},
    Rule{"loss.penalties", "The difference of the penalties.",
         "own penalties − reference's penalties", ""},
    Rule{"loss.timing", "What neither water nor penalties tell: official against video time.",
         "gap − paddling − penalties", ""},
    Rule{"loss.gate", "Time lost in an upstream gate, by its first entry in both runs.",
         "own − reference", ""},
    Rule{"loss.entrance", "Time lost from the entrance of an upstream gate to its pole line.",
         "own − reference", ""},
    Rule{"loss.exit", "Time lost from the pole line of an upstream gate to its exit.",
         "own − reference", ""},
    Rule{"loss.between", "What a stretch lost outside its upstream gates.", "loss − Σ gates", ""},
    Rule{"loss.explained", "The part of the loss that notes against the same crew explain.",
         "Σ notes / paddling", ""},
    Rule{"loss.expected", "The time without penalties against the expected time.",
         "paddling time − expected time", ""},
    Rule{"loss.interest", "The total against a result of interest.", "own total − result", ""},
    Rule{"loss.noted", "Time lost as noted; several reasons of one note share it equally.",
         "Σ notes above 0", ""},
    Rule{"loss.gained", "Time gained as noted; several reasons of one note share it equally.",
         "Σ notes below 0", ""},
    Rule{"loss.way", "What the chosen way cost against the fastest one timed.",
         "chosen − least timed", ""},
    Rule{"loss.season", "What was lost in percent of the reference's time, over whole runs.",
         "100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²",
         "ratio estimator: Cochran, Sampling Techniques, 1977"},
    Rule{"loss.season.run", "What was lost here in a run on the average.", "ΣL / n", ""},
    Rule{"loss.season.share", "The part of the whole gap that was lost here.", "ΣL / Σgap", ""},
    Rule{"loss.season.gap", "The mean gap of the whole runs.", "Σgap / n", "interval: Student's t"},
    Rule{"loss.season.penalties", "The mean difference of penalties of the whole runs.",
         "Σ(own − reference) / n", "interval: Student's t"},
    Rule{"loss.sofar", "What was lost on the water up to a mark: all stretches before it.",
         "Σ losses to here", ""},
    Rule{"loss.run", "The total of the run: the official one where it has one.", "time + penalties",
         ""},
    Rule{"loss.place", "One more than have a smaller total in the group, to the hundredth.",
         "1 + totals below the own", ""},
    Rule{"loss.strokes", "The strokes that were marked in the stretch.", "Σ strokes", ""},
    Rule{"loss.section.penalty", "The seconds of penalty at the gates of the stretch.",
         "Σ penalties", ""},
    Rule{"loss.season.runs", "The whole runs that have something of it.", "number of runs", ""},
    Rule{"loss.season.loss", "What was lost here in all runs together.", "Σ losses", ""},
    Rule{"loss.notes", "The finished notes that name it.", "number of notes", ""},
};
static_assert(LossRuleTable.size() == static_cast<std::size_t>(LossRule::NotesCounted) + 1);

} // namespace

const Rule& ruleOf(LossRule rule) {
    return LossRuleTable[static_cast<std::size_t>(rule)];
}

std::span<const Rule> lossRules() {
    return LossRuleTable;
}

} // namespace kavela
