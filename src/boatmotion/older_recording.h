#pragma once

#include <filesystem>

/// Recordings of version 4, which no reader takes: they are brought to the current version in a
/// file of their own.
namespace kavela {

/// Writes the current version of a recording of version 4 beside it and gives where: run.kvb gives
/// run_v5.kvb, or run_v5_2.kvb where another file has that name. A file that holds just that
/// already is not written again. The recording itself is never touched.
/// Throws FileError, and DecodeError for a file that is no recording of version 4.
[[nodiscard]] std::filesystem::path upgradeRecording(const std::filesystem::path& recording);

} // namespace kavela
