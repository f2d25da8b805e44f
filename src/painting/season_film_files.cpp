#include "painting/season_film_files.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "common/error.h"
#include "common/parallel.h"
#include "common/safe_file.h"
#include "films/season_films.h"
#include "films/sprint_lines.h"
#include "painting/offscreen_application.h"
#include "video/writing/film_sink.h"

namespace kavela::painting {

namespace {

namespace fs = std::filesystem;

/// The films that are not there yet.
std::vector<films::PlannedFilm> missingFilms(const fs::path& folder) {
    const OffscreenApplication application;
    return films::seasonFilms([&](const fs::path& name) { return !fs::exists(folder / name); });
}

/// A film gets its name only when it is whole, whatever ends the program meanwhile.
void makeAt(const fs::path& target, const films::PlannedFilm& film) {
    try {
        writeFileSafely(target, films::makeFilm(film));
    } catch (const FileError& error) {
        throw FileError(target, error.reason()); // not the name that it had on the way
    }
}

void makeFilms(const std::vector<films::PlannedFilm>& plans, const fs::path& folder) {
    cli::ProgressBar progress(plans.size());
    parallelFor(plans.size(), [&](std::size_t i) {
        makeAt(folder / plans[i].name, plans[i]);
        progress.step();
    });
}

/// Lines that somebody has drawn since then stay.
void drawLines(const fs::path& folder) {
    const fs::path lines = slitFileOf(folder / "camera" / sample::SprintFilm);
    if (!fs::exists(lines))
        writeSlitFile(films::sprintLines(), lines);
}

} // namespace

int writeSeasonFilms(const fs::path& folder) {
    try {
        const std::vector<films::PlannedFilm> plans = missingFilms(folder);
        makeFilms(plans, folder);
        drawLines(folder);
        const std::string count =
            cli::counted(static_cast<std::int64_t>(plans.size()), "film", "films");
        return cli::print("Made " + count + ".\n") ? cli::Done : cli::NotDone;
    } catch (const FilmError& error) {
        cli::logLine(error.what());
        return cli::NotDone;
    }
}

} // namespace kavela::painting
