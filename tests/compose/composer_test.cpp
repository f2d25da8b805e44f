#include "compose/composer.h"

#include "common/error.h"
#include "common/file_size_limit.h"
#include "common/temp_folder.h"
#include "compose/preview.h"
#include "video/clips.h"
#include "video/frame_source.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

extern "C" {
#include <libavutil/frame.h>
}

/// Every frame of a composed film shows what a table made in another way says: the frames carry
/// their numbers as blocks.
namespace kavela {
namespace {

constexpr std::size_t CacheBytes = std::size_t{64} << 20;

/// The number in the blocks of a clip's picture of full size whose corner is at a column.
int numberFrom(const AVFrame& frame, int column) {
    int number = 0;
    for (int block = 0; block < 16; ++block) {
        const int x = column + block % 8 * 40 + 20;
        const int y = block / 8 * 40 + 20;
        number |= (frame.data[0][y * frame.linesize[0] + x] > 128 ? 1 : 0) << block;
    }
    return number;
}

struct ComposeCase {
    const char* name = "";
    Synchronise how = Synchronise::Start;
    const char* first = "";
    const char* second = "";
    FrameRate rate;
    double speed = 1;
};

ComposedFilm clipWith(const std::string& name, FilmMarks marks) {
    ComposedFilm film;
    film.path = clip(name);
    film.run.marks = std::move(marks);
    return film;
}

/// Seconds of a run's film so long after all of them started, worked out section by section.
double tableSeconds(const std::vector<FilmMarks>& runs, std::size_t run, Synchronise how,
                    double seconds) {
    if (how == Synchronise::Start)
        return *runs[run][0] + seconds;
    if (how == Synchronise::Split) // the second mark; the first run counts
        return *runs[run][1] + seconds - (*runs[0][1] - *runs[0][0]);
    for (std::size_t k = 0; k + 1 < runs[run].size(); ++k) {
        const double own = *runs[run][k + 1] - *runs[run][k];
        double longest = 0;
        for (const FilmMarks& marks : runs)
            longest = std::max(longest, *marks[k + 1] - *marks[k]);
        if (seconds < longest)
            return *runs[run][k] +
                   (how == Synchronise::Waiting ? std::min(own, seconds) : seconds * own / longest);
        seconds -= longest;
    }
    return *runs[run].back() + seconds;
}

/// The last frame whose stamp is at or before a moment.
int tableNumber(const std::string& name, const VideoIndex& index, double seconds) {
    const auto stamps = probedStamps(name);
    const TimeBase base = index.facts().timeBase;
    int number = 0;
    for (std::size_t i = 0; i < stamps.size(); ++i)
        if (static_cast<double>(stamps[i]) * base.num / base.den <= seconds + 1e-6)
            number = static_cast<int>(i);
    return number;
}

class ComposedFrames : public ::testing::TestWithParam<ComposeCase> {
protected:
    [[nodiscard]] Composition composition() const {
        Composition composition;
        composition.films = {clipWith(GetParam().first, {0.2, 1.1, 2.0, 3.0}),
                             clipWith(GetParam().second, {0.5, 1.3, 2.5, 3.3})};
        composition.layout.size = {2 * ClipSize.width, ClipSize.height};
        composition.synchronise = GetParam().how;
        composition.split = 1;
        composition.speed = GetParam().speed;
        return composition;
    }

    test::TempFolder m_folder;
};

TEST_P(ComposedFrames, AreThoseOfTheTable) {
    const Composition asked = composition();
    const auto made = compose(asked, nullptr, m_folder.path() / "out.mp4");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->rate, GetParam().rate);
    const auto index = readVideoIndex(made->path);
    ASSERT_EQ(index->frameCount(), made->frames);
    FrameSource source(index, std::make_shared<FrameCache>(CacheBytes));
    const std::vector<FilmMarks> runs{asked.films[0].run.marks, asked.films[1].run.marks};
    const auto first = readVideoIndex(asked.films[0].path);
    const auto second = readVideoIndex(asked.films[1].path);
    for (FrameNumber i = 0; i < index->frameCount(); ++i) {
        SCOPED_TRACE(i);
        const double seconds = static_cast<double>(i) / made->rate.perSecond();
        EXPECT_NEAR(index->secondsOf(i), seconds, 1e-4);
        const double common = seconds * GetParam().speed; // the first run starts first
        const FrameSource::Result result = source.frame(i);
        ASSERT_EQ(result.outcome, FrameSource::Outcome::Found);
        ASSERT_EQ(
            numberFrom(*result.frame.samples, 0),
            tableNumber(GetParam().first, *first, tableSeconds(runs, 0, GetParam().how, common)));
        ASSERT_EQ(
            numberFrom(*result.frame.samples, ClipSize.width),
            tableNumber(GetParam().second, *second, tableSeconds(runs, 1, GetParam().how, common)));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ComposedFrames,
    ::testing::Values(
        ComposeCase{"Start", Synchronise::Start, "h264_50.mp4", "h264_60.mov", {60000, 1001}},
        ComposeCase{"Split", Synchronise::Split, "h264_60.mov", "variable.mp4", {60000, 1001}},
        ComposeCase{"Waiting", Synchronise::Waiting, "h264_50.mp4", "h264_60.mov", {60000, 1001}},
        ComposeCase{
            "WaitingVariable", Synchronise::Waiting, "variable.mp4", "h264_50.mp4", {50, 1}},
        ComposeCase{
            "Stretched", Synchronise::Stretched, "h264_60.mov", "h264_50.mp4", {60000, 1001}},
        ComposeCase{
            "OpenGroups", Synchronise::Stretched, "h264_30.mp4", "open_hevc.mp4", {60000, 1001}},
        ComposeCase{"Slow", Synchronise::Start, "h264_240.mp4", "h264_50.mp4", {60, 1}, 0.25}),
    [](const auto& tested) { return tested.param.name; });

class Composer : public ::testing::Test {
protected:
    Composer() {
        m_asked.films = {clipWith("h264_50.mp4", {0.0, 3.0}), clipWith("h264_50.mp4", {0.0, 2.8})};
        m_asked.layout.size = {2 * ClipSize.width, ClipSize.height};
    }
    [[nodiscard]] std::filesystem::path target() const { return m_folder.path() / "out.mp4"; }

