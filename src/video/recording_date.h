#pragma once

#include "common/reference_date.h"

#include <filesystem>
#include <optional>

namespace kavela {

/// When the recording of a film began, as its camera wrote it into the file; nothing when the file
/// does not tell, or cannot be read.
[[nodiscard]] std::optional<ReferenceDate> recordingBegan(const std::filesystem::path& film);

/// What the container of a film tells of its recording.
struct FilmRecording {
    std::optional<ReferenceDate> began; ///< as its camera wrote it
    double seconds = 0;                 ///< how long it is; 0 where the container does not tell
};

/// Reads the head of a film; nothing where it cannot be opened, as before its end is written.
[[nodiscard]] std::optional<FilmRecording> recordingOf(const std::filesystem::path& film);

} // namespace kavela
