#pragma once

#include "video/frame_request.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace kavela {
class VideoPlayer;
}

namespace kavela::desktop {

struct FilmPicture;

/// Where each view of a deck was last sent, until that frame stands on the screen.
class FilmJumps {
public:
    using Players = std::vector<std::shared_ptr<VideoPlayer>>;

    void clear() { m_jumps.clear(); }
    /// One more view, which was sent nowhere yet.
    void addView() { m_jumps.emplace_back(); }

    /// The frame that a view is on its way to; nothing where it stands.
    [[nodiscard]] std::optional<FrameRequest> target(std::size_t camera) const;

    /// How much was asked of the players so far.
    [[nodiscard]] static std::vector<std::uint64_t> requestsOf(const Players& players);
    /// The players that were asked for more since then are on their way; `isStop` is at the frame
    /// on the screen.
    void note(const Players& players, const std::vector<std::uint64_t>& before, bool isStop);

    /// Whether a picture is of before a view was stopped: it must not come any more.
    [[nodiscard]] bool isLate(std::size_t camera, const FilmPicture& picture) const;
    /// A picture stands on the screen: the view may have arrived.
    void settle(std::size_t camera, const FilmPicture& shown);

private:
    struct Jump {
        FrameRequest to;
        std::uint64_t request = 0; ///< frames that come for earlier ones are those of before
        bool isStop = false;       ///< at the frame on the screen
    };

    std::vector<std::optional<Jump>> m_jumps;
};

} // namespace kavela::desktop
