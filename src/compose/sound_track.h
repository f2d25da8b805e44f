#pragma once

#include "compose/time_map.h"
#include "video/sound_source.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace kavela {

/// The moment of a film, in its seconds, whose sound is heard at a moment of common time; nothing
/// while the film waits or is slowed. `pieces` are the film's of a TimeMap.
[[nodiscard]] std::optional<double> heardSeconds(std::span<const TimePiece> pieces, double common);

/// What is heard in a composition: the sound of one film where that runs at its own speed, silence
/// where it waits or is slowed.
class SoundTrack {
public:
    /// From a moment of common time on. Throws VideoError for a film without sound.
    SoundTrack(const std::filesystem::path& film, std::vector<TimePiece> pieces, double from,
               const std::stop_token& stop);

    /// The sound that goes on up to a sample counted from the beginning, left and right one after
    /// the other. Valid until the next call.
    [[nodiscard]] std::span<const std::int16_t> upTo(SamplePosition end);

private:
    void fill(SamplePosition from, SamplePosition to, const TimePiece& piece);

    SoundSource m_source;
    std::vector<TimePiece> m_pieces;
    double m_from;
    SamplePosition m_position = 0;
    std::vector<std::int16_t> m_samples;
};

} // namespace kavela
