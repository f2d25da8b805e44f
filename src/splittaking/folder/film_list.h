#pragma once

#include "common/cm_time.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

/// The films of a folder, and what is known of each without opening it.
namespace kavela {

/// A moment of a film that the coach gave a name.
struct FilmTag {
    std::string name;
    CMTime moment;              ///< of this film
    bool isOfSplitFile = false; ///< otherwise it was set on the film itself

    friend bool operator==(const FilmTag&, const FilmTag&) = default;
};

/// A film of a folder. Whose run it shows is told by the split file that times it, otherwise by its
/// name; the bib by its name alone.
struct ListedFilm {
    std::filesystem::path path;
    std::vector<std::string> names; ///< the crew
    std::string category;
    std::string phase;
    std::optional<int> bib;
    std::optional<int> number;
    std::filesystem::path splitFile; ///< beside it, that has it; empty for none
    std::optional<CMTime> firstMark; ///< where its run starts on it
    std::vector<FilmTag> tags;       ///< in the order of the film
    std::uintmax_t bytes = 0;
    std::int64_t written = 0; ///< ticks of the disk's clock, to tell contents apart
};

struct FilmFolder {
    std::filesystem::path path;
    std::vector<ListedFilm> films;   ///< in the order of their names
    std::vector<std::string> faults; ///< what beside the films could not be read, for the coach
};

/// The films of a folder by their names, which `pattern` tells how to read; those of folders in it
/// are left out. Nothing but names and sizes is read. Throws FileError where the folder cannot be.
[[nodiscard]] FilmFolder listFilms(const std::filesystem::path& folder, std::string_view pattern);

/// Adds what the split files of the folder know of its films, and the tags set on them. A file that
/// cannot be read is one of the faults. Ends early once `stop` is requested.
void addKnownOfFilms(FilmFolder& folder, const std::stop_token& stop = {});

/// Every split file of a folder, in the order of their names.
[[nodiscard]] std::vector<std::filesystem::path> splitFilesOf(const std::filesystem::path& folder);

} // namespace kavela
