#pragma once

#include "boatmotion/samples.h"
#include "common/blob.h"
#include "common/cm_time.h"

#include <cstdint>
#include <string>
#include <vector>

/// The split file: everything timed and annotated for one race or session on one course. These are
/// the current records, the ones that are written; their members are the keys of the file, letter
/// for letter. Times are seconds, penalties whole seconds (2 for a touch, 50 for a missed gate).
namespace kavela {

/// One line of an official results list.
struct allresultsdata030 {
    std::int64_t pos = 0;
    std::int64_t bib = 0;
    std::string name;
    std::string nationality;
    double time = 0;
    std::int64_t pen = 0;
    double total = 0;
};
BOOST_DESCRIBE_STRUCT(allresultsdata030, (), (pos, bib, name, nationality, time, pen, total))

/// The race and its course.
struct infodata031 {
    ReferenceDate date;
    std::string place;
    std::string title;
    std::string session; ///< "Race", "Training", "Test"
    std::string event;
    std::string techniquetype;
    std::string category;
    std::int64_t gates = 0;                                 ///< gates are numbered from 1
    std::vector<std::int64_t> upGates;                      ///< numbers of the upstream gates
    std::vector<std::vector<std::int64_t>> definedsections; ///< gate numbers of each section
    std::vector<std::string> splitTitles;
    std::int64_t totalsplits = 0; ///< splits taken per run
    std::string watertype;
    std::string comments;
    std::vector<std::string> tags;
    Blob coursedesign;
    Blob officialresults;
    Blob officialresultsAnalysis;
    std::vector<double> resultsofinterest;
    double perfectRun = 0;
    std::string siwicode;
    std::vector<allresultsdata030> resultsCSVdata;
    ReferenceDate lastSavedDate;
};
BOOST_DESCRIBE_STRUCT(infodata031, (),
                      (date, place, title, session, event, techniquetype, category, gates, upGates,
                       definedsections, splitTitles, totalsplits, watertype, comments, tags,
                       coursedesign, officialresults, officialresultsAnalysis, resultsofinterest,
                       perfectRun, siwicode, resultsCSVdata, lastSavedDate))

/// Penalties in detail: parallel arrays, one element per penalty. Arrays of an upgraded record may
/// be empty although their siblings are not.
struct pendata030 {
    std::vector<std::int64_t> gate;
    std::vector<std::int64_t> gatekind;
    std::vector<std::int64_t> penkind;
    std::vector<std::int64_t> polekind;
    std::vector<std::int64_t> penway;
    std::vector<std::int64_t> moment;
    std::vector<std::int64_t> direction;
    std::vector<std::int64_t> style;
    std::vector<std::int64_t> eye;
};
BOOST_DESCRIBE_STRUCT(pendata030, (),
                      (gate, gatekind, penkind, polekind, penway, moment, direction, style, eye))

/// The timing of one run.
struct sectiondata030 {
    std::vector<double> times;      ///< from mark to mark; 0 was not timed
    std::vector<std::int64_t> pens; ///< by gate: 0, 2 or 50
    std::vector<pendata030> pendetails;
    std::vector<std::vector<CMTime>> cmtimes; ///< by split: the players' stamps at the mark
    std::vector<std::string> comments;
    std::vector<Blob> teamradio;
    double totaltime = 0;
    std::int64_t totalpen = 0;
    double realtime = 0;
    std::int64_t realpen = 0;
    double sprinttime = 0;
    double xTime = 0; ///< expected time
    double xPer = 0;  ///< expected-time factor: 1 for a run that is the best everywhere
    std::int64_t splitnum = 0;
    bool isfullrun = false;
};
BOOST_DESCRIBE_STRUCT(sectiondata030, (),
                      (times, pens, pendetails, cmtimes, comments, teamradio, totaltime, totalpen,
                       realtime, realpen, sprinttime, xTime, xPer, splitnum, isfullrun))

/// Custom tags of one video.
struct customData020 {
    std::int64_t videoInt = 0;
    std::vector<std::string> tags;
    std::vector<CMTime> cmTimes;
    std::string comments;
    std::int64_t fixInt = 0;
    std::vector<CMTime> fixCMTimes;
};
BOOST_DESCRIBE_STRUCT(customData020, (), (videoInt, tags, cmTimes, comments, fixInt, fixCMTimes))

/// Strategy options compared in a run.
struct strategy001 {
    std::string title;
    std::vector<double> times;
    std::vector<std::string> options;
    std::int64_t optionInt = 0;
    std::string comments;
};
BOOST_DESCRIBE_STRUCT(strategy001, (), (title, times, options, optionInt, comments))

/// Synchronisation marks of one fixed camera.
struct fixMarkStruct {
    std::int64_t camNum = 0;
    std::vector<ReferenceDate> fixMarkDates;
};
BOOST_DESCRIBE_STRUCT(fixMarkStruct, (), (camNum, fixMarkDates))

/// A time loss against another athlete.
struct timeloss031 {
    std::string versus;
    std::int64_t gateCombination = 0;
    std::int64_t gateDetails = 0;
    std::int64_t style = 0;
    std::int64_t waterFeature = 0;
    std::vector<std::string> reasons;
    std::vector<std::string> videos;
    std::vector<std::vector<CMTime>> cmtimes;
    double timeloss = 0;    ///< seconds
    double timelossper = 0; ///< percent
    std::string comments;
};
BOOST_DESCRIBE_STRUCT(timeloss031, (),
                      (versus, gateCombination, gateDetails, style, waterFeature, reasons, videos,
                       cmtimes, timeloss, timelossper, comments))

/// One upstream gate of a run.
struct upstreamdata025 {
    std::int64_t num = 0;
    std::int64_t direction = 0;
    std::int64_t style = 0;
    std::vector<CMTime> cmtimes;
    double time = 0;
    double timeEntrace = 0;
    double timeExit = 0;
};
BOOST_DESCRIBE_STRUCT(upstreamdata025, (),
                      (num, direction, style, cmtimes, time, timeEntrace, timeExit))

/// An extra mark between two splits.
struct microsplitsdata025 {
    CMTime cmtime;
    double time = 0;
};
BOOST_DESCRIBE_STRUCT(microsplitsdata025, (), (cmtime, time))

/// One stroke marked on the video.
struct strokessdata025 {
    std::vector<CMTime> cmtimes;
    double time = 0;
    std::int64_t hand = 0;
    std::int64_t style = 0;
};
BOOST_DESCRIBE_STRUCT(strokessdata025, (), (cmtimes, time, hand, style))

/// One run.
struct athletedata031 {
    std::vector<std::string> names; ///< one for a single boat, two for a double
    std::string hand;
    std::string phase;
    std::string cat;
    std::int64_t pos = 0;
    std::vector<std::string> videoname; ///< bare names, in the folder of the split file
    std::int64_t totaltouches = 0;
    std::int64_t totalfifties = 0;
    sectiondata030 sectioninfo;
    std::vector<customData020> customData;
    std::vector<std::string> fixcameras;
    double athletesscore = 0;
    double coachsscore = 0;
    std::vector<strategy001> strategies;
    std::vector<boatmotionrawdata_v5> bm;
    std::vector<heartmotiondata> hr;
    std::vector<gpsrawdata> gps;
    std::vector<watchmotiondata_v5> watchmotion;
    std::vector<fixMarkStruct> fixMarkDates;
    std::vector<timeloss031> timeslosses;
    std::vector<upstreamdata025> upstreams;
    std::vector<microsplitsdata025> microsplits;
    std::vector<strokessdata025> strokes;
    std::int64_t giveups = 0;
};
BOOST_DESCRIBE_STRUCT(athletedata031, (),
                      (names, hand, phase, cat, pos, videoname, totaltouches, totalfifties,
                       sectioninfo, customData, fixcameras, athletesscore, coachsscore, strategies,
                       bm, hr, gps, watchmotion, fixMarkDates, timeslosses, upstreams, microsplits,
                       strokes, giveups))

} // namespace kavela
