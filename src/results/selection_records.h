#pragma once

#include "common/error.h"
#include "common/record.h"

#include <cstdint>
#include <string>
#include <vector>

namespace simdjson::dom {
class element;
} // namespace simdjson::dom

/// The selection-race document (.kvsr): the races by which a national team is picked. These are the
/// current records; their members are the keys of the file, letter for letter. Times are seconds,
/// penalties whole seconds, percentages percent behind the best of race and category.
namespace kavela {

struct sRaceStruct {
    std::string location;
    std::vector<double> bestTimes;  ///< by category: the best time with penalties
    std::vector<double> bestxTimes; ///< by category: the best expected time with penalties
};
BOOST_DESCRIBE_STRUCT(sRaceStruct, (), (location, bestTimes, bestxTimes))

/// One athlete in one race.
struct saRaceStruct {
    std::int64_t pos = 0;
    double resultTime = 0; ///< without penalties
    std::int64_t pen = 0;
    double xTime = 0; ///< expected time of the run
    double resultPer = 0;
    double resultxPer = 0;
    std::int64_t points = 0;
};
BOOST_DESCRIBE_STRUCT(saRaceStruct, (),
                      (pos, resultTime, pen, xTime, resultPer, resultxPer, points))

struct srAthleteStruct_v3 {
    std::string name;      ///< "SURNAME Name"
    std::int64_t year = 0; ///< of birth
    std::string club;
    std::vector<saRaceStruct> racedata; ///< by race
    std::vector<bool> preselected;      ///< by preselection group
    double result = 0;                  ///< the score: lower is better
    std::vector<double> bonuses;        ///< by kind of bonus
};
BOOST_DESCRIBE_STRUCT(srAthleteStruct_v3, (),
                      (name, year, club, racedata, preselected, result, bonuses))

struct srCategoryStruct_v3 {
    std::string cat;
    std::vector<srAthleteStruct_v3> athletes;
};
BOOST_DESCRIBE_STRUCT(srCategoryStruct_v3, (), (cat, athletes))

/// A whole selection file of the current layout.
struct selectionracesStruct_v3 {
    std::int64_t year = 0;
    std::string rules;
    std::vector<sRaceStruct> races;
    std::vector<srCategoryStruct_v3> categories;
};
BOOST_DESCRIBE_STRUCT(selectionracesStruct_v3, (), (year, rules, races, categories))

/// Reads the flags: their vector hands out no references for the general reader to fill. The reader
/// of records finds this by its argument `fault`.
bool read(simdjson::dom::element element, std::vector<bool>& flags, Fault& fault);

} // namespace kavela
