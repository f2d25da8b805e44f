#include "subjects.h"

#include "child_process.h"
#include "common/json_encode.h"
#include "sample_content.h"
#include "sample_files.h"

#include <benchmark/benchmark.h>

/// `kavela show` as a coach calls it, from the start of the program to its end.
namespace kavela::bench {

namespace {

constexpr std::size_t Runs = 60;
constexpr int Calls = 20;

void show(benchmark::State& state) {
    const ScratchFolder folder;
    const std::string file = folder.write("race.kvx", encode(race(Runs)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(outputOf({KAVELA_PROGRAM, "show", file, "--mode", "training"}));
}

} // namespace

void addShowCommand() {
    benchmark::RegisterBenchmark("show", show)->Iterations(1)->Repetitions(Calls)->UseRealTime();
}

} // namespace kavela::bench
