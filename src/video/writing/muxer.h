#pragma once

#include "common/text.h"
#include "video/av_handles.h"
#include "video/writing/film_sink.h"

#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace kavela {

/// Of a stream or a head that the library refuses, with a place for what it says.
inline constexpr std::string_view FilmNotBegun = KAVELA_TEXT("The film could not be begun: {}");

/// Puts packets together into the container of a film.
class Muxer {
public:
    /// `container` is "mp4" or "mov". Throws FilmError when it cannot be written here.
    Muxer(const std::string& container, FilmSink& sink);
    ~Muxer();
    Muxer(const Muxer&) = delete;
    Muxer& operator=(const Muxer&) = delete;

    /// A stream to be described before the film is begun.
    [[nodiscard]] AVStream& addStream();
    void setOption(const char* name, const std::string& value);
    /// Brings the list of frames to the front of the finished file, so that it plays while it is
    /// still being loaded. For films on the disk only.
    void putIndexFirst() { setOption("movflags", "+faststart"); }

    /// Writes the head. The time bases of the streams may be others from then on.
    void begin();
    /// Takes the packet, whose stamps are in the time base of its stream. Throws FilmError, and
    /// what the sink throws.
    void write(AVPacket& packet);
    /// Writes what is still waiting and the list of the frames. To be called once.
    void finish();

private:
    static int takeBytes(void* self, std::uint8_t* bytes, int size);
    static std::int64_t takePlace(void* self, std::int64_t offset, int whence);
    void check(int code, std::string_view fault);

    FilmSink& m_sink;
    std::exception_ptr m_failure; ///< that the sink threw below the library, which knows none
    std::int64_t m_place = 0;
    std::int64_t m_end = 0;
    AVFormatContext* m_context = nullptr;
    AVDictionary* m_options = nullptr;
};

} // namespace kavela
