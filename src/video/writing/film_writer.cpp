#include "video/writing/film_writer.h"

#include "common/text.h"
#include "video/av_handles.h"
#include "video/sound_source.h"
#include "video/writing/muxer.h"

#include <algorithm>
#include <map>
#include <new>
#include <vector>

extern "C" {
#include <libavutil/display.h>
#include <libavutil/opt.h>
}

namespace kavela {

namespace {

constexpr std::int64_t SoundBitsPerSecond = 128'000;
constexpr float LargestSample = 32768.0F;

template <class T>
T* requiredPart(T* pointer) {
    if (pointer == nullptr)
        throw std::bad_alloc();
    return pointer;
}

constexpr std::string_view NotEncoded = KAVELA_TEXT("The film could not be encoded: {}");
constexpr std::string_view NotMade = KAVELA_TEXT("A picture could not be made: {}");

/// `fault` is a text with a place for what the library says.
void checkEncoding(int code, std::string_view fault) {
    if (code < 0)
        throw FilmError(sayMarked(fault, avErrorText(code)));
}

const AVCodec& pictureEncoder() {
    const AVCodec* const codec = avcodec_find_encoder_by_name("libx264");
    if (codec == nullptr)
        throw FilmError(say("Films cannot be made on this computer: the installed libavcodec has "
                            "no encoder for H.264 (libx264)."));
    return *codec;
}

const AVCodec& soundEncoder() {
    const AVCodec* const codec = avcodec_find_encoder(AV_CODEC_ID_AAC);
    if (codec == nullptr)
        throw FilmError(say("Films with sound cannot be made on this computer: the installed "
                            "libavcodec has no encoder for AAC."));
    return *codec;
}

/// Gives every packet that an encoder has ready to the container. A null frame ends the stream.
template <class Prepare>
void encodeInto(Muxer& muxer, AVCodecContext& codec, const AVStream& stream, AVPacket& packet,
                const AVFrame* frame, const Prepare& prepare) {
    checkEncoding(avcodec_send_frame(&codec, frame), NotEncoded);
    for (;;) {
        const int code = avcodec_receive_packet(&codec, &packet);
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
            return;
        checkEncoding(code, NotEncoded);
        prepare(packet);
        packet.stream_index = stream.index;
        av_packet_rescale_ts(&packet, codec.time_base, stream.time_base);
        muxer.write(packet);
    }
}

void nameColours(AVCodecContext& codec, bool isHighDefinition) {
    codec.color_range = AVCOL_RANGE_MPEG;
    codec.colorspace = isHighDefinition ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
    if (isHighDefinition) {
        codec.color_primaries = AVCOL_PRI_BT709;
        codec.color_trc = AVCOL_TRC_BT709;
    }
}

void setRotation(AVStream& stream, int rotation) {
    if (rotation == 0)
        return;
    constexpr std::size_t Entries = 9;
    auto* const matrix = reinterpret_cast<std::int32_t*>(requiredPart(av_stream_new_side_data(
        &stream, AV_PKT_DATA_DISPLAYMATRIX, Entries * sizeof(std::int32_t))));
    av_display_rotation_set(matrix, rotation);
}

} // namespace

class FilmWriter::Pictures {
public:
    Pictures(const FilmFormat& format, Muxer& muxer) : m_muxer(muxer), m_stream(muxer.addStream()) {
        open(format);
        checkEncoding(avcodec_parameters_from_context(m_stream.codecpar, m_codec.get()),
                      FilmNotBegun);
        m_stream.avg_frame_rate = m_codec->framerate;
        m_stream.sample_aspect_ratio = m_codec->sample_aspect_ratio;
        m_stream.time_base = m_codec->time_base;
        if (format.timescale > 0) {
            // Left to itself the container would count in finer ticks than the split files do.
            m_stream.time_base = {1, format.timescale};
            muxer.setOption("video_track_timescale", std::to_string(format.timescale));
            muxer.setOption("movie_timescale", std::to_string(format.timescale));
        }
        setRotation(m_stream, format.rotation);
        makeFrame();
    }

    AVFrame& frame() {
        // The encoder may still hold the samples of the picture before.
        checkEncoding(av_frame_make_writable(m_frame.get()), NotMade);
        return *m_frame;
    }

    void add(std::int64_t stamp, std::int64_t duration) {
        m_frame->pts = stamp;
        m_durations[stamp] = duration;
        encode(m_frame.get());
    }
    void finish() { encode(nullptr); }

private:
    void open(const FilmFormat& format) {
        const AVCodec& coding = pictureEncoder();
        m_codec.reset(requiredPart(avcodec_alloc_context3(&coding)));
        m_codec->width = format.size.width;
        m_codec->height = format.size.height;
        m_codec->pix_fmt = AV_PIX_FMT_YUV420P;
        m_codec->time_base = {format.tick.num, format.tick.den};
        m_codec->framerate = {format.rate.num, format.rate.den};
        m_codec->sample_aspect_ratio = {format.pixelAspect.num,
                                        std::max(format.pixelAspect.den, 1)};
        m_codec->gop_size = format.framesPerGroup;
        m_codec->thread_count = format.threads;
        m_codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        nameColours(*m_codec, format.isHighDefinition);
        AVDictionary* options = nullptr;
        av_dict_set(&options, "preset", format.preset.c_str(), 0);
        av_dict_set_int(&options, format.isQuantizerFixed ? "qp" : "crf", format.quality, 0);
        av_dict_set(&options, "sc_threshold", "0", 0);
        if (format.isPlain)
            m_codec->max_b_frames = 0;
        else
            av_dict_set(&options, "profile", "high", 0);
        const int code = avcodec_open2(m_codec.get(), &coding, &options);
        av_dict_free(&options);
        checkEncoding(code, KAVELA_TEXT("The encoder for H.264 could not be started: {}"));
    }

