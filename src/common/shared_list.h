#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace kavela {

/// What can be compared with its like.
template <class T>
concept HasEquality = requires(const T& entry) {
    entry == entry;
};

/// A list that is not changed any more and that all its copies share: a recording of a run is many
/// times the rest of it, and so is a picture.
template <class T>
class SharedList {
public:
    SharedList() = default;
    SharedList(std::vector<T> list)
        : m_list(std::make_shared<const std::vector<T>>(std::move(list))) {}
    SharedList(std::initializer_list<T> list) : SharedList(std::vector<T>(list)) {}
    template <std::input_iterator Place>
    SharedList(Place first, Place last) : SharedList(std::vector<T>(first, last)) {}

    [[nodiscard]] const std::vector<T>& list() const { return m_list ? *m_list : Nothing; }
    [[nodiscard]] bool empty() const { return list().empty(); }
    [[nodiscard]] std::size_t size() const { return list().size(); }
    [[nodiscard]] const T* data() const { return list().data(); }
    [[nodiscard]] auto begin() const { return list().begin(); }
    [[nodiscard]] auto end() const { return list().end(); }

    friend bool operator==(const SharedList& a, const SharedList& b) requires HasEquality<T> {
        return a.m_list == b.m_list || a.list() == b.list();
    }

private:
    inline static const std::vector<T> Nothing;

    std::shared_ptr<const std::vector<T>> m_list; ///< null for an empty one, and where it was moved
};

} // namespace kavela
