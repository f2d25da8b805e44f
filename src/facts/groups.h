#pragma once

#include "facts/fact_store.h"

#include <cstddef>
#include <optional>
#include <vector>

/// Who is compared with whom: runs of one file and category, and of one phase where the session is
/// a race. Never across files: the same place on another day is another course.
namespace kavela {

/// Runs that compete, by their indices in FactStore::runs(), in the order of the file.
using RivalGroup = std::vector<std::size_t>;

/// The groups of a store, in the order in which their first runs stand.
[[nodiscard]] std::vector<RivalGroup> groupsOf(const FactStore& facts);

/// Runs of one file and category whatever their phase.
[[nodiscard]] std::vector<RivalGroup> categoriesOf(const FactStore& facts);

/// By run of the store: 1 + how many totals of its group are smaller to the hundredth; nothing for
/// a run without a total.
[[nodiscard]] std::vector<std::optional<int>> ranksOf(const FactStore& facts,
                                                      const std::vector<RivalGroup>& groups);

} // namespace kavela
