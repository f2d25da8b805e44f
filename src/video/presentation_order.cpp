#include "video/presentation_order.h"

#include "video/decoder.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr PacketNumber ReportEvery = 64;
constexpr auto NoStamp = PacketRecord::NoStamp;

void collect(Decoder& decoder, std::vector<PacketNumber>& order) {
    while (const FramePtr frame = decoder.receive())
        if (frame->pts != NoStamp)
            order.push_back(static_cast<PacketNumber>(frame->pts));
}

/// Stamps that do not grow from frame to frame cannot be right.
void dropUnorderedStamps(std::vector<std::int64_t>& stamps) {
    std::int64_t last = NoStamp;
    for (std::int64_t& stamp : stamps) {
        if (stamp != NoStamp && stamp <= last)
            stamp = NoStamp;
        last = std::max(last, stamp);
    }
}

std::vector<std::int64_t> sortedDecodingStamps(const std::vector<PacketRecord>& packets,
                                               const std::vector<PacketNumber>& order) {
    std::vector<std::int64_t> stamps;
    stamps.reserve(order.size());
    for (const PacketNumber number : order)
        stamps.push_back(packets[number].decodingStamp);
    std::ranges::sort(stamps);
    dropUnorderedStamps(stamps);
    return stamps;
}

/// Fills what lies between two known stamps, or beyond the last or first one.
void fillBetween(std::vector<std::int64_t>& stamps, std::int64_t ticksPerFrame) {
    std::ptrdiff_t known = -1;
    for (std::ptrdiff_t i = 0; i < std::ssize(stamps); ++i) {
        const auto at = [&](std::ptrdiff_t place) -> std::int64_t& {
            return stamps[static_cast<std::size_t>(place)];
        };
        if (at(i) == NoStamp)
            continue;
        for (std::ptrdiff_t j = known + 1; j < i; ++j)
            at(j) = known < 0 ? at(i) - (i - j) * ticksPerFrame
                              : at(known) + (at(i) - at(known)) * (j - known) / (i - known);
        known = i;
    }
    if (known < 0 && !stamps.empty())
        stamps[static_cast<std::size_t>(++known)] = 0;
    for (auto j = static_cast<std::size_t>(known + 1); j < stamps.size(); ++j)
        stamps[j] = stamps[j - 1] + ticksPerFrame;
}

} // namespace

std::vector<PacketNumber> decodedOrder(const std::filesystem::path& path,
                                       const std::stop_token& stop,
                                       const std::function<void(double fraction)>& onProgress) {
    Demuxer demuxer(path, stop);
    Decoder decoder(demuxer.stream(), path);
    std::vector<PacketNumber> order;
    PacketNumber number = 0;
    while (AVPacket* const packet = demuxer.next()) {
        packet->pts = number;
        packet->dts = number;
        decoder.send(packet);
        collect(decoder, order);
        if (++number % ReportEvery == 0)
            onProgress(demuxer.fractionRead());
    }
    decoder.send(nullptr);
    collect(decoder, order);
    return order;
}

void estimateStamps(std::vector<PacketRecord>& packets, const std::vector<PacketNumber>& order,
                    std::int64_t ticksPerFrame) {
    std::vector<std::int64_t> stamps;
    stamps.reserve(order.size());
    for (const PacketNumber number : order)
        stamps.push_back(packets[number].stamp);
    if (std::ranges::all_of(stamps, [](std::int64_t stamp) { return stamp == NoStamp; }))
        stamps = sortedDecodingStamps(packets, order);
    dropUnorderedStamps(stamps);
    fillBetween(stamps, ticksPerFrame);
    for (PacketRecord& packet : packets)
        packet.isDiscarded = true;
    for (std::size_t i = 0; i < order.size(); ++i) {
        packets[order[i]].stamp = stamps[i];
        packets[order[i]].isDiscarded = false;
    }
}

} // namespace kavela
