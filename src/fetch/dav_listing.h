#pragma once

#include "fetch/address.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::fetch {

/// What WebDAV tells of one file or folder.
struct DavEntry {
    Address address;
    bool isFolder = false;
    std::optional<std::int64_t> size = std::nullopt; ///< in bytes, where it is told
    /// Of its state: the entity tag without the mark of a weak one, else the moment of its last
    /// change and its size; empty where neither is told.
    std::string mark = {};
    bool isTag = false;      ///< the mark is an entity tag
    std::string sha256 = {}; ///< small hexadecimal digits, where the server tells it

    friend bool operator==(const DavEntry&, const DavEntry&) = default;
};

/// The entries of an answer that was found at `base`, in its order, the folder itself among them.
/// What has no address is left out. Throws ListingError for what is no such answer.
[[nodiscard]] std::vector<DavEntry> entriesOfDav(std::string_view body, const Address& base);

/// An entity tag as marks have it.
[[nodiscard]] std::string markOfTag(std::string_view etag);

/// The body that asks for all of this.
[[nodiscard]] std::string_view davQuestion();

} // namespace kavela::fetch
