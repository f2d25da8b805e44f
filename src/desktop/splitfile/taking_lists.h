#pragma once

#include "splitdata/document.h"

#include <filesystem>

namespace kavela::desktop {

/// What is written beside a split file, under its name.
struct BesideFile {
    bool csv = false; ///< the table of splits
    bool pdf = false; ///< the report of the race
};

/// Writes the lists that are wanted; none of a document without runs. Throws FileError.
void writeBeside(splittakerdata031 document, const std::filesystem::path& file,
                 const BesideFile& lists);

} // namespace kavela::desktop
