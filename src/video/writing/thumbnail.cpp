#include "video/writing/thumbnail.h"

#include "common/posix_file.h"
#include "common/safe_file.h"
#include "video/decoder.h"
#include "video/demuxer.h"
#include "video/index.h"
#include "video/picture.h"
#include "video/video_error.h"
#include "video/video_facts.h"
#include "video/writing/plane_scaler.h"

#include <sys/stat.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <new>
#include <string_view>

namespace kavela {

namespace {

namespace fs = std::filesystem;

/// FNV, 64 bits: names need to differ, nobody has a reason to make them collide.
std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 14695981039346656037ULL;
    for (const char letter : text)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 1099511628211ULL;
    return hash;
}

fs::path thumbnailName(const fs::path& film) {
    struct ::stat status {};
    if (::stat(film.c_str(), &status) != 0)
        throw VideoError(film, systemFileError(film).reason());
    const std::string key =
        fs::absolute(film).lexically_normal().string() + '\n' + std::to_string(status.st_size) +
        '\n' + std::to_string(status.st_mtim.tv_sec) + '.' + std::to_string(status.st_mtim.tv_nsec);
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "%016llx.jpg",
                  static_cast<unsigned long long>(hashOf(key)));
    return name.data();
}

/// The stamp of the key frame nearest a third, as far as the container lists its packets; a third
/// itself where it lists none.
std::int64_t placeAtAThird(const Demuxer& demuxer) {
    // Asking for entries does not change the stream, but the library takes no constant one.
    auto* const stream = const_cast<AVStream*>(&demuxer.stream());
    const std::int64_t start = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    std::int64_t length = stream->duration;
    if (length == AV_NOPTS_VALUE || length <= 0)
        length = demuxer.container().duration > 0
                     ? av_rescale_q(demuxer.container().duration, AV_TIME_BASE_Q, stream->time_base)
                     : 0;
    const std::int64_t third = start + length / 3;
    std::int64_t nearest = third;
    std::int64_t distance = INT64_MAX;
    for (int i = 0; i < avformat_index_get_entries_count(stream); ++i) {
        const AVIndexEntry* const entry = avformat_index_get_entry(stream, i);
        if ((entry->flags & AVINDEX_KEYFRAME) == 0 ||
            std::abs(entry->timestamp - third) >= distance)
            continue;
        distance = std::abs(entry->timestamp - third);
        nearest = entry->timestamp;
    }
    return nearest;
}

/// The first frame that can be decoded from where the demuxer stands.
FramePtr firstFrame(Demuxer& demuxer, const fs::path& film) {
    constexpr int MostPackets = 400;
    Decoder decoder(demuxer.stream(), film);
    bool isStarted = false;
    for (int i = 0; i < MostPackets; ++i) {
        AVPacket* const packet = demuxer.next();
        const bool isKey = packet != nullptr && (packet->flags & AV_PKT_FLAG_KEY) != 0;
        isStarted = isStarted || isKey;
        if (packet != nullptr && !isStarted)
            continue;
        // A key frame stands alone: to say that the film ends brings it out at once.
        decoder.send(packet);
        if (isKey)
            decoder.send(nullptr);
        while (FramePtr frame = decoder.receive())
            return frame;
        if (packet == nullptr)
            return nullptr;
        decoder.flush();
        isStarted = false;
    }
    return nullptr;
}

FramePtr frameAtAThird(const fs::path& film, const std::stop_token& stop, Demuxer& demuxer) {
    FramePtr frame;
    if (demuxer.seek(placeAtAThird(demuxer)))
        frame = firstFrame(demuxer, film);
    if (!frame && !stop.stop_requested()) { // broken there, or it cannot be gone to
        demuxer.rewind();
        frame = firstFrame(demuxer, film);
    }
    return frame;
}

