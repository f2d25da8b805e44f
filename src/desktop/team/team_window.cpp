#include "desktop/team/team_window.h"

#include "common/error.h"
#include "desktop/preview/report_preview.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/team/athlete_panel.h"
#include "desktop/team/athlete_season.h"
#include "desktop/team/charts/chart_tabs.h"
#include "desktop/team/results_view.h"
#include "desktop/team/summary_panel.h"
#include "desktop/team/team_actions.h"
#include "desktop/team/team_athlete_dialog.h"
#include "desktop/team/team_edits.h"
#include "desktop/why/why_popup.h"
#include "report/team_report.h"

#include <QApplication>
#include <QFileInfo>
#include <QSplitter>
#include <QTableView>

#include <algorithm>

namespace kavela::desktop {

TeamWindow::TeamWindow(Workspace& workspace, Autosave autosave)
    : TeamWindow(workspace, std::make_unique<TeamDocument>(workspace, std::move(autosave))) {}

TeamWindow::TeamWindow(Workspace& workspace, std::unique_ptr<TeamDocument> document)
    : ToolWindow(workspace, document.get(), {"team", tr("Team"), "kvteam"}),
      m_document(std::move(document)) {
    makeParts();
    connectParts();
    QMenu* const fileMenu = makeFileMenu();
    makeTeamMenus(*this, *fileMenu, *makeEditMenu());
    finishMenus([this] { return teamCommands(*this); });
}

TeamWindow::~TeamWindow() {
    hide(); // an open cell would else hand its text to what is gone already
    m_document->undoStack().disconnect(this);
    m_document->disconnect(this);
}

void TeamWindow::makeParts() {
    m_athletes = new AthletePanel(*m_document);
    m_results = new ResultsView(*m_document);
    m_summary = new SummaryPanel;
    m_charts = new ChartTabs;
    auto* middle = new QSplitter(Qt::Vertical);
    middle->addWidget(m_results);
    middle->addWidget(m_charts);
    middle->setStretchFactor(0, 3);
    middle->setStretchFactor(1, 2);
    shareSizes(*middle, {440, 250});
    rememberSizes(*middle, workspace(), "teamCharts");
    auto* whole = new QSplitter;
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->addWidget(m_athletes);
    whole->addWidget(middle);
    whole->addWidget(m_summary);
    whole->setStretchFactor(1, 1);
    shareSizes(*whole, {310, 756, 180});
    rememberSizes(*whole, workspace(), "teamParts");
    setCentralWidget(whole);
    // From the lists, too: the categorization is that of the athlete who is chosen there.
    answerWhy(whole, [this](const QPoint& at) {
        return at == QPoint(-1, -1) ? m_summary->why() : std::nullopt;
    });
}

void TeamWindow::connectParts() {
    connect(m_athletes, &AthletePanel::athleteChosen, this, &TeamWindow::showAthlete);
    connect(m_athletes, &AthletePanel::categoryChosen, this, &TeamWindow::showAthlete);
    connect(m_results, &ResultsView::placeChanged, this, &TeamWindow::showFigures);
    connect(m_charts, &ChartTabs::saveRequested, this, &TeamWindow::saveChart);
    connect(m_charts, &ChartTabs::savingFailed, this, &TeamWindow::tellChartNotSaved);
    connect(m_charts, &ChartTabs::raceClicked, this,
            [this](const SeasonPlace& race) { m_results->choose(race); });
}

FileReading TeamWindow::readingOf(const QString& path) {
    return followedBy(m_document->reading(path, this), [this] { m_athletes->table().setFocus(); });
}

void TeamWindow::startNew(const QString& path) {
    if (QFileInfo(path).isDir())
        m_document->createNew(path, this);
    else
        m_document->startNew(path, this);
    m_athletes->table().setFocus();
}

void TeamWindow::showAthlete() {
    m_results->showAthlete(m_athletes->athlete(), m_athletes->category());
}

void TeamWindow::showFigures() {
    const auto athlete = m_results->athlete();
    const myTeamStruct* const record = athlete && *athlete < m_document->athletes().size()
                                           ? &m_document->athletes()[*athlete]
                                           : nullptr;
    m_summary->show(record, m_results->category());
    showSeason();
    m_charts->setVisible(m_results->seasons().results() != nullptr);
    if (!m_document->path().isEmpty())
        m_charts->setFolder(QFileInfo(m_document->path()).path());
    m_charts->show(record ? QString::fromStdString(record->name) : QString(),
                   m_results->seasons().results(), m_results->place());
}

/// The figures are those of all athletes together, which takes a moment.
void TeamWindow::showSeason() {
    const auto athlete = m_results->athlete();
    const bool isKnown =
        athlete && *athlete < m_document->athletes().size() && m_results->seasons().results();
    const SeasonAsked asked =
        isKnown ? SeasonAsked{m_document->team(), m_document->athletes()[*athlete].name,
                              m_results->category()}
                : SeasonAsked();
    if (asked == m_asked)
        return; // only another race was chosen
    const bool isSameAthlete =
        asked.athlete == m_asked.athlete && asked.category == m_asked.category;
    m_asked = asked;
    if (!isSameAthlete)
        m_summary->showSeason({}); // nobody's figures stand under another name
    if (!isKnown)
        return;
    m_work.run([asked] { return athleteSeason(*asked.team, asked.athlete, asked.category); },
               [this, asked](const AthleteSeason& season) {
                   if (asked == m_asked)
                       m_summary->showSeason(season);
               },
               {.failed = [this](const std::exception_ptr& fault) {
                   workspace().log()(messageOf(fault));
                   m_summary->showSeason({});
               }});
}

void TeamWindow::tell(const std::string& text) {
    workspace().showAlert({"", text}, this);
}

void TeamWindow::addAthlete(myTeamStruct athlete) {
    m_document->edit(tr("new athlete"), [&](myTeamToSaveStruct& team) {
        team.realMyTeam.push_back(std::move(athlete));
    });
    m_athletes->choose(m_document->athletes().size() - 1);
}

void TeamWindow::requestLosses() {
    if (const auto athlete = m_athletes->athlete())
        emit lossesRequested(QString::fromStdString(document().athletes()[*athlete].name),
                             document().path());
}

/// The window of seasons reads the file.
void TeamWindow::requestSeason() {
    const auto athlete = m_athletes->athlete();
    if (!athlete)
        return;
    whenSaved([this, name = QString::fromStdString(document().athletes()[*athlete].name),
               category = QString::fromStdString(m_results->category())] {
        emit seasonRequested(name, category, document().path());
    });
}

void TeamWindow::askForAthlete() {
    TeamAthleteDialog dialog(
        [this](const QString& name) { return checkedName(*m_document, name, std::nullopt); },
        m_athletes->category(), this);
    if (dialog.exec() == QDialog::Accepted)
        addAthlete(dialog.athlete());
}

void TeamWindow::removeAthlete() {
    const auto athlete = m_athletes->athlete();
    if (!athlete)
        return;
    m_document->edit(tr("removal of an athlete"), [&](myTeamToSaveStruct& team) {
        team.realMyTeam.erase(team.realMyTeam.begin() + static_cast<std::ptrdiff_t>(*athlete));
    });
    if (const std::size_t left = m_document->athletes().size(); left > 0)
        m_athletes->choose(std::min(*athlete, left - 1));
}

void TeamWindow::addCategory(const std::string& category) {
    const auto athlete = m_athletes->athlete();
    if (!athlete)
        return;
    m_document->editAthlete(*athlete, tr("new category"),
                            [&](myTeamStruct& record) { (void)categoryIn(record, category); });
    m_results->showCategory(category);
}

void TeamWindow::removeCategory() {
    const auto athlete = m_results->athlete();
    if (!m_results->seasons().results())
        return;
    m_document->editAthlete(*athlete, tr("removal of a category"), [&](myTeamStruct& record) {
        std::erase_if(record.cats, [&](const mtCatsStruct& entry) {
            return entry.cat == m_results->category();
        });
    });
}

/// The next season after the latest, or the present one.
void TeamWindow::addSeason() {
    const mtCatsStruct* const results = m_results->seasons().results();
    if (!results) {
        tell(tr("Choose an athlete and a category first.").toStdString());
        return;
    }
    std::int64_t year = std::stoll(dayText(workspace().clock()()).substr(0, 4));
    for (const mtSeasonStruct& season : results->seasons)
        year = std::max(year, season.year + 1);
    m_results->addSeason(year);
}

void TeamWindow::addRace() {
    const mtCatsStruct* const results = m_results->seasons().results();
    if (!results || results->seasons.empty())
        tell(tr("Add a season first.").toStdString());
    else
        m_results->addRace();
}

void TeamWindow::removeCurrent() {
    if (m_athletes->table().hasFocus())
        removeAthlete();
    else
        m_results->removeCurrent();
}

void TeamWindow::editCurrent() {
    ColumnTable& athletes = m_athletes->table();
    if (athletes.hasFocus())
        athletes.edit(athletes.currentIndex());
    else
        m_results->editCurrent();
}

/// The category shown, or the one that the athletes are filtered by.
void TeamWindow::previewCategorization() {
    const std::string filtered = m_athletes->category();
    const std::string category = filtered.empty() ? m_results->category() : filtered;
    if (category.empty()) {
        tell(tr("Choose a category first.").toStdString());
        return;
    }
    auto athletes = categorizeTeam(m_document->value(), category);
    if (athletes.empty()) {
        tell(tr("No athlete comes into question in %1: two seasons are needed, with a final "
                "position in one of the first two.")
                 .arg(QString::fromStdString(category))
                 .toStdString());
        return;
    }
    const QString path =
        QFileInfo(m_document->path()).path() + '/' + report::CategorizationFileName;
    const auto make = [category, athletes] {
        return report::categorizationReport(category, athletes);
    };
    ReportPreview preview(
        {{tr("Categorization %1").arg(QString::fromStdString(category)), path, make}},
        {workspace().log(),
         [this](const Alert& alert, QWidget* over) { workspace().showAlert(alert, over); }},
        this);
    preview.exec();
}

void TeamWindow::saveChart() {
    m_charts->saveCurrent();
}

void TeamWindow::tellChartNotSaved(const QString& path, const QString& reason) {
    workspace().log()((path + ": " + reason).toStdString());
    workspace().showAlert({"Failed to create file", reason.toStdString()}, this);
}

} // namespace kavela::desktop
