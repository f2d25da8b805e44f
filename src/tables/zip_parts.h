#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct zip;

namespace kavela {

/// The parts of a packed document in memory. What a part says about its size is not believed: no
/// more is unpacked than spreadsheets of results have, so that a small file cannot fill the memory.
class ZipParts {
public:
    /// `bytes` must outlive the parts. Throws TableError for what is no packed file.
    explicit ZipParts(std::string_view bytes);
    ZipParts(const ZipParts&) = delete;
    ZipParts& operator=(const ZipParts&) = delete;
    ~ZipParts();

    /// A part's content; nothing where there is no such part. Throws TableError when it is damaged,
    /// needs a password, or when all that was unpacked becomes more than 128 MB.
    [[nodiscard]] std::optional<std::string> content(const std::string& name);

private:
    struct zip* m_archive = nullptr;
    std::size_t m_unpacked = 0;
};

} // namespace kavela
