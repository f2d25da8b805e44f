#pragma once

#include "analysis/race_set.h"

#include <QString>

#include <memory>
#include <optional>

namespace kavela::desktop {

/// What the charts keep of a race: its runs without their recordings, shared and never changed, so
/// that a chart may be drawn at any time.
class ChartRace {
public:
    ChartRace();
    // The charts take a race set as it is.
    ChartRace(const RaceSet& set); // NOLINT(google-explicit-constructor)
    /// `isFiltered` when there are runs of the race that are not among these.
    ChartRace(const RaceSet& set, bool isFiltered);

    [[nodiscard]] const RaceSet& set() const { return *m_set; }
    [[nodiscard]] bool isFiltered() const { return m_isFiltered; }
    [[nodiscard]] std::size_t size() const { return m_set->alldata.size(); }
    [[nodiscard]] const analyzerdata& run(std::size_t index) const { return m_set->alldata[index]; }

    [[nodiscard]] QString name(std::size_t run) const;
    /// The name with what tells this run from the others: phase and category, where the race has
    /// several.
    [[nodiscard]] QString label(std::size_t run) const;
    [[nodiscard]] QString sectionTitle(std::size_t section) const;

    /// A run of another set of the same file: the same crew in the same phase and category, of
    /// several alike the one with its number; a crew of another name has its number and its times.
    [[nodiscard]] std::optional<std::size_t> find(const analyzerdata& run) const;

private:
    std::shared_ptr<const RaceSet> m_set;
    bool m_isFiltered = false;
    bool m_hasPhases = false;
    bool m_hasCategories = false;
};

} // namespace kavela::desktop
