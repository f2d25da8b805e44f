#include "desktop/season/season_window.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/series_chart.h"
#include "desktop/season/comparison_panel.h"
#include "desktop/season/figures_panel.h"
#include "desktop/season/progression_panel.h"
#include "desktop/season/season_actions.h"
#include "desktop/season/season_header.h"
#include "desktop/season/season_reports.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* SeasonPathsKey = "season/paths";
constexpr std::size_t MostSeasonFaultsTold = 20;

bool isTeamFile(const QString& path) {
    return QFileInfo(path).suffix().compare(QStringLiteral("kvteam"), Qt::CaseInsensitive) == 0;
}

bool isRaceOrFolder(const QString& path) {
    const QFileInfo file(path);
    return file.isDir() || file.suffix().compare(QStringLiteral("kvx"), Qt::CaseInsensitive) == 0;
}

constexpr std::array SeasonPairsShown{RacePair::Heats, RacePair::SemifinalToFinal,
                                      RacePair::HeatsToFinal};
constexpr std::array SeasonRatesShown{RaceRate::Medals, RaceRate::Finals, RaceRate::Semifinals};

} // namespace

SeasonWindow::SeasonWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"season", tr("Season"), "kvteam"}) {
    makeParts();
    m_reports = new SeasonReports(workspace, *this);
    m_actions = new SeasonActions(*this);
    connectParts();
    showTitle();
    showStatus();
}

SeasonWindow::~SeasonWindow() {
    m_team.disconnect(this);
    m_facts.disconnect(this);
    m_header->disconnect(this);
    m_tabs->disconnect(this);
    for (FiguresPanel* const panel : m_figures)
        panel->disconnect(this);
}

void SeasonWindow::makeParts() {
    m_pages = new QStackedWidget;
    m_pages->addWidget(makeEmptyPage());
    m_pages->addWidget(makeContent());
    setCentralWidget(m_pages);
    makeStatus();
}

QWidget* SeasonWindow::makeEmptyPage() {
    auto* const page = new QWidget;
    auto* const title = new QLabel(tr("Drop a team (.kvteam) and the folder of its races here"));
    title->setFont(theme::titleFont(*this));
    m_emptyText = new QLabel;
    m_emptyText->setObjectName("emptyText");
    m_emptyText->setWordWrap(true);
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_emptyText->setForegroundRole(QPalette::PlaceholderText);
    auto* const team = new QPushButton(tr("Open a team…"));
    auto* const folder = new QPushButton(tr("Add a folder of races…"));
    connect(team, &QPushButton::clicked, this, &SeasonWindow::chooseTeam);
    connect(folder, &QPushButton::clicked, this, &SeasonWindow::chooseFolder);
    auto* const column = new QVBoxLayout(page);
    column->setSpacing(theme::LargeSpacing);
    column->addStretch();
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addWidget(m_emptyText); // over the whole width: beside others its lines would be cut
    for (QPushButton* const button : {team, folder})
        column->addWidget(button, 0, Qt::AlignHCenter);
    column->addStretch();
    return page;
}

QWidget* SeasonWindow::makeContent() {
    m_header = new SeasonHeader;
    m_tabs = new QTabWidget;
    m_tabs->setDocumentMode(true);
    m_progression = new ProgressionPanel(workspace());
    m_tabs->addTab(m_progression, tr("Progression"));
    addFigures(Pairs, "pairs", tr("Phases"), tr("From which phase to which"),
               {tr("Run 1 to run 2 of the heats"), tr("Semifinal to final"),
                tr("Heats to final, percent behind")});
    addFigures(Spread, "spread", tr("Spread"), {}, {});
    addFigures(Trend, "trend", tr("Trend"), tr("Behind whom"),
               {tr("Behind the winners"), tr("Behind the fastest splits")});
    addFigures(Heads, "heads", tr("Head to head"), {}, {});
    addFigures(Rates, "rates", tr("Medals and finals"), tr("How far"),
               {tr("Medals"), tr("Finals"), tr("Semifinals")});
    addFigures(Places, "places", tr("Expected places"), {}, {});
    addFigures(Benchmarks, "benchmarks", tr("What it takes"), {}, {});
    m_compared = new ComparisonPanel(workspace());
    m_tabs->addTab(m_compared, tr("Athletes"));
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_header);
    column->addWidget(m_tabs, 1);
    return page;
}

