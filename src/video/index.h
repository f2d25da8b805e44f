#pragma once

#include "video/packet_table.h"
#include "video/time_stamps.h"
#include "video/video_frame.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela {

struct VideoSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const VideoSize&, const VideoSize&) = default;
};

/// How wide a pixel is against its height; 0 to 0 where that is not stored.
struct PixelAspect {
    int num = 0;
    int den = 0;
};

/// What a file says of its video as a whole, and what reading it showed.
struct VideoFacts {
    std::filesystem::path path;
    std::string format; ///< of the coding, such as "h264"
    TimeBase timeBase;
    VideoSize storedSize; ///< of the pictures as they are stored
    VideoSize shownSize;  ///< turned, and with square pixels
    PixelAspect pixelAspect;
    int rotation = 0;                  ///< clockwise turn that sets it upright: 0, 90, 180, 270
    double nominalRate = 0;            ///< frames a second that the file claims; 0: none
    std::optional<double> captureRate; ///< frames a second in the camera, where that is stored
    int bitDepth = 8;
    bool isInterlaced = false;
    bool hasStoredIndex = true;      ///< of its packets, beside them
    bool hasEstimatedStamps = false; ///< for some frame the file has no stamp
    bool isCutOff = false;
    std::int64_t sharedStamps = 0;  ///< frames left out since another has the same stamp
    std::int64_t missingFrames = 0; ///< that the file counts and does not hold
};

/// A frame in its place. Times are in ticks of the film's time base.
struct IndexedFrame {
    std::int64_t stamp = 0;
    std::int64_t duration = 0;
    PacketNumber packet = 0;
    std::int32_t bytes = 0; ///< as it is stored
    bool isKey = false;     ///< can be decoded by itself
};

/// Which frame of a film is shown when, to the tick. A value: frames are never added to it.
class VideoIndex {
public:
    /// An index of so many packets in the order of the file, all with stamps. The stamps of the
    /// packets that are not shown may be missing.
    VideoIndex(VideoFacts facts, std::vector<PacketRecord> packets, bool isComplete);

    [[nodiscard]] const VideoFacts& facts() const { return m_facts; }
    /// False while the rest of a long file is still being read: more frames follow.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    [[nodiscard]] FrameNumber frameCount() const { return std::ssize(m_frames); }
    /// The frame of a number from 0 to frameCount() − 1.
    [[nodiscard]] const IndexedFrame& frame(FrameNumber number) const;

    [[nodiscard]] CMTime stampOf(FrameNumber number) const;
    [[nodiscard]] double secondsOf(FrameNumber number) const { return stampOf(number).seconds(); }

    /// The frame with exactly this stamp, otherwise the one that is shown at that moment; for a
    /// stamp flagged as rounded the one that it was rounded from. Before the first frame that is
    /// the first, after the last the last. None for a stamp that is no moment, or without frames.
    [[nodiscard]] std::optional<FrameNumber> frameAt(const CMTime& moment) const;
    /// The frame shown at a number of seconds, which may be off by a microsecond.
    [[nodiscard]] std::optional<FrameNumber> frameAt(double seconds) const;
    /// The frame with exactly this number of ticks.
    [[nodiscard]] std::optional<FrameNumber> frameWithStamp(std::int64_t ticks) const;

    /// How far a moment marked at this frame can be off, in seconds: half the interval to its
    /// neighbour, the farther one where they differ.
    [[nodiscard]] double uncertainty(FrameNumber number) const;

    [[nodiscard]] const PacketTable& packets() const { return m_packets; }

private:
    void sortFrames();
    [[nodiscard]] bool wasRoundedTo(const CMTime& moment, FrameNumber number) const;

    VideoFacts m_facts;
    PacketTable m_packets;
    std::vector<IndexedFrame> m_frames;
    bool m_isComplete = true;
};

/// How far the reading of an index has come.
struct IndexProgress {
    double fraction = 0; ///< of the file, 0 to 1
    /// The beginning of the film, which may be shown already; null when nothing is new.
    std::shared_ptr<const VideoIndex> soFar;
};

/// Reads a film once from end to end. The progress is reported now and then, from the calling
/// thread. Null once `stop` is requested. Throws VideoError for a file that cannot be opened, that
/// holds no video, or of whose video no frame is left.
[[nodiscard]] std::shared_ptr<const VideoIndex>
readVideoIndex(const std::filesystem::path& path, const std::stop_token& stop = {},
               const std::function<void(const IndexProgress&)>& onProgress = {});

} // namespace kavela
