#include "desktop/season/season_window.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/series_chart.h"
#include "desktop/facts/facts_status.h"
#include "desktop/page/phone_pages.h"
#include "desktop/season/comparison_panel.h"
#include "desktop/season/figures_panel.h"
#include "desktop/season/progression_panel.h"
#include "desktop/season/season_actions.h"
#include "desktop/season/season_header.h"
#include "desktop/season/season_notes.h"
#include "desktop/season/season_pages.h"
#include "desktop/season/season_reports.h"
#include "desktop/shell/empty_page.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "splitdata/athlete_keys.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* SeasonPathsKey = "season/paths";

bool isTeamFile(const QString& path) {
    return QFileInfo(path).suffix().compare(QStringLiteral("kvteam"), Qt::CaseInsensitive) == 0;
}

bool isRaceOrFolder(const QString& path) {
    const QFileInfo file(path);
    return file.isDir() || file.suffix().compare(QStringLiteral("kvx"), Qt::CaseInsensitive) == 0;
}

} // namespace

SeasonWindow::SeasonWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"season", tr("Season"), "kvteam"}) {
    makeParts();
    m_reports = new SeasonReports(workspace, *this);
    m_phonePages = new PhonePages(workspace, *this);
    m_actions = new SeasonActions(*this);
    connectParts();
    showTitle();
    showStatus();
}

SeasonWindow::~SeasonWindow() {
    m_team.disconnect(this);
    m_facts.disconnect(this);
    m_header->disconnect(this);
    m_figures->disconnect(this);
}

void SeasonWindow::makeParts() {
    m_pages = new QStackedWidget;
    m_empty = new EmptyPage(tr("Drop a team (.kvteam) and the folder of its races here"), {},
                            {{tr("Open a team…"), [this] { chooseTeam(); }},
                             {tr("Add a folder of races…"), [this] { chooseFolder(); }}});
    m_pages->addWidget(m_empty);
    m_pages->addWidget(makeContent());
    setCentralWidget(m_pages);
    m_status = new FactsStatus(m_facts);
    statusBar()->addWidget(m_status);
}

QWidget* SeasonWindow::makeContent() {
    m_header = new SeasonHeader;
    m_figures = new SeasonPages(workspace());
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_header);
    column->addWidget(m_figures, 1);
    return page;
}

void SeasonWindow::connectParts() {
    connect(&m_team, &WatchedTeam::changed, this, &SeasonWindow::takeTeam);
    connect(&m_facts, &WatchedFacts::changed, this, &SeasonWindow::compute);
    connect(&m_facts, &WatchedFacts::readingChanged, this, &SeasonWindow::showStatus);
    connect(m_header, &SeasonHeader::changed, this, &SeasonWindow::compute);
    connect(m_header, &SeasonHeader::athleteChanged, this, &SeasonWindow::showPages);
    connect(m_header, &SeasonHeader::racesRequested, this, &SeasonWindow::chooseFolder);
    connect(&progression(), &ProgressionPanel::placeRequested, this, &SeasonWindow::placeRequested);
    for (ChartFrame* const chart : m_figures->charts()) {
        connect(&chart->interaction(), &PlotInteraction::saved, this, [this](const QString& path) {
            tell(tr("Saved %1").arg(QFileInfo(path).fileName()));
        });
        connect(&chart->interaction(), &PlotInteraction::savingFailed, this,
                [this](const QString&, const QString& reason) { tellNotSaved(reason); });
    }
    connect(m_reports, &SeasonReports::writing, this, [this](const QString& path) {
        tell(tr("Writing %1…").arg(QFileInfo(path).fileName()));
    });
    connect(m_reports, &SeasonReports::written, this,
            [this](const QString& path) { tell(tr("Saved %1").arg(QFileInfo(path).fileName())); });
    connect(m_reports, &SeasonReports::failed, this,
            [this](const QString&, const QString& reason) { tellNotSaved(reason); });
}

void SeasonWindow::setPaths(const QStringList& paths) {
    QStringList races;
    QString team;
    for (const QString& path : paths)
        if (isTeamFile(path))
            team = path;
        else
            races.append(path);
    if (team != m_team.path()) {
        m_season.reset(); // a season of another team says nothing of this one
        m_field.clear();
        m_team.setPath(team);
    }
    if (races != m_facts.paths())
        m_facts.setPaths(races);
    if (!team.isEmpty())
        workspace().remember(SeasonPathsKey, this->paths());
    if (QFileInfo::exists(team))
        workspace().addRecentFile(team);
    showTitle();
    showStatus();
    emit pathsChanged();
}

bool SeasonWindow::open(const QString& path) {
    takeFiles({path});
    return true;
}

QStringList SeasonWindow::paths() const {
    return m_team.path().isEmpty() ? m_facts.paths() : QStringList(m_team.path()) + m_facts.paths();
}

