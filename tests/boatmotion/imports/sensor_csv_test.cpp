#include "boatmotion/imports/sensor_csv.h"
#include "common/temp_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace kavela::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Q = CsvQuantity;

class SensorCsvTest : public testing::Test {
protected:
    SensorCsv list(const std::string& content) {
        return SensorCsv(m_folder.add("list.csv", content));
    }
    CsvImport imported(const std::string& content) {
        const SensorCsv csv = list(content);
        return csv.read(csv.guess());
    }

private:
    TempFolder m_folder;
};

/// What a logger's titles are taken for, with samples of a phone that lies still.
struct Titles {
    const char* name;
    std::string content;
    std::vector<Q> columns;
    CsvTime time;
    CsvAcceleration acceleration;
    bool readsUpAtRest;
};

void PrintTo(const Titles& titles, std::ostream* out) {
    *out << titles.name;
}

class GuessedTitles : public SensorCsvTest, public testing::WithParamInterface<Titles> {};

TEST_P(GuessedTitles, AreWhatTheySay) {
    const Titles& expected = GetParam();
    const SensorCsv csv = list(expected.content);
    const CsvMapping mapping = csv.guess();
    EXPECT_EQ(mapping.columns, expected.columns);
    EXPECT_EQ(mapping.time, expected.time);
    EXPECT_EQ(mapping.acceleration, expected.acceleration);
    EXPECT_EQ(mapping.readsUpAtRest, expected.readsUpAtRest);
    EXPECT_EQ(faultOf(mapping), std::nullopt);
    const CsvImport import = csv.read(mapping);
    ASSERT_THAT(import.session.boatmotion, SizeIs(2));
    EXPECT_NEAR(import.seconds(), 0.01, 1e-6);
}

const std::vector<Q> TimeAndTotal{Q::Time, Q::TotalX, Q::TotalY, Q::TotalZ};
const std::vector<Q> TimeAndUser{Q::Time, Q::UserX, Q::UserY, Q::UserZ};

