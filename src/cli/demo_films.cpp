#include "cli/demo_films.h"

#include "cli/console.h"
#include "cli/offscreen_application.h"
#include "cli/progress_bar.h"
#include "common/error.h"
#include "common/parallel.h"
#include "common/safe_file.h"
#include "films/film_writer.h"
#include "films/season_films.h"

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

/// The films that are not there yet.
std::vector<films::PlannedFilm> missingFilms(const fs::path& folder) {
    const OffscreenApplication application;
    return films::seasonFilms([&](const fs::path& name) { return !fs::exists(folder / name); });
}

/// A film gets its name only when it is whole, whatever ends the program meanwhile.
void makeAt(const fs::path& target, const films::FilmScene& scene) {
    try {
        writeFileSafely(target, films::makeFilm(scene));
    } catch (const FileError& error) {
        throw FileError(target, error.reason()); // not the name that it had on the way
    }
}

void makeFilms(const std::vector<films::PlannedFilm>& plans, const fs::path& folder) {
    ProgressBar progress(plans.size());
    parallelFor(plans.size(), [&](std::size_t i) {
        makeAt(folder / plans[i].name, *plans[i].scene);
        progress.step();
    });
}

} // namespace

int writeFilms(const fs::path& folder) {
    try {
        const std::vector<films::PlannedFilm> plans = missingFilms(folder);
        makeFilms(plans, folder);
        const std::string count = counted(static_cast<std::int64_t>(plans.size()), "film", "films");
        return print("Made " + count + ".\n") ? Done : NotDone;
    } catch (const films::FilmError& error) {
        logLine(error.what());
        return NotDone;
    }
}

std::string filmsHelp() {
    return "The films show the final of races/riverside_cup.kvx and all runs of "
           "races/harbour_night.kvx and training/form_test.kvx from above and stand beside these "
           "files: 63 films, 85 MB in all, made in about a minute. A film that is there already "
           "stays as it is, so that a call that was stopped can be repeated.";
}

} // namespace kavela::cli
