#pragma once

#include "common/record.h"
#include "common/reference_date.h"

/// The samples of a boat-motion recording: motion of the boat phone and of the watch, position,
/// heart rate. They stand in recordings of their own and, cut to one run, in a split file.
namespace kavela {

/// User acceleration along the device axes, in g.
struct accelerationCodable {
    double x = 0;
    double y = 0;
    double z = 0;
};
BOOST_DESCRIBE_STRUCT(accelerationCodable, (), (x, y, z))

/// Rotation rate about the device axes, in radians per second.
struct rotationrateCodable {
    double x = 0;
    double y = 0;
    double z = 0;
};
BOOST_DESCRIBE_STRUCT(rotationrateCodable, (), (x, y, z))

/// Orientation of the device, in radians.
struct attitudeCodable {
    double pitch = 0;
    double roll = 0;
    double yaw = 0;
};
BOOST_DESCRIBE_STRUCT(attitudeCodable, (), (pitch, roll, yaw))

/// Gravity in device axes, in g.
struct gravityCodable {
    double x = 0;
    double y = 0;
    double z = 0;
};
BOOST_DESCRIBE_STRUCT(gravityCodable, (), (x, y, z))

/// One motion sample of the boat phone, up to version 4.
struct boatmotionrawdata {
    ReferenceDate date;
    accelerationCodable acceleration;
    rotationrateCodable rotationRate;
    attitudeCodable attitude;
    gravityCodable gravity;
};
BOOST_DESCRIBE_STRUCT(boatmotionrawdata, (), (date, acceleration, rotationRate, attitude, gravity))

/// One motion sample of the boat phone.
struct boatmotionrawdata_v5 {
    double timestamp = 0; ///< seconds of the recording device's own clock
    accelerationCodable acceleration;
    rotationrateCodable rotationRate;
    attitudeCodable attitude;
    gravityCodable gravity;
};
BOOST_DESCRIBE_STRUCT(boatmotionrawdata_v5, (),
                      (timestamp, acceleration, rotationRate, attitude, gravity))

/// One motion sample of the watch, up to version 4.
struct watchmotiondata {
    ReferenceDate date;
    accelerationCodable acceleration;
    rotationrateCodable rotationRate;
    attitudeCodable attitude;
    gravityCodable gravity;
};
BOOST_DESCRIBE_STRUCT(watchmotiondata, (), (date, acceleration, rotationRate, attitude, gravity))

/// One motion sample of the watch.
struct watchmotiondata_v5 {
    double timestamp = 0; ///< seconds of the recording device's own clock
    accelerationCodable acceleration;
    rotationrateCodable rotationRate;
    attitudeCodable attitude;
    gravityCodable gravity;
};
BOOST_DESCRIBE_STRUCT(watchmotiondata_v5, (),
                      (timestamp, acceleration, rotationRate, attitude, gravity))

/// One fix of the position receiver.
struct gpsrawdata {
    ReferenceDate date;
    double speed = 0;     ///< metres per second
    double latitude = 0;  ///< degrees
    double longitude = 0; ///< degrees
};
BOOST_DESCRIBE_STRUCT(gpsrawdata, (), (date, speed, latitude, longitude))

/// One heart-rate reading.
struct heartmotiondata {
    ReferenceDate date;
    double hr = 0; ///< beats per minute
};
BOOST_DESCRIBE_STRUCT(heartmotiondata, (), (date, hr))

/// One heart-rate reading of version 5, stamped by the device's own clock.
struct heartmotiondata_v5 {
    double timestamp = 0; ///< seconds
    double hr = 0;        ///< beats per minute
    double speed = 0;     ///< metres per second
};
BOOST_DESCRIBE_STRUCT(heartmotiondata_v5, (), (timestamp, hr, speed))

/// A location as the position service gives it. Its `timestamp` is a date, unlike the number of the
/// samples above.
struct locationCodable {
    double latitude = 0;           ///< degrees
    double longitude = 0;          ///< degrees
    double altitude = 0;           ///< metres
    double horizontalAccuracy = 0; ///< metres
    double verticalAccuracy = 0;   ///< metres
    double speed = 0;              ///< metres per second
    double course = 0;             ///< degrees from north
    ReferenceDate timestamp;
};
BOOST_DESCRIBE_STRUCT(locationCodable, (),
                      (latitude, longitude, altitude, horizontalAccuracy, verticalAccuracy, speed,
                       course, timestamp))

/// A dated sample becomes a stamped one of the same number of seconds.
inline void convertRenamed(boatmotionrawdata& from, boatmotionrawdata_v5& to) {
    to.timestamp = from.date.seconds;
}
inline void convertRenamed(watchmotiondata& from, watchmotiondata_v5& to) {
    to.timestamp = from.date.seconds;
}

} // namespace kavela