INSTANTIATE_TEST_SUITE_P(
    Loggers, GuessedTitles,
    testing::Values(
        Titles{"short",
               "time,ax,ay,az,wx,wy,wz\n0,0.1,0.1,9.8,0,0,0\n0.01,0.1,0.1,9.8,0,0,0\n",
               {Q::Time, Q::TotalX, Q::TotalY, Q::TotalZ, Q::RotationX, Q::RotationY, Q::RotationZ},
               CsvTime::Seconds,
               CsvAcceleration::MetresPerSecondSquared,
               true},
        Titles{"gForce", "time;gFx;gFy;gFz\n0,00;0,01;0,02;1,01\n0,01;0,01;0,02;1,01\n",
               TimeAndTotal, CsvTime::Seconds, CsvAcceleration::G, true},
        Titles{"camel",
               "loggingTime(txt),locationTimestamp_since1970(s),locationLatitude(WGS84),"
               "locationLongitude(WGS84),locationSpeed(m/s),locationSpeedAccuracy(m/s),"
               "accelerometerAccelerationX(G),accelerometerAccelerationY(G),"
               "accelerometerAccelerationZ(G),motionYaw(rad),motionRoll(rad),motionPitch(rad),"
               "motionRotationRateX(rad/s),motionRotationRateY(rad/s),motionRotationRateZ(rad/s),"
               "motionUserAccelerationX(G),motionUserAccelerationY(G),motionUserAccelerationZ(G),"
               "motionGravityX(G),motionGravityY(G),motionGravityZ(G),batteryLevel(R)\n"
               "2026-05-07 12:02:00.000 +0200,1778148120,47.1,8.2,2,1,0,0,-1,0,0,0,0,0,0,0,0,0,0,0,"
               "-1,1\n2026-05-07 12:02:00.010 +0200,1778148120,47.1,8.2,2,1,0,0,-1,0,0,0,0,0,0,0,0,"
               "0,0,0,-1,1\n2026-05-07 12:02:00.010,,,,,,,,,,,,,,,,,,,,,\n",
               {Q::Time,      Q::None,      Q::Latitude,  Q::Longitude, Q::Speed, Q::None,
                Q::TotalX,    Q::TotalY,    Q::TotalZ,    Q::Yaw,       Q::Roll,  Q::Pitch,
                Q::RotationX, Q::RotationY, Q::RotationZ, Q::UserX,     Q::UserY, Q::UserZ,
                Q::GravityX,  Q::GravityY,  Q::GravityZ,  Q::None},
               CsvTime::Date,
               CsvAcceleration::G,
               false},
        Titles{"linear",
               "\"Time (s)\",\"Linear Acceleration x (m/s^2)\",\"Linear Acceleration y (m/s^2)\","
               "\"Linear Acceleration z (m/s^2)\",\"Absolute acceleration (m/s^2)\"\n"
               "1.0E-2,0,0.1,0,0.1\n2.0E-2,0,0.1,0,0.1\n",
               {Q::Time, Q::UserX, Q::UserY, Q::UserZ, Q::None},
               CsvTime::Seconds,
               CsvAcceleration::MetresPerSecondSquared,
               true},
        Titles{"German",
               "\"Zeit (s)\";\"Lineare Beschleunigung x (m/s^2)\";"
               "\"Lineare Beschleunigung y (m/s^2)\";\"Lineare Beschleunigung z (m/s^2)\";"
               "\"Gyroskop x (rad/s)\";\"Gyroskop y (rad/s)\";\"Gyroskop z (rad/s)\";"
               "\"Breite (°)\";\"Länge (°)\";\"Geschwindigkeit (m/s)\";\"Richtung (°)\";"
               "\"Horizontale Genauigkeit (m)\";\"Herzfrequenz (bpm)\";\"Beschleunigung absolut\"\n"
               "0,01;0;0,1;0;0;0;0;47,1;8,2;2;90;3;140;0,1\n"
               "0,02;0;0,1;0;0;0;0;47,1;8,2;2;90;3;140;0,1\n",
               {Q::Time, Q::UserX, Q::UserY, Q::UserZ, Q::RotationX, Q::RotationY, Q::RotationZ,
                Q::Latitude, Q::Longitude, Q::Speed, Q::None, Q::None, Q::HeartRate, Q::None},
               CsvTime::Seconds,
               CsvAcceleration::MetresPerSecondSquared,
               true},
        Titles{"German, with gravity",
               "Zeit in ms;Beschleunigung X;Beschleunigung Y;Beschleunigung Z;Drehrate X;"
               "Drehrate Y;Drehrate Z\n0;0,1;0,1;9,8;0;0;0\n10;0,1;0,1;9,8;0;0;0\n",
               {Q::Time, Q::TotalX, Q::TotalY, Q::TotalZ, Q::RotationX, Q::RotationY, Q::RotationZ},
               CsvTime::Milliseconds,
               CsvAcceleration::MetresPerSecondSquared,
               true},
        Titles{"epoch nanoseconds, axes reversed",
               "time,seconds_elapsed,z,y,x,accel_z,accel_y,accel_x\n"
               "1778148120000000000,0.1,1,2,3,0.1,0,0\n1778148120010000000,0.11,1,2,3,0.1,0,0\n",
               {Q::Time, Q::None, Q::None, Q::None, Q::None, Q::UserZ, Q::UserY, Q::UserX},
               CsvTime::Nanoseconds,
               CsvAcceleration::MetresPerSecondSquared,
               true},
        Titles{"units in a line of their own",
               "Logger 3\nphone: P\ntimestamp\tacc x\tacc y\tacc z\nms\tg\tg\tg\n"
               "100\t0.0\t0.0\t-1.0\n110\t0.0\t0.0\t-1.0\n",
               TimeAndTotal, CsvTime::Milliseconds, CsvAcceleration::G, false},
        Titles{"without gravity, by size",
               "t;acc_x;acc_y;acc_z\n1778148120000;0.1;0.1;0.2\n1778148120010;0.1;0.1;0.2\n",
               TimeAndUser, CsvTime::Milliseconds, CsvAcceleration::MetresPerSecondSquared, true}));

