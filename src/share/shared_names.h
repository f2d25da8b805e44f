#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// Names of files that two sides exchange. Nothing that a server says may lead out of the folder.
namespace kavela::share {

/// Why one part of a path is not taken, in a sentence: "..", a slash, a control character, bytes
/// that are no text. Nothing where it is.
[[nodiscard]] std::optional<std::string> faultOfName(std::string_view name);

/// Why a computer with Windows could not take a name that is taken here ("CON", "a:b", "end."), in
/// a sentence; empty where it could.
[[nodiscard]] std::string windowsNote(std::string_view name);

/// Whether a file is left out on either side: hidden, or a part of a transfer.
[[nodiscard]] bool isLeftOut(std::string_view name);

/// "Race (from LAPTOP, 2026-05-12).kvx" of "Race.kvx", or with " 2", " 3" and so on behind the date
/// where `isTaken` knows the name. Of a path the folders stay as they are.
[[nodiscard]] std::string conflictName(const std::string& path, const std::string& machine,
                                       std::chrono::year_month_day date,
                                       const std::function<bool(const std::string& path)>& isTaken);

} // namespace kavela::share
