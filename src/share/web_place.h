#pragma once

#include "fetch/address.h"

#include <optional>
#include <string>
#include <string_view>

namespace kavela::share {

/// Whether a host is this computer, by its name or number alone.
[[nodiscard]] bool isThisComputer(std::string_view host);

/// Why files cannot be shared to an address, in a sentence: it is none, has a user name in it, or
/// is not https where it leads to another computer. Nothing where they can.
[[nodiscard]] std::optional<std::string> faultOfPlace(std::string_view address);

/// The folder of an address that has no fault: it ends with a slash, and has no query.
[[nodiscard]] fetch::Address folderAt(std::string_view address);

/// A file of a path within a folder.
[[nodiscard]] fetch::Address fileAt(const fetch::Address& folder, std::string_view path);
/// The same of a folder; the folder itself for an empty path.
[[nodiscard]] fetch::Address folderAt(const fetch::Address& folder, std::string_view path);

} // namespace kavela::share
