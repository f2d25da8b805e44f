#pragma once

#include "video/time_stamps.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace kavela {

/// The place of a packet in its file, from 0.
using PacketNumber = std::uint32_t;

/// What one pass over a film notes of each packet of its video stream. Stamps are in ticks.
struct PacketRecord {
    static constexpr std::int64_t NoStamp = INT64_MIN;

    std::int64_t stamp = NoStamp;         ///< when it is shown
    std::int64_t decodingStamp = NoStamp; ///< when it is decoded
    std::int64_t duration = 0;
    std::int64_t position = -1; ///< in bytes from the start of the file; -1: not known
    std::int32_t bytes = 0;
    bool isKey = false;
    bool isDiscarded = false; ///< needed for decoding, and never shown
    bool isCorrupt = false;
};

/// The packets of a film, for finding the place from which a frame can be decoded.
class PacketTable {
public:
    PacketTable() = default;
    /// `hasOwnStamps`: the stamps stand in the file, and name their packets; otherwise they were
    /// estimated and packets are told apart by their position.
    PacketTable(std::vector<PacketRecord> packets, bool hasOwnStamps);

    [[nodiscard]] std::span<const PacketRecord> packets() const { return m_packets; }
    [[nodiscard]] const PacketRecord& at(PacketNumber number) const { return m_packets[number]; }

    /// Which packet it is that was read with this stamp at this position.
    [[nodiscard]] std::optional<PacketNumber> find(std::int64_t stamp, std::int64_t position) const;

    /// The last key packet shown at or before a stamp, or `keysBack` keys before that; none when
    /// there is none so early.
    [[nodiscard]] std::optional<PacketNumber> keyFor(std::int64_t stamp,
                                                     std::size_t keysBack) const;
    /// The first key packet behind a packet in the file.
    [[nodiscard]] std::optional<PacketNumber> keyAfter(PacketNumber packet) const;

private:
    std::vector<PacketRecord> m_packets;
    std::vector<std::pair<std::int64_t, PacketNumber>> m_identities; ///< sorted
    std::vector<PacketNumber> m_keys;                                ///< by stamp
    bool m_hasOwnStamps = true;
};

} // namespace kavela
