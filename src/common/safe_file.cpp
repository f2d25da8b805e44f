#include "common/safe_file.h"

#include "common/posix_file.h"
#include "common/text.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <optional>

namespace kavela {

namespace fs = std::filesystem;

namespace {

constexpr unsigned NewFileMode = 0666; // less what the user's mask takes away

/// A file being written under a name of its own, removed again unless it was renamed.
class TemporaryFile {
public:
    /// `mode` is that of the file to be replaced, so that a private one is never open to others.
    TemporaryFile(const fs::path& target, unsigned mode) : m_file(create(target, mode)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!m_renamed)
            ::unlink(m_file.path().c_str());
    }

    void write(std::string_view content) {
        while (!content.empty()) {
            const ssize_t written = ::write(m_file.descriptor(), content.data(), content.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                throw systemFileError(m_file.path());
            content.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void takeModeOf(const struct ::stat& status) {
        // Only an administrator may give a file away; others can at most keep its group.
        const bool isAdministrator = ::geteuid() == 0;
        const ::uid_t owner = isAdministrator ? status.st_uid : static_cast<::uid_t>(-1);
        const bool isGiven = ::fchown(m_file.descriptor(), owner, status.st_gid) == 0;
        if (isAdministrator && !isGiven)
            throw systemFileError(m_file.path());
        if (::fchmod(m_file.descriptor(), status.st_mode & 07777) != 0)
            throw systemFileError(m_file.path());
    }

    void flush() {
        if (::fsync(m_file.descriptor()) != 0)
            throw systemFileError(m_file.path());
        m_file.close();
    }

    void renameTo(const fs::path& target) {
        if (::rename(m_file.path().c_str(), target.c_str()) != 0)
            throw systemFileError(target);
        m_renamed = true;
    }

private:
    static PosixFile create(const fs::path& target, unsigned mode) {
        constexpr int Attempts = 100;
        for (int attempt = 0;; ++attempt) {
            const fs::path path = target.parent_path() / freshName(target, attempt);
            try {
                return {path, O_WRONLY | O_CREAT | O_EXCL, mode};
            } catch (const FileError&) {
                if (errno != EEXIST || attempt == Attempts)
                    throw;
            }
        }
    }

    static std::string freshName(const fs::path& target, int attempt) {
        constexpr std::size_t LongestStem = 200; // names end at 255 bytes on the usual disks
        return '.' + target.filename().string().substr(0, LongestStem) + '.' +
               std::to_string(::getpid()) + '-' + std::to_string(attempt) + ".tmp";
    }

    PosixFile m_file;
    bool m_renamed = false;
};

void flushFolder(const fs::path& folder) {
    const PosixFile file(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY);
    // Some network disks cannot flush a folder, and say so; the file itself is safe by then.
    if (::fsync(file.descriptor()) != 0 && errno != EINVAL && errno != ENOTSUP)
        throw systemFileError(folder);
}

/// The file behind a chain of symbolic links, which need not exist yet.
fs::path behindLinks(const fs::path& path) {
    constexpr int LongestChain = 40;
    fs::path target = path;
    for (int links = 0; fs::is_symlink(fs::symlink_status(target)); ++links) {
        if (links == LongestChain)
            throw FileError(path, say("too many symbolic links"));
        const fs::path next = fs::read_symlink(target);
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return target;
}

std::optional<struct ::stat> statusOf(const fs::path& path) {
    struct ::stat status {};
    if (::stat(path.c_str(), &status) == 0)
        return status;
    if (errno == ENOENT)
        return std::nullopt;
    throw systemFileError(path);
}

using Content = std::function<void(const PieceWriter& write)>;

void writeBehindLinks(const fs::path& target, const Content& content) {
    const auto status = statusOf(target);
    if (status && S_ISDIR(status->st_mode))
        throw FileError(target, say("this is a folder, not a file"));
    if (status && !S_ISREG(status->st_mode))
        throw FileError(target, say("this is not an ordinary file"));
    if (status && ::access(target.c_str(), W_OK) != 0)
        throw systemFileError(target);
    TemporaryFile temporary(target, status ? status->st_mode & 0777 : NewFileMode);
    content([&temporary](std::string_view piece) { temporary.write(piece); });
    if (status)
        temporary.takeModeOf(*status);
    temporary.flush();
    temporary.renameTo(target);
    try {
        flushFolder(target.parent_path());
    } catch (const FileError&) {
        // The new file is in place, and after a power cut either of the two is there, whole. To
        // report a failure now would claim that the old one is untouched.
        return;
    }
}

void copyPieces(const fs::path& path, const PieceWriter& write) {
    const PosixFile file(path, O_RDONLY);
    std::array<char, 1 << 16> chunk; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    for (;;) {
        const ssize_t got = ::read(file.descriptor(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFileError(path);
        if (got == 0)
            return;
        write({chunk.data(), static_cast<std::size_t>(got)});
    }
}

/// Makes a name for a file without ever replacing one; false when the name is taken.
bool linkExclusively(const fs::path& path, const fs::path& name) {
    if (::link(path.c_str(), name.c_str()) == 0)
        return true;
    if (errno == EEXIST)
        return false;
    throw systemFileError(name);
}

/// For disks without hard links. The copy appears under its name only when it is whole.
bool copyExclusively(const fs::path& path, const fs::path& name) {
    if (fs::exists(fs::symlink_status(name)))
        return false;
    writeBehindLinks(name, [&path](const PieceWriter& write) { copyPieces(path, write); });
    return true;
}

} // namespace

void writeFileSafely(const fs::path& path, std::string_view content) {
    writeFileSafely(path, [content](const PieceWriter& write) { write(content); });
}

void writeFileSafely(const fs::path& path, const Content& content) {
    try {
        writeBehindLinks(behindLinks(path), content);
    } catch (const fs::filesystem_error& error) {
        throw FileError(path, error.code().message());
    }
}

bool keepUnderSecondName(const fs::path& path, const fs::path& secondName) {
    try {
        const fs::path source = behindLinks(path);
        bool made = false;
        try {
            made = linkExclusively(source, secondName);
        } catch (const FileError&) {
            made = copyExclusively(source, secondName);
        }
        if (made)
            flushFolder(secondName.parent_path());
        return made;
    } catch (const fs::filesystem_error& error) {
        throw FileError(path, error.code().message());
    }
}

bool isTaken(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

} // namespace kavela
