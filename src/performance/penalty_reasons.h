#pragma once

#include "performance/penalty_passages.h"

#include <optional>
#include <string_view>

namespace kavela {

/// Why a number about penalties is what it is, by the very functions that make the tables. Ids:
/// - "rate/BY/KEY" the ranked touch rate of a row, "above/BY/KEY" its chance to be above the common
///   rate, "touches/BY/KEY" and "missed/BY/KEY" its bare rates, "common/BY" what the rows share;
/// - "clean" the share of clean runs, "detail/FIELD/CODE" a share of what was noted, with "-" for
/// the
///   code of those not noted;
/// - "cost/RUN/GATE" the places a penalty cost, runs from 0, "FILE:RUN" where there are several
/// files;
/// - "third/N/touches", "…/missed", "…/paddling", "…/total" a third of the field, 1 for the
/// fastest;
///   "breakeven" the touches that one percent of speed pays for.
/// Nothing for an id that names no such number.
[[nodiscard]] std::optional<Reason> explainPenalty(const FactStore& facts, std::string_view id,
                                                   const PenaltyChoice& choice = {});

} // namespace kavela
