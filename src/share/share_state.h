#pragma once

#include <boost/describe.hpp>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// What both sides were when they last agreed. It is kept beside the folder, and may be lost at any
/// time: nothing is overwritten or deleted then, and what is the same is found to be so again.
namespace kavela::share {

/// A file as it was on both sides.
struct KnownFile {
    std::string mark = {};     ///< of the server for this state; empty where it told none
    std::string sha256 = {};   ///< small hexadecimal digits
    std::int64_t size = 0;     ///< bytes
    std::int64_t modified = 0; ///< of the file here in nanoseconds, compared for being the same
};

using KnownFiles = std::map<std::string, KnownFile>;

/// What is written of one file.
struct sharedfile001 {
    std::string path;
    std::string mark;
    std::string sha256;
    std::int64_t size = 0;
    std::int64_t modified = 0;
};
BOOST_DESCRIBE_STRUCT(sharedfile001, (), (path, mark, sha256, size, modified))

/// The file of a folder and the address that it is shared to.
struct sharestate001 {
    std::string folder;
    std::string address;
    std::vector<sharedfile001> files;
};
BOOST_DESCRIBE_STRUCT(sharestate001, (), (folder, address, files))

/// A folder in its place here and on the server; by both it is known.
struct SharedPlace {
    std::string folder;  ///< absolute, without links
    std::string address; ///< without a password
};

/// Where the state stands within the folder of caches.
[[nodiscard]] std::filesystem::path statePath(const std::filesystem::path& caches,
                                              const SharedPlace& place);

/// Nothing is known where there is no file, or one that is damaged or of another place.
[[nodiscard]] KnownFiles readState(const std::filesystem::path& path, const SharedPlace& place);

/// Throws FileError and EncodeError.
void writeState(const std::filesystem::path& path, const SharedPlace& place,
                const KnownFiles& known);

} // namespace kavela::share
