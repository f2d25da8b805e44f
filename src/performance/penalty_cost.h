#pragma once

#include "facts/groups.h"
#include "performance/penalty_passages.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// What each penalty cost its run in places.
namespace kavela {

struct PenaltyCost {
    std::size_t run = 0;                ///< of FactStore::runs()
    std::int64_t gate = 0;              ///< from 1
    std::optional<std::size_t> section; ///< from 1; nothing for a gate in none
    std::int64_t seconds = 0;
    int rank = 0;       ///< as it was
    int without = 0;    ///< without these seconds, all else as it was
    std::size_t of = 0; ///< ranked runs of the group

    [[nodiscard]] int places() const { return rank - without; }
    /// Whether it cost a place among the first three.
    [[nodiscard]] bool isMedal() const { return rank > LastMedal && without <= LastMedal; }
    /// A missed gate also saved the paddling to it, which the rank without it does not take back.
    [[nodiscard]] bool isMissedGate() const { return seconds >= MissedGateSeconds; }

    static constexpr int LastMedal = 3;
};

/// Every penalty of a run with a total whose penalties are known by gate, in the order of runs and
/// gates.
[[nodiscard]] std::vector<PenaltyCost> penaltyCosts(const FactStore& facts,
                                                    const PenaltyChoice& choice = {});

/// Totals of a group to the hundredth, ascending.
class GroupTotals {
public:
    GroupTotals(const FactStore& facts, const RivalGroup& group);

    /// The rank of a total among those of the group.
    [[nodiscard]] int rankOf(double total, Why* why = nullptr) const;
    [[nodiscard]] std::size_t size() const { return m_totals.size(); }

private:
    std::vector<double> m_totals;
};

/// Where to look at a penalty: on the film where the section of its gate begins, where that is
/// known, else by the number of the section.
[[nodiscard]] Place placeOf(const FactStore& facts, const PenaltyCost& cost);

/// What one penalty of a run with a total cost.
[[nodiscard]] PenaltyCost penaltyCost(const FactStore& facts, const GroupTotals& totals,
                                      const CourseGates& course, const GatePassage& penalty,
                                      Why* why = nullptr);

} // namespace kavela
