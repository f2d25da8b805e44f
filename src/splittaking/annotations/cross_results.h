#pragma once

#include "splitdata/cross_records.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// What the heats of a cross race come to.
namespace kavela {

/// One boat of a heat.
struct HeatPlace {
    std::string athlete;
    std::optional<std::size_t> start;  ///< place at the first order in which it was seen, from 1
    std::optional<std::size_t> finish; ///< place in the last order; nothing when not seen there
    std::size_t gained = 0;            ///< places won from one order to the next, all together
    std::size_t lost = 0;
    bool goesOn = false;
};

struct HeatResult {
    std::size_t heat = 0;          ///< place in `eliphase`
    std::vector<HeatPlace> places; ///< by finish; boats not seen last, as on the start list
    bool isFinished = false;       ///< the order at the last gate of the course is known
    bool isComplete = false;       ///< and all boats are in it
    std::vector<std::int64_t> gatesWithoutOrder; ///< of the course
};

/// The heats of one round.
struct RoundResult {
    std::vector<HeatResult> heats;
    bool isFinal = false;
};

/// The result of one heat. Orders count by gate in the order of the course, those at other gates
/// before them as the file has them, and of several at one gate the last. Names that are not of
/// the heat do not take a place, a name that is repeated counts once, and the places lost and
/// gained count between orders in which a boat was seen. Nobody goes on yet, see crossResults().
[[nodiscard]] HeatResult resultOf(const rounddata030& heat, const crossinfodata030& course);

/// All rounds, in the order of the file. A heat begins a new round when one of its boats already
/// paddled in the present one. Where the next round is known, its boats are those that went on; in
/// the last round it is the first two of each finished heat, unless it is the final: a single heat,
/// or as many as the round before it had, with a heat for the lower places.
[[nodiscard]] std::vector<RoundResult> crossResults(const crossdata030& cross);

/// Attacks and defences of one athlete.
struct AttackRecord {
    std::string athlete;
    std::size_t attacks = 0;
    std::size_t successes = 0;
    std::size_t defences = 0;
    std::size_t held = 0; ///< attacks on the athlete that failed

    /// From 0 to 1; nothing without an attack or a defence.
    [[nodiscard]] std::optional<double> attackRate() const;
    [[nodiscard]] std::optional<double> defenceRate() const;
};

/// Of each athlete who attacked or defended, in the order of the heats' start lists; names that
/// are on none behind them.
[[nodiscard]] std::vector<AttackRecord> attackRecords(std::span<const rounddata030> heats);

/// Success of attacks by where they happened.
struct AttackPlace {
    std::string side;
    std::string place;
    std::size_t attacks = 0;
    std::size_t successes = 0;
};

/// By side and place, the most attacked ones first.
[[nodiscard]] std::vector<AttackPlace> attackPlaces(std::span<const rounddata030> heats);

} // namespace kavela
