#pragma once

#include <boost/describe.hpp>

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// Renames films together with what knows them by name: the split files and the tags of their
/// folder. A note in the folder says what is being done: work that was cut off, be it by the power,
/// is completed or undone from it. No file is ever replaced.
namespace kavela {

/// A file of the folder and its other name, both bare.
struct filmrename001 {
    std::string from;
    std::string to;

    friend bool operator==(const filmrename001&, const filmrename001&) = default;
};
BOOST_DESCRIBE_STRUCT(filmrename001, (), (from, to))

using FilmRenames = std::vector<filmrename001>;

/// The way back.
[[nodiscard]] FilmRenames reversed(const FilmRenames& names);

/// The split files of a folder that have one of the films.
[[nodiscard]] std::vector<std::filesystem::path> splitFilesWith(const std::filesystem::path& folder,
                                                                const FilmRenames& names);

/// Renames all of them, or none: what was done before a fault is undone. Throws FileError with what
/// stood in the way: a name that is taken, a split file of an older release that has one of the
/// films, a disk that is full; where undoing failed too, it says so and the note stays.
void renameFilms(const std::filesystem::path& folder, const FilmRenames& names);

/// What was being renamed when the work was cut off; nothing where none was. Throws FileError and
/// DecodeError for a note that cannot be read.
[[nodiscard]] std::optional<FilmRenames> interruptedRenaming(const std::filesystem::path& folder);

/// Does what is left of it, or takes back what was done, and removes the note. May be called again
/// after a fault, which is a FileError.
void completeRenaming(const std::filesystem::path& folder);
void undoRenaming(const std::filesystem::path& folder);

} // namespace kavela