    Composition m_asked;
    test::TempFolder m_folder;
};

TEST_F(Composer, LeavesNothingWhereverItIsStopped) {
    for (const std::int64_t at : {0, 1, 60, 200}) {
        std::stop_source stop;
        const auto made =
            compose(m_asked, nullptr, target(), stop.get_token(), [&](const ComposeProgress& p) {
                if (p.frames >= at)
                    stop.request_stop();
            });
        EXPECT_FALSE(made) << at;
        EXPECT_THAT(m_folder.names(), ::testing::IsEmpty()) << at;
    }
}

TEST_F(Composer, LeavesNothingOnAFullDisk) {
    const test::FileSizeLimit limit(4096);
    EXPECT_THROW(static_cast<void>(compose(m_asked, nullptr, target())), FileError);
    EXPECT_THAT(m_folder.names(), ::testing::IsEmpty());
}

TEST_F(Composer, KeepsWhatHasTheNameAlready) {
    static_cast<void>(m_folder.add("out.mp4", "mine"));
    m_asked.range = {RangeKind::Free, 0, 0, 0, 0.2};
    EXPECT_EQ(compose(m_asked, nullptr, target())->path.filename(), "out 2.mp4");
    EXPECT_EQ(compose(m_asked, nullptr, target())->path.filename(), "out 3.mp4");
    EXPECT_EQ(std::filesystem::file_size(target()), 4U);
}

TEST_F(Composer, WritesAFilmThatPhonesPlay) {
    m_asked.isSmall = true;
    const auto made = compose(m_asked, nullptr, target());
    const auto index = readVideoIndex(made->path);
    for (FrameNumber i = 0; i < index->frameCount(); ++i)
        EXPECT_EQ(index->frame(i).isKey, i % 50 == 0) << i;
    std::ifstream in(made->path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    EXPECT_LT(bytes.find("moov"), bytes.find("mdat")) << "its list of frames comes first";
    const auto probed = [&](const std::string& entry) {
        const std::string call =
            "ffprobe -v error -select_streams v:0 -show_entries stream=" + entry +
            " -of csv=p=0 '" + made->path.string() + "'";
        std::string text(100, 0);
        std::FILE* const pipe = ::popen(call.c_str(), "r");
        text.resize(std::fread(text.data(), 1, text.size(), pipe));
        ::pclose(pipe);
        return text.substr(0, text.find('\n'));
    };
    EXPECT_EQ(probed("profile"), "High");
    EXPECT_EQ(probed("pix_fmt"), "yuv420p");
    EXPECT_EQ(probed("color_space"), "bt709");
    EXPECT_LE(std::stoi(probed("level")), 42);
}

TEST_F(Composer, AMissingFilmStaysDarkAndIsTold) {
    m_asked.films[1].path = m_folder.path() / "gone.mp4";
    m_asked.range = {RangeKind::Free, 0, 0, 1, 1.5};
    const auto made = compose(m_asked, nullptr, target());
    ASSERT_TRUE(made);
    ASSERT_EQ(made->notes.size(), 1U);
    EXPECT_THAT(made->notes.front(), ::testing::StartsWith("gone.mp4 is not shown"));
    FrameSource source(readVideoIndex(made->path), std::make_shared<FrameCache>(CacheBytes));
    const FramePtr samples = source.frame(0).frame.samples;
    EXPECT_EQ(numberFrom(*samples, 0), 50);
    EXPECT_EQ(numberFrom(*samples, ClipSize.width), 0);
}

TEST_F(Composer, ADamagedFilmIsShownAsFarAsItGoes) {
    m_asked.films[1] = clipWith("cut.mkv", {0.0, 2.8});
    const auto made = compose(m_asked, nullptr, target());
    ASSERT_TRUE(made);
    EXPECT_THAT(made->notes, ::testing::Contains(::testing::HasSubstr("cut off")));
    EXPECT_EQ(made->frames, 250) << "three seconds of run, and two behind it";
}

TEST_F(Composer, ThePreviewShowsWhatTheFileWill) {
    m_asked.synchronise = Synchronise::Waiting;
    ComposePreview preview(m_asked, openFilms(m_asked), m_asked.layout.size,
                           std::make_shared<FrameCache>(CacheBytes), nullptr);
    const auto made = compose(m_asked, nullptr, target());
    FrameSource source(readVideoIndex(made->path), std::make_shared<FrameCache>(CacheBytes));
    for (const FrameNumber i : {0, 139, 141, 149, 150, 7}) {
        const auto picture = preview.previewAt(static_cast<double>(i) / 50);
        ASSERT_TRUE(picture);
        for (const int column : {0, ClipSize.width}) {
            int number = 0;
            for (int block = 0; block < 16; ++block) {
                const int x = column + block % 8 * 40 + 20;
                const int y = block / 8 * 40 + 20;
                const auto* const pixel = picture->pixels.get() + y * picture->bytesPerLine + x * 4;
                number |= (pixel[1] > 128 ? 1 : 0) << block;
            }
            EXPECT_EQ(number, numberFrom(*source.frame(i).frame.samples, column)) << i;
        }
    }
}

} // namespace
} // namespace kavela
