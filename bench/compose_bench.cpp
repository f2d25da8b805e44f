#include "subjects.h"

#include "captions/film_captions.h"
#include "child_process.h"
#include "compose/composer.h"
#include "compose/preview.h"
#include "made_film.h"
#include "sample_files.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <array>
#include <memory>
#include <string>
#include <vector>

/// Two films of 1080 lines at 50 a second side by side, with captions on both, beside the command
/// line of the same libraries making the same picture, without a word on it, with the same preset.
namespace kavela::bench {

namespace {

constexpr int ComposedSeconds = 4;

class ComposedPair {
public:
    ComposedPair() {
        for (const char* const name : {"first.mp4", "second.mp4"}) {
            ComposedFilm film;
            film.path = m_folder.write(name, "");
            makeFilm(film.path, ComposedSeconds, m_asked.films.empty() ? 6 : 8);
            film.run = {name, "K1M", {0.0, 1.0, 3.0}, {0.0, 1.0, 3.0}, {0, 2}};
            m_asked.films.push_back(film);
        }
        m_asked.range = {RangeKind::Free, 0, 0, 0, double(ComposedSeconds)};
        m_target = m_folder.write("out", "").parent_path() / "composed.mp4";
    }

    [[nodiscard]] const Composition& asked() const { return m_asked; }

    void compose() {
        const auto made = kavela::compose(m_asked, &m_captions, m_target);
        std::filesystem::remove(made->path);
    }

    void composeByPeer() const {
        static_cast<void>(outputOf(
            {KAVELA_FFMPEG,
             "-v",
             "error",
             "-y",
             "-i",
             m_asked.films[0].path.string(),
             "-i",
             m_asked.films[1].path.string(),
             "-filter_complex",
             "[0]scale=960:540,pad=960:1080:0:270[a];[1]scale=960:540,pad=960:1080:0:270[b];"
             "[a][b]hstack",
             "-c:v",
             "libx264",
             "-preset",
             "veryfast",
             "-crf",
             "21",
             "-g",
             "50",
             "-pix_fmt",
             "yuv420p",
             "-movflags",
             "+faststart",
             m_target.string()}));
        std::filesystem::remove(m_target);
    }

    [[nodiscard]] FilmCaptions& captions() { return m_captions; }

private:
    ScratchFolder m_folder;
    Composition m_asked;
    FilmCaptions m_captions;
    std::filesystem::path m_target;
};

/// Fonts ask for an application object; it stays off the screen.
ComposedPair& composedPair() {
    static std::array<std::string, 3> words{"bench", "-platform", "offscreen"};
    static std::array<char*, 4> pointers{words[0].data(), words[1].data(), words[2].data(),
                                         nullptr};
    static int count = 3;
    static const QGuiApplication application(count, pointers.data());
    static ComposedPair pair;
    return pair;
}

template <class Work>
void addComposing(const char* name, int repetitions, const Work& work) {
    benchmark::RegisterBenchmark(name,
                                 [work](benchmark::State& state) {
                                     ComposedPair& pair = composedPair();
                                     for ([[maybe_unused]] const auto iteration : state)
                                         work(pair);
                                 })
        ->Iterations(1)
        ->Repetitions(repetitions)
        ->UseRealTime();
}

/// A second of the preview in a window, at 25 pictures.
void previewSecond(ComposedPair& pair) {
    constexpr VideoSize WindowBox{960, 540};
    constexpr int Pictures = 25;
    ComposePreview preview(pair.asked(), openFilms(pair.asked()), WindowBox,
                           std::make_shared<FrameCache>(std::size_t{256} << 20), &pair.captions());
    for (int i = 0; i < Pictures; ++i)
        benchmark::DoNotOptimize(preview.previewAt(double(i) / Pictures));
}

} // namespace

void addCompose() {
    addComposing("compose/side_by_side/kavela", 3, [](ComposedPair& pair) { pair.compose(); });
    addComposing("compose/side_by_side/ffmpeg", 3,
                 [](ComposedPair& pair) { pair.composeByPeer(); });
    addComposing("compose/preview_second", 3, previewSecond);
}

} // namespace kavela::bench
