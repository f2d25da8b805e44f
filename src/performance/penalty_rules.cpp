#include "performance/penalty_rules.h"

#include "common/text.h"

#include <fmt/format.h>

#include <array>

namespace kavela {

namespace penalty_rules {

namespace {

constexpr std::string_view WilsonSource =
    "Brown, Cai, DasGupta: Interval Estimation for a Binomial Proportion, 2001";
constexpr std::string_view ShrinkSource = "Kleinman: Proportions with Extraneous Variance, 1973";

} // namespace

constexpr Rule Single{"penalty-rate",
                      "How often it happened among the passages counted, with Wilson's interval, "
                      "which holds for few passages and for no mistake at all.",
                      "x / n", WilsonSource};
constexpr Rule Ranked{"penalty-ranked",
                      "The rate drawn towards the common one, the more the fewer its passages: few "
                      "passages would otherwise fill both ends of the list.",
                      "(m·M + x) / (M + n), distributed as Beta(m·M + x, (1 − m)·M + n − x)",
                      ShrinkSource};
constexpr Rule Common{"penalty-common",
                      "What all rows have in common: their mean rate m, and as many passages M as "
                      "it weighs; M is small where the rows differ more than by chance.",
                      "m = (Σx + ½)/(N + 1), M = (1 − γ)/γ, γ = (S − v(k − 1)) / "
                      "(v(N − Σn²/N − (k − 1))) kept in [1/2001, ½], S = Σn(x/n − m)², "
                      "v = m(1 − m); M = 20 below three rows",
                      ShrinkSource};
constexpr Rule Above{"penalty-above", "The chance that the true rate is above the common one.",
                     "P(rate > m) of Beta(m·M + x, (1 − m)·M + n − x)", ShrinkSource};
constexpr Rule Clean{"penalty-clean", "Whole runs without any penalty among the whole runs.",
                     "x / n", WilsonSource};
constexpr Rule Detail{"penalty-detail",
                      "The share of the penalties of which this was noted. How often a gate is "
                      "passed so without a penalty is not known, so it is no rate.",
                      "x / n", WilsonSource};
constexpr Rule Cost{"penalty-cost",
                    "Places lost by this penalty: the rank as it was less the rank without these "
                    "seconds, all else as it was.",
                    "rank − rank without", ""};
constexpr Rule Rank{"penalty-rank",
                    "One more than the totals of the group that are smaller to the hundredth.",
                    "1 + smaller totals", ""};
constexpr Rule Touches{"penalty-touches-per-run",
                       "Touches per run of this third of the field by paddling time, with the "
                       "exact interval of a Poisson mean.",
                       "Σ touches / runs", "Garwood: Fiducial Limits for the Poisson, 1936"};
constexpr Rule Missed{"penalty-missed-per-run",
                      "Missed gates per run of this third of the field by paddling time.",
                      "Σ missed / runs", ""};
constexpr Rule Paddling{"penalty-third-paddling",
                        "Paddling time in percent of the median of its group, mean of the runs of "
                        "this third.",
                        "mean of 100·paddling / median paddling", ""};
constexpr Rule Total{"penalty-third-total",
                     "Time with penalties in percent of the median of its group, mean of the runs "
                     "of this third.",
                     "mean of 100·total / median total", ""};
constexpr Rule ThirdRuns{"penalty-third-runs",
                         "The whole runs of this third of the field by paddling time.",
                         "number of runs", ""};
constexpr Rule BreakEven{"penalty-break-even",
                         "Touches that one percent of speed pays for: a hundredth of the time, in "
                         "touches of 2 s.",
                         "mean of the groups' median paddling / 200", ""};

} // namespace penalty_rules

std::span<const Rule* const> penaltyRules() {
    using namespace penalty_rules;
    static constexpr std::array<const Rule*, 14> All{
        &Single, &Ranked,  &Common, &Above,    &Clean, &Detail,    &Cost,
        &Rank,   &Touches, &Missed, &Paddling, &Total, &ThirdRuns, &BreakEven};
    return All;
}

std::string rateText(double rate) {
    return fmt::format("{:.1f} %", 100 * rate);
}

void tellRate(Why& why, const Rule& rule, const RateOf& rate) {
    why.result(rule, rate.rate, rateText(rate.rate));
    why.input("x", static_cast<double>(rate.count));
    why.input("n", static_cast<double>(rate.of));
    why.uncertain(rate.interval, "Wilson's interval, 90 %");
}

std::string leftOutText(std::size_t runs) {
    return sayCount(static_cast<std::int64_t>(runs),
                    "{} run is left out: its penalties are not known by gate.",
                    "{} runs are left out: their penalties are not known by gate.");
}

} // namespace kavela
