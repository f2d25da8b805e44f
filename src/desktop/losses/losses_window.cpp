#include "desktop/losses/losses_window.h"

#include "desktop/compose/compare_request.h"
#include "desktop/film/clip_pair.h"
#include "desktop/losses/athlete_pages.h"
#include "desktop/losses/loss_charts_panel.h"
#include "desktop/losses/loss_header.h"
#include "desktop/losses/loss_tables.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/losses/losses_actions.h"
#include "desktop/losses/season_page.h"
#include "desktop/page/phone_pages.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_places.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {
constexpr const char* ScaleKey = "losses/blueOrange";
} // namespace

LossesWindow::LossesWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"losses", tr("Split files"), "kvx"}) {
    m_state.setScale(workspace.remembered(ScaleKey).isEmpty() ? ColourScale::GreenRed
                                                              : ColourScale::BlueOrange);
    makeParts();
    makeStatus();
    connectParts();
    new LossesActions(*this);
    showTitle();
}

LossesWindow::~LossesWindow() {
    // The parts report to the window while they are taken apart.
    m_facts.disconnect(this);
    m_state.disconnect(this);
    m_pages->disconnect(this);
}

void LossesWindow::makeParts() {
    m_header = new LossHeader(m_state);
    m_season = new SeasonPage(m_state);
    m_pages = new QTabWidget;
    m_pages->setDocumentMode(true);
    m_pages->tabBar()->setDrawBase(false); // white on dark
    m_pages->addTab(makeRunPage(), tr("Run"));
    m_pages->addTab(m_season, tr("Season"));
    m_clips = new ClipPair(workspace());
    m_clipSide = new QWidget;
    auto* const hide = new QPushButton(tr("Hide the films"));
    connect(hide, &QPushButton::clicked, this, &LossesWindow::hideClips);
    auto* const side = new QVBoxLayout(m_clipSide);
    side->addWidget(m_clips, 1);
    side->addWidget(hide, 0, Qt::AlignRight);
    m_clipSide->hide();
    m_films = new QSplitter;
    m_films->setChildrenCollapsible(false);
    m_films->addWidget(m_pages);
    m_films->addWidget(m_clipSide);
    m_films->setStretchFactor(0, 1);
    shareSizes(*m_films, {760, 520});
    rememberSizes(*m_films, workspace(), "losses/films");
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_header);
    column->addWidget(m_films, 1);
    setCentralWidget(page);
    m_tables->currentWidget()->setFocus(); // keys are no letters of a name, before it is asked for
}

QWidget* LossesWindow::makeRunPage() {
    m_charts = new LossChartsPanel(m_state);
    m_tables = new LossTables(m_state);
    auto* const work = new QSplitter(Qt::Vertical);
    work->setChildrenCollapsible(false);
    work->addWidget(m_charts);
    work->addWidget(m_tables);
    work->setStretchFactor(0, 1);
    shareSizes(*work, {370, 270});
    rememberSizes(*work, workspace(), "losses/charts");
    return work;
}

void LossesWindow::makeStatus() {
    m_progress = new QProgressBar;
    m_progress->setMaximumWidth(grown(*this, 180));
    m_stop = new QPushButton(tr("Stop reading"));
    m_status = new QLabel;
    m_status->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_stop);
    m_openPage = new QPushButton(tr("&Open it"));
    m_openPage->setObjectName("openPage");
    connect(m_openPage, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(m_writtenPage)); });
    statusBar()->addWidget(m_status, 1);
    statusBar()->addWidget(m_openPage);
    m_progress->hide();
    m_stop->hide();
    m_openPage->hide();
}

