#pragma once

#include "common/record.h"
#include "common/reference_date.h"

#include <cstdint>
#include <string>
#include <vector>

/// The team document (.kvteam): what every athlete of a coach's team reached, season by season. The
/// members are the keys of the file, letter for letter. Times are seconds, percentages percent
/// behind the fastest.
namespace kavela {

/// Averages of one phase.
struct mtAverageDataStruct {
    std::string phase;
    std::vector<double> per;     ///< by split, then of the whole run
    std::vector<double> peraccu; ///< by split, from the start up to it
    std::vector<double> pendis;  ///< percent of the runs by penalty: see phase_averages.h
};
BOOST_DESCRIBE_STRUCT(mtAverageDataStruct, (), (phase, per, peraccu, pendis))

/// One run of a race.
struct mtPhaseStruct {
    std::string phase; ///< "Heats 1", "Heats 2", "Semifinal", "Final"
    std::int64_t pos = 0;
    double time = 0;
    std::int64_t pen = 0;
    std::vector<double> splits; ///< where a split file exists
    std::vector<double> pers;   ///< by split
    ReferenceDate date;
};
BOOST_DESCRIBE_STRUCT(mtPhaseStruct, (), (phase, pos, time, pen, splits, pers, date))

struct mtRaceStruct {
    std::string location;
    std::string event;
    std::int64_t finalPos = 0; ///< 0 where no final classification was entered
    std::vector<mtPhaseStruct> phases;
};
BOOST_DESCRIBE_STRUCT(mtRaceStruct, (), (location, event, finalPos, phases))

struct mtSeasonStruct {
    std::int64_t year = 0;
    std::int64_t icfrankingpos = 0;
    double icfrankingpoints = 0;
    std::vector<mtRaceStruct> races;
    std::vector<mtAverageDataStruct> aves; ///< by phase, of the season
};
BOOST_DESCRIBE_STRUCT(mtSeasonStruct, (), (year, icfrankingpos, icfrankingpoints, races, aves))

struct mtCatsStruct {
    std::string cat;
    std::vector<mtSeasonStruct> seasons;   ///< the categorization counts the first two
    std::vector<mtAverageDataStruct> aves; ///< by phase, of all seasons
};
BOOST_DESCRIBE_STRUCT(mtCatsStruct, (), (cat, seasons, aves))

struct myTeamStruct {
    std::string name; ///< "SURNAME Given name"
    std::int64_t birthYear = 0;
    std::vector<mtCatsStruct> cats;
    bool isretired = false;
};
BOOST_DESCRIBE_STRUCT(myTeamStruct, (), (name, birthYear, cats, isretired))

/// A whole team file.
struct myTeamToSaveStruct {
    std::vector<myTeamStruct> realMyTeam;
};
BOOST_DESCRIBE_STRUCT(myTeamToSaveStruct, (), (realMyTeam))

/// What a coach chooses from. Labels are compared letter for letter; an event "WC1" is a World Cup
/// and has nothing to do with the category "WC1".
namespace team {
inline constexpr const char* Categories[] = {"MK1", "WK1", "MC1", "WC1", "MX1", "WX1"};
inline constexpr const char* Events[] = {"WCH",         "WC1", "WC2",   "WC3",    "WC4",
                                         "WC5",         "ICF", "EUROS", "ECACup", "Selection Race",
                                         "National Cup"};
inline constexpr const char* Phases[] = {"Heats 1", "Heats 2", "Semifinal", "Final"};
} // namespace team

} // namespace kavela
