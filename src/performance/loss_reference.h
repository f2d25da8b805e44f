#pragma once

#include "facts/groups.h"
#include "performance/loss_sides.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What runs are held against.
namespace kavela {

enum class LossReferenceKind {
    Winner,  ///< the least total with penalties
    Fastest, ///< the least without
    Ideal,   ///< the least of each section that stands alone
    Median,  ///< the median of each section of the finalists
    Own,     ///< the crew's fastest other run in file and category
    Run      ///< a run of the same file
};

struct LossReference {
    LossReferenceKind kind = LossReferenceKind::Winner;
    std::size_t run = 0; ///< number in its file, from 0, for `Run`

    friend bool operator==(const LossReference&, const LossReference&) = default;
};

/// From "winner", "fastest", "ideal", "median", "own" or "run:3"; nothing from another text.
[[nodiscard]] std::optional<LossReference> lossReferenceOf(std::string_view text);
[[nodiscard]] std::string textOf(const LossReference& reference);
/// The same without a number: "run".
[[nodiscard]] std::string_view kindText(LossReferenceKind kind);

/// By run of a store, whom it competes with.
class LossRivals {
public:
    explicit LossRivals(const FactStore& facts);

    [[nodiscard]] const RivalGroup& groupOf(std::size_t run) const {
        return m_groups[m_groupOf[run]];
    }
    [[nodiscard]] const RivalGroup& categoryOf(std::size_t run) const {
        return m_categories[m_categoryOf[run]];
    }

private:
    std::vector<RivalGroup> m_groups;
    std::vector<RivalGroup> m_categories;
    std::vector<std::size_t> m_groupOf;
    std::vector<std::size_t> m_categoryOf;
};

/// Those whose median a run is held against: ranked among the first ten of the category's "Final"
/// in the file; where it has none, of the group.
[[nodiscard]] std::vector<std::size_t> finalistsOf(const FactStore& facts, const LossRivals& rivals,
                                                   std::size_t run);

/// What a run is held against; nothing when there is none such. Of equals, to the hundredth, it is
/// the first in the file.
[[nodiscard]] std::optional<LossSide> referenceSide(const FactStore& facts,
                                                    const LossRivals& rivals, std::size_t run,
                                                    const LossReference& reference);

} // namespace kavela
