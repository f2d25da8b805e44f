#pragma once

#include "fetch/resume_rules.h"

#include <QByteArray>

#include <filesystem>
#include <string>

class QThreadPool;

namespace kavela::fetch {

/// A file that grows under PART, with a note "PART.note" beside it of what it is a part of. All of
/// it waits for the disk: for another thread than a window's, by one at a time. What is wrong comes
/// back in the words of the system; empty for nothing.
class PartFile {
public:
    explicit PartFile(std::filesystem::path path) : m_path(std::move(path)) {}
    ~PartFile() { close(); }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    /// What is there of the file at an address. A part without a note that fits is of no use:
    /// nobody knows what it is of.
    [[nodiscard]] HeldPart held(const Address& address) const;
    /// Goes on behind the bytes that are held, or begins where there are none. The note stands on
    /// the disk before the first byte does: a part never has that of another state.
    [[nodiscard]] std::string open(const HeldPart& held);
    [[nodiscard]] std::string append(const QByteArray& bytes);
    /// Closes it. False where the disk does not have all of it.
    [[nodiscard]] bool finish();
    /// With its note.
    void remove();

private:
    void close();
    [[nodiscard]] std::filesystem::path notePath() const;

    std::filesystem::path m_path;
    int m_file = -1;
};

/// One thread for all parts: who asks for a part again finds what was still being written to it.
[[nodiscard]] QThreadPool& partPool();

} // namespace kavela::fetch
