#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kavela {

/// A file of the sample season.
struct SampleFile {
    std::filesystem::path name; ///< relative, with its folder
    std::string content;
};

/// The sample season: races, trainings, recordings, a team, a selection, and files of older
/// releases, all of invented people on invented courses. The same bytes at every call.
[[nodiscard]] std::vector<SampleFile> sampleSeason();

/// Writes what of it a folder does not hold yet, and leaves what is there as it is. Throws
/// FileError.
void writeSampleSeason(const std::filesystem::path& folder);

} // namespace kavela
