#pragma once

#include "video/av_handles.h"
#include "video/video_frame.h"

#include <filesystem>

namespace kavela {

/// Packets in, frames out in the order of showing, each with the stamp of its packet in `pts`.
class Decoder {
public:
    /// Throws VideoError naming `path` when no decoder knows the format.
    Decoder(const AVStream& stream, const std::filesystem::path& path);

    /// Feeds a packet, after every frame that is ready was received. What cannot be decoded is
    /// left out. A null packet ends the film: the frames still inside come out then.
    void send(const AVPacket* packet);
    /// The next frame that is ready, or null.
    [[nodiscard]] FramePtr receive();
    /// Forgets everything fed so far.
    void flush();
    /// Whether packets from here on that no other frame builds on are passed over.
    void skipUnreferenced(bool isSkipping);
    /// Whether the end was fed and the last frame has come out.
    [[nodiscard]] bool isEmpty() const { return m_isEmpty; }

private:
    AvOwner<AVCodecContext> m_context;
    bool m_isEmpty = false;
};

} // namespace kavela
