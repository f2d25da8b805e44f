#pragma once

#include <boost/describe.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kavela::fetch {

/// Where films come from and what becomes of them, as it is kept in a file. User name and password
/// are never part of it.
struct filmsource001 {
    std::string address; ///< with {bib} and others in it, or of a list of films
    std::string bibs;    ///< start list, results or split file; relative to the source's own folder
    std::string folder;  ///< for the films; relative in the same way, which is where it is itself
    std::string names;   ///< pattern of film names
    std::vector<std::string> hosts; ///< other servers that are ticked

    friend bool operator==(const filmsource001&, const filmsource001&) = default;
};
BOOST_DESCRIBE_STRUCT(filmsource001, (), (address, bibs, folder, names, hosts))

/// What is wrong with a source, in a sentence; nothing when it can be used.
[[nodiscard]] std::optional<std::string> faultOfSource(const filmsource001& source);

/// Reads a source; its places become absolute. Throws FileError and DecodeError.
[[nodiscard]] filmsource001 readSource(const std::filesystem::path& path);

/// Writes a source with places relative to its file where they lie in or below its folder. Throws
/// FileError and EncodeError.
void writeSource(const filmsource001& source, const std::filesystem::path& path);

} // namespace kavela::fetch
