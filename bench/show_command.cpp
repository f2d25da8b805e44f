#include "subjects.h"

#include "child_process.h"
#include "common/json_encode.h"
#include "sample_content.h"
#include "sample_files.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

/// `kavela show` as a coach calls it, from the start of the program to its end, beside the start of
/// a program that only reads the same file.
namespace kavela::bench {

namespace {

constexpr std::size_t Runs = 60;
constexpr int Calls = 20;

using CommandOf = std::vector<std::string>(const std::string& file);

void call(benchmark::State& state, CommandOf* commandOf) {
    const ScratchFolder folder;
    const std::string file = folder.write("race.kvx", encode(race(Runs)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(outputOf(commandOf(file)));
}

std::vector<std::string> kavelaShow(const std::string& file) {
    return {KAVELA_PROGRAM, "show", file, "--mode", "training"};
}

std::vector<std::string> pythonLoad(const std::string& file) {
    return {KAVELA_PYTHON, "-c", "import json, sys; json.load(open(sys.argv[1]))", file};
}

void add(const char* name, CommandOf* commandOf) {
    benchmark::RegisterBenchmark(name, call, commandOf)
        ->Iterations(1)
        ->Repetitions(Calls)
        ->UseRealTime();
}

} // namespace

void addShowCommand() {
    add("show/kavela", kavelaShow);
    add("show/python", pythonLoad);
}

} // namespace kavela::bench
