#pragma once

#include "common/json_document.h"
#include "compose/composition.h"

#include <boost/describe.hpp>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// What is asked for when films are compared, as a file: docs/file-formats.md tells the meaning of
/// every member.
namespace kavela {

struct composepoint001 {
    double x = 0;
    double y = 0;
};
BOOST_DESCRIBE_STRUCT(composepoint001, (), (x, y))

struct composefilm002 {
    std::string splitFile = {};
    std::int64_t run = 0;
    std::int64_t camera = 1;
    std::string film = {};
    std::string names = {};
    std::string category = {};
    double startsAt = 0;
    std::vector<composepoint001> points = {};
    std::string track = {};
    bool drawsPath = false;
    double zoom = 1;
};
BOOST_DESCRIBE_STRUCT(composefilm002, (),
                      (splitFile, run, camera, film, names, category, startsAt, points, track,
                       drawsPath, zoom))

struct composerange001 {
    std::string kind = "run";
    std::int64_t fromSplit = 0;
    std::int64_t toSplit = 0;
    double from = 0;
    double to = 0;
};
BOOST_DESCRIBE_STRUCT(composerange001, (), (kind, fromSplit, toSplit, from, to))

struct composecaptions001 {
    bool names = true;
    bool clock = true;
    bool splits = true;
    bool section = true;
    bool penalties = true;
    bool gap = true;
};
BOOST_DESCRIBE_STRUCT(composecaptions001, (), (names, clock, splits, section, penalties, gap))

struct composeoutput001 {
    std::string file;
    std::int64_t width = 1920;
    std::int64_t height = 1080;
    bool small = false;
};
BOOST_DESCRIBE_STRUCT(composeoutput001, (), (file, width, height, small))

struct composejob002 {
    std::vector<composefilm002> films;
    std::string layout = "side by side";
    double wipe = 0.5;
    std::string synchronise = "start";
    std::int64_t split = 0;
    composerange001 range;
    double speed = 1;
    composecaptions001 captions;
    std::int64_t sound = 0;
    composeoutput001 output;
};
BOOST_DESCRIBE_STRUCT(composejob002, (),
                      (films, layout, wipe, synchronise, split, range, speed, captions, sound,
                       output))

/// The words of a job for a layout and for a way of synchronising.
[[nodiscard]] std::string_view wordOf(LayoutKind kind);
[[nodiscard]] std::string_view wordOf(Synchronise how);
[[nodiscard]] std::string_view wordOf(RangeKind kind);

/// A job as it stands in a document, as readComposeJob() takes it. Throws DecodeError.
[[nodiscard]] composejob002 composeJobOf(const JsonDocument& document);

/// Reads a job from a file, also one of before films could have paths. Throws FileError, or
/// DecodeError with the place of what is wrong.
[[nodiscard]] composejob002 readComposeJob(const std::filesystem::path& path);

/// Writes a job, safely. Throws FileError, and EncodeError for what JSON cannot hold.
void writeComposeJob(const composejob002& job, const std::filesystem::path& path);

/// What a job asks for, with what its split files tell of the runs. Names of files are relative to
/// `folder`, that of the job. A film that is not there is no fault: its place stays dark. Throws
/// DecodeError with the place in the job of what is wrong.
[[nodiscard]] Composition compositionOf(const composejob002& job,
                                        const std::filesystem::path& folder);

/// Where the composed film goes: as the job says, or, where it names none, beside the job under
/// its name. `job` is the path of the job.
[[nodiscard]] std::filesystem::path outputOf(const composejob002& job,
                                             const std::filesystem::path& path);

} // namespace kavela
