#include "compose/compose_job.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/record_convert.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "splitdata/loader.h"
#include "vision/track_file.h"

#include <algorithm>
#include <array>
#include <list>
#include <utility>

namespace kavela {

namespace {

namespace fs = std::filesystem;

template <class Kind>
using WordOfKind = std::pair<Kind, std::string_view>;

constexpr std::array<WordOfKind<LayoutKind>, 6> LayoutWords{
    {{LayoutKind::SideBySide, "side by side"},
     {LayoutKind::Stacked, "stacked"},
     {LayoutKind::TwoByTwo, "2x2"},
     {LayoutKind::PictureInPicture, "picture in picture"},
     {LayoutKind::Ghost, "ghost"},
     {LayoutKind::Wipe, "wipe"}}};
constexpr std::array<WordOfKind<Synchronise>, 4> SynchroniseWords{
    {{Synchronise::Start, "start"},
     {Synchronise::Split, "split"},
     {Synchronise::Waiting, "waiting"},
     {Synchronise::Stretched, "stretched"}}};
constexpr std::array<WordOfKind<RangeKind>, 3> RangeWords{
    {{RangeKind::Run, "run"}, {RangeKind::Splits, "splits"}, {RangeKind::Free, "free"}}};

/// Jobs of before films could have paths.
struct composefilm001 {
    std::string splitFile;
    std::int64_t run = 0;
    std::int64_t camera = 1;
    std::string film;
    std::string names;
    std::string category;
    double startsAt = 0;
    std::vector<composepoint001> points;
};
BOOST_DESCRIBE_STRUCT(composefilm001, (),
                      (splitFile, run, camera, film, names, category, startsAt, points))

struct composejob001 {
    std::vector<composefilm001> films;
    std::string layout;
    double wipe = 0.5;
    std::string synchronise;
    std::int64_t split = 0;
    composerange001 range;
    double speed = 1;
    composecaptions001 captions;
    std::int64_t sound = 0;
    composeoutput001 output;
};
BOOST_DESCRIBE_STRUCT(composejob001, (),
                      (films, layout, wipe, synchronise, split, range, speed, captions, sound,
                       output))

[[noreturn]] void refuse(std::string path, std::string text) {
    throw DecodeError({std::move(path), std::move(text)});
}

template <class Words>
auto kindOf(const Words& words, const std::string& word, const char* path) {
    std::string known;
    for (const auto& [kind, name] : words) {
        if (name == word)
            return kind;
        known += (known.empty() ? "\"" : ", \"") + std::string(name) + '"';
    }
    refuse(path, say("\"{}\" is none of {}", word, known));
}

/// Whole numbers that count something.
std::size_t countedFrom(std::int64_t least, std::int64_t value, const std::string& path) {
    constexpr std::int64_t Most = 10'000;
    if (value < least || value > Most)
        refuse(path, say("{} is not a number from {} on", value, least));
    return static_cast<std::size_t>(value);
}

/// A clock for documents of older releases, whose date is not asked for here.
ReferenceDate noMoment() {
    return {};
}

/// Split files of a job, each read once.
class SplitFiles {
public:
    explicit SplitFiles(fs::path folder) : m_folder(std::move(folder)) {}

