#pragma once

#include "splitdata/records.h"

#include <cstddef>
#include <optional>
#include <vector>

/// The strokes marked by hand in the sections of a run.
namespace kavela {

/// The strokes of one section of a run.
struct SectionStrokes {
    std::size_t left = 0;
    std::size_t right = 0;
    std::size_t other = 0;           ///< with a hand that is neither
    double seconds = 0;              ///< from the first of them to the last
    std::optional<double> perMinute; ///< between them; nothing with fewer than two

    [[nodiscard]] std::size_t total() const { return left + right + other; }
};

/// By split of the run. Strokes are often marked in a part of a section only: the rate is that of
/// the stretch that has marks. A stroke at the moment of a mark belongs to the section that begins
/// there; strokes before the start and after the last mark belong to none.
[[nodiscard]] std::vector<SectionStrokes> strokesBySection(const athletedata031& run);

} // namespace kavela
