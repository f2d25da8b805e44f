#include "desktop/taking/run_list.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/run_timing.h"
#include "splittaking/video_names.h"

namespace kavela::desktop {

namespace {

using Correct = void (*)(athletedata031& run, const std::string& typed);

/// A name can be cut off by its column, and its films are told nowhere else.
QString tipOf(const RunInList& run) {
    return (QStringList{run.crew} + run.films).join('\n');
}

Column<RunInList> corrected(TakingDocument& document, const QString& title,
                            QString RunInList::*text, Correct correct) {
    return {
        .title = title,
        .show = [text](const RunInList& run) { return Cell{.text = run.*text, .tip = tipOf(run)}; },
        .take =
            [&document, correct](std::size_t run, const RunInList&, const QString& typed) {
                document.editRun(
                    static_cast<int>(run), TakingWindow::tr("correction"),
                    [&](athletedata031& record) { correct(record, typed.toStdString()); });
            }};
}

} // namespace

std::vector<Column<RunInList>> columnsOfRuns(TakingDocument& document) {
    const auto total = [](const RunInList& run) {
        return Cell{.text = run.total ? shownHundredths(*run.total) : run.splits,
                    .number = run.total,
                    .tip = tipOf(run)};
    };
    return {
        corrected(document, TakingWindow::tr("Name"), &RunInList::crew,
                  [](athletedata031& run, const std::string& typed) { run.names = crewIn(typed); }),
        corrected(document, TakingWindow::tr("Cat"), &RunInList::category,
                  [](athletedata031& run, const std::string& typed) { run.cat = typed; }),
        corrected(document, TakingWindow::tr("Phase"), &RunInList::phase,
                  [](athletedata031& run, const std::string& typed) { run.phase = typed; }),
        Column<RunInList>{
            .title = TakingWindow::tr("Total"), .kind = ColumnKind::Number, .show = total}};
}

std::vector<RunInList> runsInList(const TakingDocument& document) {
    std::vector<RunInList> runs;
    for (int place = 0; place < document.runCount(); ++place) {
        const athletedata031& run = document.run(place);
        const sectiondata030& timing = run.sectioninfo;
        QStringList films;
        for (const std::string& film : run.videoname)
            films.append(qtText(film));
        runs.push_back(
            {qtText(crewText(run.names)), qtText(run.cat), qtText(run.phase),
             TakingWindow::tr("%1/%2").arg(timing.splitnum).arg(document.info().totalsplits),
             timing.isfullrun ? std::optional(timing.totaltime) : std::nullopt, std::move(films)});
    }
    return runs;
}

} // namespace kavela::desktop
