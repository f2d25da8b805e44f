#pragma once

#include "performance/season_data.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What it took to come in at a rank: the percentage behind the winner that the boat at this rank
/// had, race by race, from split files, which know the whole field.
namespace kavela {

inline constexpr std::array<std::size_t, 7> BenchmarkRanks{1, 2, 3, 5, 10, 20, 30};
inline constexpr std::size_t MedalRank = 3;

struct Benchmark {
    std::string phase;
    std::size_t rank = 0;
    std::vector<double> values; ///< percent by race, in the order of the files; never empty
    double lowerQuartile = 0;   ///< between neighbours in proportion
    double median = 0;
    double upperQuartile = 0;
};

/// By phase, the team's four in front, then by rank. A race with fewer boats than a rank says
/// nothing of it.
[[nodiscard]] std::vector<Benchmark> benchmarks(const SeasonData& data);

/// How the median of one came about; nothing where there is none such.
[[nodiscard]] std::optional<Benchmark> benchmarkOf(const SeasonData& data, const FactStore& facts,
                                                   std::string_view phase, std::size_t rank,
                                                   Why* why = nullptr);

/// In how many of its races a percentage behind would have been this rank or a better one.
[[nodiscard]] std::size_t wouldHaveReached(const Benchmark& benchmark, double percent);

/// The one of a phase and rank; null where there is none.
[[nodiscard]] const Benchmark* benchmarkAt(std::span<const Benchmark> all, std::string_view phase,
                                           std::size_t rank);

/// The value below which a part of sorted values lies, between neighbours in proportion. Throws
/// std::invalid_argument for no values.
[[nodiscard]] double quantileOf(std::span<const double> sorted, double part);

} // namespace kavela
