#include "page/page_films.h"

#include "analysis/run_motion.h"
#include "common/folded_text.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <system_error>
#include <utility>

namespace kavela::page {

namespace fs = std::filesystem;

namespace {

constexpr double SecondsAround = 1.5; ///< of film before the start and after the last mark
constexpr const char* PosterEnding = ".jpg";

/// What the clips of each race begin with: its file's name, told apart where two are called the
/// same.
std::vector<std::string> clipNames(const std::vector<RaceFile>& races) {
    std::map<std::string, int> known;
    std::vector<std::string> names;
    for (const RaceFile& race : races) {
        std::string name = race.path.stem().string();
        const int count = ++known[folded(name)];
        if (count > 1)
            name += " (" + std::to_string(count) + ')';
        names.push_back(name + " run ");
    }
    return names;
}

using RunsByClip = std::map<std::string, std::pair<std::size_t, std::size_t>>;

RunsByClip runsByClip(const std::vector<RaceFile>& races) {
    RunsByClip runs;
    const std::vector<std::string> names = clipNames(races);
    for (std::size_t race = 0; race < races.size(); ++race)
        for (std::size_t run = 0; run < races[race].document.athletes.size(); ++run)
            runs.emplace(names[race] + std::to_string(run), std::pair(race, run));
    return runs;
}

std::string titleOfClip(const RaceFile& race, std::size_t run) {
    const std::string& phase = race.document.athletes[run].phase;
    const std::string& title = race.document.info.title;
    std::string made = title.empty() ? race.path.stem().string() : title;
    return made + (phase.empty() ? "" : ", " + phase);
}

/// The films of a folder in the order of their names.
std::vector<fs::path> filmsIn(const fs::path& folder) {
    std::vector<fs::path> films;
    std::error_code none;
    for (fs::directory_iterator entry(folder, none), end; !none && entry != end;
         entry.increment(none)) {
        std::error_code unknown;
        if (entry->is_regular_file(unknown) && isVideoFile(entry->path().filename().string()))
            films.push_back(entry->path());
    }
    std::ranges::sort(films, [](const fs::path& a, const fs::path& b) {
        return isNaturallyBefore(a.filename().string(), b.filename().string());
    });
    return films;
}

} // namespace

fs::path filmFolderOf(const fs::path& page) {
    return fs::path(page).replace_extension();
}

std::vector<ClipOrder> clipOrders(const std::vector<RaceFile>& races, const PageChoice& choice,
                                  const fs::path& page) {
    std::vector<ClipOrder> orders;
    const std::vector<std::string> names = clipNames(races);
    for (std::size_t race = 0; race < races.size(); ++race) {
        const splittakerdata031& document = races[race].document;
        for (std::size_t run = 0; run < document.athletes.size(); ++run) {
            const athletedata031& athlete = document.athletes[run];
            if (!isRunMeant(document, athlete, choice) || athlete.videoname.empty() ||
                athlete.videoname.front().empty())
                continue;
            const auto span = runSpan(athlete);
            if (!span || !(span->end > span->start))
                continue;
            orders.push_back({races[race].path.parent_path() / athlete.videoname.front(),
                              std::max(span->start - SecondsAround, 0.0), span->end + SecondsAround,
                              filmFolderOf(page) / (names[race] + std::to_string(run))});
        }
    }
    return orders;
}

std::vector<PageFilm> filmsBeside(const std::vector<RaceFile>& races, const fs::path& page) {
    const fs::path folder = filmFolderOf(page);
    const RunsByClip runs = runsByClip(races);
    std::vector<PageFilm> films;
    for (const fs::path& film : filmsIn(folder)) {
        const std::string stem = film.stem().string();
        PageFilm shown;
        shown.address = folder.filename().string() + '/' + film.filename().string();
        std::error_code unknown;
        if (fs::exists(folder / (stem + PosterEnding), unknown))
            shown.poster = folder.filename().string() + '/' + stem + PosterEnding;
        const auto found = runs.find(stem);
        if (found != runs.end())
            shown.run = found->second;
        shown.title = found == runs.end()
                          ? stem
                          : titleOfClip(races[found->second.first], found->second.second);
        films.push_back(std::move(shown));
    }
    return films;
}

} // namespace kavela::page
