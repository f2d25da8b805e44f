#include "video/demuxer.h"

#include "common/text.h"
#include "video/video_error.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <new>

namespace kavela {

namespace {

/// A damaged stretch gives errors in a row; past so many the rest is not worth waiting for.
constexpr int MostBadPacketsInARow = 500;

int stopRequested(void* token) {
    return static_cast<const std::stop_token*>(token)->stop_requested() ? 1 : 0;
}

/// Whether the file begins as those do whose index is written last, or not at all when the
/// recording was cut off.
bool keepsIndexApart(const std::filesystem::path& path) {
    std::array<char, 8> head = {};
    std::ifstream(path, std::ios::binary).read(head.data(), head.size());
    return std::string_view(head.data() + 4, 4) == "ftyp";
}

std::string openingFault(const std::filesystem::path& path, int code) {
    if (code != AVERROR_INVALIDDATA)
        return avErrorText(code);
    if (keepsIndexApart(path))
        return say("the film is cut off or damaged: the list of its frames is missing");
    return say("this is no video that can be read, or it is damaged");
}

void requireFile(const std::filesystem::path& path) {
    if (!std::filesystem::exists(path))
        throw VideoError(path, say("No such file or directory"));
    if (std::filesystem::is_directory(path))
        throw VideoError(path, say("Is a directory"));
}

/// A path is never taken for an address on the network or a device, also not one within the file.
AVFormatContext* openLocalFile(const std::filesystem::path& path, AVFormatContext* context) {
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    const int code =
        avformat_open_input(&context, ("file:" + path.string()).c_str(), nullptr, &options);
    av_dict_free(&options);
    if (code < 0) // the context is freed already
        throw VideoError(path, openingFault(path, code));
    return context;
}

} // namespace

Demuxer::Demuxer(std::filesystem::path path, std::stop_token stop, StreamKind kind)
    : m_path(std::move(path)), m_stop(std::move(stop)), m_kind(kind), m_packet(av_packet_alloc()) {
    if (!m_packet)
        throw std::bad_alloc();
    open();
}

void Demuxer::open() {
    m_container.reset();
    requireFile(m_path);
    // What the libraries would print about damaged films comes as results and faults.
    av_log_set_level(AV_LOG_QUIET);
    AVFormatContext* const context = avformat_alloc_context();
    if (context == nullptr)
        throw std::bad_alloc();
    context->interrupt_callback = {stopRequested, &m_stop};
    m_container.reset(openLocalFile(m_path, context));
    noteEntries();
    if (const int code = avformat_find_stream_info(m_container.get(), nullptr); code < 0)
        throw VideoError(m_path, openingFault(m_path, code));
    chooseStream();
    m_wasBroken = false;
}

/// Counted before anything is read, since reading adds to the list.
void Demuxer::noteEntries() {
    m_storedEntries = 0;
    for (unsigned i = 0; i < m_container->nb_streams; ++i) {
        AVStream* const stream = m_container->streams[i];
        if (stream->codecpar->codec_type == mediaType())
            m_storedEntries = std::max(m_storedEntries, avformat_index_get_entries_count(stream));
    }
}

AVMediaType Demuxer::mediaType() const {
    return m_kind == StreamKind::Video ? AVMEDIA_TYPE_VIDEO : AVMEDIA_TYPE_AUDIO;
}

void Demuxer::chooseStream() {
    const int best = av_find_best_stream(m_container.get(), mediaType(), -1, -1, nullptr, 0);
    if (best < 0)
        throw VideoError(m_path, m_kind == StreamKind::Video
                                     ? say("there is no video in this file")
                                     : say("there is no sound in this film"));
    m_stream = static_cast<unsigned>(best);
    if ((stream().disposition & AV_DISPOSITION_ATTACHED_PIC) != 0)
        throw VideoError(m_path, say("there is no video in this file, only a picture"));
    const AVRational base = stream().time_base;
    if (base.num <= 0 || base.den <= 0)
        throw VideoError(m_path, say("the film has no clock"));
    for (unsigned i = 0; i < m_container->nb_streams; ++i)
        m_container->streams[i]->discard = i == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
}

AVPacket* Demuxer::next() {
    for (int errors = 0; errors < MostBadPacketsInARow && !m_stop.stop_requested();) {
        av_packet_unref(m_packet.get());
        const int code = av_read_frame(m_container.get(), m_packet.get());
        if (code == AVERROR_EOF)
            return nullptr;
        if (code < 0) {
            m_wasBroken = true;
            if (m_container->pb != nullptr && avio_feof(m_container->pb) != 0)
                return nullptr;
            ++errors;
            continue;
        }
        // A decoder takes an empty packet for the end of the film.
        if (m_packet->stream_index == static_cast<int>(m_stream) && m_packet->size > 0)
            return m_packet.get();
    }
    return nullptr;
}

bool Demuxer::seek(std::int64_t ticks) {
    return av_seek_frame(m_container.get(), static_cast<int>(m_stream), ticks,
                         AVSEEK_FLAG_BACKWARD) >= 0;
}

void Demuxer::rewind() {
    open();
}

double Demuxer::fractionRead() const {
    if (m_container->pb == nullptr)
        return 0;
    const std::int64_t size = avio_size(m_container->pb);
    const std::int64_t at = avio_tell(m_container->pb);
    return size <= 0 ? 0
                     : std::clamp(static_cast<double>(at) / static_cast<double>(size), 0.0, 1.0);
}

} // namespace kavela
