#include "subjects.h"

#include "child_process.h"
#include "made_film.h"
#include "sample_files.h"
#include "vision/slit_picture.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

/// The slit picture of a line over a minute of film, from opening the file to the last tile, beside
/// the command line of the same libraries that decodes the film and does nothing else.
namespace kavela::bench {

namespace {

constexpr int SlitSeconds = 60;
constexpr int SlitRepetitions = 3;
constexpr SlitLine AcrossFilm{{1000, 120}, {920, 960}}; // not quite upright, as most are drawn

class SlitFilm {
public:
    SlitFilm() : m_path(m_folder.path() / "finish.mp4") { makeFilm(m_path, SlitSeconds, 6); }

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    ScratchFolder m_folder;
    std::filesystem::path m_path;
};

/// Made when it is first asked for.
const SlitFilm& slitFilm() {
    static const SlitFilm made;
    return made;
}

/// True when every frame of the film has its column.
bool readsWholeSlit(const std::filesystem::path& path) {
    const std::shared_ptr<const VideoIndex> index = readVideoIndex(path);
    SlitPicture picture;
    const SlitReading reading = readSlits(
        index, {.lines = {AcrossFilm}}, {},
        [&](std::size_t, const std::shared_ptr<const SlitTile>& tile) { picture.add(tile); });
    return reading.missing.empty() && picture.columns == index->frameCount();
}

void readSlit(benchmark::State& state) {
    const std::filesystem::path& path = slitFilm().path();
    const auto start = std::chrono::steady_clock::now();
    for ([[maybe_unused]] const auto iteration : state)
        if (!readsWholeSlit(path))
            state.SkipWithError("a column is missing");
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    state.counters["of_playing"] = took.count() / double(state.iterations()) / SlitSeconds;
}

void decodeByFfmpeg(benchmark::State& state) {
    const std::string path = slitFilm().path().string();
    for ([[maybe_unused]] const auto iteration : state)
        static_cast<void>(outputOf({KAVELA_FFMPEG, "-v", "error", "-i", path, "-f", "null", "-"}));
}

void addReading(const char* name, void (*read)(benchmark::State&)) {
    benchmark::RegisterBenchmark(name, read)
        ->Iterations(1)
        ->Repetitions(SlitRepetitions)
        ->UseRealTime();
}

} // namespace

void addSlit() {
    addReading("slit/1080p50", readSlit);
    addReading("slit/ffmpeg_decodes", decodeByFfmpeg);
}

} // namespace kavela::bench
