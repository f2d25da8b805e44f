#include "facts/folder_walk.h"

#include "common/posix_file.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <memory>
#include <set>

namespace kavela {

namespace fs = std::filesystem;

namespace {

using Identity = std::pair<std::uint64_t, std::uint64_t>;

constexpr std::string_view SplitFileExtension = ".kvx";
/// Of documents of this program that are no split files. A split file that the analyzer kept under
/// the last but one's is a previous state of one beside it.
constexpr std::array<std::string_view, 8> OtherExtensions{
    ".kvsr", ".kvteam", ".kvtest", ".planning", ".planinf", ".sbm", ".kvb", ".bms"};

std::string smallExtension(const fs::path& path) {
    std::string extension = path.extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

FoundFile found(std::string path, const struct ::stat& status) {
    constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
    FoundFile file;
    file.isPromised = smallExtension(path) == SplitFileExtension;
    file.path = std::move(path);
    file.stamp.size = static_cast<std::uint64_t>(status.st_size);
    file.stamp.modified = status.st_mtim.tv_sec * NanosecondsPerSecond + status.st_mtim.tv_nsec;
    file.identity = {status.st_dev, status.st_ino};
    return file;
}

class Walk {
public:
    explicit Walk(fs::path root) : m_root(std::move(root)) {}

    FolderWalk run() {
        enter({});
        std::ranges::sort(m_found.files, {}, &FoundFile::path);
        return std::move(m_found);
    }

private:
    struct CloseFolder {
        void operator()(DIR* folder) const { ::closedir(folder); }
    };

    /// Of the folder at a path below the root, which is empty for the root itself.
    void enter(const std::string& below) {
        const fs::path folder = below.empty() ? m_root : m_root / below;
        const std::unique_ptr<DIR, CloseFolder> entries(::opendir(folder.c_str()));
        struct ::stat status {};
        // One that may be listed but not entered tells names and nothing of what they stand for.
        if (!entries || ::access(folder.c_str(), X_OK) != 0 ||
            ::fstat(::dirfd(entries.get()), &status) != 0) {
            refuse(folder, below.empty());
            return;
        }
        if (!m_folders.insert({status.st_dev, status.st_ino}).second)
            return; // a link led back here
        m_found.folders.push_back(folder);
        std::vector<std::string> names = namesIn(*entries, folder);
        // In their own order, so that of several links to a file always the same one counts.
        std::ranges::sort(names);
        for (const std::string& name : names)
            meet(below.empty() ? name : below + '/' + name);
    }

    std::vector<std::string> namesIn(DIR& entries, const fs::path& folder) {
        std::vector<std::string> names;
        for (errno = 0; const dirent* const entry = ::readdir(&entries); errno = 0)
            if (entry->d_name[0] != '.')
                names.emplace_back(entry->d_name);
        if (errno != 0)
            refuse(folder, false);
        return names;
    }

    void meet(const std::string& below) {
        const fs::path path = m_root / below;
        struct ::stat status {};
        if (::stat(path.c_str(), &status) != 0) {
            // Gone meanwhile, or a link that leads nowhere.
            if (errno != ELOOP)
                refuse(path, false);
            return;
        }
        if (S_ISDIR(status.st_mode))
            enter(below);
        else if (S_ISREG(status.st_mode) && !isOtherDocument(path) &&
                 m_files.insert({status.st_dev, status.st_ino}).second)
            m_found.files.push_back(found(below, status));
    }

    static bool isOtherDocument(const fs::path& path) {
        return std::ranges::count(OtherExtensions, smallExtension(path)) > 0;
    }

    /// Takes down the failure of the system call that was made last.
    void refuse(const fs::path& path, bool isRoot) {
        if (isRoot || errno != ENOENT)
            m_found.faults.push_back({path, systemFileError(path).reason()});
    }

    fs::path m_root;
    std::set<Identity> m_folders;
    std::set<Identity> m_files;
    FolderWalk m_found;
};

} // namespace

FolderWalk walkFolder(const fs::path& folder) {
    return Walk(folder).run();
}

FoundFile foundFile(const fs::path& path) {
    struct ::stat status {};
    if (::stat(path.c_str(), &status) != 0)
        throw systemFileError(path);
    FoundFile file = found(path.native(), status);
    file.isPromised = true;
    return file;
}

} // namespace kavela
