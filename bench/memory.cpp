#include "subjects.h"

#include "child_process.h"
#include "sample_files.h"

#include <benchmark/benchmark.h>

/// The most memory that reading a file of 40 MB takes, in multiples of the file's size. What the
/// process needs before it opens a file is not counted.
namespace kavela::bench {

namespace {

using Text = const std::string& (*)();

double peakBytes(const std::string& way, const std::string& path) {
    return 1024 * std::stod(outputOf({KAVELA_MEMORY_PROBE, way, path}));
}

void peakMemory(benchmark::State& state, Text text, const std::string& way) {
    const ScratchFolder folder;
    const std::string path = folder.write("session.json", text());
    double bytes = 0;
    for ([[maybe_unused]] const auto iteration : state)
        bytes = peakBytes(way, path) - peakBytes("nothing", path);
    state.counters["times_file"] = bytes / static_cast<double>(text().size());
}

void add(const std::string& file, const std::string& name, const std::string& way, Text text) {
    benchmark::RegisterBenchmark(("memory/" + file + '/' + name).c_str(), peakMemory, text, way)
        ->Iterations(1)
        ->Repetitions(3)
        ->UseRealTime();
}

} // namespace

void addMemory() {
    add("race", "kavela", "race", recordedRaceText);
    add("recording", "kavela", "recording", recordingText);
    for (const char* peer : {"bare_parse", "nlohmann", "rapidjson"})
        add("race", peer, peer, recordedRaceText);
}

} // namespace kavela::bench
