#pragma once

#include "facts/fact_store.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

/// The order of the rows of an answer.
namespace kavela {

/// The places of the values from the least up, or down. Equal ones keep their order; those that are
/// NotKnown come last, either way. Where fewer are wanted, the other ones may be left out.
[[nodiscard]] std::vector<std::uint32_t>
orderOf(std::span<const double> values, bool isDown,
        std::size_t most = std::numeric_limits<std::size_t>::max());

/// By entry the place of its text among all of them in a list for people; NotKnown for an empty
/// text.
[[nodiscard]] std::vector<double> naturalPlaces(const FactStore& facts,
                                                std::span<const TextId> texts);

} // namespace kavela
