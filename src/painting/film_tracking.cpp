#include "painting/film_tracking.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "common/error.h"
#include "common/number_text.h"
#include "common/safe_file.h"
#include "vision/film_track.h"
#include "vision/path_csv.h"
#include "vision/track_error.h"
#include "vision/track_file.h"

#include <algorithm>
#include <optional>
#include <string>

namespace kavela::painting {

namespace {

FrameNumber trackedFrame(const VideoIndex& index, double seconds, const char* option) {
    const double end = index.secondsOf(index.frameCount() - 1);
    if (seconds > end)
        throw TrackError(std::string(option) + ": the film ends at " + hundredthsText(end) + " s.");
    return index.frameAt(seconds).value_or(0);
}

StretchOrder trackOrderOf(const cli::TrackCall& call, const VideoIndex& index) {
    StretchOrder order;
    order.from.frame = trackedFrame(index, call.at, "--at");
    order.from.box = {call.box[0], call.box[1], call.box[2], call.box[3]};
    order.last = call.to ? trackedFrame(index, *call.to, "--to") : index.frameCount() - 1;
    if (order.last <= order.from.frame)
        throw TrackError("--to does not lie behind --at.");
    return order;
}

FollowedStretch followedOn(FilmPlanes& film, const StretchOrder& order) {
    cli::ProgressBar bar(static_cast<std::size_t>(order.last - order.from.frame));
    return followStretch(film, order, {}, [&](const TrackProgress&) { bar.step(); });
}

void tellPath(const FilmTrack& track, const FollowedStretch& stretch, const VideoIndex& index,
              const cli::TrackCall& call) {
    if (index.facts().isCutOff)
        cli::logLine(cli::pathText(call.film) +
                     ": the file is cut off. It is followed as far as its pictures go.");
    for (const FilmTrack::Gap& gap : track.gaps())
        cli::logLine("Not seen from " + hundredthsText(index.secondsOf(gap.first)) + " s to " +
                     hundredthsText(index.secondsOf(gap.last)) + " s: a gap.");
    if (stretch.lostAt)
        cli::logLine("Lost at " + hundredthsText(index.secondsOf(*stretch.lostAt)) +
                     " s: give a new box there with --box and --at.");
    if (std::ssize(track.cameras) < stretch.last - stretch.first + 1)
        cli::logLine("In some frames the camera's motion is not known: too little of the picture "
                     "stands still. They have no steadied place.");
    if (!call.plane.empty())
        cli::logLine("Metres hold for what is on the water; a head is above it.");
}

} // namespace

int trackFilm(const cli::TrackCall& call) {
    try {
        std::optional<KnownPlane> plane;
        if (!call.plane.empty())
            plane = readPlane(call.plane);
        const auto index = readVideoIndex(call.film);
        FilmPlanes film(index);
        const FollowedStretch stretch = followedOn(film, trackOrderOf(call, *index));
        const FilmTrack track = withStretch({}, stretch);
        const auto figures = pathFigures(track, plane);
        if (plane && WaterPlane(plane->points).isScaleOnly())
            cli::logLine(
                "Two known points give a scale only: lengths and speeds hold near them and "
                "along the line between them.");
        tellPath(track, stretch, *index, call);
        writeFileSafely(call.output, pathCsv(figures));
        return cli::print("Followed through " +
                          cli::counted(std::ssize(track.points), "frame", "frames") + ", " +
                          cli::pathText(call.output) + ".\n")
                   ? cli::Done
                   : cli::NotDone;
    } catch (const TrackError& error) {
        cli::logLine(error.what());
    } catch (const DecodeError& error) {
        cli::logLine(cli::pathText(call.plane) + ": " + error.what());
    } catch (const FileError& error) {
        cli::logLine(cli::pathText(error.path()) + ": " + error.reason());
    }
    return cli::NotDone;
}

} // namespace kavela::painting
