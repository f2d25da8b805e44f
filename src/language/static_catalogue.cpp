#include "language/static_catalogue.h"

#include <algorithm>

namespace kavela {

StaticCatalogue::StaticCatalogue(const Language& language, const CatalogueData& data)
    : m_language(language), m_data(data) {}

StaticCatalogue::StaticCatalogue(StaticCatalogue&& other) noexcept
    : TextCatalogue(), m_language(other.m_language), m_data(other.m_data) {}

std::string_view StaticCatalogue::of(std::string_view text) const {
    return form(text, 0, false);
}

std::string_view StaticCatalogue::of(std::string_view text, std::int64_t count) const {
    return form(text, pluralForm(m_language.plural, count), true);
}

std::string_view StaticCatalogue::form(std::string_view text, std::size_t number,
                                       bool isCounted) const {
    const auto textAt = [this](std::uint32_t start) {
        return std::string_view(m_data.words + start);
    };
    const auto found = std::ranges::lower_bound(m_data.starts, text, {}, textAt);
    if (found == m_data.starts.end() || textAt(*found) != text)
        return {};
    const std::size_t forms = m_data.forms[static_cast<std::size_t>(found - m_data.starts.begin())];
    if ((forms > 1) != isCounted)
        return {};
    std::string_view word = text;
    const char* at = m_data.words + *found;
    for (std::size_t i = 0; i <= std::min(number, forms - 1); ++i) {
        at += word.size() + 1;
        word = at;
    }
    return word;
}

} // namespace kavela
