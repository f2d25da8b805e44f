#pragma once

#include "facts/folder_walk.h"

namespace kavela {

/// What became of a file that was looked at.
struct FileReading {
    enum class Outcome {
        Read,    ///< `facts` holds it alone
        Other,   ///< no split file, nor was one promised
        Refused, ///< a split file was promised, but no release can have written this
        Failed,  ///< it could not be read; another time it may be
        Vanished ///< it is no longer there
    };

    Outcome outcome = Outcome::Failed;
    FactStore facts;
    std::uint64_t hash = 0; ///< of the content, where it was read
    FileStamp stamp;        ///< the file's, without a moment where it changed meanwhile
    std::string reason;     ///< where it was refused or failed
};

/// Reads a split file of any release, and nothing else.
[[nodiscard]] FileReading readSplitFacts(const std::filesystem::path& path, const FoundFile& file);

} // namespace kavela
