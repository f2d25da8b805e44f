#pragma once

#include "results/selection_ranking.h"

#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

class SelectionDocument;

/// How the athletes of a category really stand while results are only tried. An athlete is the same
/// by name: others may have been added or removed in what-if mode.
class RealRanking {
public:
    explicit RealRanking(const SelectionDocument& document) : m_document(document) {}

    /// Looks at the document again. Outside of what-if mode there is nothing to compare with.
    void update(std::size_t category);

    [[nodiscard]] std::optional<Standing> standingOf(const std::string& name) const;
    /// The result of an athlete in a race; null where there is none to compare with.
    [[nodiscard]] const saRaceStruct* resultOf(const std::string& name, std::size_t race) const;

private:
    [[nodiscard]] const srCategoryStruct_v3* category() const;
    [[nodiscard]] std::optional<std::size_t> athlete(const std::string& name) const;

    const SelectionDocument& m_document;
    std::size_t m_category = 0;
    std::vector<Standing> m_standings;
};

} // namespace kavela::desktop
