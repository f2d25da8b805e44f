#include "video/decoder.h"

#include "common/text.h"
#include "video/video_error.h"

#include <algorithm>
#include <new>
#include <thread>

namespace kavela {

namespace {

/// Each decoding thread holds a frame; past so many they cost memory and gain nothing.
constexpr unsigned MostThreads = 8;

/// Frames that fail are reported one by one, before those that are ready behind them.
constexpr int MostErrorsInARow = 64;

bool isFaultOfOneFrame(int code) {
    return code < 0 && code != AVERROR(EAGAIN) && code != AVERROR_EOF;
}

AvOwner<AVCodecContext> contextFor(const AVStream& stream, const AVCodec* codec) {
    AvOwner<AVCodecContext> context(avcodec_alloc_context3(codec));
    if (!context || avcodec_parameters_to_context(context.get(), stream.codecpar) < 0)
        throw std::bad_alloc();
    context->pkt_timebase = stream.time_base;
    context->thread_type = FF_THREAD_FRAME | FF_THREAD_SLICE;
    context->thread_count =
        static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, MostThreads));
    return context;
}

} // namespace

Decoder::Decoder(const AVStream& stream, const std::filesystem::path& path) {
    const AVCodecID format = stream.codecpar->codec_id;
    const AVCodec* const codec = avcodec_find_decoder(format);
    if (codec == nullptr)
        throw VideoError(path, say("no decoder for {}", avcodec_get_name(format)));
    m_context = contextFor(stream, codec);
    if (const int code = avcodec_open2(m_context.get(), codec, nullptr); code < 0)
        throw VideoError(path, avErrorText(code));
}

void Decoder::send(const AVPacket* packet) {
    avcodec_send_packet(m_context.get(), packet);
}

FramePtr Decoder::receive() {
    AvOwner<AVFrame> frame(av_frame_alloc());
    if (!frame)
        throw std::bad_alloc();
    int code = AVERROR_INVALIDDATA;
    for (int i = 0; i < MostErrorsInARow && isFaultOfOneFrame(code); ++i)
        code = avcodec_receive_frame(m_context.get(), frame.get());
    m_isEmpty = code == AVERROR_EOF;
    if (code < 0)
        return nullptr;
    if (frame->pts == AV_NOPTS_VALUE)
        frame->pts = frame->best_effort_timestamp;
    return {frame.release(), AvDeleter()};
}

void Decoder::flush() {
    avcodec_flush_buffers(m_context.get());
    m_isEmpty = false;
}

void Decoder::skipUnreferenced(bool isSkipping) {
    m_context->skip_frame = isSkipping ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
}

} // namespace kavela
