#include "share/share_state.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"

#include <fmt/format.h>

namespace kavela::share {

namespace fs = std::filesystem;

namespace {

/// Which file is whose: places that share a number would only lose their states to each other.
std::uint64_t numberOf(std::string_view text) {
    std::uint64_t number = 14'695'981'039'346'656'037U;
    for (const char c : text)
        number = (number ^ static_cast<unsigned char>(c)) * 1'099'511'628'211U;
    return number;
}

} // namespace

fs::path statePath(const fs::path& caches, const SharedPlace& place) {
    return caches / fmt::format("{:016x}.json", numberOf(place.folder + '\n' + place.address));
}

KnownFiles readState(const fs::path& path, const SharedPlace& place) {
    KnownFiles known;
    std::error_code missing;
    if (path.empty() || !fs::exists(path, missing))
        return known;
    try {
        const auto state = decode<sharestate001>(JsonDocument::fromFile(path));
        if (state.folder != place.folder || state.address != place.address)
            return known;
        for (const sharedfile001& file : state.files)
            known[file.path] = {file.mark, file.sha256, file.size, file.modified};
    } catch (const std::runtime_error&) {
        known.clear(); // as good as lost
    }
    return known;
}

void writeState(const fs::path& path, const SharedPlace& place, const KnownFiles& known) {
    sharestate001 state{place.folder, place.address, {}};
    for (const auto& [name, file] : known)
        state.files.push_back({name, file.mark, file.sha256, file.size, file.modified});
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored); // writing tells what is wrong
    writeFileSafely(path, encode(state));
}

} // namespace kavela::share
