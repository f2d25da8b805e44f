#include "desktop/penalties/penalty_figures.h"

#include "performance/penalty_reasons.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

std::optional<Reason> PenaltyFigures::why(const std::string& id) const {
    return explainPenalty(*facts, id, question.choice);
}

std::string PenaltyFigures::idOf(const PenaltyCost& cost) const {
    const RunRow& run = facts->runs()[cost.run];
    return "cost/" + courseKey(*facts, run.file, run.number) + '/' + std::to_string(cost.gate);
}

SharedFigures penaltyFigures(std::shared_ptr<const FactStore> facts,
                             const PenaltyQuestion& question) {
    auto figures = std::make_shared<PenaltyFigures>();
    figures->facts = std::move(facts);
    figures->question = question;
    const FactStore& store = *figures->facts;
    const PenaltyChoice& choice = question.choice;
    figures->rates = penaltyRates(store, question.by, choice);
    figures->courses = coursesOfRates(store, question.by == RateBy::Gate
                                                 ? figures->rates
                                                 : penaltyRates(store, RateBy::Gate, choice));
    figures->details = detailShares(store, choice);
    figures->costs = penaltyCosts(store, choice);
    std::ranges::stable_sort(figures->costs, [](const PenaltyCost& a, const PenaltyCost& b) {
        return std::pair(!a.isMedal(), -a.places()) < std::pair(!b.isMedal(), -b.places());
    });
    figures->tradeOff = tradeOff(store, choice);
    figures->files = fileLabels(store);
    return figures;
}

} // namespace kavela::desktop
