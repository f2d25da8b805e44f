#pragma once

#include "desktop/folder/film_cutter.h"

namespace kavela::desktop {

/// Encodes the stretch anew: slower than a copy, right at both ends in every player.
class ExactCutter : public FilmCutter {
public:
    /// Also throws VideoError for a film that cannot be read and FilmError where none can be made.
    bool cut(const FilmCut& order, const std::stop_token& stop,
             const std::function<void(double fraction)>& onProgress) const override;
};

} // namespace kavela::desktop