void LossesWindow::connectParts() {
    connect(&m_facts, &WatchedFacts::changed, this, &LossesWindow::takeFacts);
    connect(&m_facts, &WatchedFacts::readingChanged, this, &LossesWindow::showReading);
    connect(&m_facts, &WatchedFacts::progressed, this, [this](int read, int of) {
        m_progress->setRange(0, of);
        m_progress->setValue(read);
    });
    connect(m_stop, &QPushButton::clicked, &m_facts, &WatchedFacts::cancel);
    connect(&m_state, &LossState::changed, this, &LossesWindow::showTitle);
    connect(&m_state, &LossState::scaleChanged, this, [this] {
        const bool isBlue = m_state.scale() == ColourScale::BlueOrange;
        workspace().remember(ScaleKey, isBlue ? QStringList("on") : QStringList());
    });
    connect(m_charts, &LossChartsPanel::stretchActivated, this, &LossesWindow::playStretch);
    connect(m_tables, &LossTables::stretchActivated, this, &LossesWindow::playStretch);
    connect(m_season, &SeasonPage::clipActivated, this, [this](const LossClip& clip) {
        std::optional<FilmSpan> own;
        std::optional<FilmSpan> other;
        if (clip.first > 0)
            own = filmSpanOf(m_state.facts(), clip.run, clip.first, clip.last);
        if (clip.first > 0 && clip.referenceRun)
            other = filmSpanOf(m_state.facts(), *clip.referenceRun, clip.first, clip.last);
        play(own, other, runTitle(m_state.facts(), clip.run),
             clip.referenceRun ? runTitle(m_state.facts(), *clip.referenceRun) : QString());
    });
    connect(m_season, &SeasonPage::runActivated, this, [this](std::size_t run) {
        m_state.setRun(run);
        setSeasonShown(false);
    });
    m_athletePages = new AthletePages(m_state, workspace(), *this);
    m_phonePages = new PhonePages(workspace(), *this);
    connect(m_athletePages, &AthletePages::writing, this, [this](const QString& path) {
        tell(tr("Writing %1…").arg(QFileInfo(path).fileName()));
    });
    connect(m_athletePages, &AthletePages::written, this, &LossesWindow::offerToOpen);
    connect(m_athletePages, &AthletePages::failed, this,
            [this](const QString&, const QString& reason) {
                tell(tr("The page was not written."));
                tellNotSaved(reason);
            });
    connect(m_charts, &LossChartsPanel::savingFailed, this,
            [this](const QString&, const QString& reason) { tellNotSaved(reason); });
    connect(m_season, &SeasonPage::savingFailed, this,
            [this](const QString&, const QString& reason) { tellNotSaved(reason); });
}

void LossesWindow::tellNotSaved(const QString& reason) {
    workspace().log()("Failed to create file");
    workspace().showAlert({"Failed to create file", reason.toStdString()}, this);
}

void LossesWindow::setPaths(const QStringList& paths, std::optional<std::size_t> run) {
    m_wanted = run;
    m_isOther = true;
    m_view.clear();
    m_facts.setPaths(paths);
    for (const QString& path : paths)
        if (!QFileInfo(path).isDir())
            workspace().addRecentFile(path);
    showTitle();
    showReading();
    emit pathsChanged();
}

/// A line that says whether it is the season, then those of the state.
QString LossesWindow::shownView() const {
    if (!m_view.isEmpty())
        return m_view.join('\n'); // it is not read yet
    return (QStringList(isSeasonShown() ? "season" : "run") + m_state.kept()).join('\n');
}

void LossesWindow::showAgain(const QString& view) {
    m_view = view.split('\n');
    setSeasonShown(m_view.value(0) == "season");
}

bool LossesWindow::open(const QString& path) {
    setPaths({path});
    return true;
}

/// What is no race opens in a window of its own; the races that are shown stay then.
void LossesWindow::takeFiles(const QStringList& paths) {
    QStringList races;
    QStringList others;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        const bool isRace =
            file.isDir() || file.suffix().compare(QStringLiteral("kvx"), Qt::CaseInsensitive) == 0;
        (isRace ? races : others).append(path);
    }
    if (!races.isEmpty())
        setPaths(races);
    if (!others.isEmpty())
        emit openRequested(others);
}

