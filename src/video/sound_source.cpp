#include "video/sound_source.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>
#include <utility>

namespace kavela {

namespace {

constexpr AVRational SampleBase = {1, SoundRate};
constexpr SamplePosition FarthestPosition = std::int64_t{1} << 55;

/// Decoders need some sound before a moment to give what belongs there.
constexpr SamplePosition RunUp = SoundRate / 4;

/// How far before a moment to look for a place to start from, one after the other: containers
/// without a list of the sound's packets go by the pictures', and find a later place.
constexpr std::array<SamplePosition, 4> WaysBack = {RunUp, SoundRate, 4 * SoundRate,
                                                    16 * SoundRate};

/// Stamps are rounded to milliseconds in some containers; what differs by less continues.
constexpr SamplePosition Slack = SoundRate / 100;

std::int64_t framesIn(std::size_t samples) {
    return static_cast<std::int64_t>(samples / SoundChannels);
}

SamplePosition inSamples(std::int64_t ticks, AVRational base) {
    return std::clamp(av_rescale_q(ticks, base, SampleBase), -FarthestPosition, FarthestPosition);
}

struct Layout {
    /// The usual one of so many channels.
    explicit Layout(int count) { av_channel_layout_default(&channels, count); }
    /// That of a frame; where it is not stored, the usual one.
    explicit Layout(const AVFrame& frame) {
        if (frame.ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
            av_channel_layout_default(&channels, frame.ch_layout.nb_channels);
        else
            av_channel_layout_copy(&channels, &frame.ch_layout);
    }
    ~Layout() { av_channel_layout_uninit(&channels); }
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

    AVChannelLayout channels = {};
};

} // namespace

SamplePosition samplePosition(double seconds) {
    constexpr double Farthest = static_cast<double>(FarthestPosition);
    if (std::isnan(seconds))
        return 0;
    return std::llround(std::clamp(seconds * SoundRate, -Farthest, Farthest));
}

SoundSource::SoundSource(const std::filesystem::path& path, std::stop_token stop)
    : m_demuxer(path, std::move(stop), StreamKind::Sound), m_decoder(m_demuxer.stream(), path) {
    m_pending = m_demuxer.next();
    if (m_pending != nullptr && m_pending->pts != AV_NOPTS_VALUE)
        m_first = inSamples(m_pending->pts, m_demuxer.stream().time_base);
}

void SoundSource::seek(SamplePosition position) {
    position = std::clamp(position, -FarthestPosition, FarthestPosition);
    const SamplePosition chunkEnd = m_chunkStart + framesIn(m_chunk.size());
    const bool isAhead = m_position <= position && position < chunkEnd + RunUp;
    if (!isAhead)
        goTo(position);
    m_position = position;
}

/// Reading goes on from somewhere before the place, from where its sound can be decoded whole.
void SoundSource::goTo(SamplePosition place) {
    m_decoder.flush();
    m_converter.reset();
    m_waiting.reset();
    m_chunk.clear();
    m_chunkStart = place;
    m_converterStart = 0; // films without stamps are counted from here
    m_converterFed = 0;
    for (const SamplePosition way : WaysBack) {
        const auto ticks = av_rescale_q(place - way, SampleBase, m_demuxer.stream().time_base);
        if (m_demuxer.seek(ticks) && landsBefore(place - RunUp / 2))
            return;
    }
    m_demuxer.rewind();
    m_pending = m_demuxer.next();
}

bool SoundSource::landsBefore(SamplePosition place) {
    m_pending = m_demuxer.next();
    return m_pending != nullptr && m_pending->pts != AV_NOPTS_VALUE &&
           inSamples(m_pending->pts, m_demuxer.stream().time_base) <= std::max(place, m_first);
}

std::size_t SoundSource::read(std::span<std::int16_t> samples) {
    std::size_t filled = 0;
    while (filled + SoundChannels <= samples.size()) {
        const std::int64_t wanted = framesIn(samples.size() - filled);
        const std::int64_t chunkEnd = m_chunkStart + framesIn(m_chunk.size());
        if (m_chunk.empty() || m_position >= chunkEnd) {
            if (!nextChunk())
                break;
            continue;
        }
        const bool isSilent = m_position < m_chunkStart;
        const auto frames = std::min(wanted, (isSilent ? m_chunkStart : chunkEnd) - m_position);
        const auto part = samples.subspan(filled, static_cast<std::size_t>(frames) * SoundChannels);
        if (isSilent)
            std::ranges::fill(part, std::int16_t{0});
        else
            std::copy_n(m_chunk.begin() + (m_position - m_chunkStart) * SoundChannels, part.size(),
                        part.begin());
        filled += part.size();
        m_position += frames;
    }
    return filled;
}

/// Converts the next stretch of sound; false at the end.
bool SoundSource::nextChunk() {
    m_chunk.clear();
    while (m_chunk.empty()) {
        FramePtr frame = m_waiting ? std::exchange(m_waiting, nullptr) : nextFrame();
        if (frame) {
            take(std::move(frame));
        } else if (m_converter) {
            convert(nullptr);
            m_converter.reset();
        } else {
            return false;
        }
    }
    return true;
}

FramePtr SoundSource::nextFrame() {
    FramePtr frame;
    while (!(frame = m_decoder.receive()) && !m_decoder.isEmpty())
        feedDecoder();
    return frame;
}

void SoundSource::feedDecoder() {
    AVPacket* const packet = m_pending != nullptr ? m_pending : m_demuxer.next();
    m_pending = nullptr;
    m_decoder.send(packet);
}

void SoundSource::take(FramePtr frame) {
    if (frame->nb_samples <= 0 || frame->sample_rate <= 0 || frame->ch_layout.nb_channels <= 0)
        return;
    if (m_converter && continues(*frame)) {
        convert(frame.get());
    } else if (m_converter) {
        convert(nullptr); // what is still inside comes out first
        m_converter.reset();
        m_waiting = std::move(frame);
    } else {
        startConverter(*frame);
        convert(frame.get());
    }
}

/// Where a frame belongs: at its stamp, or behind what came before it.
SamplePosition SoundSource::startOf(const AVFrame& frame) const {
    if (frame.pts != AV_NOPTS_VALUE)
        return inSamples(frame.pts, m_demuxer.stream().time_base);
    return due();
}

/// Where the next sample belongs that goes into the converter, if nothing is missing.
SamplePosition SoundSource::due() const {
    return m_converterStart + av_rescale(m_converterFed, SoundRate, std::max(m_format.rate, 1));
}

SoundSource::Format SoundSource::formatOf(const AVFrame& frame) {
    const AVChannelLayout& channels = frame.ch_layout;
    return {frame.sample_rate, frame.format, channels.nb_channels,
            channels.order == AV_CHANNEL_ORDER_NATIVE ? channels.u.mask : 0};
}

bool SoundSource::continues(const AVFrame& frame) const {
    return formatOf(frame) == m_format && std::abs(startOf(frame) - due()) <= Slack;
}

void SoundSource::startConverter(const AVFrame& frame) {
    m_converterStart = startOf(frame);
    m_converterFed = 0;
    m_converterOut = m_converterStart;
    m_format = formatOf(frame);
    Layout from(frame);
    Layout stereo(SoundChannels);
    SwrContext* context = nullptr;
    const int code = swr_alloc_set_opts2(&context, &stereo.channels, AV_SAMPLE_FMT_S16, SoundRate,
                                         &from.channels, static_cast<AVSampleFormat>(frame.format),
                                         frame.sample_rate, 0, nullptr);
    m_converter.reset(context);
    if (code < 0 || swr_init(context) < 0)
        m_converter.reset(); // a frame with such channels is passed over
}

/// Puts a frame in, and what comes out into the chunk; null for the end, which leaves all.
void SoundSource::convert(const AVFrame* frame) {
    if (!m_converter)
        return;
    const int fed = frame != nullptr ? frame->nb_samples : 0;
    const int most = swr_get_out_samples(m_converter.get(), fed);
    if (most <= 0)
        return;
    const std::size_t before = m_chunk.size();
    m_chunk.resize(before + static_cast<std::size_t>(most) * SoundChannels);
    auto* target = reinterpret_cast<std::uint8_t*>(m_chunk.data() + before);
    const auto** const data =
        frame != nullptr ? const_cast<const std::uint8_t**>(frame->extended_data) : nullptr;
    const int made = std::max(swr_convert(m_converter.get(), &target, most, data, fed), 0);
    m_chunk.resize(before + static_cast<std::size_t>(made) * SoundChannels);
    m_converterFed += fed;
    if (before == 0)
        m_chunkStart = m_converterOut;
    m_converterOut += made;
}

} // namespace kavela
