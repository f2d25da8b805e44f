#pragma once

#include "vision/path_figures.h"
#include "vision/track.h"

#include <boost/describe.hpp>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// A path as a file beside its film: docs/file-formats.md tells the meaning of every member.
namespace kavela {

struct trackbox001 {
    std::int64_t frame = 0;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};
BOOST_DESCRIBE_STRUCT(trackbox001, (), (frame, x, y, width, height))

struct trackpoint001 {
    std::int64_t frame = 0;
    double seconds = 0;
    double x = 0;
    double y = 0;
    double size = 1;
    double score = 0;
};
BOOST_DESCRIBE_STRUCT(trackpoint001, (), (frame, seconds, x, y, size, score))

struct trackcamera001 {
    std::int64_t frame = 0;
    double a = 1;
    double b = 0;
    double dx = 0;
    double dy = 0;
};
BOOST_DESCRIBE_STRUCT(trackcamera001, (), (frame, a, b, dx, dy))

struct trackplanepoint001 {
    double x = 0;
    double y = 0;
    double metresX = 0;
    double metresY = 0;
};
BOOST_DESCRIBE_STRUCT(trackplanepoint001, (), (x, y, metresX, metresY))

struct trackplane001 {
    std::int64_t frame = 0;
    std::vector<trackplanepoint001> points = {};
};
BOOST_DESCRIBE_STRUCT(trackplane001, (), (frame, points))

struct track001 {
    std::string film = {};
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool isOnWater = true;
    std::vector<trackbox001> boxes = {};
    std::vector<trackpoint001> points = {};
    std::vector<trackcamera001> cameras = {};
    trackplane001 plane = {};
};
BOOST_DESCRIBE_STRUCT(track001, (), (film, width, height, isOnWater, boxes, points, cameras, plane))

/// What the record of a path holds. Throws DecodeError with the place of what is wrong: frames out
/// of order or beyond any film, a box without a size, places beyond all pictures, more than four
/// known points. Fewer than are needed are kept: they are still being clicked.
[[nodiscard]] FilmTrack trackOf(const track001& record);
[[nodiscard]] std::optional<KnownPlane> planeOf(const track001& record);

/// Puts a path into a record in place of the one that it holds.
void takeTrack(track001& record, const FilmTrack& track);
void takePlane(track001& record, const std::optional<KnownPlane>& plane);

/// Reads a path. Throws FileError, and DecodeError with the place of what is wrong.
[[nodiscard]] track001 readTrack(const std::filesystem::path& path);
/// Writes a path safely. Throws FileError, and EncodeError for what JSON cannot hold.
void writeTrack(const track001& record, const std::filesystem::path& path);

/// Reads the known points of a plane that stand in a file alone, as in a path's file. Throws
/// FileError, and DecodeError with the place of what is wrong.
[[nodiscard]] KnownPlane readPlane(const std::filesystem::path& path);

/// Where the path of a film is kept: beside it, as NAME.track.json.
[[nodiscard]] std::filesystem::path trackPathOf(const std::filesystem::path& film);

} // namespace kavela
