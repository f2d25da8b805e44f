#include "desktop/planning/planning_window.h"

#include "desktop/planning/athlete_list.h"
#include "desktop/planning/body/body_panel.h"
#include "desktop/planning/goals/goals_panel.h"
#include "desktop/planning/gym/gym_panel.h"
#include "desktop/planning/intervals/intervals_panel.h"
#include "desktop/planning/online/online_planning.h"
#include "desktop/planning/plan/plan_view.h"
#include "desktop/planning/planned_athlete_dialog.h"
#include "desktop/planning/planning_actions.h"
#include "desktop/planning/planning_handouts.h"
#include "desktop/planning/ranking/ranking_panel.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "planning/calendar_day.h"
#include "planning/messages.h"
#include "planning/weeks.h"

#include <QFileInfo>
#include <QListWidget>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int ToldMilliseconds = 8000;

/// A year as the calendar has it.
std::chrono::year yearOf(std::int64_t year) {
    return std::chrono::year(static_cast<int>(std::clamp<std::int64_t>(year, 1, 9999)));
}

} // namespace

PlanningWindow::PlanningWindow(Workspace& workspace, Autosave autosave)
    : PlanningWindow(workspace,
                     std::make_unique<PlanningDocument>(workspace, std::move(autosave))) {}

PlanningWindow::PlanningWindow(Workspace& workspace, std::unique_ptr<PlanningDocument> document)
    : ToolWindow(workspace, document.get(), {"planning", tr("Planning"), "planning"}),
      m_document(std::move(document)) {
    makeParts();
    connectParts();
    QMenu* const fileMenu = makeFileMenu();
    makeEditMenu();
    makePlanningMenus(*this, *fileMenu);
    finishMenus([this] { return planningCommands(*this); });
}

PlanningWindow::~PlanningWindow() {
    hide(); // an open cell would else hand its text to what is gone already
    m_document->undoStack().disconnect(this);
    m_document->disconnect(this);
}

void PlanningWindow::makeParts() {
    m_athletes = new AthleteList(*m_document);
    m_plan = new PlanView(*m_document);
    if (const auto today = dayOfMoment(workspace().clock()()))
        m_plan->setToday(*today);
    m_tabs = new QTabWidget;
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setDrawBase(false); // white on dark
    m_goals = new GoalsPanel(*m_document);
    m_body = new BodyPanel(*m_document, workspace().clock());
    m_gym = new GymPanel(*m_document, workspace().log(), workspace().clock());
    m_ranking = new RankingPanel(*m_document, workspace());
    m_intervals = new IntervalsPanel(*m_document);
    const auto add = [this](QWidget* page, const QString& title) {
        m_tabs->addTab(new ScrollPage(page), title);
    };
    add(m_plan, tr("Plan"));
    add(m_goals, tr("Goals"));
    add(m_body, tr("Body and heart"));
    add(m_gym, tr("Gym"));
    add(m_ranking, tr("Ranking and races"));
    add(m_intervals, tr("Interval sessions"));
    auto* whole = new QSplitter;
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->addWidget(m_athletes);
    whole->addWidget(m_tabs);
    whole->setStretchFactor(1, 1);
    shareSizes(*whole, {190, 1058});
    whole->setChildrenCollapsible(false);
    rememberSizes(*whole, workspace(), "planningParts");
    setCentralWidget(whole);
    m_online = std::make_unique<OnlinePlanning>(*m_document, workspace(), *this,
                                                [this](Left left) { whenLeft(std::move(left)); });
    m_handouts =
        std::make_unique<PlanningHandouts>(*m_document, *m_athletes, *m_plan, workspace(), *this);
}

void PlanningWindow::connectParts() {
    connect(m_athletes, &AthleteList::seasonChosen, this, &PlanningWindow::showSeason);
    m_athletes->setMayLeave([this] { return !showRefusedEntry(*m_plan); });
    connect(m_plan, &PlanView::told, this,
            [this](const QString& text) { statusBar()->showMessage(text, ToldMilliseconds); });
    for (const SeasonPanel* const panel : m_tabs->findChildren<SeasonPanel*>())
        connect(panel, &SeasonPanel::refused, this, &PlanningWindow::tell, Qt::QueuedConnection);
    connect(m_intervals, &IntervalsPanel::refused, this, &PlanningWindow::tell,
            Qt::QueuedConnection);
}

