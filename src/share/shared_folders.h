#pragma once

#include <optional>
#include <string>
#include <vector>

/// Which folder was shared to which address, as the settings remember it: folder and address in
/// turn, the latest first. Passwords are no part of it.
namespace kavela::share {

/// The key of the list in the settings.
inline constexpr const char* SharedFoldersKey = "sharedFolders";

struct SharedFolder {
    std::string folder; ///< absolute
    std::string address;

    friend bool operator==(const SharedFolder&, const SharedFolder&) = default;
};

[[nodiscard]] std::vector<SharedFolder> sharedFolders(const std::vector<std::string>& kept);

/// Where a folder was shared to last.
[[nodiscard]] std::optional<std::string> addressOfFolder(const std::vector<std::string>& kept,
                                                         const std::string& folder);

/// The list with this folder in front, which may have had another address.
[[nodiscard]] std::vector<std::string> keptWith(const std::vector<std::string>& kept,
                                                const SharedFolder& latest);

} // namespace kavela::share
