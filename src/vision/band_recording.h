#pragma once

#include "vision/light_barrier.h"

#include <boost/describe.hpp>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// What the search for boats saw and what a coach made of it, as one file, so that real water can
/// teach the search. It holds the strip of picture beside the line round each moment, and no word
/// of whose film it is: docs/file-formats.md tells the meaning of every member.
namespace kavela {

struct bandmoment001 {
    double proposed = -1;        ///< seconds of the film; −1 where nothing was proposed
    double confidence = 0;       ///< of the proposal
    double settled = -1;         ///< where the coach saw the boat on the line; −1 for none
    std::string judged;          ///< "accepted", "moved", "refused" or "missed"
    std::vector<double> seconds; ///< of each band, rising
};
BOOST_DESCRIBE_STRUCT(bandmoment001, (), (proposed, confidence, settled, judged, seconds))

/// As recordings were written before the body could be timed.
struct bandscene001 {
    std::int64_t bandversion = 1;
    std::int64_t rows = 0;    ///< along the line
    std::int64_t columns = 0; ///< along the way of the boats; the line's own is the middle one
    double boatLength = 0;    ///< columns
    double boatHeight = 0;    ///< rows
    std::vector<bandmoment001> moments;
};
BOOST_DESCRIBE_STRUCT(bandscene001, (),
                      (bandversion, rows, columns, boatLength, boatHeight, moments))

struct bandscene002 {
    std::int64_t bandversion = 2;
    std::string timedAt = "bow"; ///< what the moments are of: "bow" or "body"
    std::int64_t rows = 0;       ///< along the line
    std::int64_t columns = 0;    ///< along the way of the boats; the line's own is the middle one
    double boatLength = 0;       ///< columns
    double boatHeight = 0;       ///< rows
    std::vector<bandmoment001> moments;
};
BOOST_DESCRIBE_STRUCT(bandscene002, (),
                      (bandversion, timedAt, rows, columns, boatLength, boatHeight, moments))

/// A scene with its bands.
struct BandRecording {
    bandscene002 scene;
    /// For each moment all its bands one after the other; each brightness, blue and red, column by
    /// column, row by row, a byte each.
    std::vector<std::vector<std::uint8_t>> bands;
};

/// What a coach made of one place.
struct BandJudgement {
    std::optional<Proposal> proposal; ///< none: a boat was missed
    /// When the point that is timed is on the line, seconds of the film; none: there is no boat.
    std::optional<double> settled;
};

/// Cuts the bands out of a film, for a second before and behind each place. No more than
/// `MostBandMoments` places are taken, in the order in which they come. Nothing once `stop` is
/// requested. `onProgress` counts places. Throws as findCrossings(), and VideoError without places.
inline constexpr std::size_t MostBandMoments = 60;
[[nodiscard]] std::optional<BandRecording>
recordBands(const std::shared_ptr<const VideoIndex>& index, const BarrierRequest& request,
            const std::vector<BandJudgement>& judgements, TimingPoint point,
            const std::stop_token& stop = {},
            const std::function<void(const BarrierProgress&)>& onProgress = {});

/// Writes a recording, safely. Throws FileError, and EncodeError for what does not fit together.
void writeBandRecording(const BandRecording& recording, const std::filesystem::path& path);

/// Reads one. Throws FileError for what is no such file or is damaged, DecodeError with the place
/// of what does not fit, a newer version included.
[[nodiscard]] BandRecording readBandRecording(const std::filesystem::path& path);

} // namespace kavela
