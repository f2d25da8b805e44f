#include "splittaking/folder/film_list.h"

#include "common/error.h"
#include "common/folded_text.h"
#include "splitdata/film_marks.h"
#include "splitdata/loader.h"
#include "splittaking/annotations/custom_tags.h"
#include "splittaking/folder/film_tags.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <map>
#include <system_error>

namespace kavela {

namespace fs = std::filesystem;

namespace {

ListedFilm filmByName(const fs::directory_entry& entry, std::string_view pattern) {
    ListedFilm film;
    film.path = entry.path();
    FilmFacts facts = filmFacts(entry.path().filename().string(), pattern);
    film.names = std::move(facts.names);
    film.category = std::move(facts.category);
    film.phase = std::move(facts.phase);
    film.bib = facts.bib;
    film.number = facts.number;
    std::error_code ignored; // one that goes meanwhile is listed, and told when it is played
    film.bytes = entry.file_size(ignored);
    film.written = entry.last_write_time(ignored).time_since_epoch().count();
    return film;
}

template <class Take>
void forEachFileOf(const fs::path& folder, const Take& take) {
    std::error_code fault;
    for (fs::directory_iterator entry(folder, fault), end; entry != end; entry.increment(fault)) {
        if (fault)
            break;
        std::error_code ignored;
        if (entry->is_regular_file(ignored))
            take(*entry);
    }
    if (fault)
        throw FileError(folder, fault.message());
}

bool isNaturallyBeforePath(const fs::path& a, const fs::path& b) {
    return isNaturallyBefore(a.filename().string(), b.filename().string());
}

/// The first run that a film shows is the one it is listed by.
void addRunOfFilm(ListedFilm& film, const athletedata031& run, std::size_t camera,
                  const fs::path& splitFile) {
    for (const Tag& tag : tagsOf(run))
        if (tag.video == static_cast<std::int64_t>(camera) && tag.moment && isTaken(*tag.moment))
            film.tags.push_back({tag.name, *tag.moment, true});
    if (!film.splitFile.empty())
        return;
    film.splitFile = splitFile;
    film.firstMark = startOf(run, camera);
    if (!run.names.empty())
        film.names = run.names;
    if (!run.cat.empty())
        film.category = run.cat;
    if (!run.phase.empty())
        film.phase = run.phase;
}

using FilmsByName = std::map<std::string, ListedFilm*>;

void addSplitFile(const FilmsByName& films, const fs::path& path,
                  std::vector<std::string>& faults) {
    const RecognisedSplitFile read = recogniseSplitFile(
        path, [](std::string_view) {}, [] { return ReferenceDate{}; });
    if (!read.version) {
        faults.push_back(path.filename().string() + ": " +
                         (read.failures.empty() ? std::string("it cannot be read")
                                                : read.failures.front().fault.message()));
        return;
    }
    for (const athletedata031& run : read.document.athletes)
        for (std::size_t camera = 0; camera < run.videoname.size(); ++camera)
            if (const auto film = films.find(run.videoname[camera]); film != films.end())
                addRunOfFilm(*film->second, run, camera, path);
}

void addOwnTags(const FilmsByName& films, const fs::path& folder,
                std::vector<std::string>& faults) {
    try {
        for (const taggedfilm001& tagged : readFilmTags(folder).films)
            if (const auto film = films.find(tagged.film); film != films.end())
                for (const filmtag001& tag : tagged.tags)
                    film->second->tags.push_back({tag.name, tag.moment, false});
    } catch (const std::runtime_error& error) { // of the file or of what it holds
        faults.emplace_back(error.what());
    }
}

} // namespace

FilmFolder listFilms(const fs::path& folder, std::string_view pattern) {
    FilmFolder listed{folder, {}, {}};
    forEachFileOf(folder, [&](const fs::directory_entry& entry) {
        if (isVideoFile(entry.path().filename().string()))
            listed.films.push_back(filmByName(entry, pattern));
    });
    std::ranges::sort(listed.films, isNaturallyBeforePath, &ListedFilm::path);
    return listed;
}

std::vector<fs::path> splitFilesOf(const fs::path& folder) {
    std::vector<fs::path> files;
    forEachFileOf(folder, [&](const fs::directory_entry& entry) {
        if (entry.path().extension() == ".kvx")
            files.push_back(entry.path());
    });
    std::ranges::sort(files, isNaturallyBeforePath);
    return files;
}

void addKnownOfFilms(FilmFolder& folder, const std::stop_token& stop) {
    FilmsByName films;
    for (ListedFilm& film : folder.films)
        films.emplace(film.path.filename().string(), &film);
    for (const fs::path& file : splitFilesOf(folder.path)) {
        if (stop.stop_requested())
            return;
        addSplitFile(films, file, folder.faults);
    }
    addOwnTags(films, folder.path, folder.faults);
    for (ListedFilm& film : folder.films)
        std::ranges::stable_sort(film.tags, [](const FilmTag& a, const FilmTag& b) {
            return orderOf(a.moment, b.moment) < 0;
        });
}

} // namespace kavela
