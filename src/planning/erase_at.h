#pragma once

#include <cstddef>
#include <vector>

namespace kavela {

/// Takes an entry out of a list, which need not have so many.
template <class T>
void eraseAt(std::vector<T>& list, std::size_t index) {
    if (index < list.size())
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
}

} // namespace kavela
