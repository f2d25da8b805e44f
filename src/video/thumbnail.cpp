#include "video/thumbnail.h"

#include "common/text.h"
#include "video/decoder.h"
#include "video/demuxer.h"
#include "video/video_error.h"
#include "video/video_facts.h"

#include <utility>

extern "C" {
#include <libavutil/mathematics.h>
}

namespace kavela {

namespace {

/// Where a film is looked at, as a part of it.
constexpr int ThumbnailPart = 3;

/// No coder holds more back before the first frame comes out.
constexpr int MostPacketsForFrame = 300;

std::optional<std::int64_t> ticksLong(const Demuxer& demuxer) {
    const AVStream& stream = demuxer.stream();
    if (stream.duration != AV_NOPTS_VALUE && stream.duration > 0)
        return stream.duration;
    const std::int64_t length = demuxer.container().duration; // of the longest stream
    if (length == AV_NOPTS_VALUE || length <= 0)
        return std::nullopt;
    return av_rescale_q(length, av_get_time_base_q(), stream.time_base);
}

/// The key frame nearest to a stamp, by the file's own list of its packets where it has one.
std::int64_t nearestKey(const Demuxer& demuxer, std::int64_t wanted) {
    AVStream* const stream = demuxer.container().streams[demuxer.stream().index];
    const AVIndexEntry* const before =
        avformat_index_get_entry_from_timestamp(stream, wanted, AVSEEK_FLAG_BACKWARD);
    const AVIndexEntry* const after = avformat_index_get_entry_from_timestamp(stream, wanted, 0);
    if (!before || !after)
        return before ? before->timestamp : after ? after->timestamp : wanted;
    return wanted - before->timestamp <= after->timestamp - wanted ? before->timestamp
                                                                   : after->timestamp;
}

/// Frames are listed by when they are decoded and sought by when they are shown: the stamp of a key
/// frame itself can lead to the group before.
std::int64_t reordering(const AVStream& stream) {
    constexpr int Frames = 4;
    const AVRational rate = stream.avg_frame_rate;
    return rate.num > 0 && rate.den > 0
               ? av_rescale_q(Frames, {rate.den, rate.num}, stream.time_base)
               : 0;
}

void goToThird(Demuxer& demuxer) {
    const auto length = ticksLong(demuxer);
    if (!length)
        return;
    const std::int64_t start = demuxer.stream().start_time;
    const std::int64_t third = (start == AV_NOPTS_VALUE ? 0 : start) + *length / ThumbnailPart;
    if (!demuxer.seek(nearestKey(demuxer, third) + reordering(demuxer.stream())))
        demuxer.rewind();
}

/// The first frame from where the film stands. A key frame comes out at once when it is told that
/// nothing follows; one that does not is given what does.
FramePtr frameFromHere(Demuxer& demuxer, const std::filesystem::path& film) {
    Decoder decoder(demuxer.stream(), film);
    bool isFirst = true;
    for (int packets = 0; packets < MostPacketsForFrame; ++packets) {
        const AVPacket* const packet = demuxer.next();
        if (isFirst && packet && (packet->flags & AV_PKT_FLAG_KEY) == 0)
            continue;
        decoder.send(packet);
        if (std::exchange(isFirst, false) && packet) {
            Decoder alone(demuxer.stream(), film);
            alone.send(packet);
            alone.send(nullptr);
            if (FramePtr frame = alone.receive())
                return frame;
        }
        if (FramePtr frame = decoder.receive())
            return frame;
        if (!packet)
            return nullptr;
    }
    return nullptr;
}

} // namespace

Thumbnail readThumbnail(const std::filesystem::path& film, VideoSize box,
                        const std::stop_token& stop) {
    Demuxer demuxer(film, stop);
    Thumbnail thumbnail;
    if (const auto length = ticksLong(demuxer))
        thumbnail.seconds = static_cast<double>(*length) * av_q2d(demuxer.stream().time_base);
    goToThird(demuxer);
    FramePtr frame = frameFromHere(demuxer, film);
    if (!frame && !stop.stop_requested()) {
        demuxer.rewind(); // damaged behind, maybe whole in front
        frame = frameFromHere(demuxer, film);
    }
    if (stop.stop_requested())
        return thumbnail;
    const auto picture =
        frame ? PictureMaker(videoFacts(demuxer, film)).make(*frame, box) : nullptr;
    if (!picture)
        throw VideoError(film, say("no frame of the video can be read"));
    thumbnail.picture = *picture;
    return thumbnail;
}

} // namespace kavela