void SeasonWindow::takeFiles(const QStringList& paths) {
    QString team = m_team.path();
    QStringList races = m_facts.paths();
    QStringList others;
    for (const QString& path : paths)
        if (isTeamFile(path))
            team = path;
        else
            (isRaceOrFolder(path) ? races : others).append(path);
    races.removeDuplicates();
    if (team != m_team.path() || races != m_facts.paths())
        setPaths(team.isEmpty() ? races : QStringList(team) + races);
    if (!others.isEmpty())
        emit openRequested(others);
}

QString SeasonWindow::shownView() const {
    if (!m_view.isEmpty())
        return m_view.join('\n'); // the team is not read yet
    const SeasonChoice choice = m_header->choice();
    return QStringList{QString::number(page()),           qtText(choice.category),
                       QString::number(choice.firstYear), QString::number(choice.lastYear),
                       m_header->athleteName(),           m_header->isOwnStarts() ? "own" : "all"}
        .join('\n');
}

void SeasonWindow::showAgain(const QString& view) {
    m_view = view.split('\n');
    if (m_view.size() < 5)
        m_view.clear();
    else
        m_figures->setCurrentIndex(std::clamp(m_view[0].toInt(), 0, PageCount - 1));
}

void SeasonWindow::openRemembered() {
    QStringList paths = workspace().remembered(SeasonPathsKey);
    paths.removeIf([](const QString& path) { return !QFileInfo::exists(path); });
    if (std::ranges::any_of(paths, isTeamFile))
        setPaths(paths);
}

QStringList SeasonWindow::rememberedRaces(const Workspace& workspace, const QString& teamFile) {
    QStringList paths = workspace.remembered(SeasonPathsKey);
    const bool isIt = std::ranges::any_of(
        paths, [&](const QString& path) { return isTeamFile(path) && isSameFile(path, teamFile); });
    paths.removeIf(
        [](const QString& path) { return isTeamFile(path) || !QFileInfo::exists(path); });
    return isIt ? paths : QStringList();
}

void SeasonWindow::showAthlete(const QString& name, const QString& category) {
    m_wanted = {name, category};
    m_view.clear();
    if (m_team.team())
        takeTeam();
}

void SeasonWindow::chooseTeam() {
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open a team"), QFileInfo(m_team.path()).path(),
                                     tr("Teams (*.kvteam);;All files (*)"));
    if (!path.isEmpty())
        takeFiles({path});
}

void SeasonWindow::chooseRaces() {
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Add split files"), QFileInfo(paths().value(0)).path(),
        tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        takeFiles(files);
}

void SeasonWindow::chooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Add a folder of races"),
                                                             QFileInfo(paths().value(0)).path());
    if (!folder.isEmpty())
        takeFiles({folder});
}

void SeasonWindow::readAgain() {
    m_team.readAgain();
    m_facts.readAgain();
}

/// What was asked for before the team was read is chosen now.
void SeasonWindow::takeTeam() {
    if (m_team.team()) {
        const QSignalBlocker quiet(m_header);
        m_header->offer(m_team.team());
        if (m_view.size() >= 5) {
            m_header->choose({.category = m_view[1].toStdString(),
                              .firstYear = m_view[2].toLongLong(),
                              .lastYear = m_view[3].toLongLong()});
            m_header->chooseAthlete(m_view[4]);
            m_header->setOwnStarts(m_view.value(5) == "own");
        }
        if (m_wanted) {
            SeasonChoice choice = m_header->choice();
            choice.category = m_wanted->second.toStdString();
            m_header->choose(choice);
            m_header->chooseAthlete(m_wanted->first);
        }
        m_view.clear();
        m_wanted.reset();
    }
    compute();
}

/// Only the latest question is answered.
void SeasonWindow::compute() {
    const int asked = ++m_asked;
    m_isComputing = m_team.team() != nullptr;
    showStatus();
    if (!m_isComputing)
        return;
    m_work.run([team = m_team.team(), facts = m_facts.facts(),
                question = SeasonQuestion{m_header->choice(),
                                          m_field}] { return shownSeason(*team, facts, question); },
               [this, asked](const SharedSeason& season) {
                   if (asked == m_asked)
                       take(season);
               },
               {.failed = [this, asked](const std::exception_ptr& fault) {
                   if (asked != m_asked)
                       return;
                   m_isComputing = false;
                   tell(qtText(messageOf(fault)));
               }});
}

void SeasonWindow::take(const SharedSeason& season) {
    m_isComputing = false;
    m_season = season;
    QStringList names;
    for (std::size_t i = 0; i < season->season.athletes.size(); ++i)
        names << qtText(season->memberOf(i).name);
    m_header->offerAthletes(names);
    m_figures->take(season);
    showPages();
    showStatus();
    // Whose races they are to be was not known before the athletes were.
    if (m_header->isOwnStarts() && !(m_header->choice() == season->question.choice))
        compute();
}

