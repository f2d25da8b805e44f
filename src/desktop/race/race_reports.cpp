#include "desktop/race/race_reports.h"

#include "desktop/race/race_document.h"
#include "desktop/race/split_table_model.h"
#include "report/race_report.h"
#include "report/run_sheet.h"

#include <QFileInfo>

namespace kavela::desktop {

namespace {

using report::ReportContent;
using report::RunColumn;

report::TableView viewOf(const RaceDocument& document, const SplitTableModel& model,
                         const QList<int>& columns) {
    report::TableView view;
    view.columns.emplace();
    for (const int column : columns) {
        if (column >= SplitTableModel::LeadingColumns)
            view.columns->push_back(
                static_cast<std::size_t>(column - SplitTableModel::LeadingColumns));
        else if (column == SplitTableModel::PhaseColumn)
            view.runColumns.push_back(RunColumn::Phase);
        else if (column == SplitTableModel::CategoryColumn)
            view.runColumns.push_back(RunColumn::Category);
        else if (column == SplitTableModel::PlaceColumn)
            view.runColumns.push_back(RunColumn::Place);
    }
    view.rows = model.order();
    view.content = model.content();
    view.reference = model.reference();
    view.scale = model.scale();
    view.comparisons = document.comparisons();
    return view;
}

} // namespace

std::vector<NamedReport> raceReports(const RaceDocument& document, const SplitTableModel& model,
                                     const QList<int>& columns,
                                     std::optional<std::size_t> selectedRun) {
    const auto set = std::make_shared<const RaceSet>(document.shownSet());
    const report::ReportHeading heading =
        report::reportHeading(document.info(), document.path().toStdString());
    const report::SharedCourse drawn = report::sharedCourse(document.info());
    const TableSettings settings = document.settings();
    const auto make = [=](ReportContent content, const report::TableView& view) {
        return [=]() -> std::unique_ptr<report::PagedReport> {
            return std::make_unique<report::RaceReport>(heading, *set, settings, content, view,
                                                        drawn);
        };
    };
    const QFileInfo file(document.path());
    const QString stem = file.path() + '/' + file.completeBaseName();
    std::vector<NamedReport> reports{
        {ReportPreview::tr("Table as shown"), stem + " table.pdf",
         make(ReportContent::Table, viewOf(document, model, columns))},
        {ReportPreview::tr("Race report"), stem + ".pdf", make(ReportContent::Race, {})}};
    if (selectedRun && *selectedRun < set->alldata.size())
        reports.push_back({ReportPreview::tr("Run sheet"), stem + " run sheet.pdf",
                           [set, info = document.info(), run = *selectedRun] {
                               return report::runSheet(info, *set, run);
                           }});
    return reports;
}

} // namespace kavela::desktop
