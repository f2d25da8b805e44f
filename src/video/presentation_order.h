#pragma once

#include "video/demuxer.h"
#include "video/packet_table.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

/// For films whose packets do not all say when they are shown.
namespace kavela {

/// Decodes a whole film from its start and tells in which order its packets come out. Packets that
/// give no frame of their own, such as second fields, are not among them.
[[nodiscard]] std::vector<PacketNumber>
decodedOrder(const std::filesystem::path& path, const std::stop_token& stop,
             const std::function<void(double fraction)>& onProgress);

/// Gives every packet of the order a stamp: its own where it has one, otherwise evenly between its
/// neighbours, or by the order of the decoding stamps or the rate where no packet has one. All
/// others count as discarded from then on. `ticksPerFrame` is at least 1.
void estimateStamps(std::vector<PacketRecord>& packets, const std::vector<PacketNumber>& order,
                    std::int64_t ticksPerFrame);

} // namespace kavela
