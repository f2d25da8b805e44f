#include "subjects.h"

#include "analysis/split_table.h"
#include "measure.h"
#include "sample_content.h"

/// From the document in memory to the coloured table of a large race.
namespace kavela::bench {

namespace {

constexpr std::size_t Runs = 500;

void colourTable(benchmark::State& state, ValueKind kind) {
    const splittakerdata031 document = race(Runs);
    TableSettings settings;
    settings.kind = kind;
    settings.penaltiesIncluded = settings.penaltiesVisible = true;
    settings.colorMode = "Training";
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        splittakerdata031 copy = document; // the race set takes it over
        state.ResumeTiming();
        const RaceSet set = makeRaceSet(std::move(copy), "race.kvx");
        benchmark::DoNotOptimize(makeSplitTable(set, settings).rows.data());
    }
}

} // namespace

void addSplitTable() {
    benchmark::RegisterBenchmark("table/sections", colourTable, ValueKind::Sections);
    benchmark::RegisterBenchmark("table/accumulated", colourTable, ValueKind::Accumulated);
}

} // namespace kavela::bench
