#include "video/writing/film_sink.h"

#include <algorithm>

namespace kavela {

void MemorySink::write(std::span<const std::uint8_t> bytes) {
    m_bytes.resize(std::max(m_bytes.size(), m_place + bytes.size()));
    std::ranges::copy(bytes, reinterpret_cast<std::uint8_t*>(m_bytes.data()) + m_place);
    m_place += bytes.size();
}

} // namespace kavela
