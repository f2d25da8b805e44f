#include "analysis/race_set.h"

#include "analysis/percent_behind.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace kavela {

namespace {

namespace fs = std::filesystem;

/// A film stands in the folder of its split file under a bare name; a name that leads elsewhere is
/// not followed and shows as missing.
fs::path filmBeside(const fs::path& file, const std::string& name) {
    const bool bare = name.find_first_of("/\\") == std::string::npos && name != "..";
    return bare && !name.empty() ? file.parent_path() / name : fs::path();
}

std::vector<fs::path> filmsBeside(const fs::path& file, const std::vector<std::string>& names) {
    std::vector<fs::path> films;
    films.reserve(names.size());
    for (const std::string& name : names)
        films.push_back(filmBeside(file, name));
    return films;
}

std::vector<double> accumulated(const std::vector<double>& times) {
    std::vector<double> sums(times.size());
    std::partial_sum(times.begin(), times.end(), sums.begin());
    return sums;
}

sectionmaindata sectionFigures(const infodata031& info, sectiondata030&& timing) {
    sectionmaindata section;
    section.pens = sectionPenalties(info, timing.pens);
    section.accutimes = accumulated(timing.times);
    section.totaltime = section.accutimes.empty() ? 0 : section.accutimes.back();
    section.times = std::move(timing.times);
    section.cmtimes = std::move(timing.cmtimes);
    section.comments = std::move(timing.comments);
    section.realtime = timing.realtime;
    section.realpen = timing.realpen;
    section.sprinttime = timing.sprinttime;
    section.xTime = timing.xTime;
    section.totalpen = timing.totalpen;
    return section;
}

analyzerdata comparisonRecord(const infodata031& info, athletedata031&& run, const fs::path& file,
                              std::size_t index) {
    analyzerdata record;
    record.name = crewText(run.names);
    record.names = std::move(run.names);
    record.hand = std::move(run.hand);
    record.phase = std::move(run.phase);
    record.category = std::move(run.cat);
    if (record.category.empty())
        record.category = info.category;
    record.pos = std::to_string(run.pos);
    record.event = info.event;
    record.location = info.place;
    record.videoname = filmsBeside(file, run.videoname);
    record.gatePenalties = run.sectioninfo.pens;
    record.sectioninfo = sectionFigures(info, std::move(run.sectioninfo));
    record.customData = std::move(run.customData);
    record.fixcameras = filmsBeside(file, run.fixcameras);
    record.bm = std::move(run.bm);
    record.heart = std::move(run.hr);
    record.watch = std::move(run.watchmotion);
    record.gps = std::move(run.gps);
    record.timeloss = std::move(run.timeslosses);
    record.upstreams = std::move(run.upstreams);
    record.microsplits = std::move(run.microsplits);
    record.strokes = std::move(run.strokes);
    record.fileURL = file;
    record.athleteInt = static_cast<std::int64_t>(index);
    return record;
}

} // namespace

bool RaceSet::isFull(const analyzerdata& run) const {
    return isFullRun(run.sectioninfo.times, totalsplits);
}

RaceSet makeRaceSet(splittakerdata031 document, const fs::path& file) {
    RaceSet set;
    set.sectiontitles = document.info.splitTitles;
    set.totalsplits = document.info.totalsplits;
    set.gates = document.info.gates;
    set.upGates = document.info.upGates;
    set.definedsections = document.info.definedsections;
    set.alldata.reserve(document.athletes.size());
    for (athletedata031& run : document.athletes)
        set.alldata.push_back(
            comparisonRecord(document.info, std::move(run), file, set.alldata.size()));
    fillPercentFigures(set);
    return set;
}

RaceSet filteredRaceSet(const RaceSet& set, const std::function<bool(const analyzerdata&)>& keep) {
    RaceSet kept{{},        set.sectiontitles, set.totalsplits,
                 set.gates, set.upGates,       set.definedsections};
    std::ranges::copy_if(set.alldata, std::back_inserter(kept.alldata), keep);
    fillPercentFigures(kept);
    return kept;
}

} // namespace kavela
