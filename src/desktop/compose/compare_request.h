#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace kavela::desktop {

/// Films that another window wants to be compared.
struct CompareRequest {
    struct Run {
        QString splitFile;
        std::size_t run = 0; ///< in its file, counted from 0

        friend bool operator==(const Run&, const Run&) = default;
    };
    /// A film without a run of its own, such as that of a heat.
    struct Film {
        QString path;
        QString names;
        double startsAt = 0; ///< seconds of the film

        friend bool operator==(const Film&, const Film&) = default;
    };

    std::vector<Run> runs;
    std::vector<Film> films;
    /// The splits from and to which they are to be seen, 0 is the start; the whole runs without.
    /// They are held together at the first one.
    std::optional<std::pair<std::size_t, std::size_t>> splits = {};

    friend bool operator==(const CompareRequest&, const CompareRequest&) = default;
};

} // namespace kavela::desktop
