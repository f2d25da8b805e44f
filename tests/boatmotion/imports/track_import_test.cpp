#include "boatmotion/hand_made_recording.h"
#include "boatmotion/imports/fit_file.h"
#include "boatmotion/imports/join_recording.h"
#include "boatmotion/imports/track.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string refusal(const std::string& content) {
    try {
        (void)trackFromContent(content);
        return {};
    } catch (const DecodeError& error) {
        return error.what();
    }
}

std::vector<double> dates(const ImportedTrack& track) {
    std::vector<double> all;
    for (const gpsrawdata& fix : track.gps)
        all.push_back(fix.date.seconds - FitStartDate);
    return all;
}

std::string gpx(const std::string& points) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><gpx xmlns="http://www.topografix.com/GPX/1/1")"
           R"( xmlns:e="urn:e"><trk><trkseg>)" +
           points + "</trkseg></trk></gpx>";
}

std::string trackPoint(const char* latitude, const char* time, const std::string& more = {}) {
    return std::string("<trkpt lat=\"") + latitude + "\" lon=\"8\"><time>" + time + "</time>" +
           more + "</trkpt>";
}

TEST(Gpx, TellsPositionsSpeedsAndHeartRates) {
    const ImportedTrack track = trackFromContent(
        gpx(trackPoint("47", "2026-05-07T10:02:00Z",
                       "<extensions><e:Point><e:hr>121</e:hr><e:speed>2.5</e:speed></e:Point>"
                       "</extensions>") +
            trackPoint("47.00002", "2026-05-07T12:02:01.5+02:00", "<speed>0</speed>")));
    EXPECT_THAT(dates(track), ElementsAre(0, 1.5));
    ASSERT_THAT(track.heart, SizeIs(1));
    EXPECT_EQ(track.heart.front().hr, 121);
    EXPECT_EQ(track.gps[0].speed, 2.5);
    EXPECT_EQ(track.gps[1].speed, 0) << "standing still is a speed";
    EXPECT_EQ(track.gps[1].latitude, 47.00002);
    EXPECT_THAT(track.notes, IsEmpty());
}

TEST(Gpx, ComputesMissingSpeedsFromTheWayAround) {
    // 2.5 m/s north for two seconds; after a pause one point that is alone.
    const ImportedTrack track =
        trackFromContent(gpx(trackPoint("47", "2026-05-07T10:02:00Z") +
                             trackPoint("47.0000224830", "2026-05-07T10:02:01Z") +
                             trackPoint("47.0000449660", "2026-05-07T10:02:02Z") +
                             trackPoint("47.1", "2026-05-07T10:05:00Z")));
    ASSERT_THAT(track.gps, SizeIs(4));
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(track.gps[static_cast<std::size_t>(i)].speed, 2.5, 1e-3);
    EXPECT_EQ(track.gps[3].speed, -1);
    EXPECT_THAT(track.notes, ElementsAre(HasSubstr("speed of 3 positions was computed")));
}

TEST(Gpx, LeavesOutWhatIsNoPointAndSaysHowMuch) {
    const ImportedTrack track = trackFromContent(
        gpx(trackPoint("47", "2026-05-07T10:02:05Z") + trackPoint("47", "2026-05-07T10:02:00Z") +
            trackPoint("47.5", "2026-05-07T10:02:05Z") + trackPoint("95", "2026-05-07T10:02:06Z") +
            trackPoint("47", "yesterday") + trackPoint("47", "2026-02-30T10:02:05Z") +
            trackPoint("47", "2026-05-07T10:02:09Z", "<speed>900</speed><hr>0</hr>") +
            "<wpt lat=\"1\" lon=\"2\"/>"));
    EXPECT_THAT(dates(track), ElementsAre(0, 5, 9));
    EXPECT_EQ(track.gps[1].latitude, 47) << "the first of one moment";
    EXPECT_THAT(track.notes, Contains("Left out: 2 points without a date."));
    EXPECT_THAT(track.notes, Contains("Left out: 1 positions outside the globe."));
    EXPECT_THAT(track.notes, Contains("Left out: 1 positions at the moment of another."));
    EXPECT_THAT(track.notes, Contains("Left out: 1 speeds that no boat has."));
    EXPECT_THAT(track.notes, Contains("Left out: 1 heart rates that are none."));
    EXPECT_THAT(track.notes, Contains("Left out: 1 way points and points of routes."));
}

