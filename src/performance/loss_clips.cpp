#include "performance/loss_clips.h"

#include <cmath>

namespace kavela {

std::optional<FilmSpan> filmSpanOf(const FactStore& facts, std::size_t run, std::size_t first,
                                   std::size_t last) {
    const RunRow& row = facts.runs()[run];
    const auto sections = facts.sectionsOf(row);
    if (facts.filmsOf(row).empty() || facts.text(facts.filmsOf(row).front()).empty() ||
        first == 0 || first > last || last > sections.size())
        return std::nullopt;
    const double from = first == 1 ? row.start : sections[first - 2].end;
    const double to = sections[last - 1].end;
    // Also false for marks that are not known.
    return to > from && std::isfinite(from) && std::isfinite(to)
               ? std::optional(FilmSpan{run, from, to})
               : std::nullopt;
}

std::optional<std::size_t> runToWatch(const FactStore& facts, const LossRivals& rivals,
                                      const RunLosses& losses, const Stretch& stretch) {
    if (losses.referenceRun || losses.reference.kind != LossReferenceKind::Ideal ||
        stretch.first != stretch.last)
        return losses.referenceRun;
    const auto ideal = referenceSide(facts, rivals, losses.run, losses.reference);
    if (!ideal)
        return std::nullopt;
    const std::size_t section = stretch.first - 1;
    for (const std::size_t run : ideal->pool) {
        const auto sections = facts.sectionsOf(facts.runs()[run]);
        if (section < sections.size() && sections[section].standsAlone &&
            sections[section].time == ideal->times[section])
            return run;
    }
    return std::nullopt;
}

} // namespace kavela
