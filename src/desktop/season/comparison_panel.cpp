#include "desktop/season/comparison_panel.h"

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
#include <QLabel>
#include <QLineF>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <string>
#include <utility>

namespace kavela::desktop {

namespace {

enum ComparedColumn {
    ComparedNameAt,
    ComparedRacesAt,
    ComparedBehindAt,
    ComparedRunsAt,
    ComparedSpreadAt,
    ComparedTrendAt,
    ComparedVerdictAt,
    ComparedMedalsAt,
    ComparedFinalsAt
};

using AthleteColumn = Column<ComparedAthlete, std::size_t>;

AthleteColumn comparedNumber(const QString& title, const QString& tip,
                             std::function<Cell(const ComparedAthlete&)> show) {
    return {.title = title, .tip = tip, .kind = ColumnKind::Number, .show = std::move(show)};
}

Cell percentCellOf(const std::optional<double>& percent, bool isSigned) {
    return {.text = shownFigure(percent, 1, isSigned), .number = percent};
}

Cell countCellOf(std::size_t count) {
    return {.text = QString::number(count), .number = static_cast<double>(count)};
}

Cell rateCellOf(const std::optional<RateOf>& rate) {
    if (!rate)
        return {.text = QStringLiteral("–")};
    return {.text = ComparisonPanel::tr("%1 of %2 (%3–%4 %)")
                        .arg(rate->count)
                        .arg(rate->of)
                        .arg(shownNumber(100 * rate->interval.low, 0),
                             shownNumber(100 * rate->interval.high, 0)),
            .sortValue = rate->rate};
}

} // namespace

ComparisonPanel::ComparisonPanel(Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_rows(columns(), [](const ComparedAthlete& row) { return row.athlete; }),
      m_phase(new QComboBox),
      m_chart(new SeriesChart),
      m_table(new ColumnTable(m_rows, "compared")) {
    m_phase->setObjectName("comparedPhase");
    m_phase->addItems({QStringLiteral("Final"), QStringLiteral("Semifinal"),
                       QStringLiteral("Heats 1"), QStringLiteral("Heats 2")});
    auto* const label = new QLabel(tr("Behind the winners in the &phase"));
    label->setBuddy(m_phase);
    m_table->setEmptyText(tr("Nobody of the team races in this category."));
    m_table->stretch({ComparedNameAt});
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_phase);
    row->addStretch();
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_chart);
    splitter->addWidget(m_table);
    shareSizes(*splitter, {340, 280});
    rememberSizes(*splitter, workspace, "season/compared");
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(splitter, 1);
    connectParts();
}

void ComparisonPanel::connectParts() {
    connect(m_phase, &QComboBox::currentIndexChanged, this, &ComparisonPanel::refresh);
    connect(m_table, &ColumnTable::chosen, this, [this] { showChart(m_compared); });
    connect(m_chart, &SeriesChart::pointActivated, this, [this](int series, int) {
        m_table->choose(m_rows.placeOfKey(m_drawn.at(static_cast<std::size_t>(series))));
        m_table->setFocus();
    });
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
    answerWhy(&m_chart->plot(), [this](const QPoint& at) { return whyAt(at); });
}

std::vector<AthleteColumn> ComparisonPanel::columns() {
    return {
        {.title = tr("Athlete"),
         .show =
             [](const ComparedAthlete& row) {
                 const QString name = qtText(row.name);
                 return Cell{.text = name, .tip = name};
             }},
        comparedNumber(tr("Races"), {},
                       [](const ComparedAthlete& row) { return countCellOf(row.races); }),
        comparedNumber(
            tr("Behind, %"), tr("Median behind the winners of the phase, without missed gates"),
            [](const ComparedAthlete& row) { return percentCellOf(row.behind.percent, false); }),
        comparedNumber(tr("of runs"), {},
                       [](const ComparedAthlete& row) { return countCellOf(row.behind.runs); }),
        comparedNumber(
            tr("Within, %"), tr("How much the runs vary by chance"),
            [](const ComparedAthlete& row) { return percentCellOf(row.figures.spread, false); }),
        comparedNumber(tr("A year, %"), tr("Trend behind the winners, over all phases"),
                       [](const ComparedAthlete& row) {
                           return percentCellOf(row.figures.trend.perYear, true);
                       }),
        {.title = tr("Trend"),
         .show =
             [](const ComparedAthlete& row) {
                 const SeasonTrend& trend = row.figures.trend;
                 if (!trend.perYear)
                     return Cell{.text = tr("too few"), .look = Cell::Look::Quiet};
                 return Cell{.text = qtText(verdictText(trend.verdict)),
                             .tip = shownRange(trend.interval, 1, true),
                             .look = trend.verdict == TrendVerdict::Unclear ? Cell::Look::Plain
                                                                            : Cell::Look::Bold};
             }},
        comparedNumber(tr("Medals"), {},
                       [](const ComparedAthlete& row) { return rateCellOf(row.figures.medals); }),
        comparedNumber(tr("Finals"), {},
                       [](const ComparedAthlete& row) { return rateCellOf(row.figures.finals); })};
}

