#include "vision/track_file.h"
#include "harness.h"
#include "vision/path_csv.h"
#include "vision/path_figures.h"
#include "vision/track_error.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace {

using namespace kavela;

/// The small tables show all that there is to see, and do not take seconds for it.
constexpr FrameNumber MostTableFrames = 2000;
constexpr std::size_t MostTablePoints = 100;

/// What a path is taken for can be kept again and is the same then.
void checkKept(const track001& record, const FilmTrack& track,
               const std::optional<KnownPlane>& plane) {
    track001 kept = record;
    takeTrack(kept, track);
    takePlane(kept, plane);
    fuzz::require(trackOf(kept) == track && planeOf(kept) == plane);
    fuzz::checkWriting(kept);
}

/// A line for each frame, and nothing in those that have no point.
void checkTable(const FilmTrack& track, const std::optional<KnownPlane>& plane) {
    if (track.points.empty() || track.points.size() > MostTablePoints ||
        track.points.back().frame - track.points.front().frame > MostTableFrames)
        return;
    std::vector<PathFigure> figures;
    try {
        figures = pathFigures(track, plane);
    } catch (const TrackError& error) {
        fuzz::require(plane && *error.what() != '\0');
        figures = pathFigures(track, std::nullopt);
    }
    for (const PathFigure& figure : figures)
        fuzz::require(figure.place.has_value() == (track.pointAt(figure.frame) != nullptr));
    const std::string table = pathCsv(figures);
    fuzz::require(std::ranges::count(table, '\n') == std::ssize(figures) + 1);
    for (const TrackPoint& point : track.points)
        if (const auto shown = track.seenFrom(point, track.points.front().frame))
            fuzz::require(std::isfinite(shown->x) && std::isfinite(shown->y));
}

} // namespace

/// Files beside films with any content: what is refused says where, what is read can be shown.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto json = fuzz::parsed(bytes, size);
    if (!json)
        return 0;
    const auto record = fuzz::checkReading<track001>(*json);
    if (!record)
        return 0;
    try {
        const FilmTrack track = trackOf(*record);
        const std::optional<KnownPlane> plane = planeOf(*record);
        checkKept(*record, track, plane);
        checkTable(track, plane);
        if (!track.keys.empty())
            fuzz::require(withoutKey(track, track.keys.front().frame).keys.size() + 1 ==
                          track.keys.size());
    } catch (const DecodeError& error) {
        fuzz::require(!error.fault().path.empty() && !error.fault().text.empty());
    }
    return 0;
}
