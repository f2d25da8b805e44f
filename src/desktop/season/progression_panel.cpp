#include "desktop/season/progression_panel.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/series_chart.h"
#include "desktop/season/season_figures.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/why/why_popup.h"
#include "performance/season_reasons.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineF>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace kavela::desktop {

namespace {

enum ProgressionColumn {
    YearAt,
    RaceAt,
    LocationAt,
    PhaseAt,
    DateAt,
    PositionAt,
    TotalAt,
    WinnerTimeAt,
    WinnerAt,
    PercentBehindAt,
    SplitsBehindAt,
    FinalPositionAt
};

constexpr double NowhereAcross = std::numeric_limits<double>::quiet_NaN();

using RunColumn = Column<ProgressionRow, std::string>;

RunColumn runText(const QString& title, std::function<QString(const ProgressionRow&)> text) {
    return {.title = title, .show = [text = std::move(text)](const ProgressionRow& row) {
                return Cell{.text = text(row)};
            }};
}

/// 0 is not known.
RunColumn positionColumn(const QString& title,
                         std::function<std::int64_t(const ProgressionRow&)> position) {
    return {.title = title,
            .kind = ColumnKind::Number,
            .show = [position = std::move(position)](const ProgressionRow& row) {
                const std::int64_t place = position(row);
                return place > 0 ? Cell{.text = QString::number(place),
                                        .number = static_cast<double>(place)}
                                 : Cell{.text = QStringLiteral("–")};
            }};
}

RunColumn timeColumn(const QString& title, std::optional<double> PhaseResult::*time) {
    return {.title = title, .kind = ColumnKind::Number, .show = [time](const ProgressionRow& row) {
                const auto seconds = row.phase.*time;
                return seconds ? Cell{.text = shownHundredths(*seconds), .number = seconds}
                               : Cell{.text = QStringLiteral("–")};
            }};
}

QString raceLabel(const RaceResult& race) {
    return QStringLiteral("%1 %2").arg(qtText(race.event)).arg(race.year);
}

} // namespace

ProgressionPanel::ProgressionPanel(Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_rows(columns(), [](const ProgressionRow& row) { return row.key; }),
      m_of(new QComboBox),
      m_chart(new SeriesChart),
      m_table(new ColumnTable(m_rows, "progression")) {
    m_of->setObjectName("behind");
    m_of->addItems({tr("Behind the winners"), tr("Behind the fastest splits")});
    m_of->setAccessibleName(tr("Behind whom"));
    m_of->setToolTip(tr("The winners' totals have penalties in them, the fastest splits have not"));
    m_table->setEmptyText(tr("The team has no race of this athlete in these years."));
    m_table->stretch({LocationAt, WinnerAt});
    makeLayout(workspace);
    connectParts();
}

void ProgressionPanel::makeLayout(Workspace& workspace) {
    auto* const row = new QHBoxLayout;
    row->addWidget(m_of);
    row->addStretch();
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_chart);
    splitter->addWidget(m_table);
    shareSizes(*splitter, {360, 260});
    rememberSizes(*splitter, workspace, "season/progression");
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(splitter, 1);
}

void ProgressionPanel::connectParts() {
    connect(m_of, &QComboBox::currentIndexChanged, this, [this] {
        m_isChosen = true;
        showChart();
    });
    connect(m_table, &ColumnTable::chosen, this, &ProgressionPanel::markCurrent);
    connect(m_chart, &SeriesChart::pointActivated, this, [this](int series, int point) {
        if (series >= static_cast<int>(m_places.size()))
            return; // the line of the medals
        const auto& places = m_places[static_cast<std::size_t>(series)];
        m_table->choose(places.at(static_cast<std::size_t>(point)));
        m_table->setFocus();
    });
    m_table->addCommand(tr("Open the &winner's run"), Qt::Key_Return, [this] { openWinner(); })
        .setToolTip(tr("In split taking, where a split file has the run"));
    connect(m_table, &QTableView::doubleClicked, this, &ProgressionPanel::openWinner);
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
    answerWhy(&m_chart->plot(), [this](const QPoint& at) { return whyAt(at); });
}

RunColumn ProgressionPanel::percentColumn(const QString& title,
                                          std::optional<double> PhaseResult::*value) {
    return {.title = title, .kind = ColumnKind::Number, .show = [value](const ProgressionRow& row) {
                const auto percent = row.phase.*value;
                Cell cell{.text = shownFigure(percent, 1, false), .number = percent};
                if (row.phase.isMissed) {
                    cell.look = Cell::Look::Quiet;
                    cell.tip = tr("With a missed gate: left out of spread, trend and changes");
                }
                return cell;
            }};
}