TEST(Tcx, TellsPositionsSpeedsAndHeartRates) {
    const ImportedTrack track = trackFromContent(
        "\xEF\xBB\xBF<TrainingCenterDatabase><Activities><Activity><Lap><AverageHeartRateBpm>"
        "<Value>99</Value></AverageHeartRateBpm><Track>"
        "<Trackpoint><Time>2026-05-07T10:02:00Z</Time><Position><LatitudeDegrees>47</"
        "LatitudeDegrees><LongitudeDegrees>8</LongitudeDegrees></Position><HeartRateBpm><Value>140"
        "</Value></HeartRateBpm><Extensions><n:TPX><n:Speed>3.25</n:Speed></n:TPX></Extensions>"
        "</Trackpoint>"
        "<Trackpoint><Time>2026-05-07T10:02:01Z</Time><HeartRateBpm><Value>141</Value>"
        "</HeartRateBpm></Trackpoint>"
        "</Track></Lap></Activity></Activities></TrainingCenterDatabase>");
    ASSERT_THAT(track.gps, SizeIs(1));
    EXPECT_EQ(track.gps.front().speed, 3.25);
    ASSERT_THAT(track.heart, SizeIs(2)) << "a watch indoors has heart rates alone";
    EXPECT_EQ(track.heart[1].hr, 141);
}

TEST(XmlTracks, AreSafeFromTricks) {
    EXPECT_THAT(refusal("<gpx><trk><trkpt lat=\"47\""), HasSubstr("byte "));
    EXPECT_THAT(refusal("<html></html>"), HasSubstr("neither GPX nor TCX"));
    EXPECT_THAT(refusal("Time,Value\n1,2\n"), HasSubstr("neither GPX nor TCX nor FIT"));
    EXPECT_THAT(refusal(""), HasSubstr("neither GPX nor TCX nor FIT"));
    const std::string laughs =
        "<!DOCTYPE gpx [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
        "<!ENTITY c SYSTEM \"file:///etc/passwd\">]>";
    const ImportedTrack track = trackFromContent(
        laughs +
        gpx(trackPoint("47", "&b;") + trackPoint("&c;", "2026-05-07T10:02:00Z")).substr(38));
    EXPECT_TRUE(track.isEmpty());
    EXPECT_THAT(track.notes, Contains("Left out: 1 positions outside the globe."));
    std::string deep;
    for (int i = 0; i < 200'000; ++i)
        deep += "<a>";
    std::string closing;
    for (int i = 0; i < 200'000; ++i)
        closing += "</a>";
    EXPECT_TRUE(trackFromContent("<gpx>" + deep + closing + "</gpx>").isEmpty());
}

TEST(Fit, ReadsBothByteOrdersHeadersAndDeveloperFields) {
    for (const bool isBigEndian : {false, true})
        for (const bool hasLongHeader : {false, true})
            for (const std::uint8_t developerBytes : std::initializer_list<std::uint8_t>{0, 7}) {
                const ImportedTrack track = trackFromContent(
                    activity(30, isBigEndian, developerBytes).content(hasLongHeader));
                ASSERT_THAT(track.gps, SizeIs(30));
                ASSERT_THAT(track.heart, SizeIs(30));
                EXPECT_EQ(track.gps[29].date.seconds, FitStartDate + 29);
                EXPECT_NEAR(track.gps[29].latitude, 47 + 29 * 2.5 / 111195, 1e-7);
                EXPECT_NEAR(track.gps[29].longitude, 8, 1e-7);
                EXPECT_EQ(track.gps[29].speed, 2.5);
                EXPECT_EQ(track.heart[29].hr, 129);
                EXPECT_THAT(track.notes, IsEmpty());
            }
}

TEST(Fit, FilesInARowAreOneTrack) {
    FitFile later;
    later.define(3, 20, {{253, 4, FitFile::Unsigned32}, {3, 1, FitFile::Byte}});
    later.data(3).number(FitStart + 60, 4).number(150, 1);
    const ImportedTrack track = trackFromContent(activity(5).content() + later.content());
    EXPECT_THAT(track.gps, SizeIs(5));
    ASSERT_THAT(track.heart, SizeIs(6));
    EXPECT_EQ(track.heart.back().date.seconds, FitStartDate + 60);
}

TEST(Fit, CompressedTimesGoRound) {
    FitFile file;
    file.define(0, 20, {{253, 4, FitFile::Unsigned32}, {3, 1, FitFile::Byte}});
    file.define(1, 20, {{3, 1, FitFile::Byte}});
    const std::int64_t start = FitStart / 32 * 32 + 30; // the lowest five bits are 30
    file.data(0).number(start, 4).number(100, 1);
    file.compressed(1, 31).number(101, 1).compressed(1, 1).number(102, 1);
    file.compressed(1, 1).number(103, 1).compressed(1, 0).number(104, 1);
    const ImportedTrack track = trackFromContent(file.content());
    std::vector<double> seconds;
    for (const heartmotiondata& heart : track.heart)
        seconds.push_back(heart.date.seconds - FitStartDate -
                          static_cast<double>(start - FitStart));
    EXPECT_THAT(seconds, ElementsAre(0, 1, 3, 34)) << "two at one moment are one";
}

TEST(Fit, ValuesMarkedAsNotValidAreNone) {
    FitFile file = activity(2);
    file.data(1).number(FitStart + 2, 4).number(0x7FFFFFFF, 4).number(0x7FFFFFFF, 4);
    file.number(0xFF, 1).number(0xFFFF, 2);
    file.data(1).number(FitStart + 3, 4).degrees(47.001).degrees(-8).number(0, 1).number(0xFFFF, 2);
    file.data(1).number(77, 4).degrees(47).degrees(8).number(90, 1).number(1, 2);
    file.define(2, 20, {{253, 4, FitFile::Unsigned32}, {3, 2, FitFile::Byte}, {73, 4, 0x88}});
    file.data(2).number(FitStart + 9, 4).number(0x5555, 2).number(0, 4);
    const ImportedTrack track = trackFromContent(file.content());
    EXPECT_THAT(dates(track), ElementsAre(0, 1, 3));
    EXPECT_NEAR(track.gps[2].longitude, -8, 1e-7);
    EXPECT_THAT(track.heart, SizeIs(2));
    EXPECT_THAT(track.notes, Contains("Left out: 1 points without a date."))
        << "times since the device was switched on";
}

TEST(Fit, TellsOfPausesAndOtherFiles) {
    FitFile file;
    file.define(0, 0, {{0, 1, FitFile::Code}}).data(0).number(6, 1);
    file.define(1, 21, {{0, 1, FitFile::Code}, {1, 1, FitFile::Code}});
    for (int i = 0; i < 3; ++i)
        file.data(1).number(0, 1).number(0, 1).data(1).number(0, 1).number(4, 1);
    const ImportedTrack track = trackFromContent(file.content());
    EXPECT_THAT(track.notes, ElementsAre(HasSubstr("not an activity"), HasSubstr("stopped 3 times"),
                                         HasSubstr("no points")));
}

TEST(Fit, EveryCutAndEveryDamagedByteIsRefusedWithItsPlace) {
    const std::string whole = activity(4).content();
    for (std::size_t size = 12; size < whole.size(); ++size)
        ASSERT_THAT(refusal(whole.substr(0, size)), HasSubstr("byte " + std::to_string(size)));
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x11);
        const bool saysWhat = i >= 8 && i < 12;
        ASSERT_THAT(refusal(damaged), HasSubstr(saysWhat ? "no track" : "byte ")) << i;
    }
}

