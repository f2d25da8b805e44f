#include "share/shared_folders.h"

#include <algorithm>

namespace kavela::share {

namespace {

constexpr std::size_t MostRemembered = 50;

} // namespace

std::vector<SharedFolder> sharedFolders(const std::vector<std::string>& kept) {
    std::vector<SharedFolder> folders;
    for (std::size_t i = 0; i + 1 < kept.size(); i += 2)
        folders.push_back({kept[i], kept[i + 1]});
    return folders;
}

std::optional<std::string> addressOfFolder(const std::vector<std::string>& kept,
                                           const std::string& folder) {
    const std::vector<SharedFolder> folders = sharedFolders(kept);
    const auto found = std::ranges::find(folders, folder, &SharedFolder::folder);
    return found == folders.end() ? std::nullopt : std::optional(found->address);
}

std::vector<std::string> keptWith(const std::vector<std::string>& kept,
                                  const SharedFolder& latest) {
    std::vector<std::string> list{latest.folder, latest.address};
    for (const SharedFolder& folder : sharedFolders(kept))
        if (folder.folder != latest.folder && list.size() < 2 * MostRemembered) {
            list.push_back(folder.folder);
            list.push_back(folder.address);
        }
    return list;
}

} // namespace kavela::share
