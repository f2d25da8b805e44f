#include "subjects.h"

#include "child_process.h"
#include "desktop/taking/day/watched_folder.h"
#include "sample_files.h"
#include "splitdata/run_timing.h"
#include "splittaking/race_day/film_matching.h"
#include "splittaking/video_names.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

/// What race day does over a folder with the films of 300 starts: the look that reads when each of
/// them was recorded and finds its start, and a later look that finds nothing new. No frame is
/// shown of any.
namespace kavela::bench {

namespace {

namespace fs = std::filesystem;

constexpr int DayStarts = 300;
constexpr double FirstStart = 9 * 3600; ///< seconds since midnight
constexpr double StartInterval = 60;
constexpr double RestSeconds = 2;
constexpr double LookSeconds = 4; ///< from one look to the next

ReferenceDate midnight() {
    using namespace std::chrono;
    return referenceDate(year(2026) / 5 / 16);
}

double startTime(int start) {
    return FirstStart + StartInterval * start;
}

/// A film as long as a run, small since nothing moves on it.
std::string runFilm() {
    const ScratchFolder folder;
    const fs::path path = folder.path() / "film.mp4";
    static_cast<void>(outputOf({KAVELA_FFMPEG, "-v", "error", "-y", "-f", "lavfi", "-i",
                                "color=size=160x90:rate=50", "-t", "50", "-c:v", "libx264",
                                "-preset", "superfast", "-pix_fmt", "yuv420p", path.string()}));
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Writes into the head of a film when it was recorded: whole seconds since 1904, highest byte
/// first, behind the name of the head and four bytes more.
void setRecorded(std::string& film, ReferenceDate began) {
    constexpr double SecondsFrom1904To2001 = 3'061'152'000;
    constexpr std::size_t BehindName = 8;
    const std::size_t head = film.find("mvhd", film.rfind("moov"));
    if (head == std::string::npos || head + BehindName + 4 > film.size())
        throw std::logic_error("the film of the benchmark has another head now");
    const auto seconds = static_cast<std::uint32_t>(began.seconds + SecondsFrom1904To2001);
    for (std::size_t byte = 0; byte < 4; ++byte)
        film[head + BehindName + byte] = static_cast<char>(seconds >> (24 - 8 * byte) & 0xFFU);
}

class RaceDayOnDisk {
public:
    RaceDayOnDisk() {
        std::string film = runFilm();
        m_day.date = "2026-05-16";
        for (int start = 0; start < DayStarts; ++start) {
            m_day.starts.push_back({.id = start + 1,
                                    .bib = start + 1,
                                    .name = fmt::format("Boat{0} Racer{0}", start),
                                    .cat = "K1M",
                                    .phase = "Heats",
                                    .starttime = startTime(start),
                                    .out = ""});
            // A camera down the course, switched on in good time or nearly too late.
            const double began = startTime(start) + 12 + start * 7 % 9;
            setRecorded(film, {midnight().seconds + began});
            m_folder.write(fmt::format("IMG_{:04}.MP4", start + 1), film);
        }
    }

    [[nodiscard]] const RaceDay& day() const { return m_day; }

    /// As it is before the first look.
    [[nodiscard]] desktop::WatchedFolder unseen() const {
        return {.folder = QString::fromStdString(m_folder.path().string()),
                .tracker = GrowingFilms(RestSeconds)};
    }
    /// After the looks that it takes to know that no film grows any more.
    [[nodiscard]] desktop::WatchedFolder seen() const {
        desktop::WatchedFolder folder = unseen();
        folder.look(0, {});
        folder.look(LookSeconds, {});
        return folder;
    }

private:
    ScratchFolder m_folder;
    RaceDay m_day;
};

/// Made when it is first asked for.
const RaceDayOnDisk& raceDayOnDisk() {
    static const RaceDayOnDisk made;
    return made;
}

DayMatching matched(const RaceDay& day, const desktop::WatchedFolder& folder) {
    std::vector<SeenFilm> films;
    for (const DaySource& source : daySources(day, folder.files, {})) {
        const desktop::RecordedFilm& recorded =
            folder.recordings.at(folder.files[source.file].path);
        const FilmFacts facts = filmFacts(source.from);
        films.push_back({.from = source.from,
                         .began = recorded.byCamera.value().seconds - midnight().seconds,
                         .seconds = recorded.seconds,
                         .source = RecordingTime::Camera,
                         .crew = crewText(facts.names),
                         .phase = facts.phase});
    }
    return matchFilms(day, films);
}

void lookFirst(benchmark::State& state) {
    const RaceDayOnDisk& made = raceDayOnDisk();
    for ([[maybe_unused]] const auto iteration : state)
        if (matched(made.day(), made.seen()).matches.size() != DayStarts)
            state.SkipWithError("a start has no film");
}

void lookLater(benchmark::State& state) {
    const desktop::WatchedFolder seen = raceDayOnDisk().seen();
    for ([[maybe_unused]] const auto iteration : state) {
        desktop::WatchedFolder folder = seen; // a look works on a copy
        folder.look(2 * LookSeconds, {});
        if (folder.recordings.size() != DayStarts)
            state.SkipWithError("a film is missing");
    }
}

} // namespace

void addRaceDay() {
    benchmark::RegisterBenchmark("race_day/300_films/first_look", lookFirst)->UseRealTime();
    benchmark::RegisterBenchmark("race_day/300_films/later_look", lookLater)->UseRealTime();
}

} // namespace kavela::bench
