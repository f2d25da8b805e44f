#pragma once

#include "video/decoder.h"
#include "video/demuxer.h"
#include "video/index.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kavela {

/// Decodes a film forward from a key frame, and remembers where it stands.
class FrameRun {
public:
    struct Order {
        FrameNumber first = 0; ///< every frame from here on is wanted
        FrameNumber last = 0;
        /// Starts a key frame earlier and decodes everything on the way, for films whose key
        /// frames do not hold what they promise.
        bool isThorough = false;
    };
    using Take = std::function<void(FrameNumber number, FramePtr samples)>;
    using Interrupt = std::function<bool()>;

    /// Throws VideoError when the film cannot be opened.
    explicit FrameRun(std::shared_ptr<const VideoIndex> index);

    void setIndex(std::shared_ptr<const VideoIndex> index) { m_index = std::move(index); }

    /// Hands over the frames as they come out, in order and each once, those before the first one
    /// that is wanted included, until the last is past or the film ends. False when interrupted.
    [[nodiscard]] bool run(const Order& order, const Interrupt& interrupt, const Take& take);

    /// Whether a frame is reached from here sooner than from its key frame.
    [[nodiscard]] bool canGoOnTo(FrameNumber first) const;
    /// The frame handed over last; -1 before the first one.
    [[nodiscard]] FrameNumber lastOut() const { return m_lastOut; }
    /// Whether the file came to its end before a frame that its index lists.
    [[nodiscard]] bool endedBefore(FrameNumber number) const;

private:
    [[nodiscard]] bool start(const Order& order, const Interrupt& interrupt);
    [[nodiscard]] bool goTo(PacketNumber key, const Interrupt& interrupt);
    [[nodiscard]] bool readUpTo(PacketNumber key, const Interrupt& interrupt);
    [[nodiscard]] std::vector<std::int64_t> placesBefore(PacketNumber key) const;
    [[nodiscard]] AVPacket* readPacket();
    void feed(const Order& order);
    [[nodiscard]] FrameNumber deliver(const FramePtr& samples, const Take& take);

    std::shared_ptr<const VideoIndex> m_index;
    Demuxer m_demuxer;
    Decoder m_decoder;
    AVPacket* m_pending = nullptr;             ///< read and not fed yet
    std::optional<PacketNumber> m_current;     ///< number of the packet read last, where known
    std::optional<PacketNumber> m_nextByCount; ///< set as long as the file is read from its start
    bool m_isStarted = false;
    std::int64_t m_lastFed = -1; ///< packet
    FrameNumber m_lastOut = -1;
    FrameNumber m_lastPassedOver = -1;
};

} // namespace kavela
