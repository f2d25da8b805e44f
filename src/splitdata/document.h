#pragma once

#include "splitdata/cross_records.h"
#include "splitdata/records.h"

namespace kavela {

/// A whole split file of the current version.
struct splittakerdata031 {
    infodata031 info;
    std::vector<athletedata031> athletes;
    crossdata030 crossracedata;
};
BOOST_DESCRIBE_STRUCT(splittakerdata031, (), (info, athletes, crossracedata))

} // namespace kavela