    void makeFrame() {
        m_packet.reset(requiredPart(av_packet_alloc()));
        m_frame.reset(requiredPart(av_frame_alloc()));
        m_frame->format = m_codec->pix_fmt;
        m_frame->width = m_codec->width;
        m_frame->height = m_codec->height;
        checkEncoding(av_frame_get_buffer(m_frame.get(), 0), NotMade);
    }

    void encode(const AVFrame* frame) {
        encodeInto(m_muxer, *m_codec, m_stream, *m_packet, frame, [this](AVPacket& packet) {
            if (const auto duration = m_durations.extract(packet.pts))
                packet.duration = duration.mapped();
        });
    }

    Muxer& m_muxer;
    AVStream& m_stream;
    AvOwner<AVCodecContext> m_codec;
    AvOwner<AVFrame> m_frame;
    AvOwner<AVPacket> m_packet;
    std::map<std::int64_t, std::int64_t> m_durations; ///< of pictures within the encoder
};

class FilmWriter::Sound {
public:
    explicit Sound(Muxer& muxer) : m_muxer(muxer), m_stream(muxer.addStream()) {
        const AVCodec& coding = soundEncoder();
        m_codec.reset(requiredPart(avcodec_alloc_context3(&coding)));
        m_codec->sample_fmt = AV_SAMPLE_FMT_FLTP;
        m_codec->sample_rate = SoundRate;
        m_codec->bit_rate = SoundBitsPerSecond;
        m_codec->time_base = {1, SoundRate};
        m_codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        av_channel_layout_default(&m_codec->ch_layout, SoundChannels);
        checkEncoding(avcodec_open2(m_codec.get(), &coding, nullptr),
                      KAVELA_TEXT("The encoder for sound could not be started: {}"));
        checkEncoding(avcodec_parameters_from_context(m_stream.codecpar, m_codec.get()),
                      FilmNotBegun);
        m_stream.time_base = m_codec->time_base;
        m_packet.reset(requiredPart(av_packet_alloc()));
    }

    void add(std::span<const std::int16_t> samples) {
        m_waiting.insert(m_waiting.end(), samples.begin(), samples.end());
        const auto block = static_cast<std::size_t>(m_codec->frame_size) * SoundChannels;
        std::size_t taken = 0;
        for (; taken + block <= m_waiting.size(); taken += block)
            encodeBlock(std::span(m_waiting).subspan(taken, block));
        m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(taken));
    }

    void finish() {
        if (!m_waiting.empty())
            encodeBlock(m_waiting);
        encode(nullptr);
    }

private:
    void encodeBlock(std::span<const std::int16_t> samples) {
        const AvOwner<AVFrame> frame(requiredPart(av_frame_alloc()));
        frame->format = m_codec->sample_fmt;
        frame->sample_rate = SoundRate;
        frame->nb_samples = static_cast<int>(samples.size()) / SoundChannels;
        av_channel_layout_copy(&frame->ch_layout, &m_codec->ch_layout);
        checkEncoding(av_frame_get_buffer(frame.get(), 0),
                      KAVELA_TEXT("Sound could not be encoded: {}"));
        for (int channel = 0; channel < SoundChannels; ++channel) {
            auto* const plane = reinterpret_cast<float*>(frame->extended_data[channel]);
            for (int i = 0; i < frame->nb_samples; ++i)
                plane[i] =
                    samples[static_cast<std::size_t>(i * SoundChannels + channel)] / LargestSample;
        }
        frame->pts = m_samples;
        m_samples += frame->nb_samples;
        encode(frame.get());
    }

    void encode(const AVFrame* frame) {
        encodeInto(m_muxer, *m_codec, m_stream, *m_packet, frame, [](AVPacket&) {});
    }

    Muxer& m_muxer;
    AVStream& m_stream;
    AvOwner<AVCodecContext> m_codec;
    AvOwner<AVPacket> m_packet;
    std::vector<std::int16_t> m_waiting; ///< less than the encoder takes at a time
    std::int64_t m_samples = 0;          ///< encoded
};

FilmWriter::FilmWriter(const FilmFormat& format, FilmSink& sink)
    : m_muxer(std::make_unique<Muxer>(format.container, sink)),
      m_pictures(std::make_unique<Pictures>(format, *m_muxer)) {
    if (format.hasSound)
        m_sound = std::make_unique<Sound>(*m_muxer);
    if (format.isIndexFirst && !sink.readablePath().empty())
        m_muxer->putIndexFirst();
    m_muxer->begin();
}

FilmWriter::~FilmWriter() = default;

AVFrame& FilmWriter::picture() {
    return m_pictures->frame();
}

void FilmWriter::add(std::int64_t stamp, std::int64_t duration) {
    m_pictures->add(stamp, duration);
}

void FilmWriter::addSound(std::span<const std::int16_t> samples) {
    if (m_sound)
        m_sound->add(samples);
}

void FilmWriter::finish() {
    m_pictures->finish();
    if (m_sound)
        m_sound->finish();
    m_muxer->finish();
}

} // namespace kavela
