#include "video/index.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// What a sum of a few doubles can be off, and far less than the interval of any camera.
constexpr double SlackSeconds = 1e-6;

} // namespace

VideoIndex::VideoIndex(VideoFacts facts, std::vector<PacketRecord> packets, bool isComplete)
    : m_facts(std::move(facts)),
      m_packets(std::move(packets), !m_facts.hasEstimatedStamps),
      m_isComplete(isComplete) {
    sortFrames();
}

void VideoIndex::sortFrames() {
    PacketNumber number = 0;
    for (const PacketRecord& packet : m_packets.packets()) {
        if (!packet.isDiscarded && packet.stamp != PacketRecord::NoStamp)
            m_frames.push_back({packet.stamp, packet.duration, number, packet.bytes, packet.isKey});
        ++number;
    }
    std::ranges::stable_sort(m_frames, {}, &IndexedFrame::stamp);
    const auto kept = std::unique(
        m_frames.begin(), m_frames.end(),
        [](const IndexedFrame& a, const IndexedFrame& b) { return a.stamp == b.stamp; });
    m_facts.sharedStamps = m_frames.end() - kept;
    m_frames.erase(kept, m_frames.end());
    for (std::size_t i = 0; i + 1 < m_frames.size(); ++i)
        m_frames[i].duration = m_frames[i + 1].stamp - m_frames[i].stamp;
    if (m_frames.size() > 1 && m_frames.back().duration <= 0)
        m_frames.back().duration = m_frames[m_frames.size() - 2].duration;
}

const IndexedFrame& VideoIndex::frame(FrameNumber number) const {
    return m_frames.at(static_cast<std::size_t>(number));
}

CMTime VideoIndex::stampOf(FrameNumber number) const {
    return kavela::stampOf(frame(number).stamp, m_facts.timeBase);
}

std::optional<FrameNumber> VideoIndex::frameAt(const CMTime& moment) const {
    if (m_frames.empty() || !isMoment(moment))
        return std::nullopt;
    const auto after = std::ranges::partition_point(m_frames, [&](const IndexedFrame& frame) {
        return compareTicks(frame.stamp, m_facts.timeBase, moment) <= 0;
    });
    const FrameNumber next = after - m_frames.begin();
    if (next == 0 || wasRoundedTo(moment, next - 1) || !wasRoundedTo(moment, next))
        return std::max<FrameNumber>(next - 1, 0);
    return next;
}

bool VideoIndex::wasRoundedTo(const CMTime& moment, FrameNumber number) const {
    if ((moment.flags & RoundedStamp) == 0 || number >= frameCount())
        return false;
    return ticksToScale(frame(number).stamp, m_facts.timeBase, moment.timescale) == moment.value;
}

std::optional<FrameNumber> VideoIndex::frameAt(double seconds) const {
    if (m_frames.empty() || std::isnan(seconds))
        return std::nullopt;
    const auto after = std::ranges::partition_point(m_frames, [&](const IndexedFrame& frame) {
        return kavela::stampOf(frame.stamp, m_facts.timeBase).seconds() <= seconds + SlackSeconds;
    });
    return std::max<FrameNumber>(after - m_frames.begin() - 1, 0);
}

std::optional<FrameNumber> VideoIndex::frameWithStamp(std::int64_t ticks) const {
    const auto found = std::ranges::lower_bound(m_frames, ticks, {}, &IndexedFrame::stamp);
    if (found == m_frames.end() || found->stamp != ticks)
        return std::nullopt;
    return found - m_frames.begin();
}

double VideoIndex::uncertainty(FrameNumber number) const {
    std::int64_t interval = frameCount() == 1 ? frame(number).duration : 0;
    if (number + 1 < frameCount())
        interval = frame(number + 1).stamp - frame(number).stamp;
    if (number > 0)
        interval = std::max(interval, frame(number).stamp - frame(number - 1).stamp);
    return kavela::stampOf(interval, m_facts.timeBase).seconds() / 2;
}

} // namespace kavela
