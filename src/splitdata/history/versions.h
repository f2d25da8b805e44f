#pragma once

#include "splitdata/document.h"

#include "common/error.h"

#include <span>
#include <string_view>

namespace simdjson::dom {
class element;
} // namespace simdjson::dom

namespace kavela {

/// One document type of the split file.
struct DocumentVersion {
    std::string_view record; ///< name of the document type
    std::string_view label;  ///< "0.31"
    /// Decodes a document as this type and brings it to the current one, all but the moment of its
    /// last save. False, with the fault told, when it is of another type.
    bool (*read)(simdjson::dom::element root, splittakerdata031& document, Fault& fault);
};

/// Every document type, newest first: the order in which they are tried.
[[nodiscard]] std::span<const DocumentVersion> documentVersions();

} // namespace kavela