void LossesWindow::takeFacts() {
    const QString run = m_state.hasRun() ? runTitle(m_state.facts(), m_state.run()) : QString();
    const auto& rival = m_state.losses().referenceRun;
    const bool isRival = m_state.reference().kind == LossReferenceKind::Run && rival;
    const QString other = isRival ? runTitle(m_state.facts(), *rival) : QString();
    m_state.setFacts(m_facts.facts());
    const auto files = m_state.facts().files();
    if (m_wanted && !files.empty()) {
        if (*m_wanted < files.front().runs.count)
            m_state.setRun(files.front().runs.first + *m_wanted);
        m_wanted.reset();
    }
    if (!m_view.isEmpty() && !m_facts.isReading()) {
        (void)m_state.goBackTo(m_view.mid(1)); // what is gone is not waited for
        m_view.clear();
        m_isOther = true; // gone back to, not taken from under the coach
    }
    showReading();
    showTitle();
    if (!m_isOther)
        tellGone(run, other);
    m_isOther = false;
}

/// Files change under the window: another run than before is shown, or another reference.
void LossesWindow::tellGone(const QString& run, const QString& rival) {
    const QString shown = m_state.hasRun() ? runTitle(m_state.facts(), m_state.run()) : QString();
    if (!run.isEmpty() && !shown.isEmpty() && shown != run)
        tell(tr("%1 is not in the files any more; another run is shown.").arg(run));
    else if (!rival.isEmpty() && m_state.reference().kind != LossReferenceKind::Run)
        tell(tr("%1 is not in the files any more; the winner is the reference now.").arg(rival));
}

void LossesWindow::showReading() {
    const bool isReading = m_facts.isReading();
    m_progress->setVisible(isReading);
    m_stop->setVisible(isReading);
    const auto& failed = m_facts.failed();
    if (isReading)
        tell(tr("Reading…"));
    else if (!failed.empty())
        tell(failed.size() == 1
                 ? tr("%1 cannot be read: %2")
                       .arg(QFileInfo(QString::fromStdString(failed.front().path.string()))
                                .fileName(),
                            QString::fromStdString(failed.front().reason))
                 : tr("%1 files cannot be read, the first of them %2: %3")
                       .arg(failed.size())
                       .arg(QFileInfo(QString::fromStdString(failed.front().path.string()))
                                .fileName(),
                            QString::fromStdString(failed.front().reason)));
    else if (m_facts.isIncomplete())
        tell(tr("Stopped: not all files were read."));
    else if (!paths().isEmpty() && m_state.facts().runs().empty())
        tell(tr("There is no run in what was opened."));
    else
        tell(QString());
}

void LossesWindow::showTitle() {
    const QStringList all = paths();
    QString name = tr("Time losses");
    if (all.size() == 1)
        name += QStringLiteral(" – ") + QFileInfo(all.front()).completeBaseName();
    else if (all.size() > 1)
        name +=
            QStringLiteral(" – ") +
            tr("%1 and %2 more").arg(QFileInfo(all.front()).completeBaseName()).arg(all.size() - 1);
    setWindowTitle(name + QStringLiteral(" – Kavela"));
}

void LossesWindow::chooseFiles() {
    const QStringList files =
        QFileDialog::getOpenFileNames(this, tr("Open races"), QFileInfo(paths().value(0)).path(),
                                      tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        setPaths(files);
}

void LossesWindow::chooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Open a folder of races"),
                                                             QFileInfo(paths().value(0)).path());
    if (!folder.isEmpty())
        setPaths({folder});
}

void LossesWindow::showSeasonOf(const QString& athlete) {
    m_season->setAthlete(athlete);
    setSeasonShown(true);
}

void LossesWindow::setSeasonShown(bool isShown) {
    m_pages->setCurrentIndex(isShown ? 1 : 0);
    m_pages->currentWidget()->setFocus();
}

bool LossesWindow::isSeasonShown() const {
    return m_pages->currentIndex() == 1;
}

QString LossesWindow::status() const {
    return m_status->text();
}

void LossesWindow::tell(const QString& text) {
    m_status->setText(text);
    m_openPage->hide(); // something else is told of now
}

void LossesWindow::offerToOpen(const QString& path) {
    tell(tr("%1 is written.").arg(QFileInfo(path).fileName()));
    m_writtenPage = path;
    m_openPage->show();
}

void LossesWindow::askForAthletePage() {
    m_athletePages->ask(m_season->query());
}

