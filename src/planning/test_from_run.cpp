#include "planning/test_from_run.h"

#include "planning/eight_test.h"
#include "planning/test_entry.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

/// The samples of a recording up to version 4 are stamped by the date; such a stamp lies years
/// behind the start of dates, where a device's own clock counts from when it was switched on.
constexpr double EarliestDate = 10 * 365 * 86400.0;

/// When the first motion sample was taken: receiver and sensor begin together.
ReferenceDate beginOf(const infodata031& info, const athletedata031& run) {
    if (!run.bm.empty() && run.bm.front().timestamp > EarliestDate)
        return {run.bm.front().timestamp};
    return run.gps.empty() ? info.date : run.gps.front().date;
}

} // namespace

onWaterTest testFromRun(const infodata031& info, const athletedata031& run,
                        const std::string& kind) {
    onWaterTest taken;
    taken.kind = kind;
    taken.test.athlete = crewText(run.names);
    taken.test.date = info.date;
    taken.test.location = info.place;
    taken.test.splits = run.sectioninfo.times;
    for (const double split : taken.test.splits)
        taken.test.totalTime += split;
    if (kind == water_test::Lap)
        taken.laps = static_cast<std::int64_t>(taken.test.splits.size());
    return taken;
}

void setMotion(datafor8& eight, const std::vector<boatmotionrawdata_v5>& samples,
               ReferenceDate begin) {
    for (auto* series :
         {&eight.xacceleration, &eight.yacceleration, &eight.zacceleration, &eight.xrotation,
          &eight.yrotation, &eight.zrotation, &eight.pitch, &eight.roll, &eight.yaw,
          &eight.xgravity, &eight.ygravity, &eight.zgravity})
        series->clear();
    eight.date.clear();
    for (const boatmotionrawdata_v5& sample : samples) {
        eight.date.push_back({begin.seconds + (sample.timestamp - samples.front().timestamp)});
        eight.xacceleration.push_back(sample.acceleration.x);
        eight.yacceleration.push_back(sample.acceleration.y);
        eight.zacceleration.push_back(sample.acceleration.z);
        eight.xrotation.push_back(sample.rotationRate.x);
        eight.yrotation.push_back(sample.rotationRate.y);
        eight.zrotation.push_back(sample.rotationRate.z);
        eight.pitch.push_back(sample.attitude.pitch);
        eight.roll.push_back(sample.attitude.roll);
        eight.yaw.push_back(sample.attitude.yaw);
        eight.xgravity.push_back(sample.gravity.x);
        eight.ygravity.push_back(sample.gravity.y);
        eight.zgravity.push_back(sample.gravity.z);
    }
}

onWaterEight eightFromRun(const infodata031& info, const athletedata031& run,
                          const std::filesystem::path& folder) {
    onWaterEight eight{info.date, info.place, {}};
    datafor8& taken = eight.run;
    taken.athlete = crewText(run.names);
    taken.cat = run.cat;
    taken.phase = run.phase;
    std::array<double, 5> splits{};
    const auto videoTimes = videoTimesOf(taken);
    for (std::size_t i = 0; i < splits.size(); ++i) {
        splits[i] = entryOrZero(run.sectioninfo.times, i);
        *videoTimes[i] = entryOrZero(entryOrZero(run.sectioninfo.cmtimes, i), 0);
    }
    setSplits(taken, splits);
    if (!run.videoname.empty()) {
        taken.videoname = run.videoname.front();
        taken.videourl = (folder / taken.videoname).generic_string();
    }
    setMotion(taken, run.bm, beginOf(info, run));
    scoreEightTest(taken);
    return eight;
}

} // namespace kavela
