#pragma once

#include "splitdata/history/versions.h"

/// The document types before the current one, newest first. They are in parts since the conversions
/// of all of them are more than one source should ask of a compiler.
namespace kavela {

[[nodiscard]] std::span<const DocumentVersion> versions022To030();
[[nodiscard]] std::span<const DocumentVersion> versions015To021();
[[nodiscard]] std::span<const DocumentVersion> versions02To014();

} // namespace kavela
