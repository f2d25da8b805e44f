#include "share/folder_files.h"

#include "common/display_text.h"
#include "common/error.h"
#include "common/text.h"
#include "share/shared_names.h"

#include <sys/stat.h>

namespace kavela::share {

namespace fs = std::filesystem;

namespace {

class FolderWalk {
public:
    FolderWalk(FolderFiles& found, const std::stop_token& stop) : m_found(found), m_stop(stop) {}

    void walk(const fs::path& folder, const std::string& within, int level) {
        std::error_code fault;
        for (fs::directory_iterator at(folder, fault), end; !fault && at != end;
             at.increment(fault))
            if (!m_stop.stop_requested())
                take(*at, within, level);
        // What is not listed would look as if it had been deleted.
        if (fault)
            throw FileError(folder, fault.message());
    }

private:
    void take(const fs::directory_entry& entry, const std::string& within, int level) {
        const std::string name = entry.path().filename().string();
        if (isLeftOut(name))
            return;
        const std::string path = within.empty() ? name : within + '/' + name;
        std::error_code fault;
        const fs::file_status status = entry.symlink_status(fault);
        if (const auto wrong = faultOfName(name))
            leaveOut(path, *wrong);
        else if (status.type() == fs::file_type::symlink)
            leaveOut(path, say("It is a link."));
        else if (status.type() == fs::file_type::directory && level >= MostLevels)
            leaveOut(path, say("It lies too deep."));
        else if (status.type() == fs::file_type::directory)
            walk(entry.path(), path, level + 1);
        else if (const auto file = fileNow(entry.path()))
            m_found.files.emplace(path, *file);
        if (m_found.files.size() > MostSharedFiles)
            throw FileError(entry.path().parent_path(), say("There are too many files to share."));
    }

    void leaveOut(const std::string& path, const std::string& reason) {
        m_found.leftOut.push_back({validUtf8(path), reason});
    }

    FolderFiles& m_found;
    const std::stop_token& m_stop;
};

} // namespace

FolderFiles filesIn(const fs::path& folder, const std::stop_token& stop) {
    std::error_code fault;
    if (fs::exists(folder, fault) && !fs::is_directory(folder, fault))
        throw FileError(folder, say("It is a file. A folder is shared."));
    FolderFiles found;
    FolderWalk(found, stop).walk(folder, {}, 1);
    return found;
}

std::optional<HereFile> fileNow(const fs::path& path) {
    struct ::stat facts {};
    if (::lstat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return std::nullopt;
    return HereFile{.size = facts.st_size,
                    .modified =
                        std::int64_t{facts.st_mtim.tv_sec} * 1'000'000'000 + facts.st_mtim.tv_nsec};
}

std::optional<fs::path> placeIn(const fs::path& folder, const std::string& path) {
    const fs::path relative(path);
    fs::path place = folder;
    for (const fs::path& part : relative) {
        if (faultOfName(part.string()))
            return std::nullopt;
        place /= part;
        std::error_code missing;
        if (fs::is_symlink(fs::symlink_status(place, missing)))
            return std::nullopt;
    }
    return relative.empty() ? std::nullopt : std::optional(place);
}

} // namespace kavela::share