void ComparisonPanel::show(const SharedSeason& season) {
    m_season = season;
    refresh();
}

void ComparisonPanel::choosePhase(const QString& phase) {
    m_phase->setCurrentText(phase);
}

void ComparisonPanel::refresh() {
    if (!m_season)
        return;
    const Season& season = m_season->season;
    m_compared = comparisonChart(season, m_phase->currentText().toStdString());
    std::vector<ComparedAthlete> rows;
    for (std::size_t i = 0; i < season.athletes.size(); ++i) {
        const SeasonMember& member = m_season->memberOf(i);
        rows.push_back({i, member.name, member.races.size(), m_compared.lines[i],
                        seasonFigures(season.data, season.spread, member), m_compared.phase});
    }
    m_rows.show(std::move(rows));
    showChart(m_compared);
}

void ComparisonPanel::showChart(const ComparisonChart& compared) {
    ChartContent content;
    content.title = tr("The athletes year by year: %1").arg(qtText(compared.phase));
    content.subtitle = shownNumbers(qtText(compared.sentence));
    content.xTitle = tr("Year");
    content.yTitle = tr("Median behind the winner, %");
    content.yFromZero = true;
    content.emptyText = content.subtitle;
    content.across = ChartContent::Across::Category;
    m_drawn.clear();
    std::vector<std::int64_t> years;
    for (const ComparisonChart::Line& line : compared.lines)
        for (const YearMedian& year : line.years)
            if (!std::ranges::binary_search(years, year.year))
                years.insert(std::ranges::upper_bound(years, year.year), year.year);
    for (const std::int64_t year : years)
        content.categories << QString::number(year);
    const auto chosen = current();
    for (std::size_t i = 0; i < compared.lines.size(); ++i) {
        const ComparisonChart::Line& line = compared.lines[i];
        if (line.years.empty())
            continue;
        ChartSeries series{
            .name = qtText(line.name), .points = {}, .slot = i, .isStrong = chosen == i};
        for (const YearMedian& year : line.years)
            series.points.emplace_back(
                static_cast<double>(std::ranges::lower_bound(years, year.year) - years.begin()),
                year.percent);
        content.series.push_back(std::move(series));
        m_drawn.push_back(i);
    }
    m_chart->show(std::move(content));
}

std::optional<std::size_t> ComparisonPanel::current() const {
    const int place = m_table->currentPlace();
    return place >= 0 && place < static_cast<int>(m_rows.rows().size())
               ? std::optional(m_rows.row(place).athlete)
               : std::nullopt;
}

std::optional<Reason> ComparisonPanel::whyOf(int place, int column) const {
    if (!m_season || place < 0)
        return {};
    const ComparedAthlete& row = m_rows.row(place);
    switch (column) {
    case ComparedBehindAt:
    case ComparedRunsAt:
        return m_season->why(medianId(row.name, row.phase));
    case ComparedSpreadAt:
        return row.figures.spread ? m_season->why(seasonId("shrunk", row.name)) : std::nullopt;
    case ComparedTrendAt:
    case ComparedVerdictAt:
        return m_season->why(seasonId("trend", row.name));
    case ComparedMedalsAt:
        return m_season->why(seasonId("medal", row.name));
    case ComparedFinalsAt:
        return m_season->why(seasonId("final", row.name));
    default:
        return {};
    }
}

/// The year under the mouse; by key, the median of the row that is chosen.
std::optional<Reason> ComparisonPanel::whyAt(const QPoint& at) const {
    constexpr double Reach = 14;
    if (!m_season || at.x() < 0)
        return whyOf(m_table->currentPlace(), ComparedBehindAt);
    std::string id;
    double least = Reach;
    for (std::size_t series = 0; series < m_drawn.size(); ++series) {
        const ComparisonChart::Line& line = m_compared.lines[m_drawn[series]];
        for (std::size_t i = 0; i < line.years.size(); ++i) {
            const QPointF point = m_chart->content().series[series].points[i];
            const double apart =
                QLineF(m_chart->plot().toPixel(point.x(), point.y()), QPointF(at)).length();
            if (apart < least) {
                least = apart;
                id = medianId(line.name, m_compared.phase) + '/' +
                     std::to_string(line.years[i].year);
            }
        }
    }
    return m_season->why(id);
}

} // namespace kavela::desktop
