#pragma once

#include "video/copy_cut.h"

#include <filesystem>
#include <functional>
#include <stop_token>

namespace kavela::desktop {

/// A stretch of a film that is to be a file of its own.
struct FilmCut {
    std::filesystem::path film;
    FilmStretch stretch;
    std::filesystem::path target; ///< a name that is free
};

/// A way to cut films. Used from a worker's thread.
class FilmCutter {
public:
    FilmCutter() = default;
    FilmCutter(const FilmCutter&) = delete;
    FilmCutter& operator=(const FilmCutter&) = delete;
    virtual ~FilmCutter() = default;

    /// Writes the file whole or not at all; false once `stop` was requested, with nothing left
    /// behind. Throws FileError. `onProgress` hears fractions, 0 to 1.
    [[nodiscard]] virtual bool
    cut(const FilmCut& order, const std::stop_token& stop,
        const std::function<void(double fraction)>& onProgress) const = 0;
};

/// Copies what is stored: fast and without loss, from a key frame that players hide.
class CopyCutter : public FilmCutter {
public:
    bool cut(const FilmCut& order, const std::stop_token& stop,
             const std::function<void(double fraction)>& onProgress) const override {
        return copyStretch(order.film, order.stretch, order.target, stop, onProgress);
    }
};

} // namespace kavela::desktop
