#pragma once

#include "update/manifest.h"

#include <filesystem>
#include <string>
#include <vector>

/// The manifest of a release, made from the files that are to be given out.
namespace kavela::update {

/// What a release is made of.
struct Release {
    std::string version;
    std::string date;
    std::string notes;
    std::string base; ///< address of the folder that the files will lie in
    std::vector<std::filesystem::path> files;
};

/// The platform that a file is for, by its name: "kavela_0.32.0_amd64.deb" is "deb-amd64",
/// "kavela-0.32.0-amd64.tar.zst" is "bundle-amd64". Empty for any other name.
[[nodiscard]] std::string platformOf(const std::string& fileName);

/// The text of the manifest, which readManifest() takes. Throws FileError for a file that cannot be
/// read, DecodeError where the manifest would not be one, naming the field.
[[nodiscard]] std::string manifestText(const Release& release);

} // namespace kavela::update
