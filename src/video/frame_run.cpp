#include "video/frame_run.h"

#include <algorithm>

namespace kavela {

namespace {

/// Going on over so many packets is quicker than to start anew at a key frame.
constexpr std::int64_t FewPackets = 32;
/// Packets after a seek that the index does not know, until the place counts as unusable.
constexpr int MostUnknownPackets = 200;

bool isAsked(const FrameRun::Interrupt& interrupt) {
    return interrupt && interrupt();
}

} // namespace

FrameRun::FrameRun(std::shared_ptr<const VideoIndex> index)
    : m_index(std::move(index)),
      m_demuxer(m_index->facts().path),
      m_decoder(m_demuxer.stream(), m_index->facts().path) {}

bool FrameRun::run(const Order& order, const Interrupt& interrupt, const Take& take) {
    if ((order.isThorough || !canGoOnTo(order.first)) && !start(order, interrupt))
        return false;
    while (true) {
        while (const FramePtr samples = m_decoder.receive())
            if (deliver(samples, take) >= order.last)
                return true;
        if (m_decoder.isEmpty())
            return true;
        if (isAsked(interrupt))
            return false;
        feed(order);
    }
}

bool FrameRun::canGoOnTo(FrameNumber first) const {
    if (!m_isStarted || first <= m_lastOut || first <= m_lastPassedOver)
        return false;
    const IndexedFrame& frame = m_index->frame(first);
    if (frame.packet <= m_lastFed + FewPackets)
        return true;
    const auto key = m_index->packets().keyFor(frame.stamp, 0);
    return !key || *key <= m_lastFed;
}

bool FrameRun::endedBefore(FrameNumber number) const {
    return m_decoder.isEmpty() && m_lastFed < m_index->frame(number).packet;
}

bool FrameRun::start(const Order& order, const Interrupt& interrupt) {
    m_decoder.flush();
    m_isStarted = false;
    m_pending = nullptr;
    m_lastFed = m_lastOut = m_lastPassedOver = -1;
    const std::int64_t stamp = m_index->frame(order.first).stamp;
    const auto key = m_index->packets().keyFor(stamp, order.isThorough ? 1 : 0);
    if (!key || !goTo(*key, interrupt)) {
        if (isAsked(interrupt))
            return false;
        m_demuxer.rewind();
        m_pending = nullptr;
        m_nextByCount = 0;
        if (key && !readUpTo(*key, interrupt) && isAsked(interrupt))
            return false;
    }
    m_isStarted = true;
    return true;
}

/// Containers find a place by the stamp of decoding or of showing, exactly or nearly, and some
/// take any packet for a start. Whatever they find, the packet that comes first tells.
bool FrameRun::goTo(PacketNumber key, const Interrupt& interrupt) {
    for (const std::int64_t place : placesBefore(key)) {
        m_nextByCount.reset();
        if (m_demuxer.seek(place) && readUpTo(key, interrupt))
            return true;
        if (isAsked(interrupt))
            return false;
    }
    return false;
}

std::vector<std::int64_t> FrameRun::placesBefore(PacketNumber key) const {
    constexpr std::int64_t FramesBehind = 3;
    const PacketTable& table = m_index->packets();
    const PacketRecord& packet = table.at(key);
    const auto decodedAt = [](const PacketRecord& record) {
        return record.decodingStamp == PacketRecord::NoStamp
                   ? record.stamp
                   : std::min(record.decodingStamp, record.stamp);
    };
    // The key's own stamp can lead to the group before it, one that is too late behind it.
    std::int64_t behind = packet.stamp + FramesBehind * std::max<std::int64_t>(packet.duration, 1);
    const auto next = table.keyAfter(key);
    if (next)
        behind = std::min(behind, decodedAt(table.at(*next)) - 1);
    const std::int64_t second = m_index->facts().timeBase.den / m_index->facts().timeBase.num;
    std::vector<std::int64_t> places = {std::max(behind, packet.stamp), packet.stamp,
                                        decodedAt(packet), decodedAt(packet) - second};
    if (const auto before = table.keyFor(packet.stamp, 1))
        places.push_back(decodedAt(table.at(*before)));
    return places;
}

bool FrameRun::readUpTo(PacketNumber key, const Interrupt& interrupt) {
    for (int unknown = 0; unknown < MostUnknownPackets && !isAsked(interrupt);) {
        AVPacket* const packet = readPacket();
        if (packet == nullptr || (m_current && *m_current > key))
            return false;
        if (m_current == key) {
            m_pending = packet;
            return true;
        }
        unknown = m_current ? 0 : unknown + 1;
    }
    return false;
}

AVPacket* FrameRun::readPacket() {
    AVPacket* const packet = m_demuxer.next();
    if (packet == nullptr)
        return nullptr;
    const PacketTable& table = m_index->packets();
    m_current = m_nextByCount ? (*m_nextByCount)++ : table.find(packet->pts, packet->pos);
    if (m_current && *m_current >= table.packets().size())
        m_current.reset();
    if (m_current && m_index->facts().hasEstimatedStamps)
        packet->pts = table.at(*m_current).stamp;
    return packet;
}

void FrameRun::feed(const Order& order) {
    AVPacket* const packet = m_pending != nullptr ? m_pending : readPacket();
    m_pending = nullptr;
    if (packet == nullptr) {
        m_decoder.send(nullptr);
        return;
    }
    // The two fields of an interlaced frame can differ in whether others build on them.
    const bool isPassedOver = !order.isThorough && !m_index->facts().isInterlaced &&
                              packet->pts != AV_NOPTS_VALUE &&
                              packet->pts < m_index->frame(order.first).stamp;
    m_decoder.skipUnreferenced(isPassedOver);
    if (isPassedOver)
        m_lastPassedOver =
            std::max(m_lastPassedOver, m_index->frameWithStamp(packet->pts).value_or(-1));
    if (m_current)
        m_lastFed = *m_current;
    m_decoder.send(packet);
}

FrameNumber FrameRun::deliver(const FramePtr& samples, const Take& take) {
    const auto number = m_index->frameWithStamp(samples->pts);
    if (!number || *number <= m_lastOut)
        return m_lastOut;
    m_lastOut = *number;
    take(*number, samples);
    return *number;
}

} // namespace kavela
