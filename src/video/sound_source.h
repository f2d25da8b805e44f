#pragma once

#include "video/decoder.h"
#include "video/demuxer.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <span>
#include <stop_token>
#include <vector>

namespace kavela {

/// A moment of a film in samples of the sound: the stamp in seconds × SoundRate.
using SamplePosition = std::int64_t;

inline constexpr int SoundRate = 48000; ///< samples a second
inline constexpr int SoundChannels = 2; ///< left and right, one after the other

/// The sample at a number of seconds; brought into ±30,000 years, 0 for what is no number.
[[nodiscard]] SamplePosition samplePosition(double seconds);

/// The sound of a film from any moment on, as 16-bit stereo. Moments are those of the film's
/// pictures. Used from one thread at a time.
///
/// What the film holds for a moment comes out at that moment: before its first sample, in gaps of
/// the recording and in place of damaged packets there is silence.
class SoundSource {
public:
    /// Stands at 0 seconds. Throws VideoError when the film cannot be opened, has no sound, or none
    /// that can be decoded. Once `stop` is requested, all work ends early.
    explicit SoundSource(const std::filesystem::path& path, std::stop_token stop = {});

    /// Where the next sample belongs that read() gives.
    [[nodiscard]] SamplePosition position() const { return m_position; }

    /// Goes to a moment, which may lie outside the film. Throws VideoError when the film can no
    /// longer be opened.
    void seek(SamplePosition position);

    /// Fills `samples`, of which there are SoundChannels for each position, and goes on behind
    /// them. Returns how many were filled: fewer than all only where the sound ends.
    [[nodiscard]] std::size_t read(std::span<std::int16_t> samples);

private:
    struct Format {
        int rate = 0;
        int samples = 0; ///< AVSampleFormat
        int channels = 0;
        std::uint64_t mask = 0;

        friend bool operator==(const Format&, const Format&) = default;
    };

    void goTo(SamplePosition place);
    [[nodiscard]] bool landsBefore(SamplePosition place);
    [[nodiscard]] bool nextChunk();
    [[nodiscard]] FramePtr nextFrame();
    void feedDecoder();
    void take(FramePtr frame);
    void convert(const AVFrame* frame);
    [[nodiscard]] bool continues(const AVFrame& frame) const;
    void startConverter(const AVFrame& frame);
    [[nodiscard]] SamplePosition startOf(const AVFrame& frame) const;
    [[nodiscard]] SamplePosition due() const;
    [[nodiscard]] static Format formatOf(const AVFrame& frame);

    Demuxer m_demuxer;
    Decoder m_decoder;
    AVPacket* m_pending = nullptr;                                       ///< read and not fed yet
    SamplePosition m_first = std::numeric_limits<SamplePosition>::min(); ///< of the first packet

    AvOwner<SwrContext> m_converter;
    Format m_format;                     ///< that the converter takes
    SamplePosition m_converterStart = 0; ///< of the first sample that went into it
    SamplePosition m_converterOut = 0;   ///< of the next one that comes out
    std::int64_t m_converterFed = 0;     ///< samples, at the film's own rate
    FramePtr m_waiting;                  ///< does not continue what is in the converter

    SamplePosition m_position = 0;
    SamplePosition m_chunkStart = 0;
    std::vector<std::int16_t> m_chunk;
};

} // namespace kavela
