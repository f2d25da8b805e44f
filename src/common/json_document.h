#pragma once

#include "common/error.h"

#include <filesystem>
#include <memory>
#include <string_view>

// The parser's own header is long: only what decodes reads it.
namespace simdjson::dom {
class element;
} // namespace simdjson::dom

namespace kavela {

/// A parsed JSON document. It is parsed once; every record type is then tried on the same tree.
class JsonDocument {
public:
    /// Reads and parses a file. One that somebody still holds as it stands on the disk is not read
    /// again. Throws FileError, or DecodeError when it is no JSON.
    [[nodiscard]] static JsonDocument fromFile(const std::filesystem::path& path);
    /// Parses a text in memory. Throws DecodeError when it is no JSON.
    [[nodiscard]] static JsonDocument fromText(std::string_view text);

    JsonDocument(JsonDocument&&) noexcept;
    JsonDocument& operator=(JsonDocument&&) noexcept;
    ~JsonDocument();

    /// Lives as long as the document.
    [[nodiscard]] simdjson::dom::element root() const;

private:
    struct Tree;

    explicit JsonDocument(std::shared_ptr<const Tree> tree);

    std::shared_ptr<const Tree> m_tree;
};

} // namespace kavela
