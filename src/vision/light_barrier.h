#pragma once

#include "vision/slit_line.h"

#include "video/index.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

/// Proposals of when boats crossed a line, from the film of a camera that stands still. They are
/// places to look at: how exact one is cannot be told, so no uncertainty comes with them.
namespace kavela {

/// A box round one boat as it crosses, in pixels of the upright picture: hull and paddler. Only its
/// size counts, not where it is.
struct BoatBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const BoatBox&, const BoatBox&) = default;
};

/// What is looked for in a film.
struct BarrierRequest {
    SlitLine line;
    BoatBox boat;
    double fromSeconds = 0; ///< from here on, as the film's stamps count
    double toSeconds = std::numeric_limits<double>::infinity();
};

/// What of a boat is timed at a line.
enum class TimingPoint { Bow, Body };

/// As files have it: "bow" or "body".
[[nodiscard]] std::string textOf(TimingPoint point);
/// Nothing for any other text.
[[nodiscard]] std::optional<TimingPoint> timingPointFrom(std::string_view text);

/// A moment at which a boat may have crossed the line.
struct Proposal {
    FrameNumber frame = 0; ///< the first frame with the bow on the line or beyond it
    double seconds = 0;    ///< as the film's stamps count, finer than a frame
    double confidence = 0; ///< 0 to 1; from 0.5 on the boat itself is hardly in doubt
    /// The same for the middle of the paddler's body.
    FrameNumber bodyFrame = 0;
    double bodySeconds = 0;

    friend bool operator==(const Proposal&, const Proposal&) = default;
};

/// When what is timed of the boat crossed, in seconds of the film.
[[nodiscard]] inline double secondsOf(const Proposal& proposal, TimingPoint point) {
    return point == TimingPoint::Body ? proposal.bodySeconds : proposal.seconds;
}

/// How far the search has come, in frames.
struct BarrierProgress {
    std::int64_t frames = 0;
    std::int64_t all = 0; ///< 0 as long as the film is being opened
};

/// What was found.
struct Crossings {
    std::vector<Proposal> proposals; ///< in the order of time
    /// The camera moved too much for the search, or nothing in the picture stands still: the
    /// proposals, if any, are worth little.
    bool isHandHeld = false;
    std::int64_t frames = 0; ///< searched
    /// What a coach should know, a sentence each: a camera held in the hand, a film that ends
    /// early.
    std::vector<std::string> notes;
};

/// The note of a camera that was held in the hand.
[[nodiscard]] std::string handHeldNote();

/// Throws VideoError for a line outside the picture or too short, and for a box without size or
/// larger than the picture.
void checkBarrierRequest(const BarrierRequest& request, const VideoFacts& facts);

/// Looks for boats. To be called in a thread of its own: it takes about half a film's playing time.
/// `onProgress` is called from the calling thread. Nothing once `stop` is requested, which takes
/// effect within half a second. Throws VideoError for a film that cannot be opened, as
/// checkBarrierRequest(), and for a range without frames.
[[nodiscard]] std::optional<Crossings>
findCrossings(const std::filesystem::path& film, const BarrierRequest& request,
              const std::stop_token& stop = {},
              const std::function<void(const BarrierProgress&)>& onProgress = {});

/// The same for a film whose index is known.
[[nodiscard]] std::optional<Crossings>
findCrossings(const std::shared_ptr<const VideoIndex>& index, const BarrierRequest& request,
              const std::stop_token& stop = {},
              const std::function<void(const BarrierProgress&)>& onProgress = {});

} // namespace kavela
