#pragma once

#include "common/reference_date.h"

#include <filesystem>
#include <optional>

namespace kavela {

/// When the recording of a film began, as its camera wrote it into the file; nothing when the file
/// does not tell, or cannot be read.
[[nodiscard]] std::optional<ReferenceDate> recordingBegan(const std::filesystem::path& film);

} // namespace kavela
