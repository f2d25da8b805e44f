#pragma once

#include "common/log.h"

#include <filesystem>
#include <string_view>

namespace kavela {

/// Keeps the present content of a file, before it is rewritten, beside it as "NAME_old" with an
/// extension such as ".kvb", or "NAME_old2" and so on where that is taken. Returns the name; an
/// empty path when it cannot be kept, with `failure` and the reason in the log.
[[nodiscard]] std::filesystem::path keepPreviousFile(const std::filesystem::path& path,
                                                     std::string_view extension,
                                                     std::string_view failure,
                                                     const DiagnosticLog& log);

/// Whether a file name is one that keeps a previous file.
[[nodiscard]] bool isKeptName(const std::filesystem::path& path);

} // namespace kavela
