#include "fetch/fetch_source.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "fetch/url_pattern.h"
#include "splittaking/video_names.h"

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

std::string absolutePlace(const std::string& place, const fs::path& folder) {
    return (folder / fs::path(place)).lexically_normal().string();
}

std::string relativePlace(const std::string& place, const fs::path& folder) {
    const fs::path relative = fs::path(place).lexically_relative(folder);
    return relative.empty() || *relative.begin() == ".." ? place : relative.string();
}

fs::path folderOf(const fs::path& path) {
    return fs::absolute(path).lexically_normal().parent_path();
}

} // namespace

std::optional<std::string> faultOfSource(const filmsource001& source) {
    if (source.address.empty())
        return say("There is no address yet.");
    if (UrlPattern::isPattern(source.address)) {
        if (const auto fault = UrlPattern(source.address).fault())
            return fault;
    } else if (!parsedAddress(source.address)) {
        return say("The address must begin with https:// or http:// and hold no user name and "
                   "password.");
    }
    if (source.bibs.empty())
        return say("There is no start list, results list or split file for the bibs yet.");
    if (source.folder.empty())
        return say("There is no folder for the films yet.");
    if (const auto fault = faultOfVideoPattern(source.names))
        return say("The pattern of names: {}", *fault);
    return std::nullopt;
}

filmsource001 readSource(const fs::path& path) {
    auto source = decode<filmsource001>(JsonDocument::fromFile(path));
    const fs::path folder = folderOf(path);
    if (!source.bibs.empty())
        source.bibs = absolutePlace(source.bibs, folder);
    source.folder = absolutePlace(source.folder, folder);
    return source;
}

void writeSource(const filmsource001& source, const fs::path& path) {
    filmsource001 written = source;
    const fs::path folder = folderOf(path);
    if (!written.bibs.empty())
        written.bibs = relativePlace(written.bibs, folder);
    if (!written.folder.empty())
        written.folder = relativePlace(written.folder, folder);
    writeFileSafely(path, encode(written));
}

} // namespace kavela::fetch
