#include "video/writing/packet_copy.h"

#include "common/text.h"
#include "video/demuxer.h"
#include "video/video_error.h"
#include "video/writing/muxer.h"

#include <algorithm>
#include <memory>
#include <new>

namespace kavela {

namespace {

/// The sound that belongs to a stretch, from a demuxer of its own; a film may have none.
std::unique_ptr<Demuxer> soundOf(const std::filesystem::path& path, const std::stop_token& stop) {
    try {
        return std::make_unique<Demuxer>(path, stop, StreamKind::Sound);
    } catch (const VideoError&) {
        return nullptr;
    }
}

AVStream& copyOfStream(Muxer& muxer, const AVStream& from) {
    AVStream& to = muxer.addStream();
    if (avcodec_parameters_copy(to.codecpar, from.codecpar) < 0)
        throw std::bad_alloc();
    to.codecpar->codec_tag = 0; // containers name codings differently
    to.time_base = from.time_base;
    to.avg_frame_rate = from.avg_frame_rate;
    to.r_frame_rate = from.r_frame_rate;
    to.sample_aspect_ratio = from.sample_aspect_ratio;
    std::size_t bytes = 0;
    const auto* const turn = av_stream_get_side_data(&from, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    if (turn != nullptr) {
        auto* const copy = av_stream_new_side_data(&to, AV_PKT_DATA_DISPLAYMATRIX, bytes);
        if (copy == nullptr)
            throw std::bad_alloc();
        std::copy_n(turn, bytes, copy);
    }
    return to;
}

/// The packets of a piece, in the order of the file: from the key frame on which its first frame
/// builds to the last packet in the file that holds one of its frames.
class PictureCopy {
public:
    PictureCopy(const VideoIndex& film, const FilmCut& cut, const std::stop_token& stop)
        : m_film(film), m_demuxer(film.facts().path, stop) {
        m_key = film.packets().keyFor(film.frame(cut.first).stamp, 0).value_or(0);
        m_last = m_key;
        for (FrameNumber i = cut.first; i <= cut.last; ++i)
            m_last = std::max(m_last, film.frame(i).packet);
        m_zero = film.frame(cut.first).stamp;
        goToKey();
    }

    [[nodiscard]] const AVStream& stream() const { return m_demuxer.stream(); }

    /// Null behind the last one.
    AVPacket* next() {
        AVPacket* const packet = m_pending != nullptr ? m_pending : m_demuxer.next();
        m_pending = nullptr;
        if (packet == nullptr || m_isDone)
            return nullptr;
        const auto number = numberOf(*packet);
        m_isDone = number && *number >= m_last;
        if (number && m_film.facts().hasEstimatedStamps)
            packet->pts = m_film.packets().at(*number).stamp;
        if (number)
            m_number = *number;
        packet->pts -= packet->pts == AV_NOPTS_VALUE ? 0 : m_zero;
        packet->dts -= packet->dts == AV_NOPTS_VALUE ? 0 : m_zero;
        return packet;
    }

    [[nodiscard]] double fraction() const {
        return double(m_number - m_key + 1) / double(m_last - m_key + 1);
    }

private:
    [[nodiscard]] std::optional<PacketNumber> numberOf(const AVPacket& packet) {
        return m_byCount ? std::optional((*m_byCount)++)
                         : m_film.packets().find(packet.pts, packet.pos);
    }

    /// Containers find a place exactly or nearly: whatever comes first tells. Where none is found
    /// the film is read from its start.
    void goToKey() {
        const std::int64_t place = m_film.packets().at(m_key).stamp;
        if (m_demuxer.seek(place) && readsUpToKey())
            return;
        m_demuxer.rewind();
        m_byCount = 0;
        if (!readsUpToKey())
            throw VideoError(m_film.facts().path, say("the piece could not be found in the film"));
    }

    bool readsUpToKey() {
        for (;;) {
            AVPacket* const packet = m_demuxer.next();
            if (packet == nullptr)
                return false;
            const auto number = numberOf(*packet);
            if (number && *number > m_key)
                return false;
            if (number != m_key)
                continue;
            m_pending = packet;
            if (m_byCount)
                --*m_byCount; // it is numbered again when it is taken
            return true;
        }
    }

    const VideoIndex& m_film;
    Demuxer m_demuxer;
    PacketNumber m_key = 0;
    PacketNumber m_last = 0;
    PacketNumber m_number = 0;
    std::int64_t m_zero = 0; ///< ticks of the film that are 0 in the piece
    std::optional<PacketNumber> m_byCount;
    AVPacket* m_pending = nullptr;
    bool m_isDone = false;
};

/// The packets of sound that are heard within a piece.
class SoundCopy {
public:
    SoundCopy(std::unique_ptr<Demuxer> demuxer, const VideoIndex& film, const FilmCut& cut)
        : m_demuxer(std::move(demuxer)) {
        const TimeBase base = film.facts().timeBase;
        const auto inOwn = [&](std::int64_t ticks) {
            return av_rescale_q(ticks, {base.num, base.den}, m_demuxer->stream().time_base);
        };
        const IndexedFrame& last = film.frame(cut.last);
        m_from = inOwn(film.frame(cut.first).stamp);
        m_to = inOwn(last.stamp + last.duration);
        if (!m_demuxer->seek(m_from))
            m_demuxer->rewind();
    }

    [[nodiscard]] const AVStream& stream() const { return m_demuxer->stream(); }

    AVPacket* next() {
        while (AVPacket* const packet = m_demuxer->next()) {
            if (packet->pts == AV_NOPTS_VALUE || packet->pts + packet->duration <= m_from)
                continue;
            if (packet->pts >= m_to)
                return nullptr;
            packet->pts -= m_from;
            packet->dts = packet->pts; // no sound is stored out of its order
            return packet;
        }
        return nullptr;
    }

private:
    std::unique_ptr<Demuxer> m_demuxer;
    std::int64_t m_from = 0;
    std::int64_t m_to = 0;
};

void writePacket(Muxer& muxer, AVPacket& packet, const AVStream& from, const AVStream& to) {
    av_packet_rescale_ts(&packet, from.time_base, to.time_base);
    packet.stream_index = to.index;
    packet.pos = -1;
    muxer.write(packet);
}

} // namespace

void copyPackets(const VideoIndex& film, const FilmCut& cut, const std::string& container,
                 UnfinishedFile& sink, const std::stop_token& stop,
                 const std::function<void(double fraction)>& onProgress) {
    Muxer muxer(container, sink);
    PictureCopy pictures(film, cut, stop);
    AVStream& pictureStream = copyOfStream(muxer, pictures.stream());
    std::optional<SoundCopy> sound;
    AVStream* soundStream = nullptr;
    if (auto demuxer = soundOf(film.facts().path, stop)) {
        sound.emplace(std::move(demuxer), film, cut);
        soundStream = &copyOfStream(muxer, sound->stream());
    }
    muxer.putIndexFirst();
    if (pictures.stream().time_base.num == 1) // cut films keep the stamps of whole ones
        muxer.setOption("video_track_timescale", std::to_string(pictures.stream().time_base.den));
    muxer.begin();
    AVPacket* heard = sound ? sound->next() : nullptr;
    while (AVPacket* const packet = pictures.next()) {
        if (stop.stop_requested())
            throw FilmStopped();
        // The container would hold everything back until both have come so far.
        const std::int64_t now = packet->dts;
        while (heard != nullptr && now != AV_NOPTS_VALUE &&
               av_compare_ts(heard->dts, sound->stream().time_base, now,
                             pictures.stream().time_base) <= 0) {
            writePacket(muxer, *heard, sound->stream(), *soundStream);
            heard = sound->next();
        }
        writePacket(muxer, *packet, pictures.stream(), pictureStream);
        if (onProgress)
            onProgress(pictures.fraction());
    }
    for (; heard != nullptr; heard = sound->next())
        writePacket(muxer, *heard, sound->stream(), *soundStream);
    if (stop.stop_requested())
        throw FilmStopped();
    muxer.finish();
}

} // namespace kavela
