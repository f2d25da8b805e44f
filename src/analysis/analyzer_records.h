#pragma once

#include "boatmotion/sessions.h"
#include "common/shared_list.h"
#include "splitdata/records.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// The runs of a race as the analyzer works on them. Times are seconds, penalties whole seconds;
/// percent figures are percent behind the best value of their column that counts, 0 where none
/// does.
namespace kavela {

/// The section figures of one run.
struct sectionmaindata {
    std::vector<double> times;      ///< 0 was not timed
    std::vector<std::int64_t> pens; ///< by section
    std::vector<std::vector<CMTime>> cmtimes;
    std::vector<std::string> comments;
    std::vector<std::filesystem::path> teamradio;
    double realtime = 0;
    double realpertime = 0;
    std::int64_t realpen = 0;
    double sprinttime = 0;
    double sprintpertime = 0;
    double xTime = 0;
    double xPer = 0;
    std::vector<double> accutimes;
    std::vector<double> pertimes;
    std::vector<double> pertimesandpen;
    std::vector<double> peraccutimes;
    double totaltime = 0; ///< sum of the section times
    double totalpertime = 0;
    double totalpertimeandpen = 0;
    std::int64_t totalpen = 0;
};

/// One run of the race set.
struct analyzerdata {
    std::string name; ///< the crew as it is shown
    std::vector<std::string> names;
    std::string hand;
    std::string phase;
    std::string pos;
    std::string event;
    std::string location;
    std::vector<std::filesystem::path> videoname;
    sectionmaindata sectioninfo;
    std::vector<customData020> customData;
    std::vector<std::filesystem::path> fixcameras;
    smartAlldata_v4 sbm;
    SharedList<boatmotionrawdata_v5> bm;
    SharedList<heartmotiondata> heart;
    SharedList<watchmotiondata_v5> watch;
    SharedList<gpsrawdata> gps;
    std::vector<timeloss031> timeloss;
    std::vector<upstreamdata025> upstreams;
    std::vector<microsplitsdata025> microsplits;
    std::vector<strokessdata025> strokes;
    std::vector<double> microaccutimes;
    std::vector<double> micropertimes;
    std::vector<double> microaccupertimes;
    std::filesystem::path fileURL;           ///< the split file the run came from
    std::int64_t athleteInt = 0;             ///< index of the run in that file
    std::string category;                    ///< of the run, or of the race where the run has none
    std::vector<std::int64_t> gatePenalties; ///< as stored: by gate where the course was set up so
};

/// One upstream gate of a comparison run.
struct upCompare {
    double time = 0;
    double timeEntrace = 0;
    double timeExit = 0;
};

/// A comparison run taken from another race.
struct compStruct {
    std::string name;
    std::string run;
    std::vector<double> splits;
    double totaltime = 0;
    double realtime = 0;
    double xTime = 0;
    double sprint = 0;
    std::vector<upCompare> ups;
};

} // namespace kavela
