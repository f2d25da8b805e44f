#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace kavela {

/// A list that is not changed any more and that all its copies share: a recording of a run is many
/// times the rest of it.
template <class T>
class SharedList {
public:
    SharedList() : m_list(std::make_shared<const std::vector<T>>()) {}
    SharedList(std::vector<T> list)
        : m_list(std::make_shared<const std::vector<T>>(std::move(list))) {}

    [[nodiscard]] const std::vector<T>& list() const { return *m_list; }
    [[nodiscard]] bool empty() const { return m_list->empty(); }
    [[nodiscard]] std::size_t size() const { return m_list->size(); }
    [[nodiscard]] const T* data() const { return m_list->data(); }
    [[nodiscard]] auto begin() const { return m_list->begin(); }
    [[nodiscard]] auto end() const { return m_list->end(); }

private:
    std::shared_ptr<const std::vector<T>> m_list; ///< never null
};

} // namespace kavela
