#include "splittaking/folder/film_tags.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text_file.h"

#include <algorithm>
#include <system_error>

namespace kavela {

namespace fs = std::filesystem;

namespace {

fs::path tagsFileOf(const fs::path& folder) {
    return folder / "film-tags.json";
}

} // namespace

filmtags001 readFilmTags(const fs::path& folder) {
    const fs::path file = tagsFileOf(folder);
    if (!isTaken(file))
        return {};
    try {
        return decodeText<filmtags001>(readTextFile(file));
    } catch (const DecodeError& error) {
        throw DecodeError({"", file.string() + ": " + error.what()});
    }
}

void writeFilmTags(const fs::path& folder, const filmtags001& tags) {
    if (!tags.films.empty()) {
        writeFileSafely(tagsFileOf(folder), encode(tags));
        return;
    }
    std::error_code fault;
    fs::remove(tagsFileOf(folder), fault);
    if (fault)
        throw FileError(tagsFileOf(folder), fault.message());
}

void addFilmTag(const fs::path& film, const filmtag001& tag) {
    filmtags001 tags = readFilmTags(film.parent_path());
    const std::string name = film.filename().string();
    auto place = std::ranges::find(tags.films, name, &taggedfilm001::film);
    if (place == tags.films.end())
        place = tags.films.insert(place, {name, {}});
    place->tags.push_back(tag);
    writeFilmTags(film.parent_path(), tags);
}

bool removeFilmTag(const fs::path& film, const filmtag001& tag) {
    filmtags001 tags = readFilmTags(film.parent_path());
    const auto place =
        std::ranges::find(tags.films, film.filename().string(), &taggedfilm001::film);
    if (place == tags.films.end())
        return false;
    const auto found = std::ranges::find_if(place->tags, [&](const filmtag001& other) {
        return other.name == tag.name && other.moment == tag.moment;
    });
    if (found == place->tags.end())
        return false;
    place->tags.erase(found);
    if (place->tags.empty())
        tags.films.erase(place);
    writeFilmTags(film.parent_path(), tags);
    return true;
}

} // namespace kavela
