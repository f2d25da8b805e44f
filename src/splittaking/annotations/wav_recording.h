#pragma once

#include "common/blob.h"

#include <cstdint>
#include <span>

namespace kavela {

/// A WAV file of one channel of 16-bit samples, `rate` of them a second.
/// Layout: RIFF, "WAVE", a "fmt " chunk of linear PCM and a "data" chunk, all little-endian.
[[nodiscard]] Blob wavRecording(std::span<const std::int16_t> samples, std::uint32_t rate);

} // namespace kavela
