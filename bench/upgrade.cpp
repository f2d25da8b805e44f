#include "subjects.h"

#include "common/json_encode.h"
#include "measure.h"
#include "sample_content.h"
#include "sample_files.h"
#include "splitdata/loader.h"

/// Reading and rewriting a file of the oldest release beside reading and rewriting a current file
/// of the same size and kind of runs, which are fewer, having more to tell. Both go through the
/// disk, flushed.
namespace kavela::bench {

namespace {

constexpr std::size_t Runs = 12000;

void discard(std::string_view) {}

ReferenceDate now() {
    return {736600000};
}

std::string oldestText() {
    return encode(oldestRace(Runs));
}

std::string currentTextOfSameSize() {
    const std::string oldest = oldestText();
    const auto json = JsonDocument::fromText(oldest);
    splittakerdata031 document = recogniseSplitDocument(json, {}, discard, now).document;
    document.athletes.resize(Runs * oldest.size() / encode(document).size());
    return encode(document);
}

void upgradeOldest(benchmark::State& state) {
    const ScratchFolder folder;
    const std::string text = oldestText();
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        const auto path = folder.write("race.kvx", text);
        state.ResumeTiming();
        upgradeSplitFile(path, discard, now);
    }
}

void rewriteCurrent(benchmark::State& state) {
    const ScratchFolder folder;
    const std::string text = currentTextOfSameSize();
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        const auto path = folder.write("race.kvx", text);
        state.ResumeTiming();
        const auto file = recogniseSplitFile(path, discard, now);
        if (!file.isCurrent() || !saveSplitFile(file.document, path, discard))
            state.SkipWithError("the current file was not read and written");
    }
}

} // namespace

void addUpgrade() {
    benchmark::RegisterBenchmark("upgrade/oldest", upgradeOldest)->UseRealTime();
    benchmark::RegisterBenchmark("upgrade/current", rewriteCurrent)->UseRealTime();
}

} // namespace kavela::bench
