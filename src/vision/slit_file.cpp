#include "vision/slit_file.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace fs = std::filesystem;

/// What is read first: later releases may have changed everything else.
struct slitversion {
    std::int64_t kavelaSlit = 0;
};
BOOST_DESCRIBE_STRUCT(slitversion, (), (kavelaSlit))

SlitLine lineOf(const slitline001& line) {
    return {
        {line.x1, line.y1}, {line.x2, line.y2}, line.fromLeft ? BoatsFrom::Left : BoatsFrom::Right};
}

BoatBox boatOf(const slitline001& line) {
    return {line.boatX, line.boatY, line.boatWidth, line.boatHeight};
}

fs::path slitFileOf(const fs::path& film) {
    fs::path path = film;
    path.replace_extension(".slit.json");
    return path;
}

TimingPoint timingPointOf(const slitfile002& file) {
    return timingPointFrom(file.timedAt).value_or(TimingPoint::Bow);
}

void setTimingPoint(slitfile002& file, TimingPoint point) {
    file.timedAt = textOf(point);
}

std::optional<slitfile002> readSlitFile(const fs::path& path) {
    std::error_code error;
    if (!fs::exists(path, error))
        return std::nullopt;
    const JsonDocument document = JsonDocument::fromFile(path);
    const auto version = decode<slitversion>(document).kavelaSlit;
    if (version == slitfile001().kavelaSlit) {
        auto old = decode<slitfile001>(document);
        slitfile002 file;
        file.width = old.width;
        file.height = old.height;
        file.lines = std::move(old.lines);
        return file;
    }
    if (version != slitfile002().kavelaSlit)
        throw DecodeError({"kavelaSlit", say("version {} is of a later release", version)});
    auto file = decode<slitfile002>(document);
    if (!timingPointFrom(file.timedAt))
        throw DecodeError({"timedAt", say("“bow” or “body” was expected")});
    return file;
}

void writeSlitFile(const slitfile002& file, const fs::path& path) {
    writeFileSafely(path, encode(file));
}

slitsearch001 searchRecord(const slitline001& line, const Crossings& crossings) {
    slitsearch001 record{line.x1,
                         line.y1,
                         line.x2,
                         line.y2,
                         line.fromLeft,
                         line.boatX,
                         line.boatY,
                         line.boatWidth,
                         line.boatHeight,
                         crossings.frames,
                         crossings.isHandHeld};
    for (const Proposal& found : crossings.proposals)
        record.proposals.push_back(
            {found.frame, found.seconds, found.confidence, found.bodyFrame, found.bodySeconds});
    return record;
}

std::optional<Crossings> foundOn(const slitfile002& file, const slitline001& line,
                                 FrameNumber frames) {
    const auto isOfLine = [&](const slitsearch001& search) {
        return search.frames == frames && search.x1 == line.x1 && search.y1 == line.y1 &&
               search.x2 == line.x2 && search.y2 == line.y2 && search.fromLeft == line.fromLeft &&
               search.boatX == line.boatX && search.boatY == line.boatY &&
               search.boatWidth == line.boatWidth && search.boatHeight == line.boatHeight;
    };
    const auto search = std::ranges::find_if(file.searches, isOfLine);
    if (search == file.searches.end())
        return std::nullopt;
    Crossings crossings;
    crossings.frames = search->frames;
    crossings.isHandHeld = search->isHandHeld;
    if (search->isHandHeld)
        crossings.notes.push_back(handHeldNote());
    for (const slitproposal001& found : search->proposals)
        crossings.proposals.push_back(
            {found.frame, found.seconds, found.confidence, found.bodyFrame, found.bodySeconds});
    return crossings;
}

bool isRefused(const slitline001& line, double seconds) {
    constexpr double Reach = 0.25;
    return std::ranges::any_of(line.refused, [&](const slitrefused001& refused) {
        return std::abs(refused.seconds - seconds) <= Reach;
    });
}

} // namespace kavela
