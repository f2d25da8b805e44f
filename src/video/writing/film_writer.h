#pragma once

#include "video/index.h"
#include "video/writing/film_sink.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

struct AVFrame;

namespace kavela {

/// Frames a second, as a fraction.
struct FrameRate {
    int num = 50;
    int den = 1;

    [[nodiscard]] double perSecond() const { return static_cast<double>(num) / den; }
    friend bool operator==(const FrameRate&, const FrameRate&) = default;
};

/// How a film is encoded: H.264, 8 bits, colour for every two by two pixels.
struct FilmFormat {
    std::string container = "mp4"; ///< or "mov"
    VideoSize size;                ///< both even
    FrameRate rate;
    TimeBase tick{1, 50};       ///< of the stamps that pictures come with
    std::int32_t timescale = 0; ///< ticks a second in the file; 0: as the container likes
    int framesPerGroup = 50;    ///< from one key frame to the next
    std::string preset = "veryfast";
    int quality = 21;              ///< 0 to 51; higher is smaller and coarser
    bool isQuantizerFixed = false; ///< the same coarseness for every picture
    bool isPlain = false;          ///< no frame is shown before one that it builds on
    bool isHighDefinition = true;  ///< colours as usual from 720 lines on
    bool isIndexFirst = true;      ///< for films on the disk only
    bool hasSound = false;         ///< AAC, stereo, 48 kHz, 128 kb/s
    int rotation = 0;              ///< clockwise turn that sets it upright: 0, 90, 180, 270
    PixelAspect pixelAspect;
    int threads = 0; ///< of the encoder; 0: as many as serve the machine
};

/// The one way in which this program encodes films: pictures and sound go in, the bytes of the film
/// go into a sink.
class FilmWriter {
public:
    /// The sink must outlive the writer. Throws FilmError without the encoders.
    FilmWriter(const FilmFormat& format, FilmSink& sink);
    ~FilmWriter();
    FilmWriter(const FilmWriter&) = delete;
    FilmWriter& operator=(const FilmWriter&) = delete;

    /// The picture to be filled: three planes of eight bits. It still holds what was filled in last
    /// where nothing else is drawn.
    [[nodiscard]] AVFrame& picture();
    /// Makes the filled picture the film's next one, shown at `stamp` for `duration` ticks; stamps
    /// rise. Throws FilmError, and what the sink throws.
    void add(std::int64_t stamp, std::int64_t duration = 1);
    /// Sound that goes on where the last ended: left and right, one after the other. Only for a
    /// format with sound.
    void addSound(std::span<const std::int16_t> samples);
    /// Ends the film. To be called once.
    void finish();

private:
    class Pictures;
    class Sound;

    std::unique_ptr<class Muxer> m_muxer;
    std::unique_ptr<Pictures> m_pictures;
    std::unique_ptr<Sound> m_sound; ///< null for a silent film
};

} // namespace kavela