void SeasonWindow::showPages() {
    m_figures->show(m_header->athlete());
    m_actions->refresh();
}

void SeasonWindow::showPage(Page page) {
    m_figures->showPage(page);
}

SeasonWindow::Page SeasonWindow::page() const {
    return m_figures->page();
}

ChartFrame& SeasonWindow::chart() const {
    return m_figures->chart();
}

ColumnTable& SeasonWindow::table() const {
    return m_figures->table();
}

ProgressionPanel& SeasonWindow::progression() const {
    return m_figures->progression();
}

FiguresPanel& SeasonWindow::figures(Page page) const {
    return m_figures->figures(page);
}

ComparisonPanel& SeasonWindow::compared() const {
    return m_figures->compared();
}

void SeasonWindow::saveChart() {
    if (ChartFrame& front = chart(); front.emptyMessage().isEmpty())
        front.interaction().askAndSave();
}

void SeasonWindow::saveTable() {
    table().saveCsv();
}

void SeasonWindow::showChosenAthlete() {
    std::optional<std::size_t> athlete;
    if (page() == Compared)
        athlete = compared().current();
    else if (page() != Progression)
        if (const FigureLine* const line = figures(page()).current())
            athlete = line->athlete;
    if (!athlete)
        return;
    m_header->chooseAthlete(*athlete);
    showPage(Progression);
}

void SeasonWindow::askForField() {
    QStringList names;
    for (const std::string& name : m_field)
        names << qtText(name);
    bool isTaken = false;
    const QString text = QInputDialog::getMultiLineText(
        this, tr("Whose places to expect"),
        tr("A name a line, as a start list has them. Nothing for the team and those who raced "
           "most often."),
        names.join('\n'), &isTaken);
    if (isTaken)
        setField(text.split('\n'));
}

void SeasonWindow::setField(const QStringList& names) {
    m_field.clear();
    for (const QString& name : names)
        if (!name.trimmed().isEmpty())
            m_field.push_back(name.trimmed().toStdString());
    compute();
}

void SeasonWindow::saveReport(std::optional<std::size_t> athlete) {
    if (m_season && !m_season->season.athletes.empty())
        m_reports->askAndWrite(m_season, athlete, m_team.path());
}

void SeasonWindow::previewReports() {
    if (m_season && !m_season->season.athletes.empty())
        m_reports->preview(m_season, m_header->athlete(), m_team.path());
}

void SeasonWindow::askForPhonePage() {
    if (!m_season)
        return;
    PhonePageRequest request{phonePageCrews(*m_season->facts), {}, {}};
    if (const auto athlete = m_header->athlete())
        request.shownCrew = crewKey(m_season->memberOf(*athlete).name);
    request.shown.settings = PhonePages::settingsOf(this->workspace());
    m_phonePages->ask(std::move(request));
}

bool SeasonWindow::isBusy() const {
    return m_team.isReading() || m_facts.isReading() || m_isComputing;
}

QString SeasonWindow::status() const {
    return m_status->text();
}

void SeasonWindow::showStatus() {
    const std::size_t files = m_facts.facts()->files().size();
    m_pages->setCurrentIndex(m_season && !m_season->season.athletes.empty() ? 1 : 0);
    if (!m_team.fault().isEmpty())
        m_empty->tell(tr("%1 could not be read: %2").arg(m_team.path(), m_team.fault()));
    else if (m_team.path().isEmpty())
        m_empty->tell(tr("How every athlete of a team stands over the seasons: behind the winners, "
                         "against rivals, and against chance. Files are only read."));
    else if (isBusy())
        m_empty->tell(tr("Reading…"));
    else
        m_empty->tell(tr("Nobody of this team races in any category yet."));
    m_header->tellRaces(comparedFilesText(files), files == 0 && !m_facts.isReading());
    QStringList parts = m_season ? seasonNotes(*m_season) : QStringList();
    if (m_season && !m_team.fault().isEmpty())
        parts << tr("the team could not be read again: %1").arg(m_team.fault());
    m_status->show(parts);
    m_actions->refresh();
}

void SeasonWindow::showFailed() {
    m_status->showFailed();
}

void SeasonWindow::showTitle() {
    const QString team = QFileInfo(m_team.path()).completeBaseName();
    setWindowTitle((team.isEmpty() ? QString() : team + QStringLiteral(" – ")) + tr("Season") +
                   QStringLiteral(" – Kavela"));
}

void SeasonWindow::tell(const QString& text) {
    m_status->tell(text);
}

void SeasonWindow::tellNotSaved(const QString& reason) {
    workspace().log()("Failed to create file");
    workspace().showAlert({"Failed to create file", reason.toStdString()}, this);
}

} // namespace kavela::desktop
