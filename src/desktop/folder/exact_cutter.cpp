#include "desktop/folder/exact_cutter.h"

#include "video/index.h"
#include "video/writing/film_cut.h"

namespace kavela::desktop {

bool ExactCutter::cut(const FilmCut& order, const std::stop_token& stop,
                      const std::function<void(double fraction)>& onProgress) const {
    const auto film = readVideoIndex(order.film, stop);
    if (!film)
        return false;
    // A stretch is set on frames of this very film, so that both are found.
    const auto first = film->frameAt(order.stretch.first);
    const auto last = film->frameAt(order.stretch.last);
    const kavela::FilmCut piece{.kind = CutKind::Exact,
                                .first = first.value_or(0),
                                .last = last.value_or(film->frameCount() - 1),
                                .target = order.target};
    return cutFilm(film, piece, stop, onProgress).has_value();
}

} // namespace kavela::desktop
