#pragma once

#include "performance/loss_season.h"

#include <optional>
#include <string>
#include <string_view>

/// Why a number of losses is what it is, by the number's id:
///
///     loss/RUN/REFERENCE/SECTION       losspercent/…, between/… the same
///     gateloss/RUN/REFERENCE/GATE      entranceloss/…, exitloss/… the same
///     gap/RUN/REFERENCE                paddling/…, penaltygap/…, timing/…, explained/… the same
///     xtimediff/RUN                    interest/RUN/NUMBER
///     total/RUN                        place/RUN
///     strokes/RUN/SECTION              penalty/RUN/SECTION
///     noted/FIELD/KEY                  gained/…, notecount/… the same
///     way/RUN/NUMBER
///     seasonpercent/FIELD/KEY          seasonrun/…, seasonshare/…, seasonloss/…, seasonruns/…
///     seasongap, seasonpenalties
///
/// RUN and NUMBER are counted from 0, sections and gates from 1; RUN is a run of the store, which
/// in a store of one file is a run of the file.
namespace kavela {

/// The id of a number of a run. `at` is its section, gate or number where it has one.
[[nodiscard]] std::string lossId(LossNumber number, std::size_t run, const LossReference& reference,
                                 std::size_t at = 0);
/// Of a number of notes.
[[nodiscard]] std::string lossNoteId(const LossNoteQuestion& question);
/// Of what a choice cost.
[[nodiscard]] std::string wayCostId(std::size_t run, std::size_t entry);
/// Of a number of a season.
[[nodiscard]] std::string seasonLossId(const SeasonLossQuestion& question);

/// How a number of some runs came about; nothing when the id is none of theirs or the number is not
/// known. `reference` stands in where an id leaves its own empty: "loss/50//5".
[[nodiscard]] std::optional<Reason>
explainLoss(const FactStore& facts, const LossReference& reference, std::string_view id);

/// The same for a season, whose runs also stand behind the sums of notes.
[[nodiscard]] std::optional<Reason>
explainSeasonLoss(const FactStore& facts, const SeasonLossQuery& query, std::string_view id);

} // namespace kavela