/// Planes from the four bytes a pixel that a picture has; a converter of its own, since those bytes
/// are upright and square already.
AvOwner<AVFrame> planesOf(const Picture& picture) {
    const AvOwner<AVFrame> colours(av_frame_alloc());
    if (!colours)
        throw std::bad_alloc();
    colours->format = AV_PIX_FMT_BGRA;
    colours->width = picture.width;
    colours->height = picture.height;
    colours->data[0] = const_cast<std::uint8_t*>(picture.pixels.get());
    colours->linesize[0] = static_cast<int>(picture.bytesPerLine);
    AvOwner<AVFrame> planes = newPlanes({picture.width, picture.height});
    const AvOwner<SwsContext> scaler(sws_getContext(
        picture.width, picture.height, AV_PIX_FMT_BGRA, picture.width, picture.height,
        AV_PIX_FMT_YUV420P, SWS_BILINEAR, nullptr, nullptr, nullptr));
    if (!scaler)
        throw std::bad_alloc();
    constexpr int Neutral = 1 << 16;
    const int* const usual = sws_getCoefficients(SWS_CS_DEFAULT);
    sws_setColorspaceDetails(scaler.get(), usual, 1, usual, 1, 0, Neutral, Neutral);
    sws_scale(scaler.get(), colours->data, colours->linesize, 0, picture.height, planes->data,
              planes->linesize);
    return planes;
}

std::string jpegOf(const Picture& picture) {
    constexpr int Coarseness = 4; // of 2 to 31
    const AVCodec* const coding = avcodec_find_encoder(AV_CODEC_ID_MJPEG);
    const AvOwner<AVCodecContext> codec(coding == nullptr ? nullptr
                                                          : avcodec_alloc_context3(coding));
    const AvOwner<AVPacket> packet(av_packet_alloc());
    if (!codec || !packet)
        return {};
    codec->width = picture.width;
    codec->height = picture.height;
    codec->pix_fmt = AV_PIX_FMT_YUVJ420P;
    codec->color_range = AVCOL_RANGE_JPEG;
    codec->time_base = {1, 1};
    codec->thread_count = 1;
    codec->flags |= AV_CODEC_FLAG_QSCALE;
    codec->global_quality = FF_QP2LAMBDA * Coarseness;
    const AvOwner<AVFrame> planes = planesOf(picture);
    planes->format = AV_PIX_FMT_YUVJ420P;
    planes->quality = codec->global_quality;
    planes->pts = 0;
    if (avcodec_open2(codec.get(), coding, nullptr) < 0 ||
        avcodec_send_frame(codec.get(), planes.get()) < 0 ||
        avcodec_receive_packet(codec.get(), packet.get()) < 0)
        return {};
    return {reinterpret_cast<const char*>(packet->data), static_cast<std::size_t>(packet->size)};
}

std::string madeThumbnail(const fs::path& film, const std::stop_token& stop) {
    Demuxer demuxer(film, stop);
    const FramePtr frame = frameAtAThird(film, stop, demuxer);
    if (stop.stop_requested())
        return {};
    if (!frame)
        throw VideoError(film, "no picture of this film can be decoded");
    PictureMaker maker(videoFacts(demuxer, film));
    const auto picture = maker.make(*frame, {ThumbnailSide, ThumbnailSide});
    std::string jpeg = picture ? jpegOf(*picture) : std::string();
    if (jpeg.empty())
        throw VideoError(film, "no picture of this film can be made");
    return jpeg;
}

} // namespace

std::string thumbnailOf(const fs::path& film, const fs::path& cacheFolder,
                        const std::stop_token& stop) {
    const fs::path kept = cacheFolder / thumbnailName(film);
    if (std::ifstream in(kept, std::ios::binary); in)
        if (std::string bytes{std::istreambuf_iterator<char>(in), {}}; !bytes.empty())
            return bytes;
    std::string jpeg = madeThumbnail(film, stop);
    if (jpeg.empty())
        return jpeg;
    try {
        fs::create_directories(cacheFolder);
        writeFileSafely(kept, jpeg);
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): told above
    }
    return jpeg;
}

fs::path thumbnailFolder() {
    const auto named = [](const char* variable) {
        const char* const value = std::getenv(variable);
        return fs::path(value != nullptr ? value : "");
    };
    const fs::path caches = named("XDG_CACHE_HOME");
    return (caches.is_absolute() ? caches : named("HOME") / ".cache") / "kavela" / "thumbnails";
}

} // namespace kavela
