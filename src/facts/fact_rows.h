#pragma once

#include "facts/texts.h"

#include <cstdint>
#include <limits>
#include <vector>

/// What split files say, as flat rows of tables that belong together: a file has runs, a run has
/// sections, gates, penalties, notes. Films' bytes, recordings and pictures stay in the files.
/// Times are seconds, penalties whole seconds. A number that is not known is NotKnown.
namespace kavela {

/// Stands for a number that a file does not tell; compares as no number at all.
inline constexpr double NotKnown = std::numeric_limits<double>::quiet_NaN();

/// Rows of another table that belong to a row: `count` of them from `first`.
struct RowRange {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
};

/// A split file: one race or session on one course.
struct FileRow {
    TextId path = 0; ///< as it was found, UTF-8
    TextId title = 0;
    TextId place = 0;
    TextId session = 0;
    TextId event = 0;
    TextId category = 0;
    TextId water = 0;
    TextId siwicode = 0;
    TextId tags = 0; ///< one on each line
    TextId comments = 0;
    double date = 0; ///< ReferenceDate::seconds
    std::int32_t gates = 0;
    std::uint32_t sections = 0; ///< `totalsplits`, at most what some run came to or is defined
    RowRange runs;
    RowRange upGates;   ///< of the table of whole numbers: gate numbers as written
    RowRange courses;   ///< one for each entry of `definedsections`
    RowRange interests; ///< of the table of numbers: `resultsofinterest`
};

/// The gates of one defined section, of the table of whole numbers.
struct CourseRow {
    RowRange gates;
};

/// A run.
struct RunRow {
    std::uint32_t file = 0;
    std::uint32_t number = 0; ///< in its file, from 0
    TextId crew = 0;          ///< as it is shown: "A / B"
    TextId names = 0;         ///< one on each line
    TextId crewKey = 0;       ///< the same however the crew is written
    TextId category = 0;      ///< of the run, or of the race where the run has none; as written
    TextId categoryKey = 0;
    TextId phase = 0;    ///< as written
    TextId phaseKey = 0; ///< the team's label of it ("Heats 1"), else as written
    TextId hand = 0;
    std::int32_t pos = 0;
    double total = NotKnown;    ///< with penalties; by the rule of totalOf
    double paddling = NotKnown; ///< the same without penalties
    std::int64_t penalty = 0;   ///< the seconds between them; 0 where there is no total
    double realtime = 0;        ///< as written, also where it was not taken
    std::int64_t realpen = 0;
    double totaltime = 0;
    std::int64_t totalpen = 0;
    double sectionSum = NotKnown; ///< of all sections of the course when all were taken
    double sprint = 0;
    double xTime = 0;
    double xPer = 0;
    double start = NotKnown; ///< seconds of the first film at the start mark, where it is known
    double frame = NotKnown; ///< seconds from frame to frame of it, where its marks tell
    bool isComplete = false; ///< has a total
    bool isOfficial = false; ///< whose total is `realtime` with `realpen`
    bool isRefused = false;  ///< a list says DNF, DNS or DSQ
    RowRange sections;
    RowRange pens;      ///< of the table of whole numbers, as written: by gate or by section
    RowRange gates;     ///< upstream gates timed
    RowRange penalties; ///< penalties in detail
    RowRange losses;    ///< notes of time lost
    RowRange ways;      ///< strategies
    RowRange tags;
    RowRange films; ///< of the table of texts: bare names
};

/// One section of a run, in their order. There are as many as the run has times.
struct SectionRow {
    double time = 0;        ///< as written
    double end = NotKnown;  ///< seconds of the first film at the mark that ends it
    std::int32_t pen = 0;   ///< seconds of penalty in it
    std::uint16_t left = 0; ///< strokes marked in it by hand
    std::uint16_t right = 0;
    std::uint16_t other = 0;
    bool standsAlone = false; ///< both its marks were taken: its time is of this section alone
};

/// One upstream gate of a run.
struct GateRow {
    double time = 0; ///< as written
    double entrance = 0;
    double exit = 0;
    std::int32_t gate = 0;
    std::int16_t direction = 0;
    std::int16_t style = 0;
    double at = NotKnown; ///< seconds of the first film at the entrance
};

/// One penalty in detail. NoCode stands where the file's list does not reach so far.
struct PenaltyRow {
    static constexpr std::int32_t NoCode = std::numeric_limits<std::int32_t>::min();

    std::int32_t gate = NoCode;
    std::int32_t gatekind = NoCode;
    std::int32_t penkind = NoCode;
    std::int32_t polekind = NoCode;
    std::int32_t penway = NoCode;
    std::int32_t moment = NoCode;
    std::int32_t direction = NoCode;
    std::int32_t style = NoCode;
    std::int32_t eye = NoCode;
};

/// One note of time lost.
struct LossRow {
    TextId versus = 0;
    TextId reasons = 0; ///< one on each line
    TextId comments = 0;
    std::int32_t gateCombination = 0;
    std::int32_t gateDetails = 0;
    std::int32_t style = 0;
    std::int32_t waterFeature = 0;
    double lost = 0; ///< below 0 for time gained, 0 for a note not finished
    double percent = 0;
    double at = NotKnown; ///< seconds of the run's film where the stretch begins
};

/// One choice of ways compared in a run.
struct WayRow {
    TextId title = 0;
    TextId comments = 0;
    std::int32_t chosen = 0; ///< entry of the options, from 0, as written
    RowRange options;        ///< of the table of texts
    RowRange times;          ///< of the table of numbers, by option
};

/// One mark with a word.
struct TagRow {
    TextId tag = 0;
    TextId comments = 0;
    std::int32_t film = 0; ///< of the run's films, from 0
    double at = NotKnown;  ///< seconds of that film
};

} // namespace kavela
