#pragma once

#include "common/posix_file.h"
#include "video/writing/film_sink.h"

#include <filesystem>
#include <optional>
#include <stop_token>

namespace kavela {

/// A file on its way: it stands under a hidden name beside its own, ".NAME.PID-n.tmp", and is
/// removed again unless it is finished.
class UnfinishedFile final : public FilmSink {
public:
    /// Removes what a killed program left of the same film half an hour ago or earlier. Throws
    /// FileError where the folder cannot be written to. Once `stop` is requested, writing
    /// throws FilmStopped.
    explicit UnfinishedFile(std::filesystem::path target, std::stop_token stop = {});
    ~UnfinishedFile() override;

    void write(std::span<const std::uint8_t> bytes) override;
    void seek(std::int64_t place) override;
    [[nodiscard]] std::string readablePath() const override;

    /// Brings all to the disk and gives the file its name; where that is taken "NAME 2", "NAME 3"
    /// and so on. Returns the name that it got. Throws FileError.
    std::filesystem::path finish();

private:
    [[nodiscard]] bool isNamed(const std::filesystem::path& name);
    [[noreturn]] void fail() const;

    std::filesystem::path m_target;
    std::stop_token m_stop;
    std::optional<PosixFile> m_file; ///< none once it has its name
    std::filesystem::path m_hidden;
};

/// The name itself for 1, otherwise with the number before its extension: "film 2.mp4".
[[nodiscard]] std::filesystem::path numberedName(const std::filesystem::path& name, int number);

} // namespace kavela
