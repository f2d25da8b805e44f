#pragma once

#include "common/why.h"
#include "facts/fact_store.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// The two that are compared: a run and what it is held against, which is another run or one that
/// nobody paddled.
namespace kavela {

/// A total with the penalties in it.
struct LossTotal {
    double total = 0;
    std::int64_t penalty = 0;
};

/// The times of an upstream gate, by its first entry.
struct LossGate {
    std::int32_t gate = 0;
    std::int16_t direction = 0;
    std::int16_t style = 0;
    double time = 0;
    double entrance = 0; ///< 0 where it is not known
    double exit = 0;
};

/// One of the two that are compared.
struct LossSide {
    std::string name;               ///< what it is to a rule: "own", "winner"
    std::optional<std::size_t> run; ///< of the store; none for one that nobody paddled
    std::vector<std::size_t> pool;  ///< runs that one is put together from
    bool isMedian = false;          ///< put together from medians, else from the least
    std::vector<double> times;      ///< by section; NotKnown where the mark is not taken
    std::vector<LossGate> gates;    ///< by number
    std::optional<LossTotal> official;
    std::optional<LossTotal> video; ///< of all sections
};

/// A run and its reference, of one file.
struct LossPair {
    const FactStore& facts;
    const FileRow& file;
    LossSide own;
    LossSide reference;
};

/// A run of the store as a side.
[[nodiscard]] LossSide paddledSide(const FactStore& facts, std::size_t run, std::string name);

/// The best or the median of every section of some runs of one file; it ends before a section that
/// none of them has, and then has no total.
[[nodiscard]] LossSide madeSide(const FactStore& facts, std::vector<std::size_t> pool,
                                bool isMedian, std::string name);

/// What madeSide has for a section, counted from 1; NotKnown when no time stands alone.
[[nodiscard]] double madeSection(const FactStore& facts, std::span<const std::size_t> pool,
                                 bool isMedian, std::size_t section, Why* why = nullptr);

/// What madeSide has for one time of a gate; NotKnown when no run has it.
[[nodiscard]] double madeGateTime(const FactStore& facts, std::span<const std::size_t> pool,
                                  bool isMedian, std::int32_t gate, double GateRow::*time,
                                  Why* why = nullptr);

/// The first entry of a gate in a run; null when it has none.
[[nodiscard]] const GateRow* firstEntry(const FactStore& facts, const RunRow& run,
                                        std::int32_t gate);

/// How far off a time between two marks of a run may be, in seconds; 0 where its marks do not tell
/// the frames of its film.
[[nodiscard]] double markUncertainty(const FactStore& facts, std::size_t run);

/// Tells how far off a loss in seconds may be, where the films of both tell their frames: four
/// marks, each half a frame beside the moment at most.
void tellFourMarks(const LossPair& pair, double loss, Why& why);

/// Where the mark stands that ends a section, counted from 1; without one, the run itself.
[[nodiscard]] Place lossPlace(const FactStore& facts, std::size_t run,
                              std::optional<std::size_t> section = {});

} // namespace kavela
