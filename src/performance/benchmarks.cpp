#include "performance/benchmarks.h"

#include "performance/season_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <stdexcept>
#include <utility>

namespace kavela {

namespace {

/// The runs of a split file's group, the best first.
using FieldOfPhase = std::vector<const SeasonRun*>;

/// Fields by the phase of the race, in the order of the files.
std::map<std::size_t, FieldOfPhase> fieldsOf(const SeasonData& data) {
    std::map<std::size_t, FieldOfPhase> fields;
    for (const SeasonRun& run : data.runs)
        if (run.run)
            fields[run.phase].push_back(&run);
    for (auto& [phase, field] : fields)
        std::ranges::stable_sort(field, {}, &SeasonRun::total);
    return fields;
}

/// The team's phases in their order, then others by name.
std::pair<std::ptrdiff_t, std::string> orderOfPhase(const std::string& phase) {
    return {std::ranges::find(team::Phases, phase) - std::begin(team::Phases), phase};
}

double percentAt(const FieldOfPhase& field, std::size_t rank) {
    return 100 * (field[rank - 1]->total / field.front()->total - 1);
}

Benchmark withQuartiles(Benchmark benchmark) {
    std::vector<double> sorted = benchmark.values;
    std::ranges::sort(sorted);
    benchmark.lowerQuartile = quantileOf(sorted, 0.25);
    benchmark.median = quantileOf(sorted, 0.5);
    benchmark.upperQuartile = quantileOf(sorted, 0.75);
    return benchmark;
}

} // namespace

double quantileOf(std::span<const double> sorted, double part) {
    if (sorted.empty())
        throw std::invalid_argument("no values have no quantile");
    const double at = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(at);
    if (below + 1 >= sorted.size())
        return sorted.back();
    const double rest = at - static_cast<double>(below);
    return sorted[below] + rest * (sorted[below + 1] - sorted[below]);
}

std::vector<Benchmark> benchmarks(const SeasonData& data) {
    std::map<std::pair<std::pair<std::ptrdiff_t, std::string>, std::size_t>, Benchmark> found;
    for (const auto& [phase, field] : fieldsOf(data))
        for (const std::size_t rank : BenchmarkRanks) {
            if (field.size() < rank)
                break;
            const std::string& name = data.phases[phase].phase;
            Benchmark& benchmark = found[{orderOfPhase(name), rank}];
            benchmark.phase = name;
            benchmark.rank = rank;
            benchmark.values.push_back(percentAt(field, rank));
        }
    std::vector<Benchmark> all;
    for (auto& [key, benchmark] : found)
        all.push_back(withQuartiles(std::move(benchmark)));
    return all;
}

std::optional<Benchmark> benchmarkOf(const SeasonData& data, const FactStore& facts,
                                     std::string_view phase, std::size_t rank, Why* why) {
    Benchmark benchmark{std::string(phase), rank, {}, 0, 0, 0};
    for (const auto& [at, field] : fieldsOf(data)) {
        if (rank < 1 || field.size() < rank || data.phases[at].phase != phase)
            continue;
        benchmark.values.push_back(percentAt(field, rank));
        if (why)
            why->input(fmt::format("{} {}, {}", data.phases[at].year, data.phases[at].location,
                                   data.boats[field[rank - 1]->boat].name),
                       benchmark.values.back(), seasonPlace(facts, field[rank - 1]->run));
    }
    if (benchmark.values.empty())
        return std::nullopt;
    benchmark = withQuartiles(std::move(benchmark));
    if (why)
        why->result(ruleOf(SeasonRule::Benchmark), benchmark.median,
                    fmt::format("{:.1f} %", benchmark.median));
    return benchmark;
}

std::size_t wouldHaveReached(const Benchmark& benchmark, double percent) {
    return static_cast<std::size_t>(
        std::ranges::count_if(benchmark.values, [&](double value) { return percent <= value; }));
}

const Benchmark* benchmarkAt(std::span<const Benchmark> all, std::string_view phase,
                             std::size_t rank) {
    const auto found = std::ranges::find_if(all, [&](const Benchmark& benchmark) {
        return benchmark.phase == phase && benchmark.rank == rank;
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace kavela
