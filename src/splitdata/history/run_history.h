#pragma once

#include "common/record_convert.h"
#include "splitdata/history/timing_history.h"
#include "splitdata/records.h"

/// The run record through the releases, oldest first.
namespace kavela::history {

/// What every run record up to 0.27 has had. `Video` became a list with the second camera.
template <class Video, class Section>
struct RunBase {
    std::string name;
    std::string hand;
    std::string phase;
    std::int64_t pos = 0;
    Video videoname;
    std::int64_t totaltouches = 0;
    std::int64_t totalfifties = 0;
    Section sectioninfo;
    std::vector<std::string> fixcameras;
    BOOST_DESCRIBE_CLASS(RunBase, (),
                         (name, hand, phase, pos, videoname, totaltouches, totalfifties,
                          sectioninfo, fixcameras),
                         (), ())
};

using OneVideo = std::string;
using VideoList = std::vector<std::string>;

template <class Section>
struct RunWithPenaltyRecord : RunBase<OneVideo, Section> {
    pendata012 peninfo;
    using Base = RunBase<OneVideo, Section>;
    BOOST_DESCRIBE_CLASS(RunWithPenaltyRecord, (Base), (peninfo), (), ())
};

using athletedataOLD = RunWithPenaltyRecord<sectiondataOLD>;
using athletedataOLD2 = RunWithPenaltyRecord<sectiondata012>;

struct athletedata012 : athletedataOLD2 {
    double athletesscore = 0;
    double coachsscore = 0;
};
BOOST_DESCRIBE_STRUCT(athletedata012, (athletedataOLD2), (athletesscore, coachsscore))

/// From 0.13 on the penalty details stand in the section data, and a run has custom tags.
template <class Video, class Section, class Custom>
struct TaggedRun : RunBase<Video, Section> {
    double athletesscore = 0;
    double coachsscore = 0;
    std::vector<Custom> customData;
    using Base = RunBase<Video, Section>;
    BOOST_DESCRIBE_CLASS(TaggedRun, (Base), (athletesscore, coachsscore, customData), (), ())
};

using athletedata013 = TaggedRun<OneVideo, sectiondata013, customData013>;
using athletedata014 = TaggedRun<OneVideo, sectiondata014, customData014>;
using athletedata015 = TaggedRun<VideoList, sectiondata015, customData015>;

template <class Section, class Custom>
struct CategoryRun : TaggedRun<VideoList, Section, Custom> {
    std::string cat;
    using Base = TaggedRun<VideoList, Section, Custom>;
    BOOST_DESCRIBE_CLASS(CategoryRun, (Base), (cat), (), ())
};

using athletedata017 = CategoryRun<sectiondata015, customData015>;

template <class Section, class Custom>
struct StrategyRun : CategoryRun<Section, Custom> {
    std::vector<strategy001> strategies;
    using Base = CategoryRun<Section, Custom>;
    BOOST_DESCRIBE_CLASS(StrategyRun, (Base), (strategies), (), ())
};

using athletedata018 = StrategyRun<sectiondata018, customData015>;

/// From 0.19 on, with dated motion samples.
template <class Section, class Custom>
struct SensorRun : StrategyRun<Section, Custom> {
    std::vector<boatmotionrawdata> bm;
    std::vector<heartmotiondata> hr;
    std::vector<gpsrawdata> gps;
    std::vector<watchmotiondata> watchmotion;
    using Base = StrategyRun<Section, Custom>;
    BOOST_DESCRIBE_CLASS(SensorRun, (Base), (bm, hr, gps, watchmotion), (), ())
};

using athletedata019 = SensorRun<sectiondata018, customData015>;
using athletedata020 = SensorRun<sectiondata018, customData020>;

template <class Section, class FixMarks>
struct FixedCameraRun : SensorRun<Section, customData020> {
    std::vector<FixMarks> fixMarkDates;
    using Base = SensorRun<Section, customData020>;
    BOOST_DESCRIBE_CLASS(FixedCameraRun, (Base), (fixMarkDates), (), ())
};

using athletedata021 = FixedCameraRun<sectiondata018, std::vector<ReferenceDate>>;
using athletedata022 = FixedCameraRun<sectiondata018, fixMarkStruct>;
using athletedata023 = FixedCameraRun<sectiondata023, fixMarkStruct>;

struct athletedata024 : athletedata023 {
    std::vector<timeloss024> timeslosses;
    std::vector<upstreamdata024> upstreams;
};
BOOST_DESCRIBE_STRUCT(athletedata024, (athletedata023), (timeslosses, upstreams))

struct athletedata025 : athletedata023 {
    std::vector<timeloss024> timeslosses;
    std::vector<upstreamdata025> upstreams;
    std::vector<microsplitsdata025> microsplits;
    std::vector<strokessdata025> strokes;
    std::int64_t giveups = 0;
};
BOOST_DESCRIBE_STRUCT(athletedata025, (athletedata023),
                      (timeslosses, upstreams, microsplits, strokes, giveups))

/// From 0.28 on a run has a crew instead of one name.
template <class BoatSample, class WatchSample>
struct CrewRun {
    std::vector<std::string> names;
    std::string hand;
    std::string phase;
    std::string cat;
    std::int64_t pos = 0;
    std::vector<std::string> videoname;
    std::int64_t totaltouches = 0;
    std::int64_t totalfifties = 0;
    sectiondata023 sectioninfo;
    std::vector<customData020> customData;
    std::vector<std::string> fixcameras;
    double athletesscore = 0;
    double coachsscore = 0;
    std::vector<strategy001> strategies;
    std::vector<BoatSample> bm;
    std::vector<heartmotiondata> hr;
    std::vector<gpsrawdata> gps;
    std::vector<WatchSample> watchmotion;
    std::vector<fixMarkStruct> fixMarkDates;
    std::vector<timeloss024> timeslosses;
    std::vector<upstreamdata025> upstreams;
    std::vector<microsplitsdata025> microsplits;
    std::vector<strokessdata025> strokes;
    std::int64_t giveups = 0;
    BOOST_DESCRIBE_CLASS(CrewRun, (),
                         (names, hand, phase, cat, pos, videoname, totaltouches, totalfifties,
                          sectioninfo, customData, fixcameras, athletesscore, coachsscore,
                          strategies, bm, hr, gps, watchmotion, fixMarkDates, timeslosses,
                          upstreams, microsplits, strokes, giveups),
                         (), ())
};

using athletedata028 = CrewRun<boatmotionrawdata, watchmotiondata>;
using athletedata029 = CrewRun<boatmotionrawdata_v5, watchmotiondata_v5>;
using athletedata030 = athletedata031;

/// The one name became the crew, and the one penalty record the first of the section's details.
template <class From>
void convertRenamed(From& from, athletedata031& to) {
    if constexpr (requires { from.name; })
        to.names = {std::move(from.name)};
    if constexpr (requires { from.peninfo; })
        to.sectioninfo.pendetails = {converted<pendata030>(std::move(from.peninfo))};
}

} // namespace kavela::history

namespace kavela {

/// One list of dates per fixed camera became a record that names its camera.
void convertValue(std::vector<std::vector<ReferenceDate>>&& from, std::vector<fixMarkStruct>& to);

} // namespace kavela
