#include "planning/week_totals.h"

#include "planning/add_within.h"
#include "planning/training_categories.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

double CategoryTotal::percentDone() const {
    return plannedQuantity == 0 ? 0 : quantity / plannedQuantity * 100;
}

std::vector<CategoryTotal> weekTotals(const microsplanning_v5& week) {
    std::size_t count =
        std::max({TrainingCategories.size(), week.total.size(), week.totalq.size()});
    for (const sessioninmicro_v5& session : week.sessions)
        count = std::max(count, session.data.size());
    std::vector<CategoryTotal> totals(count);
    for (std::size_t i = 0; i < count; ++i) {
        totals[i].category = trainingCategory(i);
        totals[i].plannedSessions = entryOrZero(week.total, i);
        totals[i].plannedQuantity = entryOrZero(week.totalq, i);
        for (const sessioninmicro_v5& session : week.sessions) {
            const double value = entryOrZero(session.data, i);
            totals[i].sessions += value != 0;
            totals[i].quantity += value;
        }
    }
    return totals;
}

std::vector<CategoryTotal> totalsOf(const std::vector<microsplanning_v5>& weeks) {
    std::vector<CategoryTotal> sums = weekTotals({});
    for (const microsplanning_v5& week : weeks) {
        const std::vector<CategoryTotal> totals = weekTotals(week);
        for (std::size_t i = sums.size(); i < totals.size(); ++i)
            sums.emplace_back().category = totals[i].category;
        for (std::size_t i = 0; i < totals.size(); ++i) {
            sums[i].sessions += totals[i].sessions;
            sums[i].quantity += totals[i].quantity;
            addWithin(sums[i].plannedSessions, totals[i].plannedSessions);
            sums[i].plannedQuantity += totals[i].plannedQuantity;
        }
    }
    return sums;
}

void planAsInSessions(microsplanning_v5& week) {
    const std::vector<CategoryTotal> totals = weekTotals(week);
    week.total.clear();
    week.totalq.clear();
    for (const CategoryTotal& total : totals) {
        week.total.push_back(total.sessions);
        week.totalq.push_back(total.quantity);
    }
}

} // namespace kavela
