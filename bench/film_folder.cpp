#include "subjects.h"

#include "made_film.h"
#include "sample_files.h"
#include "splittaking/folder/film_list.h"
#include "splittaking/video_names.h"
#include "video/frame_source.h"
#include "video/picture.h"
#include "video/thumbnail.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

/// A folder of 200 films of 1080 lines that is opened: what a coach waits for.
namespace kavela::bench {

namespace {

namespace fs = std::filesystem;

constexpr int FolderFilms = 200;
constexpr int FolderFilmSeconds = 10;
constexpr int FilmsOnScreen = 16;
constexpr std::size_t FolderCache = std::size_t{256} << 20;

/// One film under many names.
class FilmsOnDisk {
public:
    FilmsOnDisk() : m_first(m_folder.write("Athlete 0 Heats.mp4", "")) {
        makeFilm(m_first, FolderFilmSeconds, 4);
        for (int i = 1; i < FolderFilms; ++i) {
            fs::remove(film(i));
            fs::create_hard_link(m_first, film(i));
        }
    }

    [[nodiscard]] fs::path folder() const { return m_first.parent_path(); }
    [[nodiscard]] fs::path film(int number) const {
        return folder() / ("Athlete " + std::to_string(number) + " Heats.mp4");
    }

private:
    ScratchFolder m_folder;
    fs::path m_first;
};

const FilmsOnDisk& filmsOnDisk() {
    static const FilmsOnDisk films;
    return films;
}

void list(benchmark::State& state) {
    const FilmsOnDisk& films = filmsOnDisk();
    for ([[maybe_unused]] const auto iteration : state) {
        FilmFolder folder = listFilms(films.folder(), DefaultVideoPattern);
        addKnownOfFilms(folder);
        if (folder.films.size() != FolderFilms)
            state.SkipWithError("a film is not listed");
    }
}

void thumbnails(benchmark::State& state, int count) {
    const FilmsOnDisk& films = filmsOnDisk();
    for ([[maybe_unused]] const auto iteration : state)
        for (int i = 0; i < count; ++i)
            benchmark::DoNotOptimize(readThumbnail(films.film(i), {320, 320}));
}

/// Until its first frame is there, without having been opened ahead.
void openNext(benchmark::State& state) {
    const FilmsOnDisk& films = filmsOnDisk();
    int next = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        FrameSource source(readVideoIndex(films.film(next++ % FolderFilms)),
                           std::make_shared<FrameCache>(FolderCache));
        PictureMaker pictures(source.index().facts());
        benchmark::DoNotOptimize(pictures.make(*source.frame(0).frame.samples));
    }
}

} // namespace

void addFilmFolder() {
    benchmark::RegisterBenchmark("films/list_200", list)->UseRealTime();
    benchmark::RegisterBenchmark("films/first_screen", thumbnails, FilmsOnScreen)
        ->Iterations(1)
        ->UseRealTime();
    benchmark::RegisterBenchmark("films/thumbnails_200", thumbnails, FolderFilms)
        ->Iterations(1)
        ->Repetitions(1)
        ->UseRealTime();
    benchmark::RegisterBenchmark("films/next", openNext)->UseRealTime();
}

} // namespace kavela::bench
