#include "desktop/shell/open_files.h"

#include "desktop/shell/file_names.h"

#include <algorithm>

namespace kavela::desktop {

void OpenFiles::hold(const EditedFile& document, const QString& path) {
    m_paths[&document] = canonicalPath(path);
}

void OpenFiles::release(const EditedFile& document) {
    m_paths.erase(&document);
}

const EditedFile* OpenFiles::holderOf(const QString& path) const {
    const auto found = std::ranges::find_if(
        m_paths, [&](const auto& held) { return isSameFile(held.second, path); });
    return found == m_paths.end() ? nullptr : found->first;
}

} // namespace kavela::desktop
