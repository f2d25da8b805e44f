#include "performance/season_rules.h"

#include <array>
#include <cstddef>

namespace kavela {

namespace {

/// In the order of SeasonRule.
constexpr std::array SeasonRuleTable{
    Rule{"season.percent", "How far behind the winner of the phase and class, penalties included.",
         "100 · (T / W − 1)", "of the class winner, not of the men's kayaks: Wells, thesis, 2018"},
    Rule{"season.splits",
         "How far behind the fastest times of all splits together, without penalties.",
         "100 · (Σ splits / Σ fastest − 1)", ""},
    Rule{"season.spread",
         "How much a run varies by chance, once the athlete and the course are taken out.",
         "100 · (e^(s/100) − 1),  s² = Σe² / df,  df = runs − athletes − phases + connected parts",
         "mixed model of elite canoeists: Bonetti, Hopkins, 2010; interval: χ²"},
    Rule{"season.spread.own", "How much this athlete's runs varied by chance.",
         "s² = Σe² / (runs · df / all runs)", ""},
    Rule{"season.spread.shrunk",
         "The athlete's spread drawn towards the common one, the more the fewer the runs.",
         "s² = (Σe² + 10 · common s²) / (runs · df / all runs + 10)", ""},
    Rule{"season.worthwhile",
         "What is worth gaining: one more medal in ten races among equals at the top.",
         "0.3 · spread", "Hopkins, 2004"},
    Rule{"season.trend", "The change of the percentage behind from year to year.",
         "slope of 100 · ln(1 + percent/100) per 365.25 days", "interval: Student's t"},
    Rule{"season.medals", "Races among whose first three the athlete was.",
         "places 1 to 3 / races with a final position", "interval: Wilson"},
    Rule{"season.finals", "Races in whose final the athlete was.", "with a final / with phases",
         "interval: Wilson"},
    Rule{"season.semifinals", "Races in whose semifinal the athlete was.",
         "with a semifinal / with phases", "interval: Wilson"},
    Rule{"season.pair", "The mean change from one phase of a race to a later one.",
         "mean of 100 · (ln later − ln earlier)", "interval: Student's t"},
    Rule{"season.error", "How much a single run varies by chance, from pairs of them.",
         "SD of the changes / √2", "typical error: Hopkins, 2000"},
    Rule{"season.won", "Phases that both have in which the athlete was faster; ties count half.",
         "(won + ties/2) / met", "interval: Wilson"},
    Rule{"season.gap", "The mean gap in the phases that both have, penalties included.",
         "mean of 100 · ln(own / rival's)", "interval: Student's t"},
    Rule{"season.benchmark", "What percentage behind the winner a rank took, over the races.",
         "median of 100 · (T of the rank / W − 1)", ""},
    Rule{"season.missed",
         "The chance of a missed gate, drawn towards everybody's as if by 20 runs more.",
         "(missed + 20q) / (runs + 20),  q = (all missed + ½) / (all runs + 1)", ""},
    Rule{"season.place",
         "The mean place among this field; with a missed gate behind all that have none.",
         "Σ place · chance,  result normal: effect, spread · √(1 + 1/n)", ""},
    Rule{"season.podium", "The chance of one of the first three places among this field.",
         "chances of the places 1 to 3", ""},
    Rule{"season.median",
         "How far behind the winners of a phase, the same number of races before and behind it.",
         "median of 100 · (T / W − 1), without missed gates", ""},
};
static_assert(SeasonRuleTable.size() == static_cast<std::size_t>(SeasonRule::MedianPercent) + 1);

} // namespace

const Rule& ruleOf(SeasonRule rule) {
    return SeasonRuleTable[static_cast<std::size_t>(rule)];
}

std::span<const Rule> seasonRules() {
    return SeasonRuleTable;
}

} // namespace kavela
