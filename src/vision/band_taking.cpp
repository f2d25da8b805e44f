#include "common/text.h"
#include "vision/band_recording.h"

#include "vision/band.h"
#include "vision/film_stream.h"

#include "video/video_error.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double SecondsAroundPlace = 1;

std::string wordFor(const BandJudgement& judged, TimingPoint point) {
    constexpr double Same = 1e-6;
    if (!judged.proposal)
        return "missed";
    if (!judged.settled)
        return "refused";
    const double proposed = secondsOf(*judged.proposal, point);
    return std::abs(*judged.settled - proposed) < Same ? "accepted" : "moved";
}

bandmoment001 momentOf(const BandJudgement& judged, TimingPoint point) {
    bandmoment001 moment;
    if (judged.proposal) {
        moment.proposed = secondsOf(*judged.proposal, point);
        moment.confidence = judged.proposal->confidence;
    }
    moment.settled = judged.settled.value_or(-1);
    moment.judged = wordFor(judged, point);
    return moment;
}

} // namespace

std::optional<BandRecording>
recordBands(const std::shared_ptr<const VideoIndex>& index, const BarrierRequest& request,
            const std::vector<BandJudgement>& judgements, TimingPoint point,
            const std::stop_token& stop,
            const std::function<void(const BarrierProgress&)>& onProgress) {
    const VideoFacts& facts = index->facts();
    checkBarrierRequest(request, facts);
    const BoatBox box = storedHalfBox(request.boat, facts);
    const FittedBand band =
        fittedBand({storedHalfPoint(request.line.first, facts),
                    storedHalfPoint(request.line.second, facts), request.line.from},
                   box.width, box.height);
    FilmStream film(index);
    BandRecording recording;
    recording.scene.timedAt = textOf(point);
    recording.scene.rows = band.shape.rows;
    recording.scene.columns = BandColumns;
    recording.scene.boatLength = band.boat.length;
    recording.scene.boatHeight = band.boat.height;
    const std::size_t count = std::min(judgements.size(), MostBandMoments);
    for (std::size_t i = 0; i < count; ++i) {
        if (!judgements[i].proposal && !judgements[i].settled)
            continue; // says nothing
        bandmoment001 moment = momentOf(judgements[i], point);
        const double middle = judgements[i].settled ? moment.settled : moment.proposed;
        std::vector<std::uint8_t> samples;
        FrameNumber number = index->frameAt(middle - SecondsAroundPlace).value_or(0);
        for (; number < index->frameCount() &&
               index->secondsOf(number) <= middle + SecondsAroundPlace;
             ++number) {
            if (stop.stop_requested())
                return std::nullopt;
            const auto picture = film.picture(number, stop);
            if (!picture)
                continue;
            const auto cut = cutBand(band.shape, *picture, {});
            samples.insert(samples.end(), cut.begin(), cut.end());
            moment.seconds.push_back(index->secondsOf(number));
        }
        recording.scene.moments.push_back(std::move(moment));
        recording.bands.push_back(std::move(samples));
        if (onProgress)
            onProgress({static_cast<std::int64_t>(i + 1), static_cast<std::int64_t>(count)});
    }
    if (recording.bands.empty())
        throw VideoError(facts.path, say("there is no proposal or correction to be saved"));
    return recording;
}

} // namespace kavela
