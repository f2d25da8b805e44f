#pragma once

#include "common/json_encode.h"
#include "splitdata/records.h"

#include <string>

/// Runs and moments for the tests of annotations.
namespace kavela::test {

inline CMTime at(std::int64_t value, std::int32_t timescale = 1000) {
    return {value, timescale, 1, 0};
}

/// A run of two cameras started at 2 s, with splits of 10, 12 and 5 s; the second camera was
/// switched on 1.5 s later.
inline athletedata031 timedRun() {
    athletedata031 run;
    run.names = {"Ana"};
    run.videoname = {"a.mov", "b.mov"};
    run.sectioninfo.times = {10, 12, 5};
    run.sectioninfo.cmtimes = {
        {at(12000), at(10500)}, {at(24000), at(22500)}, {at(29000), at(27500)}};
    return run;
}

inline infodata031 course() {
    infodata031 info;
    info.gates = 8;
    info.upGates = {6, 3, 99, 0, 6};
    info.totalsplits = 3;
    info.splitTitles = {"1-3", "", "7-8"};
    return info;
}

/// What would be written: the one comparison that leaves nothing out.
template <class T>
std::string jsonOf(const T& value) {
    return encode(value);
}

} // namespace kavela::test
