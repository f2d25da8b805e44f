#include "report/run_sheet.h"

#include "report/drawn_course.h"
#include "report/page_frame.h"
#include "report/run_sheet_data.h"
#include "report/run_sheet_splits.h"
#include "report/sheet_report.h"

namespace kavela::report {

namespace {

constexpr qreal SheetPartGap = 12 * Point;

/// A run without what is not compared: its films and, for the other runs, everything but times.
athletedata031 timesOf(const athletedata031& run) {
    athletedata031 light;
    light.names = run.names;
    light.phase = run.phase;
    light.cat = run.cat;
    light.pos = run.pos;
    light.sectioninfo.times = run.sectioninfo.times;
    light.sectioninfo.pens = run.sectioninfo.pens;
    light.sectioninfo.totalpen = run.sectioninfo.totalpen;
    return light;
}

} // namespace

std::unique_ptr<PagedReport> runSheet(const splittakerdata031& race, std::size_t run) {
    // Recordings are large: only those of the run itself are copied.
    splittakerdata031 compared;
    compared.info = race.info;
    for (std::size_t i = 0; i < race.athletes.size(); ++i)
        compared.athletes.push_back(i == run ? race.athletes[i] : timesOf(race.athletes[i]));
    const infodata031& info = race.info;
    return runSheet(info, makeRaceSet(std::move(compared), {}), run);
}

std::unique_ptr<PagedReport> runSheet(const infodata031& info, const RaceSet& set,
                                      std::size_t run) {
    const Typeface typeface;
    RunSheetData data = runSheetData(info, set, run);
    PageBuilder pages(QPageLayout::Portrait);
    putTitleBlock(pages, data.heading, typeface);
    putSplits(pages, data, typeface);
    if (!data.splits.empty())
        pages.skip(SheetPartGap);
    if (const SharedCourse drawn = sharedCourse(info); drawn && !data.course.gates.empty())
        putDrawnCourse(pages, drawn, data.course, typeface);
    else
        putCourse(pages, data.course, typeface);
    if (!data.course.gates.empty())
        pages.skip(SheetPartGap);
    putSheetLists(pages, data.lists, typeface);
    return std::make_unique<SheetReport>(std::move(data.heading), std::move(pages));
}

} // namespace kavela::report