TEST_F(SensorCsvTest, UnitsBecomeThoseOfRecordings) {
    const CsvImport import = imported(
        "t_ms;ux;userX [m/s²];userY;userZ;gyroX (deg/s);gyroY;gyroZ;gravityX;gravityY;gravityZ;"
        "pitch (deg);roll;yaw;lat;lon;speed (km/h);heart rate\r\n"
        "1000;7;4,903325;0;0;180;0;-90;0;0;9,80665;90;0;0;47;8;9;133\r\n"
        "1010;7;0;0;0;0;0;0;0;0;9,80665;0;0;0;47;8;9;133\r\n");
    ASSERT_THAT(import.session.boatmotion, SizeIs(2));
    const boatmotionrawdata_v5& sample = import.session.boatmotion.front();
    EXPECT_NEAR(sample.timestamp, 1, 1e-12);
    EXPECT_NEAR(sample.acceleration.x, 0.5, 1e-9);
    EXPECT_NEAR(sample.rotationRate.x, std::numbers::pi, 1e-9);
    EXPECT_NEAR(sample.rotationRate.z, -std::numbers::pi / 2, 1e-9);
    EXPECT_NEAR(sample.gravity.z, -1, 1e-9) << "gravity points down";
    EXPECT_NEAR(sample.attitude.pitch, std::numbers::pi / 2, 1e-9);
    ASSERT_THAT(import.session.gps, SizeIs(1)) << "a position that stays is one fix";
    EXPECT_NEAR(import.session.gps.front().speed, 2.5, 1e-9);
    ASSERT_THAT(import.session.heart, SizeIs(1));
    EXPECT_FALSE(import.hasDates);
}

/// Of a boat that sways at 1 Hz with 2 m/s² forward, whose phone is pitched by 10°.
TEST_F(SensorCsvTest, GravityIsSplitOffWhicheverWayTheLoggerReads) {
    constexpr double Gravity = 9.80665;
    const double tilt = 10 * std::numbers::pi / 180;
    for (const double sign : {1.0, -1.0}) {
        std::string content = "time,ax,ay,az\n";
        for (int i = 0; i < 2000; ++i) {
            const double sway = 2 * std::sin(2 * std::numbers::pi * i / 100);
            content += fmt::format("{},{:.5f},{:.5f},{:.5f}\n", i / 100.0, 0.0,
                                   sign * (sway + Gravity * std::sin(tilt)),
                                   sign * Gravity * std::cos(tilt));
        }
        const CsvImport import = imported(content);
        ASSERT_THAT(import.session.boatmotion, SizeIs(2000));
        EXPECT_THAT(import.notes, Contains(HasSubstr("low-pass of 0.3 Hz")));
        double amplitude = 0;
        for (std::size_t i = 500; i < 1500; ++i) {
            const boatmotionrawdata_v5& sample = import.session.boatmotion[i];
            EXPECT_NEAR(sample.gravity.z, -std::cos(tilt), 0.01);
            EXPECT_NEAR(sample.gravity.y, -std::sin(tilt), 0.03);
            amplitude = std::max(amplitude, sample.acceleration.y * Gravity);
        }
        EXPECT_NEAR(amplitude, 2, 0.25);
        EXPECT_GT(import.session.boatmotion[1025].acceleration.y, 0.15) << "forward is forward";
    }
}

TEST_F(SensorCsvTest, LinesThatCannotBeReadAreListedWithTheirReason) {
    const CsvImport import = imported("time,ax,ay,az,lat,lon\n"
                                      "0.00,0,0,9.8,47,8\n"
                                      "0.01,0,zero,9.8,47,8\n"
                                      "later,0,0,9.8,47,8\n"
                                      "0.02,0,,9.8,47,8\n"
                                      "0.03\n"
                                      "\n"
                                      "0.04,NaN,NaN,NaN,47.1,8\n"
                                      "0.05,0,0,9.8\n");
    EXPECT_THAT(import.session.boatmotion, SizeIs(2)) << "lines of other sensors are no fault";
    ASSERT_EQ(import.unreadCount, 3U);
    EXPECT_EQ(import.unread[0].line, 3U);
    EXPECT_EQ(import.unread[0].reason, "column 3: “zero” is no number");
    EXPECT_EQ(import.unread[1].line, 4U);
    EXPECT_THAT(import.unread[1].reason, HasSubstr("“later” is no number"));
    EXPECT_THAT(import.unread[2].reason, HasSubstr("an axis of the acceleration is missing"));
}

TEST_F(SensorCsvTest, AHundredFaultsAreListedAndAllCounted) {
    std::string content = "time,ax,ay,az\n0,0,0,9.8\n1,0,0,9.8\n";
    for (int i = 0; i < 250; ++i)
        content += "?,0,0,0\n";
    const CsvImport import = imported(content);
    EXPECT_THAT(import.unread, SizeIs(100));
    EXPECT_EQ(import.unreadCount, 250U);
}

