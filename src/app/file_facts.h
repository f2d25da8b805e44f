#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kavela {

/// A record that a file was tried as in vain.
struct AttemptFact {
    std::string record;
    std::string fault;
};

/// What a file is.
struct FileFacts {
    std::string path;
    std::string kind = "unknown";
    std::optional<std::string> record;
    std::optional<std::string> label;
    bool current = false;
    std::map<std::string, std::int64_t> counts;
    std::optional<std::string> error; ///< nothing when the file decoded
    std::vector<AttemptFact> attempts;
    std::optional<std::string> unread; ///< why it could not even be read; not in the JSON
};

/// Finds out what a file is by decoding it: first as what its extension promises, then as anything
/// else. The file is only read.
[[nodiscard]] FileFacts factsOf(const std::filesystem::path& path);

/// The facts of several files as one JSON document, ended by a line feed.
[[nodiscard]] std::string factsJson(const std::vector<FileFacts>& facts);

} // namespace kavela
