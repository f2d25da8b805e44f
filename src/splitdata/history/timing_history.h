#pragma once

#include "splitdata/records.h"

/// The records nested in a run through the releases, oldest first: penalty details, section data,
/// custom tags, upstream gates, time losses.
namespace kavela::history {

struct pendata012 {
    std::vector<std::int64_t> gate;
    std::vector<std::int64_t> gatekind;
    std::vector<std::int64_t> penkind;
    std::vector<std::int64_t> polekind;
    std::vector<std::int64_t> penway;
};
BOOST_DESCRIBE_STRUCT(pendata012, (), (gate, gatekind, penkind, polekind, penway))

using pendata013 = pendata012;
using pendata014 = pendata012;
using pendata015 = pendata012;

struct pendata023 : pendata015 {
    std::vector<std::int64_t> moment;
    std::vector<std::int64_t> direction;
    std::vector<std::int64_t> style;
};
BOOST_DESCRIBE_STRUCT(pendata023, (pendata015), (moment, direction, style))

/// What every section record has had. `Marks` is the type of `cmtimes`.
template <class Marks>
struct SectionTimes {
    std::vector<double> times;
    std::vector<std::int64_t> pens;
    Marks cmtimes;
    std::vector<std::string> comments;
    double totaltime = 0;
    std::int64_t totalpen = 0;
    double realtime = 0;
    std::int64_t realpen = 0;
    double sprinttime = 0;
    std::int64_t splitnum = 0;
    bool isfullrun = false;
    BOOST_DESCRIBE_CLASS(SectionTimes, (),
                         (times, pens, cmtimes, comments, totaltime, totalpen, realtime, realpen,
                          sprinttime, splitnum, isfullrun),
                         (), ())
};

using FlatMarks = std::vector<CMTime>;
using MarksByCamera = std::vector<std::vector<CMTime>>;

using sectiondataOLD = SectionTimes<FlatMarks>;

template <class Marks>
struct SectionWithRadio : SectionTimes<Marks> {
    std::vector<Blob> teamradio;
    BOOST_DESCRIBE_CLASS(SectionWithRadio, (SectionTimes<Marks>), (teamradio), (), ())
};

using sectiondata012 = SectionWithRadio<FlatMarks>;

template <class Marks, class PenaltyDetails>
struct SectionWithDetails : SectionWithRadio<Marks> {
    std::vector<PenaltyDetails> pendetails;
    BOOST_DESCRIBE_CLASS(SectionWithDetails, (SectionWithRadio<Marks>), (pendetails), (), ())
};

using sectiondata013 = SectionWithDetails<FlatMarks, pendata013>;
using sectiondata014 = SectionWithDetails<MarksByCamera, pendata014>;
using sectiondata015 = SectionWithDetails<MarksByCamera, pendata015>;

template <class PenaltyDetails>
struct SectionWithExpectation : SectionWithDetails<MarksByCamera, PenaltyDetails> {
    double xTime = 0;
    double xPer = 0;
    using Base = SectionWithDetails<MarksByCamera, PenaltyDetails>;
    BOOST_DESCRIBE_CLASS(SectionWithExpectation, (Base), (xTime, xPer), (), ())
};

using sectiondata018 = SectionWithExpectation<pendata015>;
using sectiondata023 = SectionWithExpectation<pendata023>;

struct customData013 {
    std::string identifier;
    std::vector<std::string> labels;
    std::vector<CMTime> cmTimes;
    std::vector<std::string> comments;
};
BOOST_DESCRIBE_STRUCT(customData013, (), (identifier, labels, cmTimes, comments))

struct customData014 {
    std::vector<std::string> tags;
    std::vector<CMTime> cmTimes;
    std::string comments;
};
BOOST_DESCRIBE_STRUCT(customData014, (), (tags, cmTimes, comments))

struct customData015 : customData014 {
    std::int64_t videoInt = 0;
};
BOOST_DESCRIBE_STRUCT(customData015, (customData014), (videoInt))

struct upstreamdata024 {
    std::int64_t direction = 0;
    std::int64_t style = 0;
    std::vector<CMTime> cmtimes;
    double time = 0;
};
BOOST_DESCRIBE_STRUCT(upstreamdata024, (), (direction, style, cmtimes, time))

struct timeloss024 {
    std::string versus;
    std::int64_t gateCombination = 0;
    std::int64_t gateDetails = 0;
    std::int64_t style = 0;
    std::int64_t waterFeature = 0;
    std::vector<std::string> reasons;
    std::vector<std::string> videos;
    std::vector<std::vector<CMTime>> cmtimes;
    double timeloss = 0;
    double timelossper = 0;
};
BOOST_DESCRIBE_STRUCT(timeloss024, (),
                      (versus, gateCombination, gateDetails, style, waterFeature, reasons, videos,
                       cmtimes, timeloss, timelossper))

/// The labels of a tag set were renamed; its identifier went.
inline void convertRenamed(customData013& from, customData020& to) {
    to.tags = std::move(from.labels);
}

} // namespace kavela::history
