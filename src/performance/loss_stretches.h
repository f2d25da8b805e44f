#pragma once

#include "performance/loss_gates.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavela {

enum class StretchKind {
    Upstream,   ///< a section with an upstream gate
    Downstream, ///< a section without
    Mixed,      ///< several sections
    Unknown     ///< the course does not tell which gates its sections have
};

[[nodiscard]] std::string_view kindText(StretchKind kind);

/// The course between two neighbouring marks that both have: normally a section.
struct Stretch {
    std::size_t first = 1; ///< sections, from 1
    std::size_t last = 1;
    StretchKind kind = StretchKind::Unknown;
    int third = 1; ///< of the course, by its last section
    double time = 0;
    double reference = 0;
    double loss = 0;
    double percent = 0;                  ///< of the reference's time
    std::int64_t pen = 0;                ///< own seconds of penalty in it
    double between = 0;                  ///< loss without its gates
    std::optional<std::int64_t> strokes; ///< none where the run has no strokes marked
    std::optional<std::int64_t> referenceStrokes;
    std::vector<GateLoss> gates;

    [[nodiscard]] bool holds(std::size_t section) const {
        return first <= section && section <= last;
    }
};

/// What a stretch is called: "S5", "S3-4".
[[nodiscard]] std::string sectionsText(std::size_t first, std::size_t last);

/// The stretches of a pair from the start to the last mark that both have, without their gates.
[[nodiscard]] std::vector<Stretch> stretchesOf(const LossPair& pair);

/// A side's time from one mark to another: a time after a mark that was not taken covers both
/// sections.
[[nodiscard]] double stretchTime(const LossPair& pair, const LossSide& side, std::size_t first,
                                 std::size_t last, Why* why = nullptr);

/// What a stretch lost, and that in percent of the reference's time.
[[nodiscard]] double stretchLoss(const LossPair& pair, std::size_t first, std::size_t last,
                                 Why* why = nullptr);
[[nodiscard]] double stretchPercent(const LossPair& pair, std::size_t first, std::size_t last,
                                    Why* why = nullptr);

/// What a stretch lost outside its gates, which may be below 0.
[[nodiscard]] double lossBetween(const LossPair& pair, const Stretch& stretch, Why* why = nullptr);

} // namespace kavela
