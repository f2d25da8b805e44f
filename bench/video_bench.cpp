#include "subjects.h"

#include "child_process.h"
#include "sample_files.h"
#include "video/frame_source.h"
#include "video/picture.h"

#include <benchmark/benchmark.h>
#include <opencv2/videoio.hpp>

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>

/// Reaching a frame of a film exactly, up to the pixels for the screen. The film is the hard case:
/// 1080p, B-frames, and a key frame only every 250.
namespace kavela::bench {

namespace {

constexpr FrameNumber Frames = 600;
constexpr double Rate = 60000.0 / 1001;
constexpr std::size_t CacheBytes = std::size_t{512} << 20;
constexpr int Seeks = 30;
constexpr int Steps = 60;
constexpr int StepsInARow = 10;
constexpr int Rows = 3;

class Film {
public:
    Film() : m_path(m_folder.write("film.mp4", "")) {
        static_cast<void>(outputOf({KAVELA_FFMPEG,
                                    "-v",
                                    "error",
                                    "-y",
                                    "-f",
                                    "lavfi",
                                    "-i",
                                    "testsrc2=size=1920x1080:rate=60000/1001,noise=alls=6:allf=t",
                                    "-frames:v",
                                    std::to_string(Frames),
                                    "-c:v",
                                    "libx264",
                                    "-preset",
                                    "superfast",
                                    "-pix_fmt",
                                    "yuv420p",
                                    "-bf",
                                    "3",
                                    "-g",
                                    "250",
                                    "-keyint_min",
                                    "250",
                                    "-sc_threshold",
                                    "0",
                                    m_path.string()}));
    }
    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    ScratchFolder m_folder;
    std::filesystem::path m_path;
};

/// Made when the first subject of the film runs.
const Film& film() {
    static const Film made;
    return made;
}

class Ours {
public:
    Ours()
        : m_source(readVideoIndex(film().path()), std::make_shared<FrameCache>(CacheBytes)),
          m_pictures(m_source.index().facts()) {}

    void show(FrameNumber number) { benchmark::DoNotOptimize(m_pictures.make(*samples(number))); }
    [[nodiscard]] FramePtr samples(FrameNumber number) {
        return m_source.frame(number).frame.samples;
    }
    /// Decodes around a frame while nobody asks for anything.
    void prepare(FrameNumber number) {
        while (!m_source.prepare(number))
            ;
    }
    [[nodiscard]] PictureMaker& pictures() { return m_pictures; }

private:
    FrameSource m_source;
    PictureMaker m_pictures;
};

class Peer {
public:
    Peer() : m_capture(film().path().string(), cv::CAP_FFMPEG) {}

    void show(FrameNumber number) {
        if (number != m_next)
            m_capture.set(cv::CAP_PROP_POS_FRAMES, static_cast<double>(number));
        m_next = number + 1;
        cv::Mat picture;
        if (!m_capture.read(picture))
            throw std::runtime_error("the peer cannot read the film");
        benchmark::DoNotOptimize(picture.data);
    }

private:
    cv::VideoCapture m_capture;
    FrameNumber m_next = 0;
};

/// A tool that starts anew for each frame.
class CommandLine {
public:
    void show(FrameNumber number) {
        constexpr double Early = 0.5; // frames: a moment just behind it would give the next one
        const double seconds = std::max(0.0, (static_cast<double>(number) - Early) / Rate);
        const std::string pixels = outputOf(
            {KAVELA_FFMPEG, "-v", "error", "-ss", std::to_string(seconds), "-i",
             film().path().string(), "-frames:v", "1", "-pix_fmt", "bgra", "-f", "rawvideo", "-"});
        if (pixels.empty())
            throw std::runtime_error("the peer cannot read the film");
    }
};

/// The part of it that is not seeking.
class CommandLineAtFirst : public CommandLine {
public:
    void show(FrameNumber) { CommandLine::show(0); }
};

/// A player that stays open from one repetition to the next.
template <class Player>
class Opened {
public:
    Player& operator()() {
        if (!m_player)
            m_player = std::make_unique<Player>();
        return *m_player;
    }

private:
    std::unique_ptr<Player> m_player;
};

template <class Player>
void addSeek(const std::string& name) {
    const auto player = std::make_shared<Opened<Player>>();
    const auto dice = std::make_shared<std::mt19937>(11);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     Player& opened = (*player)();
                                     const FrameNumber number =
                                         static_cast<FrameNumber>((*dice)()) % Frames;
                                     for ([[maybe_unused]] const auto iteration : state)
                                         opened.show(number);
                                 })
        ->Iterations(1)
        ->Repetitions(Seeks)
        ->UseRealTime();
}

/// To a place that was to be expected, from another one.
void addExpected() {
    const auto player = std::make_shared<Opened<Ours>>();
    const auto dice = std::make_shared<std::mt19937>(13);
    benchmark::RegisterBenchmark("video/expected/kavela",
                                 [=](benchmark::State& state) {
                                     Ours& opened = (*player)();
                                     const auto roll = [&] {
                                         return static_cast<FrameNumber>((*dice)()) % Frames;
                                     };
                                     opened.show(roll());
                                     const FrameNumber number = roll();
                                     opened.prepare(number);
                                     for ([[maybe_unused]] const auto iteration : state)
                                         opened.show(number);
                                 })
        ->Iterations(1)
        ->Repetitions(Seeks)
        ->UseRealTime();
}

template <class Player>
void addForward(const std::string& name) {
    const auto player = std::make_shared<Opened<Player>>();
    const auto at = std::make_shared<FrameNumber>(100);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     Player& opened = (*player)();
                                     if (*at == 100)
                                         opened.show(*at);
                                     ++*at;
                                     for ([[maybe_unused]] const auto iteration : state)
                                         opened.show(*at);
                                 })
        ->Iterations(1)
        ->Repetitions(Steps)
        ->UseRealTime();
}

template <class Player>
void addBack(const std::string& name) {
    const auto player = std::make_shared<Opened<Player>>();
    const auto at = std::make_shared<FrameNumber>(Frames - 50);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     Player& opened = (*player)();
                                     if (*at == Frames - 50)
                                         opened.show(*at);
                                     for ([[maybe_unused]] const auto iteration : state)
                                         for (int step = 0; step < StepsInARow; ++step)
                                             opened.show(--*at);
                                 })
        ->Iterations(1)
        ->Repetitions(Rows)
        ->UseRealTime();
}

} // namespace

void addVideo() {
    addSeek<Ours>("video/seek/kavela");
    addSeek<Peer>("video/seek/opencv");
    addSeek<CommandLine>("video/seek/ffmpeg");
    addSeek<CommandLineAtFirst>("video/seek/ffmpeg_first");
    addExpected();
    addForward<Ours>("video/forward/kavela");
    addForward<Peer>("video/forward/opencv");
    addBack<Ours>("video/back/kavela");
    addBack<Peer>("video/back/opencv");
    const auto player = std::make_shared<Opened<Ours>>();
    benchmark::RegisterBenchmark("video/picture",
                                 [=](benchmark::State& state) {
                                     const FramePtr samples = (*player)().samples(10);
                                     for ([[maybe_unused]] const auto iteration : state)
                                         benchmark::DoNotOptimize(
                                             (*player)().pictures().make(*samples));
                                 })
        ->Iterations(5)
        ->Repetitions(5)
        ->UseRealTime();
}

} // namespace kavela::bench
