#pragma once

#include "common/shared_list.h"

#include <optional>
#include <string>
#include <string_view>

namespace kavela {

/// Bytes carried in a document as base64 text (standard alphabet, with padding). Copies share them:
/// each step of the undo stack has an athlete with the same picture.
struct Blob {
    SharedList<unsigned char> bytes;

    friend bool operator==(const Blob&, const Blob&) = default;
};

/// Appends the base64 text of a blob.
void appendBase64(std::string& text, const Blob& blob);

/// The bytes behind a base64 text; nothing when the text is not base64 with full padding.
[[nodiscard]] std::optional<Blob> blobFromBase64(std::string_view text);

} // namespace kavela
