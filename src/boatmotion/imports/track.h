#pragma once

#include "boatmotion/samples.h"
#include "common/error.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// Tracks of watches and phones: positions and heart rates with their dates, from GPX, TCX and FIT
/// files.
namespace kavela {

/// What a track holds, by date; of several values at one moment the first.
struct ImportedTrack {
    /// A speed that the file does not tell is computed: the way from the fix before over this one
    /// to the one after, by the time between them; neighbours more than 10 s away count for
    /// nothing. Without a neighbour the speed is -1, not known.
    std::vector<gpsrawdata> gps;
    std::vector<heartmotiondata> heart;
    /// What was left out or computed, and how much of it, as sentences for people.
    std::vector<std::string> notes;

    [[nodiscard]] bool isEmpty() const { return gps.empty() && heart.empty(); }
};

/// The most points that are taken from one file.
inline constexpr std::size_t MostTrackPoints = 2'000'000;

/// Reads a track; what kind of file it is, its content tells. Points without a date or outside the
/// globe are left out, as are heart rates that are none. A file that holds no point at all gives
/// an empty track with a note.
/// Throws FileError, also for a file of over 128 MB, and DecodeError for a file that is none of the
/// three, or damaged: the fault's place is the byte, counted from 0.
[[nodiscard]] ImportedTrack importTrack(const std::filesystem::path& path);

/// The same for the content of a file.
[[nodiscard]] ImportedTrack trackFromContent(std::string content);

/// Whether a file's first bytes are those of a track; a CSV is none.
[[nodiscard]] bool looksLikeTrack(std::string_view firstBytes);

} // namespace kavela
