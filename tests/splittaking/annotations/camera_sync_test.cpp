#include "splittaking/annotations/camera_sync.h"
#include "splittaking/annotations/lanes.h"
#include "splittaking/annotations/moments.h"
#include "splittaking/annotations/wav_recording.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

athletedata031 watchedRun() {
    athletedata031 run = timedRun();
    attachFixedCamera(run, "gate5.mp4");
    attachFixedCamera(run, "bridge.mp4");
    return run;
}

std::vector<double> datesOf(const athletedata031& run, std::size_t camera) {
    std::vector<double> dates;
    for (const ReferenceDate& date : fixMarksOf(run, camera))
        dates.push_back(date.seconds);
    return dates;
}

TEST(CameraSync, TellsTheLagFromTheMomentsThatWereMarkedForIt) {
    athletedata031 run = watchedRun();
    EXPECT_FALSE(lagOf(run, 1));
    markSync(run, 1, at(20000), at(120000), ReferenceDate{7e8});
    const TagHandle wave = addTag(run, 0, "Wave", at(10000));
    (void)setFixedMoment(run, wave, 1, at(110100));
    addTag(run, 0, "On one film only", at(11000));
    markSync(run, 1, at(30000), at(130040), ReferenceDate{7e8});
    markSync(run, 0, at(30000), at(5000), std::nullopt);
    EXPECT_NEAR(lagOf(run, 1).value_or(0), 100.02, 1e-9) << "the wave was placed by the lag";
    const auto marks = syncMarksOf(run, 1);
    ASSERT_THAT(marks, SizeIs(2));
    EXPECT_NEAR(marks[0].deviation, -0.02, 1e-9);
    EXPECT_THAT(datesOf(run, 1), ElementsAre(7e8 + 120, 7e8 + 130.04));
    EXPECT_THAT(datesOf(run, 0), IsEmpty()) << "a film without a date has none to store";
    EXPECT_EQ(lagOf(run, 0), -25);
}

/// Removed and moved like other marks, the dates follow.
TEST(CameraSync, KeepsTheDatesWithTheirMoments) {
    athletedata031 run = watchedRun();
    markSync(run, 1, at(20000), at(120000), ReferenceDate{});
    markSync(run, 1, at(30000), at(130000), ReferenceDate{});
    const athletedata031 before = run;
    const std::size_t record = syncMarksOf(run, 1)[1].tag.record;
    moveLaneMark(run, course(), {MarkKind::Tag, record, 1, FilmKind::Fixed}, at(130500));
    EXPECT_THAT(datesOf(run, 1), ElementsAre(120, 130.5));
    removeLaneMark(run, course(), {MarkKind::Tag, record, 0});
    EXPECT_THAT(datesOf(run, 1), ElementsAre(130.5));
    ASSERT_THAT(syncMarksOf(run, 1), SizeIs(1));
    removeSync(run, syncMarksOf(run, 1)[0].tag);
    EXPECT_THAT(datesOf(run, 1), IsEmpty());
    EXPECT_THAT(tagsOf(run), IsEmpty());

    run = before;
    const TagHandle wave = addTag(run, 0, "Wave", at(40000));
    (void)setFixedMoment(run, wave, 1, at(140000));
    removeSync(run, wave);
    EXPECT_THAT(tagsOf(run), SizeIs(3)) << "the coach's own tag stays on the run's film";
    EXPECT_THAT(datesOf(run, 1), SizeIs(2));
    EXPECT_THROW(removeSync(run, {9, 0}), std::out_of_range);
}

TEST(WavRecording, IsAFileOfOneChannelOf16Bits) {
    const std::vector<std::int16_t> samples{1, -2, 300};
    const Blob file = wavRecording(samples, 16000);
    const std::string text(file.bytes.begin(), file.bytes.end());
    using namespace std::string_literals;
    EXPECT_EQ(text, "RIFF\x2A\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x80\x3E\0\0\0\x7D\0\0\2\0\x10\0"
                    "data\6\0\0\0\1\0\xFE\xFF\x2C\1"s);
}

} // namespace
} // namespace kavela::test
