#include "video/sound_source.h"

#include "common/sound_films.h"
#include "common/temp_folder.h"
#include "video/index.h"
#include "video/video_error.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>

namespace kavela {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::makeToneFilm;
using test::TempFolder;
using test::ToneStart;
using ::testing::HasSubstr;

constexpr int Loud = 2000; // a sixteenth of full scale: codings smear quieter sound about

std::vector<std::int16_t> soundFrom(SoundSource& source, double from, double seconds) {
    source.seek(samplePosition(from));
    std::vector<std::int16_t> samples(static_cast<std::size_t>(samplePosition(seconds)) *
                                      SoundChannels);
    samples.resize(source.read(samples));
    return samples;
}

/// Seconds of the film at which the tone begins, looked for from a moment on.
std::optional<double> onsetAfter(SoundSource& source, double from) {
    const auto samples = soundFrom(source, from, 5);
    const auto loud =
        std::ranges::find_if(samples, [](int value) { return std::abs(value) > Loud; });
    if (loud == samples.end())
        return std::nullopt;
    return from + static_cast<double>((loud - samples.begin()) / SoundChannels) / SoundRate;
}

struct Recording {
    const char* name;
    const char* coding;
    double tolerance = 0; ///< seconds
    int rate = 48000;
    const char* layout = "stereo";
};

void PrintTo(const Recording& recording, std::ostream* out) {
    *out << recording.name;
}

class SoundOf : public ::testing::TestWithParam<Recording> {
protected:
    static TempFolder& folder() {
        static TempFolder made;
        return made;
    }
    static fs::path film() {
        const fs::path path = folder().path() / GetParam().name;
        if (!fs::exists(path))
            makeToneFilm(path, GetParam().coding, GetParam().rate, GetParam().layout);
        return path;
    }
    /// On the clock of the pictures, which some containers let begin a little after 0.
    static double toneStart() { return ToneStart + readVideoIndex(film())->secondsOf(0); }
};

TEST_P(SoundOf, BeginsAtItsMomentFromWhereverItIsPlayed) {
    SoundSource source(film());
    const double expected = toneStart();
    for (const double before : {0.0, 2.0, 0.05, 1.1, 0.4, 20.0}) {
        const auto onset = onsetAfter(source, std::max(expected - before, expected - 3.5));
        ASSERT_TRUE(onset) << before;
        EXPECT_NEAR(*onset, expected, GetParam().tolerance)
            << "played from " << before << " before";
    }
}

TEST_P(SoundOf, IsTheSameInOnePieceAndInMany) {
    const double from = toneStart() - 0.2;
    SoundSource whole(film());
    const auto expected = soundFrom(whole, from, 1);
    SoundSource parts(film());
    parts.seek(samplePosition(from));
    std::vector<std::int16_t> found;
    std::mt19937 dice(7);
    while (found.size() < expected.size()) {
        std::vector<std::int16_t> part(
            std::min<std::size_t>(2 * (1 + dice() % 3000), expected.size() - found.size()));
        ASSERT_EQ(parts.read(part), part.size());
        found.insert(found.end(), part.begin(), part.end());
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(parts.position(), samplePosition(from + 1));
}

INSTANTIATE_TEST_SUITE_P(
    Films, SoundOf,
    ::testing::Values(Recording{"aac.mp4", "-c:a aac", 0.005},
                      Recording{"pcm.mov", "-c:a pcm_s16le", 0.002},
                      Recording{"mono.mp4", "-c:a aac", 0.005, 44100, "mono"},
                      Recording{"mono.mov", "-c:a pcm_s16be", 0.002, 44100, "mono"},
                      Recording{"late.mov", "-c:a pcm_s16le -output_ts_offset 5", 0.002},
                      Recording{"late.ts", "-c:a mp2 -muxdelay 0 -output_ts_offset 7 -f mpegts",
                                0.005},
                      // The tool that makes this one writes its pictures 7 ms late.
                      Recording{"opus.mkv", "-c:a libopus", 0.008},
                      Recording{"surround.mkv", "-c:a aac", 0.005, 48000, "5.1"},
                      Recording{"pcm.avi", "-c:a pcm_s16le", 0.002, 44100}));

class SoundSourceTest : public ::testing::Test {
protected:
    fs::path film(const std::string& name, const std::string& coding) const {
        const fs::path path = m_folder.path() / name;
        makeToneFilm(path, coding);
        return path;
    }

    TempFolder m_folder;
};

TEST_F(SoundSourceTest, KeepsToTheEditListThatThePicturesKeepTo) {
    const fs::path whole = film("whole.mp4", "-c:a aac");
    const fs::path part = m_folder.path() / "part.mp4";
    test::makeWithTool("-ss 1.3 -i '" + whole.string() + "' -c copy '" + part.string() + "'");
    SoundSource source(part);
    EXPECT_NEAR(onsetAfter(source, 0).value_or(0), ToneStart - 1.3, 0.005);
}

TEST_F(SoundSourceTest, IsSilentBeforeItsFirstSampleAndEndsWithItsLast) {
    SoundSource source(film("late.mov", "-c:a pcm_s16le -output_ts_offset 5"));
    const auto before = soundFrom(source, -3, 5 + ToneStart);
    EXPECT_EQ(before.size(), static_cast<std::size_t>(samplePosition(5 + ToneStart)) * 2);
    EXPECT_TRUE(std::ranges::all_of(before, [](int value) { return value == 0; }));
    EXPECT_EQ(soundFrom(source, 10.5, 2).size(), std::size_t{SoundRate});
    EXPECT_TRUE(soundFrom(source, 500, 1).empty());
    EXPECT_EQ(soundFrom(source, 10, 0.5).size(), std::size_t{SoundRate}) << "and can go back";
    for (const double odd : {1e300, -1e300, std::nan("")})
        static_cast<void>(soundFrom(source, odd, 0.1));
}

TEST_F(SoundSourceTest, SaysWhatCannotBePlayed) {
    const auto fault = [](const fs::path& path) -> std::string {
        try {
            SoundSource source(path);
        } catch (const VideoError& error) {
            EXPECT_EQ(error.path(), path);
            return error.what();
        }
        return "nothing";
    };
    EXPECT_THAT(fault(film("mute.mp4", "-an")), HasSubstr("there is no sound in this film"));
    EXPECT_THAT(fault(m_folder.path() / "none.mp4"), HasSubstr("No such file"));
    EXPECT_THAT(fault(m_folder.add("text.mov", "no film")), HasSubstr("no video that can be read"));
}

TEST_F(SoundSourceTest, PlaysWhatIsLeftOfACutFile) {
    const std::string whole = contentOf(film("whole.mkv", "-c:a pcm_s16le"));
    const fs::path cut = m_folder.add("cut.mkv", whole.substr(0, whole.size() * 6 / 10));
    SoundSource source(cut);
    const double first = readVideoIndex(cut)->secondsOf(0);
    EXPECT_NEAR(onsetAfter(source, 0).value_or(0), first + ToneStart, 0.002);
    const auto samples = soundFrom(source, 0, 6);
    EXPECT_GT(samples.size(), std::size_t{5} * SoundRate);
    EXPECT_LT(samples.size(), std::size_t{10} * SoundRate);
}

TEST_F(SoundSourceTest, StaysInStepBehindDamagedPackets) {
    std::string content = contentOf(film("whole.ts", "-c:a mp2 -muxdelay 0 -f mpegts"));
    SoundSource intact(m_folder.path() / "whole.ts");
    const double expected = onsetAfter(intact, 0).value_or(0);
    // The second second of it is made into noise.
    std::mt19937 dice(5);
    for (std::size_t i = content.size() / 6; i < content.size() / 3; ++i)
        content[i] = static_cast<char>(dice());
    SoundSource damaged(m_folder.add("damaged.ts", content));
    (void)soundFrom(damaged, 0, 2.2);
    const auto samples = soundFrom(damaged, expected, 0.01);
    EXPECT_GT(*std::ranges::max_element(samples), Loud);
    (void)soundFrom(damaged, 0, 2.1);
    EXPECT_NEAR(onsetAfter(damaged, 2.1).value_or(0), expected, 0.001);
}

TEST_F(SoundSourceTest, NeverCrashesOrHangsOnFlippedBytes) {
    std::mt19937 dice(11);
    for (const auto& [name, coding] :
         {std::pair{"a.mp4", "-c:a aac"}, {"b.ts", "-c:a mp2"}, {"c.mkv", "-c:a libopus"}}) {
        const std::string whole = contentOf(film(name, coding));
        for (int round = 0; round < 8; ++round) {
            std::string content = whole;
            for (int i = 0; i < 4 << round; ++i)
                content[dice() % content.size()] = static_cast<char>(dice());
            try {
                SoundSource source(m_folder.add(std::string("flipped-") + name, content));
                for (const double from : {0.0, 4.0, 2.0, -1.0})
                    static_cast<void>(soundFrom(source, from, 8));
            } catch (const VideoError&) {
                continue; // a clear refusal
            }
        }
    }
}

} // namespace
} // namespace kavela
