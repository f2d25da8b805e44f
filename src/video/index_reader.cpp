#include "common/text.h"
#include "video/index.h"

#include "video/presentation_order.h"
#include "video/video_error.h"
#include "video/video_facts.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kavela {

namespace {

constexpr std::size_t ReportEveryPackets = 256;
/// No coding reorders frames over more packets than this.
constexpr std::size_t DeepestReordering = 64;

PacketRecord recordOf(const AVPacket& packet) {
    return {.stamp = packet.pts,
            .decodingStamp = packet.dts,
            .duration = packet.duration,
            .position = packet.pos,
            .bytes = packet.size,
            .isKey = (packet.flags & AV_PKT_FLAG_KEY) != 0,
            .isDiscarded = (packet.flags & AV_PKT_FLAG_DISCARD) != 0,
            .isCorrupt = (packet.flags & AV_PKT_FLAG_CORRUPT) != 0};
}

bool lacksStamp(const PacketRecord& packet) {
    return packet.stamp == PacketRecord::NoStamp;
}

class IndexReader {
public:
    IndexReader(const std::filesystem::path& path, const std::stop_token& stop,
                const std::function<void(const IndexProgress&)>& onProgress)
        : m_stop(stop), m_onProgress(onProgress), m_demuxer(path, stop) {
        m_facts = videoFacts(m_demuxer, path);
        m_facts.hasStoredIndex = hasStoredIndex(m_demuxer, path);
    }

    std::shared_ptr<const VideoIndex> read() {
        readPackets();
        if (m_stop.stop_requested())
            return nullptr;
        noteEnd();
        if (needsDecoding())
            estimate();
        if (m_stop.stop_requested())
            return nullptr;
        auto index = std::make_shared<const VideoIndex>(m_facts, std::move(m_packets), true);
        if (index->frameCount() == 0)
            throw VideoError(m_facts.path, say("no frame of the video can be read"));
        return index;
    }

private:
    void readPackets() {
        while (const AVPacket* const packet = m_demuxer.next()) {
            m_packets.push_back(recordOf(*packet));
            m_lacksStamps = m_lacksStamps || lacksStamp(m_packets.back());
            if (m_packets.size() % ReportEveryPackets == 0)
                report();
        }
    }

    void report() const {
        if (!m_onProgress)
            return;
        IndexProgress progress{m_demuxer.fractionRead(), nullptr};
        // Each beginning is sorted anew: doubling them keeps the sum small.
        const std::size_t reports = m_packets.size() / ReportEveryPackets;
        if (!m_lacksStamps && !isSuspectOfFields() && (reports & (reports - 1)) == 0)
            progress.soFar = beginning();
        m_onProgress(progress);
    }

    /// All frames before which no other can come any more.
    [[nodiscard]] std::shared_ptr<const VideoIndex> beginning() const {
        const auto tail = std::span(m_packets).last(DeepestReordering);
        const std::int64_t end = std::ranges::min_element(tail, {}, &PacketRecord::stamp)->stamp;
        auto packets = m_packets;
        for (PacketRecord& packet : packets)
            packet.isDiscarded = packet.isDiscarded || packet.stamp >= end;
        return std::make_shared<const VideoIndex>(m_facts, std::move(packets), false);
    }

    /// In broadcast streams each field can be a packet of its own, with a stamp of its own.
    [[nodiscard]] bool isSuspectOfFields() const {
        return m_facts.isInterlaced &&
               (m_demuxer.container().iformat->flags & AVFMT_TS_DISCONT) != 0;
    }
    [[nodiscard]] bool needsDecoding() const { return m_lacksStamps || isSuspectOfFields(); }

    void noteEnd() {
        const std::int64_t counted = m_demuxer.stream().nb_frames;
        m_facts.missingFrames = std::max<std::int64_t>(counted - std::ssize(m_packets), 0);
        m_facts.isCutOff = m_demuxer.wasBroken() || m_facts.missingFrames > 0 ||
                           (!m_packets.empty() && m_packets.back().isCorrupt) || endsEarly();
    }

    /// Whether the container promises clearly more than there is. Sound that goes on a little
    /// longer than the picture is common.
    [[nodiscard]] bool endsEarly() const {
        constexpr std::int64_t Slack = AV_TIME_BASE;
        const AVFormatContext& container = m_demuxer.container();
        const bool isStated = m_demuxer.stream().nb_frames == 0 &&
                              container.duration_estimation_method == AVFMT_DURATION_FROM_STREAM &&
                              container.duration > 0;
        if (!isStated || m_packets.empty() || m_lacksStamps)
            return false;
        const std::int64_t last =
            std::ranges::max_element(m_packets, {}, &PacketRecord::stamp)->stamp;
        const std::int64_t end =
            av_rescale_q(last, m_demuxer.stream().time_base, av_get_time_base_q());
        return end + Slack < container.duration;
    }

    void estimate() {
        auto order = decodedOrder(m_facts.path, m_stop, [this](double fraction) {
            if (m_onProgress)
                m_onProgress({fraction, nullptr});
        });
        std::erase_if(order, [this](PacketNumber i) { return i >= m_packets.size(); });
        const auto own = m_packets;
        estimateStamps(m_packets, order, ticksPerFrame());
        m_facts.hasEstimatedStamps = std::ranges::any_of(
            order, [&](PacketNumber i) { return own[i].stamp != m_packets[i].stamp; });
    }

    [[nodiscard]] std::int64_t ticksPerFrame() const {
        constexpr double UsualRate = 25;
        const double rate = m_facts.nominalRate > 0 ? m_facts.nominalRate : UsualRate;
        const double ticks = m_facts.timeBase.den / (rate * m_facts.timeBase.num);
        return std::max<std::int64_t>(std::llround(ticks), 1);
    }

    std::stop_token m_stop;
    const std::function<void(const IndexProgress&)>& m_onProgress;
    Demuxer m_demuxer;
    VideoFacts m_facts;
    std::vector<PacketRecord> m_packets;
    bool m_lacksStamps = false;
};

} // namespace

std::shared_ptr<const VideoIndex>
readVideoIndex(const std::filesystem::path& path, const std::stop_token& stop,
               const std::function<void(const IndexProgress&)>& onProgress) {
    return IndexReader(path, stop, onProgress).read();
}

} // namespace kavela
