#pragma once

#include <cstddef>
#include <filesystem>

namespace kavela::bench {

/// So many split files of 60 runs each, which differ in their times, places and days. They are made
/// once and stay beside the build for later calls: making them takes longer than reading them.
class ManySeasons {
public:
    /// Makes what is missing. Throws FileError.
    explicit ManySeasons(std::size_t files);

    [[nodiscard]] const std::filesystem::path& folder() const { return m_folder; }

    /// Changes so many of the files, for whoever looks at sizes and moments of change.
    void touch(std::size_t files);

private:
    [[nodiscard]] std::filesystem::path pathOf(std::size_t file) const;

    std::filesystem::path m_folder;
    std::size_t m_files;
    int m_touches = 0;
};

} // namespace kavela::bench
