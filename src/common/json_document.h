#pragma once

#include "common/error.h"

#include <simdjson.h>

#include <filesystem>
#include <memory>
#include <string_view>

namespace kavela {

/// A parsed JSON document. It is parsed once; every record type is then tried on the same tree.
class JsonDocument {
public:
    /// Reads and parses a file. Throws FileError, or DecodeError when it is no JSON.
    [[nodiscard]] static JsonDocument fromFile(const std::filesystem::path& path);
    /// Parses a text in memory. Throws DecodeError when it is no JSON.
    [[nodiscard]] static JsonDocument fromText(std::string_view text);

    [[nodiscard]] simdjson::dom::element root() const { return m_root; }

private:
    explicit JsonDocument(simdjson::padded_string text);

    std::unique_ptr<simdjson::dom::parser> m_parser;
    simdjson::dom::element m_root;
};

} // namespace kavela
