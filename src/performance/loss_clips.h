#pragma once

#include "performance/losses.h"

#include <cstddef>
#include <optional>

/// Where losses are seen: on the films of the run and of whom it is held against.
namespace kavela {

/// A stretch of a run's first film.
struct FilmSpan {
    std::size_t run = 0; ///< of the store
    double from = 0;     ///< seconds of the film
    double to = 0;

    friend bool operator==(const FilmSpan&, const FilmSpan&) = default;
};

/// Where a run shows its sections from `first` to `last`, counted from 1; nothing where it has no
/// film, or one of the two marks is not taken.
[[nodiscard]] std::optional<FilmSpan> filmSpanOf(const FactStore& facts, std::size_t run,
                                                 std::size_t first, std::size_t last);

/// The run to watch beside another one: the reference's own, and of an ideal one that whose time
/// the section is. Nothing for what nobody paddled: a median, or an ideal one over several
/// sections.
[[nodiscard]] std::optional<std::size_t> runToWatch(const FactStore& facts,
                                                    const LossRivals& rivals,
                                                    const RunLosses& losses,
                                                    const Stretch& stretch);

} // namespace kavela
