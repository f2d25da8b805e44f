#pragma once

#include "common/cm_time.h"
#include "common/record.h"
#include "common/reference_date.h"

#include <cstdint>
#include <string>
#include <vector>

/// The records of the on-water tests.
namespace kavela {

/// One run of an on-water test. Series per stroke are parallel to `strokeDate`; series per section
/// (a lap, or a stretch of a sprint) to `splits`.
struct testData {
    std::string athlete;
    ReferenceDate date;
    std::string location;
    std::vector<double> splits;       ///< seconds of each section
    double totalTime = 0;             ///< seconds
    std::vector<double> straightTime; ///< by section: seconds on the straight
    std::vector<double> aveSpeed;     ///< by section: m/s
    std::vector<double> strokeRate;   ///< by stroke: strokes per minute
    std::vector<ReferenceDate> strokeDate;
    std::vector<double> strokeEfficiency; ///< by stroke: metres per stroke
    std::vector<double> maxAcce;          ///< by stroke: m/s²
    std::vector<double> aveAcce;          ///< by stroke: m/s²
    std::vector<double> avedeacce;        ///< by stroke: m/s²
    std::vector<double> maxForce;         ///< by stroke: N
    std::vector<double> maxAcceNeg;       ///< by stroke: m/s²
    std::vector<double> pow;              ///< by stroke
    std::vector<double> waterPhase;       ///< by stroke: seconds
    std::vector<double> airPhase;         ///< by stroke: seconds
    std::vector<double> speed;            ///< m/s
    std::vector<double> roll;             ///< by stroke
    std::vector<double> leftRotations;    ///< by left turn: peak, rad/s
    std::vector<double> leftRotationsTime;
    std::vector<double> rightRotations; ///< by right turn: peak, rad/s
    std::vector<double> rightRotationsTime;
};
BOOST_DESCRIBE_STRUCT(testData, (),
                      (athlete, date, location, splits, totalTime, straightTime, aveSpeed,
                       strokeRate, strokeDate, strokeEfficiency, maxAcce, aveAcce, avedeacce,
                       maxForce, maxAcceNeg, pow, waterPhase, airPhase, speed, roll, leftRotations,
                       leftRotationsTime, rightRotations, rightRotationsTime))

/// The same with the impulses and the dates of the speed samples.
struct testStruct : testData {
    std::vector<double> impulses; ///< by stroke
    std::vector<ReferenceDate> speedDate;
};
BOOST_DESCRIBE_STRUCT(testStruct, (testData), (impulses, speedDate))

/// One athlete's run of the eight test. The motion series are parallel to `date`.
struct datafor8 {
    std::string athlete;
    std::string cat;
    std::string phase;
    double sp1 = 0; ///< split times, seconds
    double sp2 = 0;
    double sp3 = 0;
    double sp4 = 0;
    double sp5 = 0;
    double totalsplit = 0;
    double sdv = 0; ///< standard deviation of the splits, seconds
    std::string videourl;
    std::string videoname;
    CMTime videotimes1; ///< where in the video the splits were taken
    CMTime videotimes2;
    CMTime videotimes3;
    CMTime videotimes4;
    CMTime videotimes5;
    std::vector<ReferenceDate> date;
    std::vector<double> xacceleration;
    std::vector<double> yacceleration;
    std::vector<double> zacceleration;
    std::vector<double> xrotation;
    std::vector<double> yrotation;
    std::vector<double> zrotation; ///< about the vertical axis, rad/s; positive to the left
    std::vector<double> pitch;
    std::vector<double> roll;
    std::vector<double> yaw;
    std::vector<double> xgravity;
    std::vector<double> ygravity;
    std::vector<double> zgravity;
    std::vector<double> zrotsubmaxR; ///< peaks of the turns to the right, rad/s, as magnitudes
    std::vector<double> zrotsubmaxL; ///< the same to the left
};
BOOST_DESCRIBE_STRUCT(datafor8, (),
                      (athlete, cat, phase, sp1, sp2, sp3, sp4, sp5, totalsplit, sdv, videourl,
                       videoname, videotimes1, videotimes2, videotimes3, videotimes4, videotimes5,
                       date, xacceleration, yacceleration, zacceleration, xrotation, yrotation,
                       zrotation, pitch, roll, yaw, xgravity, ygravity, zgravity, zrotsubmaxR,
                       zrotsubmaxL))

} // namespace kavela
