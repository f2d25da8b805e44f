#pragma once

#include "page/page_films.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela::page {

/// A clip that could not be cut, and why.
struct ClipFault {
    std::filesystem::path film;
    std::string reason;
};

/// Cuts clips out of their films by taking over what is stored, and makes a picture of each. An
/// earlier clip of the same run is replaced once the new one is whole. A film that is missing or
/// cannot be read, and a disk that takes no clip, are told, and the others are cut all the same.
/// `onProgress` gets how many are done, from the calling thread.
[[nodiscard]] std::vector<ClipFault>
cutClips(std::span<const ClipOrder> orders, const std::stop_token& stop = {},
         const std::function<void(std::size_t done)>& onProgress = {});

} // namespace kavela::page
