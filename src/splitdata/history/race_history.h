#pragma once

#include "splitdata/records.h"

/// The race record through the releases, oldest first. Each version is what it added; nothing was
/// ever removed.
namespace kavela::history {

struct infodataOLD {
    ReferenceDate date;
    std::string place;
    std::string session;
    std::string event;
    std::string category;
    std::int64_t gates = 0;
    std::vector<std::string> splitTitles;
    std::int64_t totalsplits = 0;
};
BOOST_DESCRIBE_STRUCT(infodataOLD, (),
                      (date, place, session, event, category, gates, splitTitles, totalsplits))

struct infodataOLD2 : infodataOLD {
    std::string techniquetype;
    std::string watertype;
    std::string comments;
    std::vector<std::string> tags;
};
BOOST_DESCRIBE_STRUCT(infodataOLD2, (infodataOLD), (techniquetype, watertype, comments, tags))

struct infodata05 : infodataOLD2 {
    Blob coursedesign;
};
BOOST_DESCRIBE_STRUCT(infodata05, (infodataOLD2), (coursedesign))

struct infodata011 : infodata05 {
    std::vector<std::vector<std::int64_t>> definedsections;
};
BOOST_DESCRIBE_STRUCT(infodata011, (infodata05), (definedsections))

struct infodata012 : infodata011 {
    Blob officialresults;
};
BOOST_DESCRIBE_STRUCT(infodata012, (infodata011), (officialresults))

struct infodata013 : infodata012 {
    std::vector<std::int64_t> upGates;
};
BOOST_DESCRIBE_STRUCT(infodata013, (infodata012), (upGates))

using infodata014 = infodata013;
using infodata015 = infodata013;

struct infodata016 : infodata015 {
    std::vector<double> resultsofinterest;
};
BOOST_DESCRIBE_STRUCT(infodata016, (infodata015), (resultsofinterest))

struct infodata018 : infodata016 {
    double perfectRun = 0;
};
BOOST_DESCRIBE_STRUCT(infodata018, (infodata016), (perfectRun))

struct infodata025 : infodata018 {
    std::string title;
};
BOOST_DESCRIBE_STRUCT(infodata025, (infodata018), (title))

struct infodata026 : infodata025 {
    std::string siwicode;
};
BOOST_DESCRIBE_STRUCT(infodata026, (infodata025), (siwicode))

struct infodata027 : infodata026 {
    Blob officialresultsAnalysis;
};
BOOST_DESCRIBE_STRUCT(infodata027, (infodata026), (officialresultsAnalysis))

struct infodata030 : infodata027 {
    std::vector<allresultsdata030> resultsCSVdata;
};
BOOST_DESCRIBE_STRUCT(infodata030, (infodata027), (resultsCSVdata))

} // namespace kavela::history
