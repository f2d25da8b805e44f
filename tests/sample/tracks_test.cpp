#include "sample/tracks.h"

#include "boatmotion/imports/join_recording.h"
#include "boatmotion/imports/sensor_csv.h"
#include "boatmotion/strokes/motion_analysis.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::sample {
namespace {

/// What the guide says of them: imported one after the other they give a recording with strokes,
/// turns and speed.
TEST(SampleTracks, PhoneAndWatchMakeOneRecording) {
    const test::TempFolder folder;
    const SensorCsv list(folder.add("phone.csv", phoneList()));
    CsvImport import = list.read(list.guess());
    EXPECT_EQ(import.unreadCount, 0U);
    EXPECT_TRUE(import.hasDates);
    bmrawdata_v5& session = import.session;
    ASSERT_EQ(session.boatmotion.size(), 40U * 50U);
    EXPECT_TRUE(session.gps.empty());

    const ImportedTrack track = trackFromContent(watchTrack());
    EXPECT_EQ(track.gps.size(), 120U);
    EXPECT_TRUE(track.notes.empty());
    const JoinedTrack joined = joinRecording(session, track);
    EXPECT_EQ(joined.fixes, 120U);
    EXPECT_EQ(joined.heart, 120U);

    const MotionAnalysis motion = analyseMotion(session, {});
    EXPECT_TRUE(motion.hasSpeed);
    EXPECT_NEAR(static_cast<double>(motion.strokes.size()), 40 * 78 / 60.0, 4);
    EXPECT_EQ(motion.turns.size(), 2U);
}

} // namespace
} // namespace kavela::sample
