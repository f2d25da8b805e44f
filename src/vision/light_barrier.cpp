#include "vision/light_barrier.h"

#include "common/text.h"
#include "vision/film_stream.h"

#include "video/video_error.h"

#include <utility>

namespace kavela {

namespace {

using Progress = std::function<void(const BarrierProgress&)>;

void checkBoatBox(const BoatBox& box, const VideoFacts& facts) {
    if (!(box.width > 0 && box.height > 0))
        throw VideoError(facts.path, say("the box round a boat has no size"));
    if (box.width > facts.shownSize.width || box.height > facts.shownSize.height)
        throw VideoError(facts.path, say("the box round a boat is larger than the picture"));
}

/// The frames from one moment to another, the last one excluded. Throws VideoError without any.
std::pair<FrameNumber, FrameNumber> framesBetween(const VideoIndex& index, double from, double to) {
    FrameNumber first = 0;
    while (first < index.frameCount() && index.secondsOf(first) < from)
        ++first;
    FrameNumber last = first;
    while (last < index.frameCount() && index.secondsOf(last) <= to)
        ++last;
    if (last <= first)
        throw VideoError(index.facts().path,
                         say("the film has no frames from {:.2f} s to {:.2f} s", from, to));
    return {first, last};
}

} // namespace

std::string textOf(TimingPoint point) {
    return point == TimingPoint::Body ? "body" : "bow";
}

std::optional<TimingPoint> timingPointFrom(std::string_view text) {
    for (const TimingPoint point : {TimingPoint::Bow, TimingPoint::Body})
        if (text == textOf(point))
            return point;
    return std::nullopt;
}

std::string handHeldNote() {
    return say("The camera was held in the hand, or nothing in the picture stands still: the "
               "search for boats needs a camera on a tripod.");
}

void checkBarrierRequest(const BarrierRequest& request, const VideoFacts& facts) {
    checkSlitLine(request.line, facts.shownSize, facts.path);
    checkBoatBox(request.boat, facts);
}

std::optional<Crossings> findCrossings(const std::shared_ptr<const VideoIndex>& index,
                                       const BarrierRequest& request, const std::stop_token& stop,
                                       const Progress& onProgress) {
    const VideoFacts& facts = index->facts();
    checkBarrierRequest(request, facts);
    const auto [first, last] = framesBetween(*index, request.fromSeconds, request.toSeconds);
    FilmStream stream(index);
    const SlitLine line{storedHalfPoint(request.line.first, facts),
                        storedHalfPoint(request.line.second, facts), request.line.from};
    auto found = findCrossings(stream, first, last, line, storedHalfBox(request.boat, facts), stop,
                               onProgress);
    if (found && (stream.endedEarly() || facts.isCutOff))
        found->notes.push_back(say("The film ends early: the file is cut off."));
    return found;
}

std::optional<Crossings> findCrossings(const std::filesystem::path& film,
                                       const BarrierRequest& request, const std::stop_token& stop,
                                       const Progress& onProgress) {
    const auto index = readVideoIndex(film, stop);
    if (!index)
        return std::nullopt;
    return findCrossings(index, request, stop, onProgress);
}

} // namespace kavela
