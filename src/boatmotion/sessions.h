#pragma once

#include "boatmotion/samples.h"

#include <cstdint>
#include <string>
#include <vector>

/// Whole recordings: what a raw, a processed and a test session file hold.
namespace kavela {

struct infosession {
    ReferenceDate date;
};
BOOST_DESCRIBE_STRUCT(infosession, (), (date))

/// Session, athlete and equipment of a version 4 recording.
struct infosession_v4 {
    ReferenceDate date;
    std::string location;
    std::string name; ///< athlete
    std::string sessionKind;
    double weight = 0; ///< kilograms
    double paddleLength = 0;
    double bladeArea = 0;
    double bladeHeight = 0;
    double handPosition = 0;
};
BOOST_DESCRIBE_STRUCT(infosession_v4, (),
                      (date, location, name, sessionKind, weight, paddleLength, bladeArea,
                       bladeHeight, handPosition))

/// Session, athlete and equipment of a processed session.
struct infosessionSmart_v3 {
    ReferenceDate date;
    std::string location;
    std::string name; ///< athlete
    std::string sessionKind;
    double weight = 0; ///< kilograms
    double paddleLength = 0;
    double bladeArea = 0;
    double bladeHeight = 0;
    double handPosition = 0;
};
BOOST_DESCRIBE_STRUCT(infosessionSmart_v3, (),
                      (date, location, name, sessionKind, weight, paddleLength, bladeArea,
                       bladeHeight, handPosition))

struct infosession_v5 {
    ReferenceDate date;
    std::string location;
    std::string sessionKind;
    std::string subSessionKind;
};
BOOST_DESCRIBE_STRUCT(infosession_v5, (), (date, location, sessionKind, subSessionKind))

/// Athlete, boat and equipment, apart from the session since version 5.
struct infoathlete_v5 {
    std::string name;
    std::string discipline;
    std::int64_t boat = 0;
    std::int64_t athletesinboat = 0;
    double weight = 0; ///< kilograms
    double paddleLength = 0;
    double bladeArea = 0;
    double bladeHeight = 0;
    double handPosition = 0;
};
BOOST_DESCRIBE_STRUCT(infoathlete_v5, (),
                      (name, discipline, boat, athletesinboat, weight, paddleLength, bladeArea,
                       bladeHeight, handPosition))

/// A raw recording up to version 4.
struct bmrawdata_v4 {
    infosession_v4 info;
    std::vector<boatmotionrawdata> boatmotion;
    std::vector<watchmotiondata> watchmotion;
    std::vector<gpsrawdata> gps;
    std::vector<heartmotiondata> heart;
};
BOOST_DESCRIBE_STRUCT(bmrawdata_v4, (), (info, boatmotion, watchmotion, gps, heart))

/// A raw recording. Its motion samples are stamped by the device's clock, its fixes and heart rates
/// by the date: a reader meets both in one file.
struct bmrawdata_v5 {
    infosession_v5 info;
    infoathlete_v5 athleteinfo;
    std::vector<boatmotionrawdata_v5> boatmotion;
    std::vector<watchmotiondata_v5> watchmotion;
    std::vector<gpsrawdata> gps;
    std::vector<heartmotiondata> heart;
};
BOOST_DESCRIBE_STRUCT(bmrawdata_v5, (), (info, athleteinfo, boatmotion, watchmotion, gps, heart))

/// The athlete and the equipment moved out of the session information.
inline void convertRenamed(bmrawdata_v4& from, bmrawdata_v5& to) {
    infoathlete_v5& athlete = to.athleteinfo;
    athlete.name = from.info.name;
    athlete.weight = from.info.weight;
    athlete.paddleLength = from.info.paddleLength;
    athlete.bladeArea = from.info.bladeArea;
    athlete.bladeHeight = from.info.bladeHeight;
    athlete.handPosition = from.info.handPosition;
}

/// The values of one turn of the boat.
struct smartRotation {
    double rotationTime = 0; ///< seconds
    double rotSpeedPeak = 0; ///< radians per second
    double aveRotSpeed = 0;  ///< radians per second
    double pushOutPeak = 0;  ///< metres per second squared
    double pushOutAve = 0;   ///< metres per second squared
    double aveRoll = 0;      ///< radians
    double avePitch = 0;     ///< radians
};
BOOST_DESCRIBE_STRUCT(smartRotation, (),
                      (rotationTime, rotSpeedPeak, aveRotSpeed, pushOutPeak, pushOutAve, aveRoll,
                       avePitch))

/// The values of one stroke.
struct smartStraight_v3 {
    double strokeRate = 0;  ///< strokes per minute, each side counting one
    double aveAcce = 0;     ///< metres per second squared
    double maxAcce = 0;     ///< metres per second squared
    double force = 0;       ///< newtons
    double impulse = 0;     ///< newton seconds
    double power = 0;       ///< watts
    double aveDecce = 0;    ///< metres per second squared
    double waterPhase = 0;  ///< seconds
    double aerealPhase = 0; ///< seconds
    double roll = 0;        ///< radians
    std::int64_t hand = 0;  ///< 0 left, 1 right
};
BOOST_DESCRIBE_STRUCT(smartStraight_v3, (),
                      (strokeRate, aveAcce, maxAcce, force, impulse, power, aveDecce, waterPhase,
                       aerealPhase, roll, hand))

struct smartBMdata {
    ReferenceDate date;
    std::string kind;
    std::vector<double> values;
    std::int64_t hr = 0;
};
BOOST_DESCRIBE_STRUCT(smartBMdata, (), (date, kind, values, hr))

struct smartBMdata_v3 {
    ReferenceDate date;
    smartRotation rotation;
    smartStraight_v3 stroke;
    std::int64_t segment = 0;
};
BOOST_DESCRIBE_STRUCT(smartBMdata_v3, (), (date, rotation, stroke, segment))

/// One stroke or turn of a processed session.
struct smartBMdata_v4 {
    double timestamp = 0; ///< seconds of the recording device's own clock
    smartRotation rotation;
    smartStraight_v3 stroke;
    std::int64_t segment = 0; ///< number of the segment that the coach marked
};
BOOST_DESCRIBE_STRUCT(smartBMdata_v4, (), (timestamp, rotation, stroke, segment))

struct smartSprintdata {
    ReferenceDate date;
    double values = 0;
    std::int64_t hr = 0;
};
BOOST_DESCRIBE_STRUCT(smartSprintdata, (), (date, values, hr))

/// A processed session of the first kind.
struct smartAlldata {
    infosession info;
    std::vector<smartBMdata> boatdata;
    std::vector<smartSprintdata> sprintdata;
};
BOOST_DESCRIBE_STRUCT(smartAlldata, (), (info, boatdata, sprintdata))

struct smartAlldata_v3 {
    infosessionSmart_v3 info;
    std::vector<smartBMdata_v3> strokesData;
    std::vector<heartmotiondata> heart;
    std::vector<gpsrawdata> gps;
};
BOOST_DESCRIBE_STRUCT(smartAlldata_v3, (), (info, strokesData, heart, gps))

/// A processed session: the version that is written.
struct smartAlldata_v4 {
    infosessionSmart_v3 info;
    std::vector<smartBMdata_v4> strokesData;
    std::vector<heartmotiondata> heart;
    std::vector<gpsrawdata> gps;
};
BOOST_DESCRIBE_STRUCT(smartAlldata_v4, (), (info, strokesData, heart, gps))

struct smartAlldata_v5 {
    infosessionSmart_v3 info;
    std::vector<smartBMdata_v4> strokesData;
    std::vector<heartmotiondata_v5> heart;
    std::vector<gpsrawdata> gps;
};
BOOST_DESCRIBE_STRUCT(smartAlldata_v5, (), (info, strokesData, heart, gps))

struct infoGTsession {
    ReferenceDate date;
    std::string name;
    std::string testkind;
};
BOOST_DESCRIBE_STRUCT(infoGTsession, (), (date, name, testkind))

/// One attempt of an on-water test.
struct differentGTdata {
    std::int64_t attempt = 0;
    std::vector<smartBMdata> boatdata;
    std::vector<smartSprintdata> sprintdata;
};
BOOST_DESCRIBE_STRUCT(differentGTdata, (), (attempt, boatdata, sprintdata))

/// An on-water test session, read only.
struct varoTestAlldata {
    infoGTsession info;
    std::vector<differentGTdata> test;
};
BOOST_DESCRIBE_STRUCT(varoTestAlldata, (), (info, test))

} // namespace kavela
