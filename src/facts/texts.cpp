#include "facts/texts.h"

namespace kavela {

Texts::Texts() {
    (void)idOf({});
}

TextId Texts::idOf(std::string_view text) {
    if (const auto known = m_ids.find(text); known != m_ids.end())
        return known->second;
    const auto id = static_cast<TextId>(m_texts.size());
    m_ids.emplace(m_texts.emplace_back(text), id);
    return id;
}

} // namespace kavela
