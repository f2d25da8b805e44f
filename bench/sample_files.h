#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The texts and files that several subjects measure, made once.
namespace kavela::bench {

/// A folder for the files of the benchmarks, removed with all its content.
class ScratchFolder {
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// Writes a file of that name and says where it is.
    std::filesystem::path write(const std::string& name, const std::string& content) const;

private:
    std::filesystem::path m_path;
};

/// A split file of 40 MB, nearly all of it motion samples.
[[nodiscard]] const std::string& recordedRaceText();

/// A raw recording of 40 MB.
[[nodiscard]] const std::string& recordingText();

} // namespace kavela::bench
