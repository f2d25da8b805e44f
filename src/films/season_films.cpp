#include "films/season_films.h"

#include "sample/races.h"
#include "sample/training.h"
#include "splitdata/run_timing.h"
#include "video/av_handles.h"
#include "video/writing/film_writer.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kavela::films {

namespace {

namespace fs = std::filesystem;

QString captionOf(const athletedata031& run) {
    QString caption;
    for (const std::string& name : run.names)
        caption += QString::fromStdString(name) + QStringLiteral("  ·  ");
    return caption + QString::fromStdString(run.cat) + QStringLiteral("  ·  ") +
           QString::fromStdString(run.phase);
}

/// The race that newcomers see first has films of every run of its final; to film its other phases
/// too would take too long.
splittakerdata031 riversideFinal() {
    const sample::RacePlan plan = sample::riversideCup();
    splittakerdata031 race = sample::holdRace(plan);
    std::erase_if(race.athletes,
                  [&](const athletedata031& run) { return run.phase != plan.phases.back().name; });
    return race;
}

/// The first camera stands on one bank, the second on the other. A strip is painted when the first
/// film wants it.
class Strips {
public:
    explicit Strips(const infodata031& info) : m_info(info) {}

    std::shared_ptr<const CourseStrip> seenBy(std::size_t camera) {
        auto& strip = m_strips[camera % m_strips.size()];
        if (!strip)
            strip = std::make_shared<CourseStrip>(layOut(m_info),
                                                  camera % 2 == 0 ? Bank::Right : Bank::Left);
        return strip;
    }

private:
    const infodata031& m_info;
    std::array<std::shared_ptr<const CourseStrip>, 2> m_strips;
};

bool isFilmed(const athletedata031& run, std::size_t camera) {
    for (const auto& stamps : run.sectioninfo.cmtimes)
        if (camera < stamps.size())
            return true;
    return false;
}

/// As fast as can be: a season has an hour and a half of films. Finer parts of pictures that stand
/// alone would cost a tenth more time, take as many bytes and look the same. A fixed quantizer
/// spares the encoder to look at each picture before; drawn pictures stay sharp at so coarse a one.
FilmFormat formatOfSeason(std::int32_t timescale) {
    constexpr int FramesASecond = static_cast<int>(sample::FramesPerSecond);
    FilmFormat format;
    format.container = "mov";
    format.size = {FilmWidth, FilmHeight};
    format.rate = {FramesASecond, 1};
    format.tick = {1, FramesASecond};
    format.timescale = timescale;
    format.framesPerGroup = FramesASecond;
    format.preset = "ultrafast";
    format.quality = 38;
    format.isQuantizerFixed = true;
    format.isPlain = true;
    format.isHighDefinition = false;
    format.threads = 1; // the films themselves are made side by side
    return format;
}

void fill(const AVFrame& frame, const YuvPicture& picture) {
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(picture.yLine(y), picture.width(), frame.data[0] + y * frame.linesize[0]);
    for (int y = 0; y < picture.colourHeight(); ++y) {
        std::copy_n(picture.uLine(y), picture.colourWidth(), frame.data[1] + y * frame.linesize[1]);
        std::copy_n(picture.vLine(y), picture.colourWidth(), frame.data[2] + y * frame.linesize[2]);
    }
}

template <class Scene>
std::string filmOf(const Scene& scene, Frames length, std::int32_t timescale) {
    MemorySink bytes;
    FilmWriter writer(formatOfSeason(timescale), bytes);
    YuvPicture picture(FilmWidth, FilmHeight);
    for (Frames frame = 0; frame < length; ++frame) {
        scene.draw(frame, picture);
        fill(writer.picture(), picture);
        writer.add(frame);
    }
    writer.finish();
    return bytes.take();
}

} // namespace

std::vector<PlannedFilm> sessionFilms(const splittakerdata031& session, const fs::path& folder,
                                      const std::function<bool(const fs::path&)>& isWanted) {
    Strips strips(session.info);
    std::vector<PlannedFilm> films;
    for (const athletedata031& run : session.athletes) {
        const FilmedBoat boat{boatLook(run.cat, run.hand, crewText(run.names)), captionOf(run)};
        for (std::size_t camera = 0; camera < run.videoname.size(); ++camera) {
            const fs::path name = folder / run.videoname[camera];
            if (isFilmed(run, camera) && isWanted(name))
                films.push_back(
                    {name, std::make_shared<FilmScene>(
                               strips.seenBy(camera), runOnFilm(session.info, run, camera), boat)});
        }
    }
    return films;
}

std::vector<PlannedFilm> seasonFilms(const std::function<bool(const fs::path&)>& isWanted) {
    std::vector<PlannedFilm> films = sessionFilms(riversideFinal(), "races", isWanted);
    const auto add = [&](const splittakerdata031& session, const fs::path& folder) {
        std::ranges::move(sessionFilms(session, folder, isWanted), std::back_inserter(films));
    };
    add(sample::holdRace(sample::harbourNight()), "races");
    add(sample::formTest(), "training");
    const fs::path sprint = fs::path("camera") / sample::SprintFilm;
    if (isWanted(sprint))
        films.push_back({sprint, nullptr, std::make_shared<FixedScene>(sample::sprintPassages())});
    return films;
}

std::string makeFilm(const FilmScene& scene) {
    return filmOf(scene, scene.run().length, scene.run().timescale);
}

std::string makeFilm(const FixedScene& scene) {
    return filmOf(scene, scene.length(), sample::FilmClock().timescale);
}

std::string makeFilm(const PlannedFilm& film) {
    return film.fixed ? makeFilm(*film.fixed) : makeFilm(*film.scene);
}

} // namespace kavela::films
