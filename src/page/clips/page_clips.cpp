#include "page/clips/page_clips.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "video/index.h"
#include "video/thumbnail.h"
#include "video/writing/film_cut.h"
#include "video/writing/jpeg.h"

#include <exception>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace kavela::page {

namespace fs = std::filesystem;

namespace {

constexpr VideoSize PosterBox{640, 640};

void makeFolder(const fs::path& folder) {
    std::error_code fault;
    fs::create_directories(folder, fault);
    if (fault)
        throw FileError(folder, fault.message());
}

/// Beside its place first: a clip that is there stays until the new one can take it.
std::optional<fs::path> cutAside(const ClipOrder& order, const std::stop_token& stop) {
    if (std::error_code none; !fs::exists(order.film, none))
        throw std::runtime_error(say("The film is not there."));
    const auto film = readVideoIndex(order.film, stop);
    if (!film)
        return std::nullopt;
    const auto first = film->frameAt(order.from);
    const auto last = film->frameAt(order.to);
    if (!first || !last || *last <= *first)
        throw std::runtime_error(say("The marks of the run lie behind the end of the film."));
    makeFolder(order.target.parent_path());
    fs::path aside = order.target;
    aside += " new.mp4"; // the end follows the film
    return cutFilm(film, {.kind = CutKind::Copy, .first = *first, .last = *last, .target = aside},
                   stop);
}

void cutClip(const ClipOrder& order, const std::stop_token& stop) {
    const auto aside = cutAside(order, stop);
    if (!aside)
        return;
    fs::path clip = order.target;
    clip += aside->extension();
    fs::path poster = order.target;
    poster += ".jpg";
    try {
        if (const Picture picture = readThumbnail(*aside, PosterBox, stop).picture; picture.pixels)
            writeFileSafely(poster, jpegOf(picture));
        fs::rename(*aside, clip);
    } catch (const std::exception&) {
        std::error_code ignored;
        fs::remove(*aside, ignored);
        throw;
    }
}

} // namespace

std::vector<ClipFault> cutClips(std::span<const ClipOrder> orders, const std::stop_token& stop,
                                const std::function<void(std::size_t done)>& onProgress) {
    std::vector<ClipFault> faults;
    std::size_t done = 0;
    for (const ClipOrder& order : orders) {
        if (stop.stop_requested())
            break;
        try {
            cutClip(order, stop);
        } catch (const std::exception& fault) {
            faults.push_back({order.film, fault.what()});
        }
        if (onProgress)
            onProgress(++done);
    }
    return faults;
}

} // namespace kavela::page