std::vector<RunColumn> ProgressionPanel::columns() {
    return {
        {.title = tr("Year"),
         .kind = ColumnKind::Number,
         .show =
             [](const ProgressionRow& row) {
                 return Cell{.text = QString::number(row.race.year),
                             .number = static_cast<double>(row.race.year)};
             }},
        runText(tr("Race"), [](const ProgressionRow& row) { return qtText(row.race.event); }),
        runText(tr("Place"), [](const ProgressionRow& row) { return qtText(row.race.location); }),
        runText(tr("Phase"),
                [](const ProgressionRow& row) {
                    return qtText(std::string(phaseMark(row.phase.phase)) + ' ' + row.phase.phase);
                }),
        runText(tr("Day"),
                [](const ProgressionRow& row) {
                    return row.phase.date.seconds == 0 ? QStringLiteral("–")
                                                       : qtText(dayText(row.phase.date));
                }),
        positionColumn(tr("Rank"), [](const ProgressionRow& row) { return row.phase.pos; }),
        timeColumn(tr("Total"), &PhaseResult::total),
        timeColumn(tr("Winner's"), &PhaseResult::winner),
        runText(tr("Winner"),
                [](const ProgressionRow& row) {
                    return row.phase.winner ? qtText(row.phase.winnerName) : tr("not known");
                }),
        percentColumn(tr("Behind, %"), &PhaseResult::percent),
        percentColumn(tr("On splits, %"), &PhaseResult::behindSplits),
        positionColumn(tr("Result"), [](const ProgressionRow& row) { return row.race.finalPos; })};
}

void ProgressionPanel::show(const SharedSeason& season, std::size_t athlete) {
    const bool isOther =
        !m_season || m_season->memberOf(m_athlete).name != season->memberOf(athlete).name;
    m_season = season;
    m_athlete = athlete;
    const SeasonMember& member = season->memberOf(athlete);
    std::vector<ProgressionRow> rows;
    for (const RaceResult& race : member.races)
        for (const PhaseResult& phase : race.phases) {
            ProgressionRow row{race, phase, {}, {}, seasonPhaseId("run", member, race, phase)};
            row.race.phases.clear();
            if (phase.percent)
                row.percentId = seasonPhaseId("percent", member, race, phase);
            if (phase.behindSplits)
                row.splitsId = seasonPhaseId("behindsplits", member, race, phase);
            rows.push_back(std::move(row));
        }
    if (isOther && !m_isChosen) {
        const QSignalBlocker quiet(m_of);
        m_of->setCurrentIndex(usualProgression(season->season, athlete).of == TrendOf::Winner ? 0
                                                                                              : 1);
    }
    m_rows.show(std::move(rows), isOther);
    showChart();
}

void ProgressionPanel::choose(TrendOf of) {
    m_of->setCurrentIndex(of == TrendOf::Winner ? 0 : 1);
}

TrendOf ProgressionPanel::of() const {
    return m_of->currentIndex() == 0 ? TrendOf::Winner : TrendOf::Splits;
}

ProgressionPanel::Series ProgressionPanel::seriesOf(const std::string& phase) {
    const std::string_view mark = phaseMark(phase);
    return mark == "●" ? Heats : mark == "▲" ? Semifinals : mark == "■" ? FinalRuns : Others;
}

/// The series stand in the order of the charts' marks: circle, square, triangle.
void ProgressionPanel::showChart() {
    if (!m_season)
        return;
    const kavela::ProgressionChart chart = progressionChart(m_season->season, m_athlete, of());
    ChartContent content;
    content.across = ChartContent::Across::Category;
    content.title = tr("The way of %1").arg(qtText(m_season->memberOf(m_athlete).name));
    content.subtitle = shownNumbers(qtText(chart.sentence));
    content.yTitle =
        of() == TrendOf::Winner ? tr("Behind the winner, %") : tr("Behind the fastest splits, %");
    content.yFromZero = true;
    content.emptyText = content.subtitle;
    content.series = {
        {.name = tr("Heats"), .points = {}, .form = ChartSeries::Form::Points, .slot = Heats},
        {.name = tr("Final"), .points = {}, .slot = FinalRuns, .isStrong = true},
        {.name = tr("Semifinal"),
         .points = {},
         .form = ChartSeries::Form::Points,
         .slot = Semifinals},
        {.name = tr("Other runs"),
         .points = {},
         .form = ChartSeries::Form::Points,
         .slot = Others}};
    content.rowTitles = {tr("Year"),  tr("Race"),    tr("Place"),
                         tr("Phase"), tr("Percent"), tr("Missed gate")};
    addPoints(content, chart);
    leaveOutEmpty(content);
    if (chart.medalLine && content.categories.size() > 1)
        content.series.push_back(
            {.name = tr("3rd of finals, median"),
             .points = {{0, *chart.medalLine},
                        {static_cast<double>(content.categories.size() - 1), *chart.medalLine}},
             .form = ChartSeries::Form::Line,
             .slot = SeriesCount});
    m_chart->show(std::move(content));
    markCurrent();
}

