#include "desktop/planning/ranking/ranking_panel.h"

#include "desktop/planning/ranking/races_section.h"
#include "desktop/planning/ranking/ranking_section.h"
#include "desktop/planning/ranking/split_statistics.h"
#include "desktop/planning/ranking/statistics_dialog.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QMimeData>
#include <QScrollArea>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int RankingHeight = 200; ///< at least
constexpr int RacesHeight = 400;

bool isTaken(const QString& path) {
    const QFileInfo file(path);
    return file.isDir() || file.suffix().compare("kvx", Qt::CaseInsensitive) == 0;
}

bool isTaken(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return !urls.empty() && std::ranges::all_of(urls, [](const QUrl& url) {
        return url.isLocalFile() && isTaken(url.toLocalFile());
    });
}

} // namespace

RankingPanel::RankingPanel(PlanningDocument& document, Workspace& workspace, QWidget* parent)
    : SeasonPanel(document, parent),
      m_workspace(workspace),
      m_ranking(new RankingSection),
      m_races(new RacesSection) {
    setAcceptDrops(true);
    m_ranking->setMinimumHeight(grown(*this, RankingHeight));
    m_races->setMinimumHeight(grown(*this, RacesHeight));
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::LargeSpacing);
    column->addWidget(m_ranking, 2);
    column->addWidget(m_races, 4);
    auto* const scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(content);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
    connectParts();
}

void RankingPanel::connectParts() {
    connect(m_ranking, &RankingSection::entered, this,
            [this](std::size_t row, const RankingEntry& entry) {
                edit(tr("entry of the ranking list"), [&](yearsplannings_v6& changed) {
                    setRankingEntry(changed.icfdata, row, entry);
                });
            });
    connect(m_ranking, &RankingSection::removed, this, [this](std::size_t row) {
        edit(tr("removal from the ranking list"),
             [row](yearsplannings_v6& changed) { removeRankingEntry(changed.icfdata, row); });
    });
    connect(m_races, &RacesSection::filesAsked, this, &RankingPanel::askForFiles);
    connect(m_races, &RacesSection::folderAsked, this, &RankingPanel::askForFolder);
}

void RankingPanel::refresh() {
    const yearsplannings_v6* const shown = season();
    m_ranking->show(shown ? &shown->icfdata : nullptr);
    m_races->show(shown ? &shown->statisticsdata : nullptr);
}

void RankingPanel::askForFiles() {
    takeFrom(QFileDialog::getOpenFileNames(this, tr("Take the season's statistics"),
                                           QFileInfo(document().path()).path(),
                                           tr("Split files (*.kvx);;All files (*)")));
}

void RankingPanel::askForFolder() {
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Take the season's statistics"), QFileInfo(document().path()).path());
    if (!folder.isEmpty())
        takeFrom({folder});
}

void RankingPanel::takeFrom(const QStringList& paths) {
    if (!season() || paths.isEmpty())
        return;
    const QStringList files = splitFilesIn(paths);
    if (files.isEmpty()) {
        emit refused(tr("There is no split file in it."));
        return;
    }
    m_reading.runOver(
        {this, tr("Reading split files…"), true},
        [files, athlete = athlete()->name, year = season()->year, clock = m_workspace.clock()](
            const WorkSteps& steps) { return readStatistics(files, athlete, year, clock, steps); },
        [this, place = place()](const ReadStatistics& read) {
            for (const std::string& line : read.log)
                m_workspace.log()(line);
            if (season() && place == this->place())
                takeStatistics(read.statistics);
        },
        {.failed = [this](const std::exception_ptr& fault) {
            emit refused(QString::fromStdString(messageOf(fault)));
        }});
}

void RankingPanel::takeStatistics(const SplitStatistics& found) {
    const auto place = this->place();
    statisticsplanning_v3 statistics = found.statistics();
    StatisticsDialog dialog(season()->statisticsdata, statistics, found.fileCount(),
                            found.leftOut(), this);
    if (dialog.exec() != QDialog::Accepted || place != this->place())
        return;
    edit(tr("season statistics from split files"),
         [&](yearsplannings_v6& changed) { changed.statisticsdata = std::move(statistics); });
}

void RankingPanel::dragEnterEvent(QDragEnterEvent* event) {
    if (season() && isTaken(*event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore(); // for the window, which opens plannings
}

void RankingPanel::dropEvent(QDropEvent* event) {
    takeFrom(droppedFiles(*event));
}

} // namespace kavela::desktop
