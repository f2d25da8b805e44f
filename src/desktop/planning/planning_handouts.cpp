#include "desktop/planning/planning_handouts.h"

#include "desktop/planning/athlete_list.h"
#include "desktop/planning/plan/plan_view.h"
#include "desktop/planning/planning_document.h"
#include "desktop/preview/report_preview.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/tool_window.h"
#include "desktop/shell/workspace.h"
#include "planning/calendar_text.h"
#include "planning/messages.h"
#include "report/paged_report.h"
#include "report/planning_season_report.h"
#include "report/planning_week_report.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStatusBar>

namespace kavela::desktop {

namespace {

constexpr int WrittenMilliseconds = 8000;

/// A name as part of a file name.
QString fileNameOf(const std::string& name) {
    return QString::fromStdString(name).remove('/').simplified();
}

} // namespace

PlanningHandouts::PlanningHandouts(const PlanningDocument& document, const AthleteList& athletes,
                                   const PlanView& plan, Workspace& workspace, ToolWindow& window)
    : m_document(document),
      m_athletes(athletes),
      m_plan(plan),
      m_workspace(workspace),
      m_window(window) {}

void PlanningHandouts::previewReports() {
    m_window.commit();
    const auto place = m_athletes.season();
    if (!place) {
        tell(tr("Choose an athlete with a season first."));
        return;
    }
    const std::string athlete = m_document.athletes()[place->athlete].name;
    const auto season = std::make_shared<yearsplannings_v6>(*m_document.seasonAt(*place));
    const QString folder = QFileInfo(m_document.path()).path() + '/';
    std::vector<NamedReport> reports;
    if (const microsplanning_v5* const week = m_plan.week())
        reports.push_back(
            {tr("Week %1").arg(week->number),
             folder + tr("Week %1 %2.pdf").arg(week->number).arg(fileNameOf(athlete)),
             [athlete, week = *week] { return report::planningWeekReport(athlete, week); }});
    reports.push_back(
        {tr("Season %1").arg(season->year),
         folder + tr("Season %1 %2.pdf").arg(season->year).arg(fileNameOf(athlete)),
         [athlete, season] { return report::planningSeasonReport(athlete, *season); }});
    const PreviewFailures failures{m_workspace.log(), [this](const Alert& alert, QWidget* over) {
                                       m_workspace.showAlert(alert, over);
                                   }};
    auto* preview = new ReportPreview(std::move(reports), failures, &m_window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

void PlanningHandouts::writeCalendar(const QString& path) const {
    const auto athlete = m_athletes.athlete();
    const microsplanning_v5* const week = m_plan.week();
    if (!athlete || !week)
        return;
    disk::writeAwaited(
        m_window, path.toStdString(),
        weekCalendar(m_document.athletes()[*athlete], *week, m_document.value().favintses,
                     m_workspace.clock()()),
        [window = &m_window, workspace = &m_workspace, path](const std::exception_ptr& fault) {
            noteCalendar(*workspace, *window, path, fault);
        });
}

void PlanningHandouts::askForCalendar() {
    const microsplanning_v5* const week = m_plan.week();
    if (!week) {
        tell(tr("There is no week to write."));
        return;
    }
    const QString name =
        tr("Week %1 %2.ics")
            .arg(QString::number(week->number),
                 QString::fromStdString(m_document.athletes()[*m_athletes.athlete()].name)
                     .remove('/'));
    const QString path = QFileDialog::getSaveFileName(
        &m_window, tr("Week as a calendar file"), QFileInfo(m_document.path()).path() + '/' + name,
        tr("Calendar files (*.ics)"));
    if (path.isEmpty())
        return;
    writeCalendar(path);
}

/// For the window, which hears of it as long as it is there.
void PlanningHandouts::noteCalendar(const Workspace& workspace, ToolWindow& window,
                                    const QString& path, const std::exception_ptr& fault) {
    if (!fault) {
        window.statusBar()->showMessage(tr("%1 is written.").arg(QFileInfo(path).fileName()),
                                        WrittenMilliseconds);
        return;
    }
    workspace.log()(planning_messages::NotSaved);
    workspace.showAlert({planning_messages::NotSaved, messageOf(fault)}, &window);
}

void PlanningHandouts::tell(const QString& text) const {
    m_workspace.showAlert({"", text.toStdString()}, &m_window);
}

} // namespace kavela::desktop
