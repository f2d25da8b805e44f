#include "subjects.h"

#include "common/json_encode.h"
#include "common/parallel.h"
#include "sample_content.h"
#include "sample_files.h"
#include "splitdata/loader.h"

#include <benchmark/benchmark.h>

#include <atomic>

/// Opening every split file of a season, one after the other and on all cores.
namespace kavela::bench {

namespace {

constexpr std::size_t Files = 1000;
constexpr std::size_t RunsPerFile = 20;

class Season {
public:
    Season() {
        for (std::size_t i = 0; i < Files; ++i)
            m_paths.push_back(m_folder.write(std::to_string(i) + ".kvx",
                                             encode(race(RunsPerFile, static_cast<unsigned>(i)))));
    }

    [[nodiscard]] const std::vector<std::filesystem::path>& paths() const { return m_paths; }

private:
    ScratchFolder m_folder;
    std::vector<std::filesystem::path> m_paths;
};

bool opens(const std::filesystem::path& path) {
    return recogniseSplitFile(
               path, [](std::string_view) {}, [] { return ReferenceDate{}; })
        .isCurrent();
}

void openSeason(benchmark::State& state, bool onAllCores) {
    const Season season;
    for ([[maybe_unused]] const auto iteration : state) {
        std::atomic<std::size_t> opened = 0;
        const auto open = [&](std::size_t at) { opened += opens(season.paths()[at]) ? 1U : 0U; };
        if (onAllCores)
            parallelFor(Files, open);
        else
            for (std::size_t at = 0; at < Files; ++at)
                open(at);
        if (opened != Files)
            state.SkipWithError("a file of the season did not open");
    }
}

} // namespace

void addSeason() {
    benchmark::RegisterBenchmark("season/one_core", openSeason, false)->UseRealTime();
    benchmark::RegisterBenchmark("season/all_cores", openSeason, true)->UseRealTime();
}

} // namespace kavela::bench
