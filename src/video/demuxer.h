#pragma once

#include "video/av_handles.h"

#include <cstdint>
#include <filesystem>
#include <stop_token>

namespace kavela {

/// What is read of a film.
enum class StreamKind { Video, Sound };

/// The packets of the video stream of a file, or of its sound, in the order of the file.
class Demuxer {
public:
    /// Throws VideoError when the file cannot be opened or holds nothing of that kind. Once `stop`
    /// is requested, opening and reading end early.
    explicit Demuxer(std::filesystem::path path, std::stop_token stop = {},
                     StreamKind kind = StreamKind::Video);

    Demuxer(const Demuxer&) = delete;
    Demuxer& operator=(const Demuxer&) = delete;

    [[nodiscard]] const AVFormatContext& container() const { return *m_container; }
    [[nodiscard]] const AVStream& stream() const { return *m_container->streams[m_stream]; }

    /// The next packet with data in it, or null at the end; owned here until the next call.
    [[nodiscard]] AVPacket* next();

    /// Goes to a place from which the frame of that stamp can be decoded, often an earlier one.
    /// False when the container knows no such place.
    [[nodiscard]] bool seek(std::int64_t ticks);

    /// Starts again at the first packet.
    void rewind();

    /// Whether reading ended for another reason than the end of the file.
    [[nodiscard]] bool wasBroken() const { return m_wasBroken; }
    /// Packets of the stream that the file listed when it was opened.
    [[nodiscard]] int storedEntries() const { return m_storedEntries; }
    /// How far reading has come, 0 to 1; 0 when the length of the file is not known.
    [[nodiscard]] double fractionRead() const;

private:
    void open();
    void noteEntries();
    void chooseStream();
    [[nodiscard]] AVMediaType mediaType() const;

    std::filesystem::path m_path;
    std::stop_token m_stop;
    StreamKind m_kind;
    AvOwner<AVFormatContext> m_container;
    AvOwner<AVPacket> m_packet;
    unsigned m_stream = 0;
    int m_storedEntries = 0;
    bool m_wasBroken = false;
};

} // namespace kavela
