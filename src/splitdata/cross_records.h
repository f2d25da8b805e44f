#pragma once

#include "common/cm_time.h"

#include <cstdint>
#include <string>
#include <vector>

/// The cross race of a split file: time trials, and elimination heats of four boats.
namespace kavela {

struct crossinfodata030 {
    std::string phase;
    std::string cat;
    std::vector<std::int64_t> gates;
    std::int64_t rollaftergate = 0;
};
BOOST_DESCRIBE_STRUCT(crossinfodata030, (), (phase, cat, gates, rollaftergate))

/// One upstream gate of a time trial.
struct ttupstream030 {
    std::int64_t gateNum = 0;
    std::vector<CMTime> cmtimes;
    std::int64_t direction = 0;
    std::int64_t style = 0;
};
BOOST_DESCRIBE_STRUCT(ttupstream030, (), (gateNum, cmtimes, direction, style))

/// The roll of a time trial.
struct ttroll030 {
    std::vector<CMTime> cmtimes;
    std::int64_t direction = 0;
    std::int64_t style = 0;
};
BOOST_DESCRIBE_STRUCT(ttroll030, (), (cmtimes, direction, style))

/// One run of a time trial.
struct ttdata030 {
    std::string athlete;
    std::string videoname;
    double time = 0; ///< seconds
    std::int64_t pos = 0;
    std::vector<std::vector<CMTime>> splittimes;
    std::vector<ttupstream030> upstreams;
    ttroll030 roll;
};
BOOST_DESCRIBE_STRUCT(ttdata030, (), (athlete, videoname, time, pos, splittimes, upstreams, roll))

/// The order of the boats at one gate of a heat.
struct generaldata030 {
    CMTime time;
    std::int64_t gate = 0;
    std::int64_t gatenum = 0;
    std::vector<std::string> order;
    std::string comments;
};
BOOST_DESCRIBE_STRUCT(generaldata030, (), (time, gate, gatenum, order, comments))

/// An attack and its defence.
struct actiondata030 {
    std::vector<CMTime> time;
    std::string attacker;
    std::vector<std::string> defenders;
    bool success = false;
    std::string side;
    std::string place;
    std::string comments;
};
BOOST_DESCRIBE_STRUCT(actiondata030, (),
                      (time, attacker, defenders, success, side, place, comments))

/// One elimination heat.
struct rounddata030 {
    std::string videoname;
    std::vector<std::string> athletes;
    std::vector<generaldata030> generals;
    std::vector<actiondata030> actions;
};
BOOST_DESCRIBE_STRUCT(rounddata030, (), (videoname, athletes, generals, actions))

/// Everything of a cross race; empty arrays in a file without one.
struct crossdata030 {
    crossinfodata030 crossinfo;
    std::vector<ttdata030> timetrials;
    std::vector<rounddata030> eliphase;
};
BOOST_DESCRIBE_STRUCT(crossdata030, (), (crossinfo, timetrials, eliphase))

} // namespace kavela
