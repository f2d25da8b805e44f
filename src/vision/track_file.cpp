#include "vision/track_file.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <cmath>
#include <initializer_list>

namespace kavela {

namespace {

[[noreturn]] void refuseTrack(const std::string& place, const std::string& text) {
    throw DecodeError({place, text});
}

/// Two days of film at 60 frames a second. What is counted further is no film, and a table of its
/// frames would fill the memory.
constexpr std::int64_t MostTrackFrames = 10'368'000;
constexpr double FarthestPlace = 1e7; ///< pixels, metres or seconds
constexpr double LargestScale = 1e4;

/// Frames count from 0 and each is told once, in their order.
template <class Entries>
void checkFrames(const Entries& entries, const std::string& name) {
    std::int64_t before = -1;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].frame <= before)
            refuseTrack(name + '[' + std::to_string(i) + "].frame",
                        i == 0 ? say("a frame from 0 on was expected")
                               : say("it does not lie behind the frame before"));
        before = entries[i].frame;
    }
    if (before >= MostTrackFrames)
        refuseTrack(name + '[' + std::to_string(entries.size() - 1) + "].frame",
                    say("no film has so many frames"));
}

void checkPlaces(std::initializer_list<double> values, const std::string& place) {
    for (const double value : values)
        if (!(std::abs(value) <= FarthestPlace))
            refuseTrack(place, say("it lies beyond all pictures"));
}

KnownPlane knownPlaneOf(const trackplane001& record, const std::string& place) {
    constexpr std::size_t Most = 4;
    if (record.points.empty() || record.points.size() > Most)
        refuseTrack(place + "points",
                    say("four known points were expected, or two for a scale only"));
    if (record.frame < 0)
        refuseTrack(place + "frame", say("a frame from 0 on was expected"));
    KnownPlane plane{record.frame, {}};
    for (std::size_t i = 0; i < record.points.size(); ++i) {
        const trackplanepoint001& point = record.points[i];
        checkPlaces({point.x, point.y, point.metresX, point.metresY},
                    place + "points[" + std::to_string(i) + ']');
        plane.points.push_back({{point.x, point.y}, point.metresX, point.metresY});
    }
    return plane;
}

} // namespace

FilmTrack trackOf(const track001& record) {
    checkFrames(record.boxes, "boxes");
    checkFrames(record.points, "points");
    checkFrames(record.cameras, "cameras");
    FilmTrack track;
    for (std::size_t i = 0; i < record.boxes.size(); ++i) {
        const trackbox001& box = record.boxes[i];
        if (!(box.width > 0 && box.height > 0))
            refuseTrack("boxes[" + std::to_string(i) + ']', say("the box has no size"));
        checkPlaces({box.x, box.y, box.width, box.height}, "boxes[" + std::to_string(i) + ']');
        track.keys.push_back({box.frame, {box.x, box.y, box.width, box.height}});
    }
    for (std::size_t i = 0; i < record.points.size(); ++i) {
        const trackpoint001& point = record.points[i];
        if (!(point.size > 0))
            refuseTrack("points[" + std::to_string(i) + "].size",
                        say("a size above 0 was expected"));
        checkPlaces({point.seconds, point.x, point.y, point.size},
                    "points[" + std::to_string(i) + ']');
        track.points.push_back(
            {point.frame, point.seconds, {point.x, point.y}, point.size, point.score});
    }
    for (std::size_t i = 0; i < record.cameras.size(); ++i) {
        const trackcamera001& camera = record.cameras[i];
        const PictureMotion motion{camera.a, camera.b, camera.dx, camera.dy};
        if (!(motion.scale() >= 1 / LargestScale && motion.scale() <= LargestScale))
            refuseTrack("cameras[" + std::to_string(i) + ']', say("it makes the picture vanish"));
        checkPlaces({motion.dx, motion.dy}, "cameras[" + std::to_string(i) + ']');
        track.cameras.push_back({camera.frame, motion});
    }
    return track;
}

std::optional<KnownPlane> planeOf(const track001& record) {
    if (record.plane.points.empty())
        return std::nullopt;
    return knownPlaneOf(record.plane, "plane.");
}

void takeTrack(track001& record, const FilmTrack& track) {
    record.boxes.clear();
    record.points.clear();
    record.cameras.clear();
    for (const TrackKey& key : track.keys)
        record.boxes.push_back({key.frame, key.box.x, key.box.y, key.box.width, key.box.height});
    for (const TrackPoint& point : track.points)
        record.points.push_back(
            {point.frame, point.seconds, point.place.x, point.place.y, point.size, point.score});
    for (const TrackCamera& camera : track.cameras)
        record.cameras.push_back({camera.frame, camera.toFirst.a, camera.toFirst.b,
                                  camera.toFirst.dx, camera.toFirst.dy});
}

void takePlane(track001& record, const std::optional<KnownPlane>& plane) {
    record.plane = {};
    if (!plane)
        return;
    record.plane.frame = plane->frame;
    for (const PlanePoint& point : plane->points)
        record.plane.points.push_back({point.place.x, point.place.y, point.x, point.y});
}

track001 readTrack(const std::filesystem::path& path) {
    auto record = decode<track001>(JsonDocument::fromFile(path));
    static_cast<void>(trackOf(record));
    static_cast<void>(planeOf(record));
    return record;
}

void writeTrack(const track001& record, const std::filesystem::path& path) {
    writeFileSafely(path, encode(record));
}

KnownPlane readPlane(const std::filesystem::path& path) {
    return knownPlaneOf(decode<trackplane001>(JsonDocument::fromFile(path)), {});
}

std::filesystem::path trackPathOf(const std::filesystem::path& film) {
    return std::filesystem::path(film).replace_extension(".track.json");
}

} // namespace kavela
