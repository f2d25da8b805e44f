#include "fetch/part_file.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <QThreadPool>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

std::string reasonOf(int fault) {
    return std::generic_category().message(fault);
}

std::unique_ptr<QThreadPool> poolOfOne() {
    auto pool = std::make_unique<QThreadPool>();
    pool->setMaxThreadCount(1);
    return pool;
}

} // namespace

QThreadPool& partPool() {
    static const std::unique_ptr<QThreadPool> Pool = poolOfOne();
    return *Pool;
}

fs::path PartFile::notePath() const {
    return m_path.string() + ".note";
}

HeldPart PartFile::held(const Address& address) const {
    std::error_code missing;
    const auto bytes = fs::file_size(m_path, missing);
    if (missing)
        return {};
    try {
        HeldPart held{static_cast<std::int64_t>(bytes),
                      decode<filmpart001>(JsonDocument::fromFile(notePath()))};
        return held.note.address == address.text() ? held : HeldPart();
    } catch (const std::runtime_error&) {
        return {};
    }
}

std::string PartFile::open(const HeldPart& held) {
    close();
    std::error_code ignored;
    if (held.bytes == 0)
        fs::remove(m_path, ignored);
    try {
        writeFileSafely(notePath(), encode(held.note));
    } catch (const FileError& error) {
        return error.reason();
    }
    m_file = ::open(m_path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    struct stat facts {};
    if (m_file < 0 || ::fstat(m_file, &facts) != 0)
        return reasonOf(errno);
    return facts.st_size == held.bytes ? std::string() : say("Another program has changed it.");
}

/// What a full disk took of it in part stays: the next one to open it measures it.
std::string PartFile::append(const QByteArray& bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const auto written = ::write(m_file, bytes.constData() + done,
                                     static_cast<std::size_t>(bytes.size() - done));
        if (written > 0)
            done += written;
        else if (written == 0 || errno != EINTR)
            return reasonOf(written == 0 ? ENOSPC : errno);
    }
    return {};
}

bool PartFile::finish() {
    const int file = std::exchange(m_file, -1);
    if (file < 0)
        return false;
    const bool isOnDisk = ::fsync(file) == 0;
    return ::close(file) == 0 && isOnDisk;
}

void PartFile::remove() {
    close();
    std::error_code ignored;
    fs::remove(m_path, ignored);
    fs::remove(notePath(), ignored);
}

void PartFile::close() {
    if (const int file = std::exchange(m_file, -1); file >= 0)
        ::close(file);
}

} // namespace kavela::fetch
