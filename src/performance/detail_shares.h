#pragma once

#include "performance/penalty_passages.h"
#include "splitdata/annotation_labels.h"
#include "statistics/intervals.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What was noted of penalties: which pole, what touched it, when. Nobody notes how gates are
/// passed without a penalty, so these are shares of the penalties noted and no rates.
namespace kavela {

/// One kind of thing that is noted.
struct DetailField {
    std::string_view name; ///< "pole"
    LabelList labels;
    std::int32_t PenaltyRow::*code;
};

inline constexpr std::array<DetailField, 7> DetailFields{
    DetailField{"kind", LabelList::PenaltyKind, &PenaltyRow::penkind},
    DetailField{"pole", LabelList::PenaltyPole, &PenaltyRow::polekind},
    DetailField{"way", LabelList::PenaltyWay, &PenaltyRow::penway},
    DetailField{"moment", LabelList::PenaltyMoment, &PenaltyRow::moment},
    DetailField{"direction", LabelList::PenaltyDirection, &PenaltyRow::direction},
    DetailField{"style", LabelList::PenaltyStyle, &PenaltyRow::style},
    DetailField{"eye", LabelList::PenaltyEye, &PenaltyRow::eye}};

struct DetailRow {
    std::string_view field;
    std::optional<std::int32_t> code; ///< nothing for penalties of which this was not noted
    RateOf share; ///< of those noted; the row of those not noted: of all penalties
};

/// The text of a row's code, "not noted" where there is none.
[[nodiscard]] std::string detailText(const DetailRow& row);

struct DetailShares {
    std::size_t noted = 0;       ///< penalties in detail
    std::size_t penalties = 0;   ///< noted in detail or not
    std::vector<DetailRow> rows; ///< by field, the commonest first, those not noted last
};

[[nodiscard]] DetailShares detailShares(const FactStore& facts, const PenaltyChoice& choice = {});

/// The share of one code of a field; nothing where no penalty was noted so.
[[nodiscard]] std::optional<DetailRow>
detailShare(const FactStore& facts, const PenaltyChoice& choice, std::string_view field,
            std::optional<std::int32_t> code, Why* why = nullptr);

} // namespace kavela
