#pragma once

#include "splitdata/cross_records.h"

/// The cross race as 0.28 and 0.29 kept it.
namespace kavela::history {

struct crossinfodata028 {
    std::string phase;
    std::string cat;
    std::vector<std::int64_t> gates;
};
BOOST_DESCRIBE_STRUCT(crossinfodata028, (), (phase, cat, gates))

struct ttdata028 {
    std::string athlete;
    std::string videoname;
    double time = 0;
    std::int64_t pos = 0;
    std::vector<CMTime> splittimes;
};
BOOST_DESCRIBE_STRUCT(ttdata028, (), (athlete, videoname, time, pos, splittimes))

struct generaldata028 {
    CMTime time;
    std::string gate;
    std::int64_t gatenum = 0;
    std::vector<std::string> order;
};
BOOST_DESCRIBE_STRUCT(generaldata028, (), (time, gate, gatenum, order))

using actiondata028 = actiondata030;

struct rounddata028 {
    std::string videoname;
    std::vector<std::string> athletes;
    std::vector<generaldata028> generals;
    std::vector<actiondata028> actions;
};
BOOST_DESCRIBE_STRUCT(rounddata028, (), (videoname, athletes, generals, actions))

struct crossdata028 {
    crossinfodata028 crossinfo;
    std::vector<ttdata028> timetrials;
    std::vector<rounddata028> eliphase;
};
BOOST_DESCRIBE_STRUCT(crossdata028, (), (crossinfo, timetrials, eliphase))

} // namespace kavela::history
