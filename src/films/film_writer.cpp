#include "films/film_writer.h"

#include "sample/film.h"
#include "video/av_handles.h"

#include <algorithm>
#include <new>

extern "C" {
#include <libavutil/opt.h>
}

namespace kavela::films {

namespace {

constexpr int FramesPerSecond = static_cast<int>(sample::FramesPerSecond);
constexpr int FramesPerGroup = 50;
/// As fast as can be: a season has an hour and a half of films. Finer parts of pictures that stand
/// alone would cost a tenth more time, take as many bytes and look the same. A fixed quantizer
/// spares the encoder to look at each picture before; drawn pictures stay sharp at so coarse a one.
constexpr const char* Preset = "ultrafast";
constexpr const char* Quantizer = "38";

struct MuxerDeleter {
    void operator()(AVFormatContext* context) const {
        if (context->pb != nullptr) {
            std::uint8_t* bytes = nullptr;
            avio_close_dyn_buf(context->pb, &bytes);
            av_free(bytes);
        }
        avformat_free_context(context);
    }
};

template <class T>
T* required(T* pointer) {
    if (pointer == nullptr)
        throw std::bad_alloc();
    return pointer;
}

void check(int code, const char* what) {
    if (code < 0)
        throw FilmError(std::string(what) + ": " + avErrorText(code));
}

const AVCodec& encoderForFilms() {
    const AVCodec* const codec = avcodec_find_encoder_by_name("libx264");
    if (codec == nullptr)
        throw FilmError("Films cannot be made on this computer: the installed libavcodec has no "
                        "encoder for H.264 (libx264).");
    return *codec;
}

} // namespace

struct FilmWriter::Encoder {
    AvOwner<AVCodecContext> codec;
    std::unique_ptr<AVFormatContext, MuxerDeleter> file;
    AVStream* stream = nullptr; ///< of the file
    AvOwner<AVFrame> frame;
    AvOwner<AVPacket> packet;
    std::int64_t frames = 0;

    void openCodec(int width, int height);
    void openFile(std::int32_t timescale);
    void makeFrame();
    void encode(const AVFrame* picture);
};

void FilmWriter::Encoder::openCodec(int width, int height) {
    const AVCodec& format = encoderForFilms();
    codec.reset(required(avcodec_alloc_context3(&format)));
    codec->width = width;
    codec->height = height;
    codec->pix_fmt = AV_PIX_FMT_YUV420P;
    codec->color_range = AVCOL_RANGE_MPEG;
    codec->colorspace = AVCOL_SPC_SMPTE170M;
    codec->time_base = {1, FramesPerSecond};
    codec->framerate = {FramesPerSecond, 1};
    codec->gop_size = FramesPerGroup;
    codec->max_b_frames = 0;
    codec->thread_count = 1; // the films themselves are made side by side
    codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "preset", Preset, 0);
    av_dict_set(&options, "qp", Quantizer, 0);
    av_dict_set(&options, "sc_threshold", "0", 0);
    const int code = avcodec_open2(codec.get(), &format, &options);
    av_dict_free(&options);
    check(code, "The encoder for H.264 could not be started");
}

void FilmWriter::Encoder::openFile(std::int32_t timescale) {
    AVFormatContext* context = nullptr;
    check(avformat_alloc_output_context2(&context, nullptr, "mov", nullptr),
          "Films in .MOV files cannot be written");
    file.reset(context);
    check(avio_open_dyn_buf(&context->pb), "The film could not be begun");
    stream = required(avformat_new_stream(context, nullptr));
    check(avcodec_parameters_from_context(stream->codecpar, codec.get()),
          "The film could not be begun");
    stream->time_base = {1, timescale};
    stream->avg_frame_rate = codec->framerate;
    // Left to itself the container would count in finer ticks than the split files do.
    const std::string ticks = std::to_string(timescale);
    AVDictionary* options = nullptr;
    av_dict_set(&options, "video_track_timescale", ticks.c_str(), 0);
    av_dict_set(&options, "movie_timescale", ticks.c_str(), 0);
    const int code = avformat_write_header(context, &options);
    av_dict_free(&options);
    check(code, "The film could not be begun");
}

void FilmWriter::Encoder::makeFrame() {
    packet.reset(required(av_packet_alloc()));
    frame.reset(required(av_frame_alloc()));
    frame->format = codec->pix_fmt;
    frame->width = codec->width;
    frame->height = codec->height;
    check(av_frame_get_buffer(frame.get(), 0), "A picture of the film could not be made");
}

/// Null ends the film.
void FilmWriter::Encoder::encode(const AVFrame* picture) {
    check(avcodec_send_frame(codec.get(), picture), "A picture could not be encoded");
    for (;;) {
        const int code = avcodec_receive_packet(codec.get(), packet.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
            return;
        check(code, "A picture could not be encoded");
        packet->duration = 1;
        packet->stream_index = stream->index;
        av_packet_rescale_ts(packet.get(), codec->time_base, stream->time_base);
        check(av_interleaved_write_frame(file.get(), packet.get()),
              "The film could not be put together");
    }
}

FilmWriter::FilmWriter(int width, int height, std::int32_t timescale)
    : m_encoder(std::make_unique<Encoder>()) {
    av_log_set_level(AV_LOG_QUIET); // what goes wrong comes as FilmError
    m_encoder->openCodec(width, height);
    m_encoder->openFile(timescale);
    m_encoder->makeFrame();
}

FilmWriter::~FilmWriter() = default;

void FilmWriter::add(const YuvPicture& picture) {
    AVFrame& frame = *m_encoder->frame;
    // The encoder may still hold the samples of the picture before.
    check(av_frame_make_writable(&frame), "A picture of the film could not be made");
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(picture.yLine(y), picture.width(), frame.data[0] + y * frame.linesize[0]);
    for (int y = 0; y < picture.colourHeight(); ++y) {
        std::copy_n(picture.uLine(y), picture.colourWidth(), frame.data[1] + y * frame.linesize[1]);
        std::copy_n(picture.vLine(y), picture.colourWidth(), frame.data[2] + y * frame.linesize[2]);
    }
    frame.pts = m_encoder->frames++;
    m_encoder->encode(&frame);
}

std::string FilmWriter::finish() {
    m_encoder->encode(nullptr);
    AVFormatContext& file = *m_encoder->file;
    check(av_write_trailer(&file), "The film could not be ended");
    std::uint8_t* bytes = nullptr;
    const int size = avio_close_dyn_buf(std::exchange(file.pb, nullptr), &bytes);
    const std::unique_ptr<std::uint8_t, void (*)(void*)> owner(bytes, av_free);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(std::max(size, 0))};
}

} // namespace kavela::films
