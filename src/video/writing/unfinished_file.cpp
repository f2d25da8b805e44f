#include "video/writing/unfinished_file.h"

#include "common/safe_file.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace kavela {

namespace {

constexpr unsigned FilmFileMode = 0666; // less what the user's mask takes away

std::filesystem::path hiddenName(const std::filesystem::path& target, int attempt) {
    constexpr std::size_t LongestStem = 200; // names end at 255 bytes on the usual disks
    return target.parent_path() /
           ('.' + target.filename().string().substr(0, LongestStem) + '.' +
            std::to_string(::getpid()) + '-' + std::to_string(attempt) + ".tmp");
}

bool isRunning(const std::string& process) {
    return ::kill(static_cast<pid_t>(std::atol(process.c_str())), 0) == 0 || errno != ESRCH;
}

/// What a program that was killed left of the same film. On a shared folder the process may be one
/// of another machine: a film that is still being written is never as old.
void removeLeftOver(const std::filesystem::path& target) {
    constexpr std::chrono::minutes Old{30};
    namespace fs = std::filesystem;
    const std::string start = hiddenName(target, 0).filename().string();
    const std::string stem = start.substr(0, start.rfind('.', start.size() - 5) + 1);
    std::error_code fault;
    const fs::path folder = target.parent_path();
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, fault), end;
         !fault && entry != end; entry.increment(fault)) {
        const std::string name = entry->path().filename().string();
        const std::size_t dash = name.find('-', stem.size());
        if (!name.starts_with(stem) || !name.ends_with(".tmp") || dash == std::string::npos)
            continue;
        std::error_code gone;
        const auto written = entry->last_write_time(gone);
        if (!gone && fs::file_time_type::clock::now() - written > Old &&
            !isRunning(name.substr(stem.size(), dash - stem.size())))
            fs::remove(entry->path(), gone);
    }
}

/// The name lasts through a power cut only when the folder is on the disk too. By then the file is
/// there and whole, so a disk that cannot do it is no failure.
void flushFolderOf(const std::filesystem::path& file) {
    const std::filesystem::path folder = file.parent_path();
    const int descriptor =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    static_cast<void>(::fsync(descriptor));
    static_cast<void>(::close(descriptor));
}

} // namespace

UnfinishedFile::UnfinishedFile(std::filesystem::path target, std::stop_token stop)
    : m_target(std::move(target)), m_stop(std::move(stop)) {
    removeLeftOver(m_target);
    constexpr int Attempts = 100;
    for (int attempt = 0; !m_file; ++attempt) {
        m_hidden = hiddenName(m_target, attempt);
        try {
            m_file.emplace(m_hidden, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, FilmFileMode);
        } catch (const FileError& error) {
            if (errno != EEXIST || attempt == Attempts)
                throw FileError(m_target, error.reason());
        }
    }
}

UnfinishedFile::~UnfinishedFile() {
    if (!m_hidden.empty())
        ::unlink(m_hidden.c_str());
}

void UnfinishedFile::fail() const {
    throw FileError(m_target, systemFileError(m_target).reason());
}

void UnfinishedFile::write(std::span<const std::uint8_t> bytes) {
    if (m_stop.stop_requested())
        throw FilmStopped();
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_file->descriptor(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            fail();
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
}

void UnfinishedFile::seek(std::int64_t place) {
    if (::lseek(m_file->descriptor(), place, SEEK_SET) < 0)
        fail();
}

std::string UnfinishedFile::readablePath() const {
    return m_hidden.string();
}

std::filesystem::path UnfinishedFile::finish() {
    if (::fsync(m_file->descriptor()) != 0)
        fail();
    try {
        m_file->close();
    } catch (const FileError& error) {
        throw FileError(m_target, error.reason());
    }
    m_file.reset();
    int number = 1;
    while (!isNamed(numberedName(m_target, number)))
        ++number;
    const std::filesystem::path name = numberedName(m_target, number);
    flushFolderOf(name);
    return name;
}

/// A second name is made only where none stands, whatever others do at the same moment. Disks
/// without hard links have to look first.
bool UnfinishedFile::isNamed(const std::filesystem::path& name) {
    if (::link(m_hidden.c_str(), name.c_str()) == 0)
        return true; // the destructor takes the hidden one away
    if (errno == EEXIST || isTaken(name))
        return false;
    if (std::rename(m_hidden.c_str(), name.c_str()) != 0)
        fail();
    m_hidden.clear();
    return true;
}

std::filesystem::path numberedName(const std::filesystem::path& name, int number) {
    if (number == 1)
        return name;
    return name.parent_path() /
           (name.stem().string() + ' ' + std::to_string(number) + name.extension().string());
}

} // namespace kavela