void LossesWindow::askForPhonePage() {
    PhonePageRequest request{phonePageCrews(m_state.facts()), m_season->query().crewKey, {}};
    request.shown.settings = PhonePages::settingsOf(workspace());
    request.shown.scale = m_state.scale();
    m_phonePages->ask(std::move(request));
}

void LossesWindow::playChosen() {
    if (const Stretch* const stretch = m_state.stretch())
        playStretch(static_cast<std::size_t>(stretch - m_state.losses().stretches.data()));
    else
        tell(tr("Choose a section first."));
}

void LossesWindow::playStretch(std::size_t place) {
    const auto& stretches = m_state.losses().stretches;
    if (place >= stretches.size())
        return;
    const Stretch& stretch = stretches[place];
    const FactStore& facts = m_state.facts();
    const auto own = filmSpanOf(facts, m_state.run(), stretch.first, stretch.last);
    const auto run = runToWatch(facts, m_state.rivals(), m_state.losses(), stretch);
    const auto other = run ? filmSpanOf(facts, *run, stretch.first, stretch.last) : std::nullopt;
    play(own, other, stretchTitle(stretch) + QStringLiteral("  ") + runTitle(facts, m_state.run()),
         run ? runTitle(facts, *run) : referenceTitle(m_state));
}

void LossesWindow::play(const std::optional<FilmSpan>& own, const std::optional<FilmSpan>& other,
                        const QString& where, const QString& otherCaption) {
    if (!own && !other) {
        tell(tr("No film shows this of either run: a film and both marks are needed."));
        return;
    }
    m_clipSide->show();
    m_clips->play(clipOf(own, where), clipOf(other, otherCaption));
    if (!own)
        tell(tr("No film shows the run here; that of the reference plays alone."));
    else if (!other)
        tell(otherCaption.isEmpty() ? tr("There is no run to watch beside it.")
                                    : tr("No film shows %1 here.").arg(otherCaption));
    else
        tell(QString());
}

/// A film that was moved is looked for where the coach found it once.
Clip LossesWindow::clipOf(const std::optional<FilmSpan>& span, const QString& caption) const {
    if (!span)
        return {QString(), 0, 0, caption};
    const FactStore& facts = m_state.facts();
    const RunRow& row = facts.runs()[span->run];
    const std::string_view film = facts.text(facts.filmsOf(row).front());
    return {placeOfFilm(workspace(), QString::fromStdString(facts.pathOf(row).string()),
                        QString::fromUtf8(film.data(), static_cast<qsizetype>(film.size()))),
            span->from, span->to, caption};
}

void LossesWindow::filmLoss() {
    const Stretch* const stretch = m_state.hasRun() ? m_state.stretch() : nullptr;
    const FactStore& facts = m_state.facts();
    const auto other =
        stretch ? runToWatch(facts, m_state.rivals(), m_state.losses(), *stretch) : std::nullopt;
    if (!stretch || !other) {
        tell(stretch ? tr("There is no run to film beside it.") : tr("Choose a section first."));
        return;
    }
    CompareRequest request;
    for (const std::size_t run : {m_state.run(), *other}) {
        if (!filmSpanOf(facts, run, stretch->first, stretch->last)) {
            tell(tr("No film shows %1 here.").arg(runTitle(facts, run)));
            return;
        }
        const RunRow& row = facts.runs()[run];
        request.runs.push_back({QString::fromStdString(facts.pathOf(row).string()), row.number});
    }
    request.splits = std::pair(stretch->first - 1, stretch->last);
    emit compareRequested(request);
}

void LossesWindow::hideClips() {
    m_clips->clear();
    m_clipSide->hide();
}

void LossesWindow::goToRun(int step) {
    const auto& group = m_state.group();
    const auto here = std::ranges::find(group, m_state.run(), &RunLosses::run);
    const std::ptrdiff_t next = here - group.begin() + step;
    if (next >= 0 && next < static_cast<std::ptrdiff_t>(group.size()))
        m_state.setRun(group[static_cast<std::size_t>(next)].run);
}

void LossesWindow::saveTable() {
    if (isSeasonShown())
        m_season->table().saveCsv();
    else if (auto* const table = qobject_cast<ColumnTable*>(m_tables->currentWidget()))
        table->saveCsv();
}

} // namespace kavela::desktop