void SeasonWindow::addFigures(Page page, const char* name, const QString& title,
                              const QString& label, const QStringList& choices) {
    auto* const panel = new FiguresPanel(workspace(), name);
    m_figures[static_cast<std::size_t>(page - FirstOfFigures)] = panel;
    panel->offer(label, choices);
    m_tabs->addTab(panel, title);
    connect(panel, &FiguresPanel::choiceChanged, this, [this, page] { showFigures(page); });
}

void SeasonWindow::makeStatus() {
    m_progress = new QProgressBar;
    m_progress->setMaximumWidth(180);
    m_progress->setRange(0, 0);
    m_progress->hide();
    m_status = new QLabel;
    m_status->setObjectName("status");
    m_failed = new QPushButton(tr("Which ones?"));
    m_failed->setObjectName("failed");
    m_failed->hide();
    for (QWidget* const part : {static_cast<QWidget*>(m_progress), static_cast<QWidget*>(m_status),
                                static_cast<QWidget*>(m_failed)})
        statusBar()->addWidget(part);
}

void SeasonWindow::connectParts() {
    connect(&m_team, &WatchedTeam::changed, this, &SeasonWindow::takeTeam);
    connect(&m_facts, &WatchedFacts::changed, this, &SeasonWindow::compute);
    connect(&m_facts, &WatchedFacts::readingChanged, this, &SeasonWindow::showStatus);
    connect(&m_facts, &WatchedFacts::progressed, this, [this](int read, int of) {
        m_progress->setRange(0, of);
        m_progress->setValue(read);
    });
    connect(m_failed, &QPushButton::clicked, this, &SeasonWindow::showFailed);
    connect(m_header, &SeasonHeader::changed, this, &SeasonWindow::compute);
    connect(m_header, &SeasonHeader::athleteChanged, this, &SeasonWindow::showPages);
    connect(m_header, &SeasonHeader::racesRequested, this, &SeasonWindow::chooseFolder);
    connect(m_progression, &ProgressionPanel::placeRequested, this, &SeasonWindow::placeRequested);
    std::vector<ChartFrame*> charts{&m_progression->chart(), &m_compared->chart()};
    for (FiguresPanel* const panel : m_figures)
        charts.push_back(&panel->chart());
    for (ChartFrame* const chart : charts) {
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
    return QStringList{QString::number(page()), qtText(choice.category),
                       QString::number(choice.firstYear), QString::number(choice.lastYear),
                       m_header->athleteName()}
        .join('\n');
}

void SeasonWindow::showAgain(const QString& view) {
    m_view = view.split('\n');
    if (m_view.size() < 5)
        m_view.clear();
    else
        m_tabs->setCurrentIndex(std::clamp(m_view[0].toInt(), 0, PageCount - 1));
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
    QStringList phases;
    for (const std::string& phase : benchmarkPhases(season->season))
        phases << qtText(phase);
    std::ranges::stable_partition(phases, [](const QString& phase) { return phase == "Final"; });
    figures(Benchmarks).offer(tr("Phase"), phases);
    showPages();
    showStatus();
}

void SeasonWindow::showPages() {
    const auto athlete = m_header->athlete();
    if (!m_season || !athlete || *athlete >= m_season->season.athletes.size())
        return;
    m_progression->show(m_season, *athlete);
    for (int page = FirstOfFigures; page <= Benchmarks; ++page)
        showFigures(static_cast<Page>(page));
    m_compared->show(m_season);
    m_actions->refresh();
}

void SeasonWindow::showFigures(Page page) {
    const auto athlete = m_header->athlete();
    if (!m_season || !athlete || *athlete >= m_season->season.athletes.size())
        return;
    FiguresPanel& panel = figures(page);
    const auto choice = static_cast<std::size_t>(std::max(panel.choice(), 0));
    const ShownSeason& season = *m_season;
    switch (page) {
    case Pairs:
        return panel.show(m_season, pairFigures(season, SeasonPairsShown.at(choice)));
    case Spread:
        return panel.show(m_season, spreadFigures(season));
    case Trend:
        return panel.show(m_season,
                          trendFigures(season, choice == 0 ? TrendOf::Winner : TrendOf::Splits));
    case Heads:
        return panel.show(m_season, headFigures(season, *athlete));
    case Rates:
        return panel.show(m_season, rateFigures(season, SeasonRatesShown.at(choice)));
    case Places:
        return panel.show(m_season, placeFigures(season));
    case Benchmarks:
        return panel.show(m_season,
                          benchmarkFigures(season,
                                           panel.choice() < 0 ? std::string("Final")
                                                              : panel.choiceText().toStdString(),
                                           *athlete));
    case Progression:
    case Compared:
        break;
    }
}

FiguresPanel& SeasonWindow::figures(Page page) const {
    return *m_figures.at(static_cast<std::size_t>(page - FirstOfFigures));
}

void SeasonWindow::showPage(Page page) {
    m_tabs->setCurrentIndex(page);
    table().setFocus();
}

SeasonWindow::Page SeasonWindow::page() const {
    return static_cast<Page>(m_tabs->currentIndex());
}

ChartFrame& SeasonWindow::chart() const {
    if (page() == Progression)
        return m_progression->chart();
    if (page() == Compared)
        return m_compared->chart();
    return figures(page()).chart();
}

ColumnTable& SeasonWindow::table() const {
    if (page() == Progression)
        return m_progression->table();
    return page() == Compared ? m_compared->table() : figures(page()).table();
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
        athlete = m_compared->current();
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

bool SeasonWindow::isBusy() const {
    return m_team.isReading() || m_facts.isReading() || m_isComputing;
}

QString SeasonWindow::status() const {
    return m_status->text();
}

void SeasonWindow::showStatus() {
    const std::size_t files = m_facts.facts()->files().size();
    const std::size_t failed = m_facts.failed().size();
    m_progress->setVisible(m_facts.isReading());
    m_failed->setVisible(failed > 0);
    m_pages->setCurrentIndex(m_season && !m_season->season.athletes.empty() ? 1 : 0);
    if (!m_team.fault().isEmpty())
        m_emptyText->setText(tr("%1 could not be read: %2").arg(m_team.path(), m_team.fault()));
    else if (m_team.path().isEmpty())
        m_emptyText->setText(tr("How every athlete of a team stands over the seasons: behind the "
                                "winners, against rivals, and against chance. Files are only "
                                "read."));
    else if (isBusy())
        m_emptyText->setText(tr("Reading…"));
    else
        m_emptyText->setText(tr("Nobody of this team races in any category yet."));
    m_header->tellRaces(files == 0 ? tr("No split files: winners and rivals are the team's own")
                        : files == 1
                            ? tr("Races from 1 split file")
                            : tr("Races from %n split files", nullptr, static_cast<int>(files)),
                        files == 0 && !m_facts.isReading());
    QStringList parts;
    if (m_season) {
        const std::vector<std::string>& twins = m_season->season.data.twins;
        parts << (m_season->season.spread.runs == 1
                      ? tr("1 run compared")
                      : tr("%n runs compared", nullptr,
                           static_cast<int>(m_season->season.spread.runs)));
        for (const std::string& twin : twins)
            parts << tr("several athletes are called %1: their runs cannot be told apart")
                         .arg(qtText(twin));
        if (!m_season->unknown.empty())
            parts << tr("nobody in these races is called %1").arg(joined(m_season->unknown));
        if (const std::size_t left = m_season->season.places.leftOut.size(); left > 0)
            parts << tr("too few runs to expect a place of %1 of the field").arg(left);
    }
    if (m_season && !m_team.fault().isEmpty())
        parts << tr("the team could not be read again: %1").arg(m_team.fault());
    if (m_facts.isIncomplete())
        parts << tr("reading was cancelled: not all files are here");
    if (failed > 0)
        parts << (failed == 1
                      ? tr("1 file could not be read")
                      : tr("%n files could not be read", nullptr, static_cast<int>(failed)));
    tell(parts.join(QStringLiteral(" · ")));
    m_actions->refresh();
}

void SeasonWindow::showFailed() {
    std::string text;
    const std::vector<ScanFault>& failed = m_facts.failed();
    for (std::size_t i = 0; i < std::min(failed.size(), MostSeasonFaultsTold); ++i)
        text += failed[i].path.string() + ": " + failed[i].reason + '\n';
    if (failed.size() > MostSeasonFaultsTold)
        text += tr("and %1 more").arg(failed.size() - MostSeasonFaultsTold).toStdString();
    workspace().showAlert({tr("These files could not be read").toStdString(), text}, this);
}

void SeasonWindow::showTitle() {
    const QString team = QFileInfo(m_team.path()).completeBaseName();
    setWindowTitle((team.isEmpty() ? QString() : team + QStringLiteral(" – ")) + tr("Season") +
                   QStringLiteral(" – Kavela"));
}

void SeasonWindow::tell(const QString& text) {
    m_status->setText(text);
}

void SeasonWindow::tellNotSaved(const QString& reason) {
    workspace().log()("Failed to create file");
    workspace().showAlert({"Failed to create file", reason.toStdString()}, this);
}

} // namespace kavela::desktop
