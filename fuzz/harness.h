#pragma once

#include "common/json_decode.h"
#include "common/json_encode.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

/// What the harnesses share. A broken promise ends the program, which is how the fuzzer learns of
/// it; so does an exception that nobody was told to expect.
namespace kavela::fuzz {

inline void require(bool promise) {
    if (!promise)
        std::abort();
}

/// The document behind the fuzzer's bytes, when they are JSON at all.
inline std::optional<JsonDocument> parsed(const std::uint8_t* bytes, std::size_t size) {
    try {
        return JsonDocument::fromText({reinterpret_cast<const char*>(bytes), size});
    } catch (const DecodeError& error) {
        require(!error.fault().text.empty());
        return std::nullopt;
    }
}

/// Whatever was read can be written, and reads back to the same text.
template <Record T>
void checkWriting(const T& record) {
    const std::string text = encode(record);
    require(encode(decodeText<T>(text)) == text);
}

/// Reads a document as a record; one that is refused has a fault to tell.
template <Record T>
std::optional<T> checkReading(const JsonDocument& json) {
    T record;
    Fault fault;
    if (!tryDecode(json.root(), record, fault)) {
        require(!fault.text.empty());
        return std::nullopt;
    }
    checkWriting(record);
    return record;
}

} // namespace kavela::fuzz