    const splittakerdata031& at(const std::string& name, const std::string& place) {
        const fs::path path = m_folder / name;
        for (const auto& [known, document] : m_documents)
            if (known == path)
                return document;
        RecognisedSplitFile found = recogniseSplitFile(
            path, [](std::string_view) {}, &noMoment);
        if (!found.version)
            refuse(place, path.string() + ": " +
                              (found.failures.empty() ? say("it could not be read")
                                                      : found.failures.front().fault.message()));
        return m_documents.emplace_back(path, std::move(found.document)).second;
    }

private:
    fs::path m_folder;
    // Documents are handed out by reference while more are read.
    std::list<std::pair<fs::path, splittakerdata031>> m_documents;
};

std::optional<PointPair> pointsOf(const composefilm002& film, const std::string& place) {
    if (film.points.empty())
        return std::nullopt;
    if (film.points.size() != 2)
        refuse(place + ".points", say("either two points or none are needed"));
    return PointPair{{{film.points[0].x, film.points[0].y}, {film.points[1].x, film.points[1].y}}};
}

std::shared_ptr<const PathView> pathOf(const composefilm002& film, const std::string& place,
                                       const fs::path& folder) {
    if (!(film.zoom >= 1 && film.zoom <= PathView::MostZoom))
        refuse(place + ".zoom", say("a number from 1 to 2 was expected"));
    if (film.track.empty()) {
        if (film.zoom > 1 || film.drawsPath)
            refuse(place + ".track", say("no path is named that could be drawn or followed"));
        return nullptr;
    }
    const fs::path path = folder / film.track;
    try {
        const track001 record = readTrack(path);
        if (record.width <= 0 || record.height <= 0)
            refuse(place + ".track", say("{}: the size of its picture is missing", path.string()));
        return std::make_shared<const PathView>(
            trackOf(record),
            VideoSize{static_cast<int>(record.width), static_cast<int>(record.height)}, film.zoom,
            film.drawsPath);
    } catch (const FileError& error) {
        refuse(place + ".track", error.what());
    } catch (const DecodeError& error) {
        refuse(place + ".track", path.string() + ": " + error.what());
    }
}

/// What a job says by itself goes before what the split file tells.
void takeOwnWords(const composefilm002& film, ComposedFilm& composed) {
    if (!film.names.empty())
        composed.run.names = film.names;
    if (!film.category.empty())
        composed.run.category = film.category;
    const bool isMarked = !composed.run.marks.empty() && composed.run.marks.front();
    if (!isMarked)
        composed.run.marks = {film.startsAt};
}

ComposedFilm filmOf(const composefilm002& film, const std::string& place, const fs::path& folder,
                    SplitFiles& files, std::vector<std::string>& titles) {
    ComposedFilm composed;
    if (!film.film.empty())
        composed.path = folder / film.film;
    if (!film.splitFile.empty()) {
        const splittakerdata031& document = files.at(film.splitFile, place + ".splitFile");
        const std::size_t number = countedFrom(1, film.run, place + ".run") - 1;
        if (number >= document.athletes.size())
            refuse(place + ".run",
                   sayCount(std::ssize(document.athletes), "the split file has {} runs",
                            "the split file has {} runs"));
        const std::size_t camera = countedFrom(1, film.camera, place + ".camera") - 1;
        const athletedata031& run = document.athletes[number];
        composed.run = captionedRun(document.info, run, camera);
        if (titles.empty())
            titles = document.info.splitTitles;
        if (composed.path.empty() && camera >= run.videoname.size())
            refuse(place + ".camera", say("the run has no film of this camera"));
        if (composed.path.empty())
            composed.path = (folder / film.splitFile).parent_path() / run.videoname[camera];
    }
    if (composed.path.empty())
        refuse(place + ".film", say("neither a film nor a split file is named"));
    composed.points = pointsOf(film, place);
    composed.view = pathOf(film, place, folder);
    takeOwnWords(film, composed);
    return composed;
}

LayoutChoice layoutOf(const composejob002& job) {
    LayoutChoice layout;
    layout.kind = kindOf(LayoutWords, job.layout, "layout");
    layout.wipe = job.wipe;
    if (!(job.wipe >= 0 && job.wipe <= 1))
        refuse("wipe", say("a share from 0 to 1 was expected"));
    if (job.films.size() < 2 || job.films.size() > mostFilms(layout.kind))
        refuse("films", mostFilms(layout.kind) > 2
                            ? say("{} films; this layout takes 2 to 4", job.films.size())
                            : say("{} films; this layout takes 2", job.films.size()));
    constexpr std::int64_t Least = 160;
    constexpr std::int64_t Most = 4096;
    for (const auto& [side, name] : {std::pair(job.output.width, "output.width"),
                                     std::pair(job.output.height, "output.height")})
        if (side < Least || side > Most || side % 2 != 0)
            refuse(name, say("an even number from 160 to 4096 was expected"));
    layout.size = {static_cast<int>(job.output.width), static_cast<int>(job.output.height)};
    if (!isWithinLevel(layout.size, {1, 1}))
        refuse("output",
               say("the picture is larger than 1920 × 1080 and would not play everywhere"));
    return layout;
}

RangeChoice rangeChoiceOf(const composejob002& job) {
    RangeChoice range;
    range.kind = kindOf(RangeWords, job.range.kind, "range.kind");
    range.fromSplit = countedFrom(0, job.range.fromSplit, "range.fromSplit");
    range.toSplit = countedFrom(0, job.range.toSplit, "range.toSplit");
    range.from = job.range.from;
    range.to = job.range.to;
    if (range.kind == RangeKind::Splits && range.toSplit <= range.fromSplit)
        refuse("range.toSplit", say("it does not lie behind {}", "range.fromSplit"));
    if (range.kind == RangeKind::Free && !(range.to > range.from))
        refuse("range.to", say("it does not lie behind {}", "range.from"));
    return range;
}

template <class Words, class Kind>
std::string_view wordIn(const Words& words, Kind kind) {
    return std::ranges::find(words, kind, &WordOfKind<Kind>::first)->second;
}

} // namespace

std::string_view wordOf(LayoutKind kind) {
    return wordIn(LayoutWords, kind);
}

std::string_view wordOf(Synchronise how) {
    return wordIn(SynchroniseWords, how);
}

std::string_view wordOf(RangeKind kind) {
    return wordIn(RangeWords, kind);
}

composejob002 composeJobOf(const JsonDocument& document) {
    composejob002 job;
    Fault fault;
    if (tryDecode(document.root(), job, fault))
        return job;
    composejob001 older;
    Fault faultOfOlder;
    if (!tryDecode(document.root(), older, faultOfOlder))
        // What an older job lacks by right is not what is wrong with it.
        throw DecodeError(fault.path.ends_with(".track") ? faultOfOlder : fault);
    convertValue(std::move(older), job);
    return job;
}

composejob002 readComposeJob(const fs::path& path) {
    return composeJobOf(JsonDocument::fromFile(path));
}

void writeComposeJob(const composejob002& job, const fs::path& path) {
    writeFileSafely(path, encode(job));
}

Composition compositionOf(const composejob002& job, const fs::path& folder) {
    Composition composition;
    composition.layout = layoutOf(job);
    composition.synchronise = kindOf(SynchroniseWords, job.synchronise, "synchronise");
    composition.split = countedFrom(0, job.split, "split");
    composition.range = rangeChoiceOf(job);
    composition.speed = job.speed;
    constexpr double Slowest = 0.125;
    if (!(job.speed >= Slowest && job.speed <= 1))
        refuse("speed", say("a number from 0.125 to 1 was expected"));
    const composecaptions001& words = job.captions;
    composition.captions = {words.names,   words.clock,     words.splits,
                            words.section, words.penalties, words.gap};
    if (const std::size_t sound = countedFrom(0, job.sound, "sound"); sound > job.films.size())
        refuse("sound", say("there is no film of this number; 0 is no sound"));
    else if (sound > 0)
        composition.sound = sound - 1;
    composition.isSmall = job.output.small;
    SplitFiles files(folder);
    for (std::size_t i = 0; i < job.films.size(); ++i)
        composition.films.push_back(filmOf(job.films[i], "films[" + std::to_string(i) + "]", folder,
                                           files, composition.splitTitles));
    const bool isOverlaid =
        composition.layout.kind == LayoutKind::Ghost || composition.layout.kind == LayoutKind::Wipe;
    for (std::size_t i = 0; isOverlaid && i < job.films.size(); ++i)
        if (job.films[i].zoom > 1)
            refuse("films[" + std::to_string(i) + "].zoom",
                   say("films that lie over each other cannot follow a path"));
    static_cast<void>(rangeOf(composition, timeMapOf(composition)));
    return composition;
}

fs::path outputOf(const composejob002& job, const fs::path& path) {
    if (!job.output.file.empty())
        return path.parent_path() / job.output.file;
    return fs::path(path).replace_extension(".mp4");
}

} // namespace kavela