FileReading PlanningWindow::readingOf(const QString& path) {
    statusBar()->showMessage(planning_messages::Importing);
    return [this, reading = m_document->reading(path, this)]() -> TakeIn {
        return [this, take = reading()] {
            const bool isTaken = take();
            statusBar()->clearMessage();
            if (isTaken)
                showOpened();
            return isTaken;
        };
    };
}

void PlanningWindow::showOpened() {
    m_online->begin(m_document->path());
    if (const std::size_t count = m_document->withoutPlace())
        tell(tr("%1 measurements of heart-rate variability of this older file hold only a highest "
                "and a lowest value, for which the present version has no place: their dates are "
                "taken over, their values are not. Saving keeps the file as it was beside the new "
                "one.")
                 .arg(count));
    m_athletes->list().setFocus();
}

void PlanningWindow::startNew(const QString& path) {
    m_document->startNew(path, this);
    m_online->begin({});
    m_athletes->list().setFocus();
}

void PlanningWindow::showSeason() {
    const auto season = m_athletes->season();
    const auto athlete = m_athletes->athlete();
    // An athlete without a season is shown as such.
    const auto place = season    ? season
                       : athlete ? std::optional(PlannedSeason{*athlete, 0})
                                 : std::nullopt;
    for (SeasonPanel* const panel : m_tabs->findChildren<SeasonPanel*>())
        panel->showSeason(place);
}

void PlanningWindow::tell(const QString& text) {
    workspace().showAlert({"", text.toStdString()}, this);
}

void PlanningWindow::addAthlete(const athletesplanning_v6& athlete) {
    m_document->edit(tr("new athlete"),
                     [&](planningdatac_v6& plan) { plan.athletes.push_back(athlete); });
    m_athletes->chooseAthlete(m_document->athletes().size() - 1);
}

void PlanningWindow::askForAthlete() {
    PlannedAthleteDialog dialog({}, this);
    if (dialog.exec() == QDialog::Accepted)
        addAthlete(dialog.athlete());
}

void PlanningWindow::editAthlete() {
    const auto chosen = m_athletes->athlete();
    if (!chosen)
        return;
    PlannedAthleteDialog dialog(m_document->athletes()[*chosen], this);
    if (dialog.exec() == QDialog::Accepted)
        m_document->editAthlete(*chosen, tr("athlete"),
                                [&](athletesplanning_v6& athlete) { athlete = dialog.athlete(); });
}

void PlanningWindow::removeAthlete() {
    if (const auto chosen = m_athletes->athlete())
        m_document->edit(tr("removal of an athlete"), [&](planningdatac_v6& plan) {
            plan.athletes.erase(plan.athletes.begin() + static_cast<std::ptrdiff_t>(*chosen));
        });
}

void PlanningWindow::addSeason() {
    const auto chosen = m_athletes->athlete();
    if (!chosen) {
        tell(tr("Add an athlete first."));
        return;
    }
    const auto& seasons = m_document->athletes()[*chosen].year;
    std::int64_t year = std::stoll(dayText(workspace().clock()()).substr(0, 4));
    for (const yearsplannings_v6& season : seasons)
        if (season.year >= year && season.year < 9999)
            year = season.year + 1;
    m_document->editAthlete(*chosen, tr("new season"), [&](athletesplanning_v6& athlete) {
        yearsplannings_v6 season;
        season.year = year;
        season.micros = newSeason(firstMondayOf(yearOf(year)));
        athlete.year.push_back(std::move(season));
    });
    m_athletes->chooseSeason(m_document->athletes()[*chosen].year.size() - 1);
}

void PlanningWindow::removeSeason() {
    if (const auto season = m_athletes->season())
        m_document->editAthlete(season->athlete, tr("removal of a season"),
                                [&](athletesplanning_v6& athlete) {
                                    athlete.year.erase(athlete.year.begin() +
                                                       static_cast<std::ptrdiff_t>(season->season));
                                });
}

/// Split files go into the statistics, lists into the variability; the rest is opened.
void PlanningWindow::takeFiles(const QStringList& paths) {
    QStringList races;
    QStringList others;
    for (const QString& path : paths) {
        const QString suffix = QFileInfo(path).suffix().toLower();
        if (suffix == "csv")
            m_body->importVariability(path);
        else
            (suffix == "kvx" || QFileInfo(path).isDir() ? races : others).append(path);
    }
    if (!races.isEmpty())
        m_ranking->takeFrom(races);
    if (!others.isEmpty())
        emit openRequested(others);
}

bool PlanningWindow::takePending() {
    m_plan->commit();
    return true;
}

} // namespace kavela::desktop