TEST_F(SensorCsvTest, DatesComeFromTheTimesOrFromTheCoach) {
    const CsvImport dated = imported("time,ax,ay,az,lat,lon\n"
                                     "1778148120.5,0,0,9.8,47,8\n1778148121.5,0,0,9.8,47.1,8\n");
    EXPECT_TRUE(dated.hasDates);
    EXPECT_EQ(dated.session.info.date.seconds, 799840920.5);
    EXPECT_EQ(dated.session.boatmotion.front().timestamp, 799840920.5);
    EXPECT_EQ(dated.session.gps.front().date.seconds, 799840920.5);

    const SensorCsv own = list("time,ax,ay,az,lat,lon\n50,0,0,9.8,47,8\n51,0,0,9.8,47.1,8\n");
    CsvMapping mapping = own.guess();
    mapping.start = ReferenceDate{799840920};
    const CsvImport import = own.read(mapping);
    EXPECT_FALSE(import.hasDates);
    EXPECT_EQ(import.session.boatmotion.front().timestamp, 50);
    EXPECT_EQ(import.session.info.date.seconds, 799840920);
    EXPECT_EQ(import.session.gps.back().date.seconds, 799840921);
}

TEST_F(SensorCsvTest, LinesOutOfOrderArePutInOrder) {
    const CsvImport import = imported("t,ax,ay,az\n1.2,0,0,9.8\n1,0,1,9.8\n1.3,0,0,9.8\n");
    ASSERT_THAT(import.session.boatmotion, SizeIs(3));
    EXPECT_EQ(import.session.boatmotion.front().timestamp, 1);
    EXPECT_THAT(import.notes, Contains(HasSubstr("put in order")));
}

TEST_F(SensorCsvTest, MappingsThatCannotBeUsedSayWhy) {
    struct Case {
        std::vector<Q> columns;
        const char* fault;
    };
    const Case cases[] = {
        {{Q::TotalX, Q::TotalY, Q::TotalZ}, "No column is the time."},
        {{Q::Time, Q::TotalX, Q::TotalX, Q::TotalZ}, "“Acc. x with gravity” stands over "},
        {{Q::Time, Q::TotalX, Q::TotalY}, "Of the acceleration with gravity all of x, y and z"},
        {{Q::Time, Q::Latitude, Q::HeartRate}, "Latitude and longitude go together."},
        {{Q::Time, Q::RotationX, Q::RotationY, Q::RotationZ}, "No column is acceleration, "}};
    const SensorCsv csv = list("a,b,c,d\n1,2,3,4\n");
    for (const Case& expected : cases) {
        CsvMapping mapping = csv.guess();
        mapping.columns = expected.columns;
        EXPECT_THAT(faultOf(mapping).value_or(""), HasSubstr(expected.fault));
        EXPECT_THROW((void)csv.read(mapping), DecodeError);
    }
}

TEST_F(SensorCsvTest, FilesThatAreNoListsAreRefused) {
    for (const std::string& content : {std::string(), std::string("only,titles\nand,words\n"),
                                       std::string("\xFF\xFE"
                                                   "a\0,\0",
                                                   6),
                                       std::string("\0\0\0\n1,2", 7), std::string(300'000, 'x')})
        EXPECT_THROW((void)list(content), DecodeError);
}

TEST_F(SensorCsvTest, PreviewShowsTheFirstSamplesAsTheyAreWritten) {
    std::string content = "\xEF\xBB\xBFtime;x \xE4;\"quoted;one\"\n";
    for (int i = 0; i < 50; ++i)
        content += std::to_string(i) + ";1,5;\"a;b\"\n";
    const SensorCsv csv = list(content);
    const CsvPreview preview = csv.preview(csv.guess());
    EXPECT_THAT(preview.titles, ElementsAre("time", "x \uFFFD", "quoted;one"));
    ASSERT_THAT(preview.rows, SizeIs(SensorCsv::PreviewRows));
    EXPECT_THAT(preview.rows.front(), ElementsAre("0", "1,5", "a;b"));
    EXPECT_TRUE(csv.guess().hasDecimalComma);
}

TEST_F(SensorCsvTest, OverlongLinesCostOnlyThemselves) {
    std::string content = "t,ax,ay,az\n0,0,0,9.8\n";
    content += "1,0,0," + std::string(2'000'000, '9') + "\n2,0,0,9.8\n3,0,0,9.8";
    const CsvImport import = imported(content);
    EXPECT_THAT(import.session.boatmotion, SizeIs(3));
    EXPECT_EQ(import.unreadCount, 1U);
    EXPECT_EQ(import.unread.front().line, 3U);
}

} // namespace
} // namespace kavela::test
