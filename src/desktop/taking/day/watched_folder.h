#pragma once

#include "common/reference_date.h"
#include "splittaking/race_day/film_sources.h"
#include "splittaking/race_day/growing_films.h"

#include <QString>

#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela::desktop {

/// What the head of a film and its file say of its recording.
struct RecordedFilm {
    std::optional<ReferenceDate> byCamera; ///< when it began
    ReferenceDate written;                 ///< its file, which is about when it ended
    double seconds = 0;                    ///< 0 where that is not known
};

/// A folder of films as it was found. A value: a look works on a copy of it, beside the window.
struct WatchedFolder {
    QString folder; ///< empty for none
    int depth = 0;  ///< of the folders within it that are looked through
    bool isThere = false;
    GrowingFilms tracker{0};
    std::map<std::string, RecordedFilm> recordings = {}; ///< of the films that are whole
    std::vector<FilmFile> files = {};                    ///< growing ones included

    /// Looks at a moment, in seconds of a clock that only goes on, and reads the heads of the films
    /// that came to rest. Once `stop` is requested it leaves off, and what was found is not whole.
    void look(double now, const std::stop_token& stop);
};

} // namespace kavela::desktop
