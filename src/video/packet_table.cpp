#include "video/packet_table.h"

#include <algorithm>

namespace kavela {

PacketTable::PacketTable(std::vector<PacketRecord> packets, bool hasOwnStamps)
    : m_packets(std::move(packets)), m_hasOwnStamps(hasOwnStamps) {
    m_identities.reserve(m_packets.size());
    for (PacketNumber i = 0; i < m_packets.size(); ++i) {
        const PacketRecord& packet = m_packets[i];
        m_identities.emplace_back(hasOwnStamps ? packet.stamp : packet.position, i);
        if (packet.isKey)
            m_keys.push_back(i);
    }
    std::ranges::sort(m_identities);
    std::ranges::stable_sort(m_keys, {}, [this](PacketNumber key) { return at(key).stamp; });
}

std::optional<PacketNumber> PacketTable::find(std::int64_t stamp, std::int64_t position) const {
    const std::int64_t identity = m_hasOwnStamps ? stamp : position;
    const auto found = std::ranges::lower_bound(m_identities, std::pair(identity, PacketNumber(0)));
    if (found == m_identities.end() || found->first != identity)
        return std::nullopt;
    // Several packets at one position, as a stream without stamps can have: no telling which.
    const auto next = std::next(found);
    if (!m_hasOwnStamps && next != m_identities.end() && next->first == identity)
        return std::nullopt;
    return found->second;
}

std::optional<PacketNumber> PacketTable::keyFor(std::int64_t stamp, std::size_t keysBack) const {
    const auto above = std::ranges::upper_bound(m_keys, stamp, {},
                                                [this](PacketNumber key) { return at(key).stamp; });
    const auto count = static_cast<std::size_t>(above - m_keys.begin());
    if (count <= keysBack)
        return std::nullopt;
    return m_keys[count - 1 - keysBack];
}

std::optional<PacketNumber> PacketTable::keyAfter(PacketNumber packet) const {
    const auto stamp = at(packet).stamp;
    const auto above = std::ranges::upper_bound(m_keys, stamp, {},
                                                [this](PacketNumber key) { return at(key).stamp; });
    return above == m_keys.end() ? std::nullopt : std::optional(*above);
}

} // namespace kavela