/// What a check sum does not find, because it agrees.
TEST(Fit, MessagesThatCannotBeAreRefusedWithTheirPlace) {
    FitFile undefined;
    undefined.data(5).number(1, 1);
    EXPECT_THAT(refusal(undefined.content()), HasSubstr("byte 14: a message of type 5"));
    FitFile torn = activity(1);
    torn.data(1).number(1, 3);
    EXPECT_THAT(refusal(torn.content()), HasSubstr("end within a message"));
    FitFile tornDefinition;
    tornDefinition.number(0x40, 1).number(0, 1).number(1, 1);
    EXPECT_THAT(refusal(tornDefinition.content()), HasSubstr("end within a definition"));
    FitFile order;
    order.number(0x40, 1).number(0, 1).number(2, 1);
    EXPECT_THAT(refusal(order.content()), HasSubstr("byte 16: a byte order of 2"));
    EXPECT_THAT(refusal(FitFile().content()), HasSubstr("was not finished"));
}

TEST(TrackFiles, ThatCannotBeReadAreRefused) {
    const TempFolder folder;
    EXPECT_THROW((void)importTrack(folder.path() / "none.gpx"), FileError);
    EXPECT_THROW((void)importTrack(folder.path()), FileError);
    EXPECT_THAT(importTrack(folder.add("w.bin", activity(3).content())).gps, SizeIs(3))
        << "the content tells, not the name";
}

ImportedTrack watchOf(double begin, double seconds) {
    ImportedTrack track;
    for (int i = 0; i < seconds; ++i) {
        track.gps.push_back({{begin + i}, 3, 47, 8});
        track.heart.push_back({{begin + i}, 120});
    }
    return track;
}

TEST(JoinedTracks, FillWhatTheRecordingLacks) {
    bmrawdata_v5 session = handMade(120, steadyPaddling);
    session.gps.clear();
    const double start = session.info.date.seconds;
    const JoinedTrack joined = joinRecording(session, watchOf(start - 600 - 7200, 3600), 7200);
    EXPECT_EQ(joined.fixes, 240U);
    EXPECT_EQ(session.gps.front().date.seconds, start - 60);
    EXPECT_EQ(session.gps.size(), session.heart.size());
    EXPECT_THAT(joined.notes, IsEmpty());

    const JoinedTrack again = joinRecording(session, watchOf(start, 100));
    EXPECT_EQ(again.fixes + again.heart, 0U);
    EXPECT_THAT(again.notes, SizeIs(2));
}

TEST(JoinedTracks, ThatDoNotMeetTheRecordingSayByHowMuch) {
    bmrawdata_v5 session = handMade(60, steadyPaddling);
    session.gps.clear();
    const JoinedTrack joined =
        joinRecording(session, watchOf(session.info.date.seconds + 7210, 90));
    EXPECT_TRUE(session.gps.empty());
    EXPECT_THAT(joined.notes, Contains("The track's positions begin 2 h 0 min after the recording; "
                                       "perhaps an offset of -2 h is missing."));
}

} // namespace
} // namespace kavela::test