/// A run with a missed gate is half a minute and more behind: it would press all others flat.
void ProgressionPanel::addPoints(ChartContent& content, const kavela::ProgressionChart& chart) {
    const std::vector<RaceResult>& races = m_season->memberOf(m_athlete).races;
    std::vector<std::size_t> firstRow; // of each race
    for (std::size_t race = 0, row = 0; race < races.size(); row += races[race++].phases.size())
        firstRow.push_back(row);
    std::map<std::size_t, double> across;
    m_places.assign(SeriesCount, {});
    m_across.assign(m_rows.rows().size(), NowhereAcross);
    int missed = 0;
    for (const ProgressionPoint& point : chart.points) {
        missed += point.isMissed ? 1 : 0;
        if (point.isMissed || !std::isfinite(point.percent))
            continue;
        const auto [at, isNew] =
            across.emplace(point.race, static_cast<double>(content.categories.size()));
        if (isNew)
            content.categories << raceLabel(races[point.race]);
        const std::size_t row = firstRow[point.race] + point.phase;
        const PhaseResult& phase = races[point.race].phases[point.phase];
        const auto series = static_cast<std::size_t>(seriesOf(phase.phase));
        content.series[series].points.emplace_back(at->second, point.percent);
        content.rows.push_back(
            {series,
             at->second,
             {QString::number(races[point.race].year), qtText(races[point.race].event),
              qtText(races[point.race].location), qtText(phase.phase), csvNumber(point.percent),
              QStringLiteral("0")}});
        m_places[series].push_back(static_cast<int>(row));
        m_across[row] = at->second;
    }
    if (missed > 0)
        content.subtitle += ' ' + (missed == 1 ? tr("A run with a missed gate stands in the table "
                                                    "alone.")
                                               : tr("%n runs with a missed gate stand in the "
                                                    "table alone.",
                                                    nullptr, static_cast<int>(missed)));
}

/// Labels are for what is drawn.
void ProgressionPanel::leaveOutEmpty(ChartContent& content) {
    std::vector<std::size_t> movedTo;
    std::size_t left = 0;
    for (std::size_t series = 0; series < m_places.size(); ++series) {
        movedTo.push_back(left);
        if (m_places[series].empty())
            continue;
        if (left != series) {
            content.series[left] = std::move(content.series[series]);
            m_places[left] = std::move(m_places[series]);
        }
        ++left;
    }
    content.series.resize(left);
    m_places.resize(left);
    for (ChartRow& row : content.rows)
        row.series = movedTo[row.series];
}

void ProgressionPanel::markCurrent() {
    const int place = m_table->currentPlace();
    const bool isKnown = place >= 0 && place < static_cast<int>(m_across.size());
    m_chart->showCursorAt(isKnown ? m_across[static_cast<std::size_t>(place)] : NowhereAcross);
}

std::optional<Reason> ProgressionPanel::whyOf(int place, int column) const {
    if (!m_season || place < 0)
        return {};
    const ProgressionRow& row = m_rows.row(place);
    if (column == TotalAt || column == WinnerTimeAt || column == PercentBehindAt)
        return m_season->why(row.percentId);
    return column == SplitsBehindAt ? m_season->why(row.splitsId) : std::nullopt;
}

/// The point under the mouse; by key, that of the row that is chosen.
std::optional<Reason> ProgressionPanel::whyAt(const QPoint& at) const {
    constexpr double Reach = 14;
    const int column = of() == TrendOf::Winner ? PercentBehindAt : SplitsBehindAt;
    if (at.x() < 0)
        return whyOf(m_table->currentPlace(), column);
    int nearest = -1;
    double least = Reach;
    for (std::size_t series = 0; series < m_places.size(); ++series)
        for (std::size_t i = 0; i < m_places[series].size(); ++i) {
            const QPointF point = m_chart->content().series[series].points[i];
            const double apart =
                QLineF(m_chart->plot().toPixel(point.x(), point.y()), QPointF(at)).length();
            if (apart < least) {
                least = apart;
                nearest = m_places[series][i];
            }
        }
    return whyOf(nearest, column);
}

void ProgressionPanel::openWinner() {
    const int place = m_table->currentPlace();
    if (!m_season || place < 0)
        return;
    if (const auto run = seasonPlace(*m_season->facts, m_rows.row(place).phase.winnerRun))
        emit placeRequested(*run);
}

} // namespace kavela::desktop
