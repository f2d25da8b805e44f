#include "facts/split_file_reading.h"

#include "common/posix_file.h"
#include "common/text.h"
#include "facts/content_hash.h"
#include "splitdata/loader.h"

#include <fcntl.h>

#include <array>
#include <new>

namespace kavela {

namespace fs = std::filesystem;

namespace {

/// Documents that do not call themselves split files are read up to this size.
constexpr std::uint64_t LargestUnpromised = std::uint64_t{256} << 20;

/// Whether a file begins like a JSON object. What tells a film or a picture from a document is in
/// its first bytes.
bool beginsLikeDocument(const fs::path& path) {
    const PosixFile file(path, O_RDONLY | O_NONBLOCK);
    std::array<char, 4096> bytes{};
    const ssize_t got = ::read(file.descriptor(), bytes.data(), bytes.size());
    if (got < 0)
        throw systemFileError(path);
    std::string_view start(bytes.data(), static_cast<std::size_t>(got));
    if (start.starts_with("\xEF\xBB\xBF"))
        start.remove_prefix(3);
    const std::size_t first = start.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && start[first] == '{';
}

void takeDocument(const fs::path& path, const FoundFile& file, FileReading& reading) {
    const RecognisedSplitFile split = recogniseSplitDocument(
        JsonDocument::fromFile(path), path, [](std::string_view) {},
        [] { return ReferenceDate{}; });
    if (split.version) {
        reading.facts.add(split.document, path);
        reading.hash = contentHashOf(path);
        reading.outcome = FileReading::Outcome::Read;
        return;
    }
    reading.outcome = file.isPromised ? FileReading::Outcome::Refused : FileReading::Outcome::Other;
    if (!split.failures.empty())
        reading.reason = split.failures.front().fault.message();
}

void read(const fs::path& path, const FoundFile& file, FileReading& reading) {
    if (!file.isPromised && (file.stamp.size > LargestUnpromised || !beginsLikeDocument(path))) {
        reading.outcome = FileReading::Outcome::Other;
        return;
    }
    try {
        takeDocument(path, file, reading);
    } catch (const DecodeError& error) {
        reading.outcome =
            file.isPromised ? FileReading::Outcome::Refused : FileReading::Outcome::Other;
        reading.reason = error.what();
    }
}

/// A file that is written while it is read may have been read half old, half new: without a moment
/// it is read again at the next scan.
FileStamp stampAfter(const fs::path& path, const FileStamp& before) {
    const FileStamp after = foundFile(path).stamp;
    return after == before ? before : FileStamp{after.size, 0};
}

} // namespace

FileReading readSplitFacts(const fs::path& path, const FoundFile& file) {
    FileReading reading;
    try {
        read(path, file, reading);
        reading.stamp = stampAfter(path, file.stamp);
    } catch (const FileError& error) {
        std::error_code ignored;
        const bool isGone = !fs::exists(path, ignored) && !ignored;
        reading.outcome = isGone ? FileReading::Outcome::Vanished : FileReading::Outcome::Failed;
        reading.reason = error.reason();
    } catch (const std::bad_alloc&) {
        reading.outcome = FileReading::Outcome::Failed;
        reading.reason = say("there is not enough memory for it");
    }
    return reading;
}

} // namespace kavela
