#include "subjects.h"

#include "child_process.h"
#include "common/json_encode.h"
#include "performance/losses.h"
#include "sample_content.h"
#include "sample_files.h"

#include <benchmark/benchmark.h>

#include <string>

/// Losses of a whole race from its facts, beside a plain read of the same file by Python.
namespace kavela::bench {

namespace {

constexpr std::size_t LossRuns = 70;

void losses(benchmark::State& state, LossReferenceKind kind) {
    FactStore facts;
    facts.add(race(LossRuns), "race.kvx");
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(lossesOf(facts, LossReference{kind}));
}

void pythonReads(benchmark::State& state) {
    const ScratchFolder folder;
    const std::string file = folder.write("race.kvx", encode(race(LossRuns)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(outputOf(
            {KAVELA_PYTHON, "-c", "import json, sys; json.load(open(sys.argv[1]))", file}));
}

} // namespace

void addLosses() {
    benchmark::RegisterBenchmark("losses/winner", losses, LossReferenceKind::Winner);
    benchmark::RegisterBenchmark("losses/median", losses, LossReferenceKind::Median);
    benchmark::RegisterBenchmark("losses/python", pythonReads)->UseRealTime();
}

} // namespace kavela::bench
