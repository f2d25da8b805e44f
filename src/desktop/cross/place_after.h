#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// Where an entry of a list stands after one step that something else made, such as undoing. It is
/// found among its like; where nothing but the entry differs, that is what was changed. Nothing
/// when it is gone, or there was none at `place`. `isSame` tells two entries to be one.
template <class Entry, class IsSame>
[[nodiscard]] std::optional<std::size_t>
placeAfter(const std::vector<Entry>& before, std::size_t place, const std::vector<Entry>& after,
           IsSame isSame) {
    if (place >= before.size())
        return std::nullopt;
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t front = 0;
    while (front < shorter && isSame(before[front], after[front]))
        ++front;
    std::size_t back = 0;
    while (back < shorter - front &&
           isSame(before[before.size() - 1 - back], after[after.size() - 1 - back]))
        ++back;
    if (place < front)
        return place;
    if (place >= before.size() - back)
        return after.size() - (before.size() - place);
    for (std::size_t other = front; other < after.size() - back; ++other)
        if (isSame(before[place], after[other]))
            return other;
    const bool isOneForOne = before.size() == after.size() && front + back + 1 == after.size();
    return isOneForOne ? std::optional(place) : std::nullopt;
}

} // namespace kavela::desktop
