#include "desktop/planning/athlete_list.h"
#include "desktop/planning/plan/plan_view.h"
#include "desktop/planning/planning_window.h"
#include "desktop/preview/report_preview.h"
#include "desktop/shell/workspace.h"
#include "report/paged_report.h"
#include "report/planning_season_report.h"
#include "report/planning_week_report.h"

#include <QFileInfo>

namespace kavela::desktop {

namespace {

/// A name as part of a file name.
QString fileNameOf(const std::string& name) {
    return QString::fromStdString(name).remove('/').simplified();
}

} // namespace

/// The week in front and the whole season, to hand to the athlete.
void PlanningWindow::previewReports() {
    commit();
    const auto place = m_athletes->season();
    if (!place) {
        tell(tr("Choose an athlete with a season first."));
        return;
    }
    const std::string athlete = m_document->athletes()[place->athlete].name;
    const auto season = std::make_shared<yearsplannings_v6>(*m_document->seasonAt(*place));
    const QString folder = QFileInfo(m_document->path()).path() + '/';
    std::vector<NamedReport> reports;
    if (const microsplanning_v5* const week = m_plan->week())
        reports.push_back(
            {tr("Week %1").arg(week->number),
             folder + tr("Week %1 %2.pdf").arg(week->number).arg(fileNameOf(athlete)),
             [athlete, week = *week] { return report::planningWeekReport(athlete, week); }});
    reports.push_back(
        {tr("Season %1").arg(season->year),
         folder + tr("Season %1 %2.pdf").arg(season->year).arg(fileNameOf(athlete)),
         [athlete, season] { return report::planningSeasonReport(athlete, *season); }});
    const PreviewFailures failures{workspace().log(), [this](const Alert& alert, QWidget* over) {
                                       workspace().showAlert(alert, over);
                                   }};
    auto* preview = new ReportPreview(std::move(reports), failures, this);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

} // namespace kavela::desktop
