#pragma once

#include "common/record.h"

#include <optional>
#include <vector>

namespace kavela {

template <class T>
[[nodiscard]] bool isSame(const std::vector<T>& a, const std::vector<T>& b);
template <class T>
[[nodiscard]] bool isSame(const std::optional<T>& a, const std::optional<T>& b);

/// Whether two values of records hold the same, member by member. What is not a number is the same
/// as nothing, not even as itself.
template <class T>
[[nodiscard]] bool isSame(const T& a, const T& b) {
    if constexpr (Record<T>) {
        bool isAllSame = true;
        boost::mp11::mp_for_each<MembersOf<T>>([&](auto member) {
            isAllSame = isAllSame && isSame(a.*member.pointer, b.*member.pointer);
        });
        return isAllSame;
    } else {
        return a == b;
    }
}

template <class T>
bool isSame(const std::vector<T>& a, const std::vector<T>& b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!isSame(a[i], b[i]))
            return false;
    return true;
}

template <class T>
bool isSame(const std::optional<T>& a, const std::optional<T>& b) {
    return a.has_value() == b.has_value() && (!a || isSame(*a, *b));
}

} // namespace kavela
