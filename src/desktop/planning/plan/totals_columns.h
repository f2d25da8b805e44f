#pragma once

#include "desktop/shell/tables/column_model.h"
#include "planning/week_totals.h"

namespace kavela::desktop {

/// Totals per training category: what the sessions add up to, beside what was planned. The planned
/// columns of a single week can be typed in.
enum class TotalsColumn { Category, Sessions, PlannedSessions, Quantity, PlannedQuantity, Done };

/// What becomes of totals that are typed.
struct TypedTotals {
    std::function<bool()> canBeTyped;
    std::function<void(std::size_t category, std::int64_t sessions)> takeSessions;
    std::function<void(std::size_t category, double quantity)> takeQuantity;
};

[[nodiscard]] std::vector<Column<CategoryTotal>> totalsColumns(const TypedTotals& typed);

} // namespace kavela::desktop
