#include "desktop/film/film_jumps.h"

#include "desktop/film/camera_slot.h"
#include "video/player.h"

namespace kavela::desktop {

std::optional<FrameRequest> FilmJumps::target(std::size_t camera) const {
    const auto& jump = m_jumps[camera];
    return jump ? std::optional(jump->to) : std::nullopt;
}

std::vector<std::uint64_t> FilmJumps::requestsOf(const Players& players) {
    std::vector<std::uint64_t> requests;
    for (const auto& player : players)
        requests.push_back(player->requests());
    return requests;
}

void FilmJumps::note(const Players& players, const std::vector<std::uint64_t>& before,
                     bool isStop) {
    for (std::size_t camera = 0; camera < m_jumps.size(); ++camera)
        if (const auto asked = players[camera]->asked();
            asked && players[camera]->requests() != before[camera])
            m_jumps[camera] = Jump{*asked, players[camera]->requests(), isStop};
}

/// Who stops sees the frame already: those that were still on their way do not come any more.
bool FilmJumps::isLate(std::size_t camera, const FilmPicture& picture) const {
    const auto& jump = m_jumps[camera];
    return jump && jump->isStop &&
           (picture.request < jump->request ||
            (picture.request == jump->request && picture.isPreview));
}

void FilmJumps::settle(std::size_t camera, const FilmPicture& shown) {
    auto& jump = m_jumps[camera];
    if (jump && (jump->isStop || shown.settledRequest >= jump->request))
        jump.reset();
}

} // namespace kavela::desktop
