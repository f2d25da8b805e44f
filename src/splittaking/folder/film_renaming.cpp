#include "splittaking/folder/film_renaming.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/posix_file.h"
#include "common/safe_file.h"
#include "common/text_file.h"
#include "splitdata/loader.h"
#include "splittaking/folder/film_list.h"
#include "splittaking/folder/film_tags.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <map>
#include <set>
#include <system_error>

namespace kavela {

namespace fs = std::filesystem;

namespace {

/// What the note of a renaming holds.
struct filmrenaming001 {
    FilmRenames films;
};
BOOST_DESCRIBE_STRUCT(filmrenaming001, (), (films))

using NewNames = std::map<std::string, std::string>;

/// What other programs and ours keep beside a film under its name.
constexpr std::array BesideFilms{".slit.json", ".track.json", ".srt"};

fs::path noteOf(const fs::path& folder) {
    return folder / ".kavela-renaming.json";
}

NewNames newNamesOf(const FilmRenames& names) {
    NewNames news;
    for (const auto& [from, to] : names)
        news.emplace(from, to);
    return news;
}

/// A file that is there is never replaced, also one that came this very moment.
void moveFile(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return;
    if (errno == EEXIST)
        throw FileError(to, "there is a file of this name already");
    if (errno != EINVAL && errno != ENOSYS)
        throw systemFileError(from);
    // Some disks know no such call.
    if (isTaken(to))
        throw FileError(to, "there is a file of this name already");
    if (::rename(from.c_str(), to.c_str()) != 0)
        throw systemFileError(from);
}

/// The film first: as long as it has its old name, nothing beside it has moved.
void moveFilm(const fs::path& folder, const filmrename001& name) {
    moveFile(folder / name.from, folder / name.to);
}

void moveBeside(const fs::path& folder, const filmrename001& name) {
    const std::string from = fs::path(name.from).stem().string();
    const std::string to = fs::path(name.to).stem().string();
    for (const char* const ending : BesideFilms)
        if (isTaken(folder / (from + ending)) && !isTaken(folder / (to + ending)))
            moveFile(folder / (from + ending), folder / (to + ending));
}

bool takeNewName(const NewNames& news, std::string& film) {
    const auto found = news.find(film);
    if (found == news.end())
        return false;
    film = found->second;
    return true;
}

/// Everything in a split file that knows a film by name; whether any of it is another one now.
bool takeNewNames(const NewNames& news, splittakerdata031& document) {
    bool isOther = false;
    const auto take = [&](std::string& film) { isOther = takeNewName(news, film) || isOther; };
    for (athletedata031& run : document.athletes) {
        std::ranges::for_each(run.videoname, take);
        std::ranges::for_each(run.fixcameras, take);
        for (timeloss031& loss : run.timeslosses)
            std::ranges::for_each(loss.videos, take);
    }
    for (ttdata030& trial : document.crossracedata.timetrials)
        take(trial.videoname);
    for (rounddata030& heat : document.crossracedata.eliphase)
        take(heat.videoname);
    return isOther;
}

RecognisedSplitFile readQuietly(const fs::path& file) {
    return recogniseSplitFile(
        file, [](std::string_view) {}, [] { return ReferenceDate{}; });
}

void followInSplitFiles(const fs::path& folder, const NewNames& news) {
    for (const fs::path& file : splitFilesOf(folder)) {
        RecognisedSplitFile read = readQuietly(file);
        if (read.isCurrent() && takeNewNames(news, read.document))
            writeFileSafely(file, encode(read.document));
    }
}

void followInTags(const fs::path& folder, const NewNames& news) {
    filmtags001 tags;
    try {
        tags = readFilmTags(folder);
    } catch (const DecodeError&) {
        return; // nothing of it can be read, nor be lost
    }
    bool isOther = false;
    for (taggedfilm001& film : tags.films)
        isOther = takeNewName(news, film.film) || isOther;
    if (isOther)
        writeFilmTags(folder, tags);
}

/// All that knows the films by name; to be called again at will.
void followEverywhere(const fs::path& folder, const FilmRenames& names) {
    for (const filmrename001& name : names)
        moveBeside(folder, name);
    const NewNames news = newNamesOf(names);
    followInSplitFiles(folder, news);
    followInTags(folder, news);
}

/// The note goes last: by then the names are on the disk.
void removeNote(const fs::path& folder) {
    PosixFile names(folder, O_RDONLY | O_DIRECTORY);
    if (::fsync(names.descriptor()) != 0 && errno != EINVAL) // some disks cannot
        throw systemFileError(folder);
    std::error_code fault;
    fs::remove(noteOf(folder), fault);
    if (fault)
        throw FileError(noteOf(folder), fault.message());
}

bool isBareName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

/// Names that come from a note may say anything.
void requireBareNames(const fs::path& folder, const FilmRenames& names) {
    for (const auto& [from, to] : names)
        if (!isBareName(from) || !isBareName(to))
            throw FileError(folder, "“" + (isBareName(from) ? to : from) +
                                        "” is no name of a file in this folder");
}

void requirePossible(const fs::path& folder, const FilmRenames& names) {
    requireBareNames(folder, names);
    if (isTaken(noteOf(folder)))
        throw FileError(folder,
                        "an earlier renaming was cut off; it has to be completed or undone");
    std::set<std::string> targets;
    for (const auto& [from, to] : names) {
        if (!isTaken(folder / from))
            throw FileError(folder / from, "the film is no longer there");
        if (isTaken(folder / to) || !targets.insert(to).second)
            throw FileError(folder / to, "there is a file of this name already");
    }
    const NewNames news = newNamesOf(names);
    for (const fs::path& file : splitFilesOf(folder)) {
        RecognisedSplitFile read = readQuietly(file);
        if (read.version && !read.isCurrent() && takeNewNames(news, read.document))
            throw FileError(file, "it has one of the films and is of an older release: open it in "
                                  "the analyzer first, which brings it to this one");
    }
}

/// Goes on from wherever it stands: a film is moved as long as it has its old name and nothing has
/// the new one.
void carryOn(const fs::path& folder, const FilmRenames& names) {
    requireBareNames(folder, names);
    for (const filmrename001& name : names) {
        if (isTaken(folder / name.from))
            moveFilm(folder, name);
        else if (!isTaken(folder / name.to))
            throw FileError(folder / name.from, "the film is no longer there");
    }
    followEverywhere(folder, names);
    removeNote(folder);
}

/// A film that was not moved yet has its old name: whatever has the new one is another file.
FilmRenames movedAmong(const fs::path& folder, const FilmRenames& names) {
    FilmRenames moved;
    for (const filmrename001& name : names)
        if (!isTaken(folder / name.from) && isTaken(folder / name.to))
            moved.push_back(name);
    return moved;
}

void takeBack(const fs::path& folder, const FilmRenames& moved) {
    for (const filmrename001& name : reversed(moved))
        moveFilm(folder, name);
}

/// What knows the films follows also where none is to be moved back any more: an earlier attempt
/// may have ended between the two.
void goBack(const fs::path& folder, const FilmRenames& names) {
    requireBareNames(folder, names);
    takeBack(folder, movedAmong(folder, names));
    followEverywhere(folder, reversed(names));
    removeNote(folder);
}

FilmRenames noted(const fs::path& folder) {
    if (auto names = interruptedRenaming(folder))
        return *names;
    throw FileError(folder, "no renaming was cut off here");
}

} // namespace

FilmRenames reversed(const FilmRenames& names) {
    FilmRenames back;
    for (const auto& [from, to] : names)
        back.push_back({to, from});
    std::ranges::reverse(back);
    return back;
}

std::vector<fs::path> splitFilesWith(const fs::path& folder, const FilmRenames& names) {
    const NewNames news = newNamesOf(names);
    std::vector<fs::path> files;
    for (const fs::path& file : splitFilesOf(folder))
        if (RecognisedSplitFile read = readQuietly(file);
            read.version && takeNewNames(news, read.document))
            files.push_back(file);
    return files;
}

void renameFilms(const fs::path& folder, const FilmRenames& names) {
    requirePossible(folder, names);
    writeFileSafely(noteOf(folder), encode(filmrenaming001{names}));
    FilmRenames moved; // a file that took a new name meanwhile is not ours to move back
    try {
        for (const filmrename001& name : names) {
            moveFilm(folder, name);
            moved.push_back(name);
        }
        followEverywhere(folder, names);
    } catch (const FileError& fault) {
        try {
            takeBack(folder, moved);
            followEverywhere(folder, reversed(moved));
            removeNote(folder);
        } catch (const FileError& second) {
            throw FileError(fault.path(), fault.reason() +
                                              "; what was renamed by then could not be taken back "
                                              "(" +
                                              second.what() + ")");
        }
        throw;
    }
    removeNote(folder);
}

std::optional<FilmRenames> interruptedRenaming(const fs::path& folder) {
    if (!isTaken(noteOf(folder)))
        return std::nullopt;
    return decodeText<filmrenaming001>(readTextFile(noteOf(folder))).films;
}

void completeRenaming(const fs::path& folder) {
    carryOn(folder, noted(folder));
}

void undoRenaming(const fs::path& folder) {
    goBack(folder, noted(folder));
}

} // namespace kavela
