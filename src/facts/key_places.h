#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kavela {

/// The places of keys in the order in which they come. A table without lists behind its slots:
/// millions of rows ask it, one after the other.
template <class Key>
class KeyPlaces {
public:
    /// The place of a key; behind the last one for a new one, which has it from then on.
    [[nodiscard]] std::uint32_t placeOf(const Key& key) {
        if (2 * (m_keys.size() + 1) > m_slots.size())
            grow();
        std::uint32_t& slot = m_slots[slotOf(key)];
        if (slot == 0) {
            m_keys.push_back(key);
            slot = static_cast<std::uint32_t>(m_keys.size());
        }
        return slot - 1;
    }

    /// By place.
    [[nodiscard]] std::span<const Key> keys() const { return m_keys; }
    [[nodiscard]] std::size_t size() const { return m_keys.size(); }

private:
    static std::size_t hashOf(std::uint64_t key) { return hashOf(std::array{key}); }

    template <std::size_t Parts>
    static std::size_t hashOf(const std::array<std::uint64_t, Parts>& key) {
        std::uint64_t hash = 0;
        for (const std::uint64_t part : key)
            hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>(hash ^ (hash >> 32U));
    }

    [[nodiscard]] std::size_t slotOf(const Key& key) const {
        const std::size_t last = m_slots.size() - 1;
        std::size_t slot = hashOf(key) & last;
        while (m_slots[slot] != 0 && m_keys[m_slots[slot] - 1] != key)
            slot = (slot + 1) & last;
        return slot;
    }

    /// Half of the slots stay free, so that none is looked for long.
    void grow() {
        constexpr std::size_t FewestSlots = 64;
        m_slots.assign(std::max(FewestSlots, 2 * m_slots.size()), 0);
        for (std::size_t place = 0; place < m_keys.size(); ++place)
            m_slots[slotOf(m_keys[place])] = static_cast<std::uint32_t>(place + 1);
    }

    std::vector<std::uint32_t> m_slots; ///< a place and 1, or 0; their number is a power of two
    std::vector<Key> m_keys;            ///< by place
};

} // namespace kavela
