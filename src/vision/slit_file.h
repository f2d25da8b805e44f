#pragma once

#include "vision/light_barrier.h"
#include "vision/slit_line.h"

#include <boost/describe.hpp>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The lines that were drawn over a film, what was refused on them and what was found there, as a
/// file beside the film: docs/file-formats.md tells the meaning of every member.
namespace kavela {

/// A proposal that the coach refused.
struct slitrefused001 {
    std::int64_t frame = 0;
    double seconds = 0;
};
BOOST_DESCRIBE_STRUCT(slitrefused001, (), (frame, seconds))

struct slitline001 {
    std::int64_t split = 1; ///< whose marks are made here: 0 is the start
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    bool fromLeft =
        true; ///< boats come from the left of who looks from the first end to the second
    /// Upper left corner, width and height of a box round a boat; 0 without one.
    double boatX = 0;
    double boatY = 0;
    double boatWidth = 0;
    double boatHeight = 0;
    std::vector<slitrefused001> refused = {};
};
BOOST_DESCRIBE_STRUCT(slitline001, (),
                      (split, x1, y1, x2, y2, fromLeft, boatX, boatY, boatWidth, boatHeight,
                       refused))

/// As files were written before what was found was kept.
struct slitfile001 {
    std::int64_t kavelaSlit = 1; ///< version
    std::int64_t width = 0;      ///< of the upright picture that the lines were drawn over
    std::int64_t height = 0;
    std::vector<slitline001> lines = {};
};
BOOST_DESCRIBE_STRUCT(slitfile001, (), (kavelaSlit, width, height, lines))

/// A moment that was proposed.
struct slitproposal001 {
    std::int64_t frame = 0;
    double seconds = 0;
    double confidence = 0;
    std::int64_t bodyFrame = 0;
    double bodySeconds = 0;
};
BOOST_DESCRIBE_STRUCT(slitproposal001, (), (frame, seconds, confidence, bodyFrame, bodySeconds))

/// What a search found, and for which line, side and boat: it is worth nothing for others.
struct slitsearch001 {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    bool fromLeft = true;
    double boatX = 0;
    double boatY = 0;
    double boatWidth = 0;
    double boatHeight = 0;
    std::int64_t frames = 0; ///< of the film that was searched
    bool isHandHeld = false;
    std::vector<slitproposal001> proposals = {};
};
BOOST_DESCRIBE_STRUCT(slitsearch001, (),
                      (x1, y1, x2, y2, fromLeft, boatX, boatY, boatWidth, boatHeight, frames,
                       isHandHeld, proposals))

struct slitfile002 {
    std::int64_t kavelaSlit = 2;
    std::string timedAt = "bow"; ///< or "body"
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::vector<slitline001> lines = {};
    std::vector<slitsearch001> searches = {};
};
BOOST_DESCRIBE_STRUCT(slitfile002, (), (kavelaSlit, timedAt, width, height, lines, searches))

[[nodiscard]] TimingPoint timingPointOf(const slitfile002& file);
void setTimingPoint(slitfile002& file, TimingPoint point);

[[nodiscard]] SlitLine lineOf(const slitline001& line);
/// The box round a boat; of no size where none was drawn.
[[nodiscard]] BoatBox boatOf(const slitline001& line);

/// "NAME.slit.json" beside the film.
[[nodiscard]] std::filesystem::path slitFileOf(const std::filesystem::path& film);
/// Nothing where no file is; one of an older release is brought up to date. Throws FileError, or
/// DecodeError for one that is none of these or of a later release.
[[nodiscard]] std::optional<slitfile002> readSlitFile(const std::filesystem::path& path);
/// Throws FileError; what stood there then stays.
void writeSlitFile(const slitfile002& file, const std::filesystem::path& path);

/// What was found on a line, for its file.
[[nodiscard]] slitsearch001 searchRecord(const slitline001& line, const Crossings& crossings);
/// What was found on a line as it is now, in a film of so many frames; nothing where it was not
/// looked for there.
[[nodiscard]] std::optional<Crossings> foundOn(const slitfile002& file, const slitline001& line,
                                               FrameNumber frames);

/// Refused proposals stay refused, though another reading sees them a few frames away: within a
/// quarter of a second.
[[nodiscard]] bool isRefused(const slitline001& line, double seconds);

} // namespace kavela
