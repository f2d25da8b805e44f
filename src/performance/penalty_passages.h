#pragma once

#include "common/why.h"
#include "facts/fact_store.h"
#include "statistics/intervals.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// Passages of gates: what every rate of penalties is counted among. Touches and missed gates are
/// two kinds of mistakes that cost 2 s and 50 s, so they are counted apart and never added.
namespace kavela {

/// Seconds from which a penalty is a missed gate; less than these, above 0, is a touch.
inline constexpr std::int64_t MissedGateSeconds = 50;

/// Whose penalties are asked for.
struct PenaltyChoice {
    std::string category = {}; ///< however it is written; empty for all
    std::string phaseKey = {}; ///< as RunRow has it; empty for all
    std::string crewKey = {};  ///< the same

    friend bool operator==(const PenaltyChoice&, const PenaltyChoice&) = default;
};

/// Tells the runs that are asked for.
class ChosenRuns {
public:
    explicit ChosenRuns(const PenaltyChoice& choice);

    [[nodiscard]] bool has(const FactStore& facts, const RunRow& run) const;

private:
    std::string m_categoryKey;
    std::string m_phaseKey;
    std::string m_crewKey;
};

/// A run that came past a gate.
struct GatePassage {
    std::size_t run = 0;      ///< of FactStore::runs()
    std::int64_t gate = 0;    ///< from 1
    std::int64_t seconds = 0; ///< of penalty, 0 or more

    [[nodiscard]] bool isTouch() const { return seconds > 0 && seconds < MissedGateSeconds; }
    [[nodiscard]] bool isMissed() const { return seconds >= MissedGateSeconds; }
};

/// Which gates of a course are where.
class CourseGates {
public:
    CourseGates(const FactStore& facts, const FileRow& file);

    [[nodiscard]] bool isUpstream(std::int64_t gate) const { return m_upGates.contains(gate); }
    /// The section of a gate, from 1: the first that lists it; nothing for a gate in none.
    [[nodiscard]] std::optional<std::size_t> sectionOf(std::int64_t gate) const;

private:
    std::set<std::int64_t> m_upGates;
    std::map<std::int64_t, std::size_t> m_sections;
};

/// Whether the run has a penalty for every gate of its course. The penalties of other runs are
/// known by section at most.
[[nodiscard]] bool isKnownByGate(const FactStore& facts, const RunRow& run);

/// The passages of a run that is known by gate, in the order of the gates: all gates of a run with
/// a total, and of any other the gates of its sections up to the last timed one, with those that
/// have a penalty.
[[nodiscard]] std::vector<GatePassage> passagesOf(const FactStore& facts, std::size_t run);

struct CountedPassages {
    std::vector<GatePassage> passages; ///< by run, then by gate
    std::vector<std::size_t> whole;    ///< runs with a total, known by gate
    std::vector<std::uint32_t> files;  ///< that have runs known by gate
    std::size_t runs = 0;              ///< known by gate
    std::size_t leftOut = 0;           ///< not known by gate
};

[[nodiscard]] CountedPassages countedPassages(const FactStore& facts,
                                              const PenaltyChoice& choice = {});

/// How many of the whole runs had no penalty at all; nothing when there are none.
[[nodiscard]] std::optional<RateOf> cleanRuns(const FactStore& facts,
                                              const CountedPassages& counted, Why* why = nullptr);

/// Where a penalty stands.
[[nodiscard]] Place placeOf(const FactStore& facts, const GatePassage& passage);

} // namespace kavela
