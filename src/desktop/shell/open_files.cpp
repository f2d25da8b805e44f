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
    const QString wanted = canonicalPath(path);
    const auto found = std::ranges::find_if(
        m_paths, [&](const auto& held) { return held.second == wanted; });
    return found == m_paths.end() ? nullptr : found->first;
}

} // namespace kavela::desktop
