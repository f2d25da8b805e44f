#pragma once

#include "common/cm_time.h"

#include <boost/describe.hpp>

#include <filesystem>
#include <string>
#include <vector>

/// Tags that a coach sets on the films of a folder, kept beside them: not every film has a run in a
/// split file, and one that split taking has open is not written from elsewhere.
namespace kavela {

struct filmtag001 {
    std::string name;
    CMTime moment;
};
BOOST_DESCRIBE_STRUCT(filmtag001, (), (name, moment))

struct taggedfilm001 {
    std::string film; ///< bare name
    std::vector<filmtag001> tags;
};
BOOST_DESCRIBE_STRUCT(taggedfilm001, (), (film, tags))

/// What the file "film-tags.json" of a folder holds.
struct filmtags001 {
    std::vector<taggedfilm001> films;
};
BOOST_DESCRIBE_STRUCT(filmtags001, (), (films))

/// The tags of a folder; none where none was ever set. Throws FileError, and DecodeError for a file
/// that holds something else.
[[nodiscard]] filmtags001 readFilmTags(const std::filesystem::path& folder);

/// Writes them safely; without any tag the file goes. Throws FileError.
void writeFilmTags(const std::filesystem::path& folder, const filmtags001& tags);

/// Sets a tag on a film of the folder. Throws as reading and writing do: a file that cannot be read
/// is never replaced.
void addFilmTag(const std::filesystem::path& film, const filmtag001& tag);

/// Takes a tag off again. False when there is none of this name at this moment. Throws likewise.
bool removeFilmTag(const std::filesystem::path& film, const filmtag001& tag);

} // namespace kavela
