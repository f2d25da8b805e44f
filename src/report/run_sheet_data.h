#pragma once

#include "analysis/race_set.h"
#include "report/course_drawing.h"
#include "report/report_heading.h"
#include "report/sheet_lists.h"

#include <optional>
#include <vector>

/// What the sheet of a run tells, gathered from its race before anything is laid out.
namespace kavela::report {

/// Strokes of a section, or of the run; nothing where they are not known.
struct SheetStrokes {
    std::optional<std::size_t> count;
    std::optional<double> rate; ///< mean, 1/min
};

/// A line of the splits, or the one of the whole run.
struct SheetSplit {
    QString title;
    double time = 0;           ///< s; 0 was not timed
    std::optional<double> gap; ///< s to the best of the category
    std::optional<int> rank;   ///< in the category, counted from 1; equal hundredths share one
    std::int64_t penalty = 0;  ///< s
    SheetStrokes marked;       ///< on the film
    SheetStrokes recorded;
};

struct RunSheetData {
    ReportHeading heading;
    std::vector<SheetSplit> splits;
    std::size_t leftOutSplits = 0; ///< after those, of a file beyond all measure
    SheetSplit whole; ///< its time is without penalties, its gap and rank are with them
    bool hasMarkedStrokes = false;
    bool hasRecordedStrokes = false;
    QString recordingNote; ///< why strokes of an attached recording are not known
    RunCourse course;
    std::vector<SheetList> lists; ///< upstream gates, time losses, tags, comments; none is empty
};

/// Gathers the sheet of a run of the set. Splits and totals are held against the runs of the set
/// that have the same category. Throws std::out_of_range for a run that is not in the set.
[[nodiscard]] RunSheetData runSheetData(const infodata031& info, const RaceSet& set,
                                        std::size_t run);

/// Seconds with two decimals; a dash for what is no number.
[[nodiscard]] QString sheetSeconds(double seconds);

/// "3 touches", "1 touch".
[[nodiscard]] QString countedText(std::int64_t count, const char* one, const char* more);

} // namespace kavela::report
