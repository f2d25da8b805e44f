#pragma once

#include "splittaking/annotations/film_marks.h"

#include <span>

/// The coach's own tags on a run's films. A tag has a name and a moment on one of the run's videos,
/// and on a fixed camera where it was marked there too. The lists of a file may be of different
/// lengths: a tag exists where one of them reaches, and an edit fills up only what it writes to.
namespace kavela {

/// Which tag: an entry of one of the run's records, both counted from 0.
struct TagHandle {
    std::size_t record = 0;
    std::size_t entry = 0;

    friend bool operator==(const TagHandle&, const TagHandle&) = default;
};

struct Tag {
    TagHandle handle;
    std::string name; ///< empty where the file has none
    std::int64_t video = 0;
    std::optional<CMTime> moment;
    std::int64_t fixedCamera = 0;
    std::optional<CMTime> fixedMoment;
};

/// All tags of a run, in the order of the file.
[[nodiscard]] std::vector<Tag> tagsOf(const athletedata031& run);

/// Adds a tag to a video of the run, counted from 0.
TagHandle addTag(athletedata031& run, std::int64_t video, std::string name, const CMTime& moment);

/// The edits of a tag. Each throws std::out_of_range when it does not exist.
void moveTag(athletedata031& run, TagHandle handle, const CMTime& moment);
void renameTag(athletedata031& run, TagHandle handle, std::string name);

/// Marks the tag's moment on a fixed camera too. A record has one such camera: a tag whose record
/// already has moments on another one goes to a record of its own camera. Returns the tag's place.
TagHandle setFixedMoment(athletedata031& run, TagHandle handle, std::int64_t fixedCamera,
                         const CMTime& moment);

/// Takes the moment on the fixed camera out.
void clearFixedMoment(athletedata031& run, TagHandle handle);

/// Takes the tag out of all lists of its record, and the record with its last tag unless it has
/// comments.
void removeTag(athletedata031& run, TagHandle handle);

/// Gives all tags of a name another one; returns how many there were.
std::size_t renameTags(athletedata031& run, const std::string& from, const std::string& to);

/// The names that a coach can choose from: those of the file, those saved for reuse, and those that
/// its runs use, each once.
[[nodiscard]] std::vector<std::string> tagNames(const infodata031& info,
                                                std::span<const std::string> saved,
                                                std::span<const athletedata031> runs);

} // namespace kavela
