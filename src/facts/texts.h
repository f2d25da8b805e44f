#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kavela {

/// A text by its place in a table of texts; 0 is the empty one.
using TextId = std::uint32_t;

/// Every text once.
class Texts {
public:
    Texts();
    Texts(const Texts&) = delete;
    Texts& operator=(const Texts&) = delete;
    Texts(Texts&&) noexcept = default;
    Texts& operator=(Texts&&) noexcept = default;

    [[nodiscard]] TextId idOf(std::string_view text); ///< adds it where it is new
    [[nodiscard]] std::string_view operator[](TextId id) const { return m_texts[id]; }
    [[nodiscard]] std::size_t size() const { return m_texts.size(); }

private:
    std::deque<std::string> m_texts; ///< of which the keys below are views
    std::unordered_map<std::string_view, TextId> m_ids;
};

} // namespace kavela
