#include "desktop/charts/totals_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_markers.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela::desktop {

namespace {

constexpr double TotalDotSize = 7;
constexpr double SelectedTotalDotSize = 10;
constexpr double ShortestName = 40;
constexpr double NameDistance = 14; ///< pixels to the right of the dot
constexpr double TotalDotReach = 9; ///< pixels from the cursor to a dot
constexpr double TotalsHeadroom = 0.06;
constexpr double LeastTotalsSpan = 1; ///< seconds

} // namespace

TotalsChart::TotalsChart(QWidget* parent) : Chart(parent) {
    canvas().yAxis->setRangeReversed(true);
    new PaintedLayer(canvas(), "legend", [this](QCPPainter& painter) { paintNames(painter); });
}

QString TotalsChart::emptyReason() const {
    if (race().size() == 0)
        return noRunsReason();
    if (!bestRun(race().set(), true))
        return tr("No run has a time for the whole course yet.");
    return {};
}

void TotalsChart::collectDots() {
    std::vector<std::size_t> all(race().size());
    std::iota(all.begin(), all.end(), 0U);
    m_ranking = ranking(race().set(), all);
    m_penalties.clear();
    m_dots.clear();
    for (const RankedRun& ranked : m_ranking)
        m_penalties.push_back(race().run(ranked.run).sectioninfo.totalpen);
    std::ranges::sort(m_penalties);
    m_penalties.erase(std::ranges::unique(m_penalties).begin(), m_penalties.end());
    for (const RankedRun& ranked : m_ranking) {
        const sectionmaindata& timing = race().run(ranked.run).sectioninfo;
        const auto column = std::ranges::lower_bound(m_penalties, timing.totalpen);
        m_dots.push_back(
            {ranked.run, static_cast<std::size_t>(column - m_penalties.begin()), timing.totaltime});
    }
    std::ranges::stable_partition(m_dots, [&](const Dot& dot) { return !isSelected(dot.run); });
}

void TotalsChart::fill() {
    collectDots();
    const std::size_t missing = race().size() - m_ranking.size();
    canvas().setCaptions(
        tr("Time and penalties of %1").arg(runsText(m_ranking.size())),
        tr("Seconds on the course, without penalties") +
            (missing > 0 ? tr(" · %1 without a total").arg(runsText(missing)) : QString()) +
            leftOutNote());
    const auto ticker = QSharedPointer<QCPAxisTickerText>::create();
    for (std::size_t i = 0; i < m_penalties.size(); ++i)
        ticker->addTick(static_cast<double>(i), QString::number(m_penalties[i]));
    canvas().xAxis->setTicker(ticker);
    canvas().xAxis->setLabel(tr("Penalty seconds"));
    canvas().yAxis->setLabel(tr("\u2190 slower      faster \u2192"));
    seriesLabels().setLabels({});
    addDots();
    setLimits();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

void TotalsChart::addDots() {
    QCPGraph* others = canvas().addGraph();
    others->setLineStyle(QCPGraph::lsNone);
    others->setScatterStyle(backgroundDot(palette(), TotalDotSize));
    const std::vector<SelectedRun> selected = selectedRuns();
    for (const Dot& dot : m_dots) {
        const auto x = static_cast<double>(dot.column);
        const auto found = std::ranges::find(selected, dot.run, &SelectedRun::run);
        if (found == selected.end()) {
            others->addData(x, dot.time);
            continue;
        }
        QCPGraph* graph = canvas().addGraph();
        graph->setName(race().label(dot.run));
        graph->setLineStyle(QCPGraph::lsNone);
        graph->setScatterStyle(markerOf(found->style, SelectedTotalDotSize));
        graph->addData(x, dot.time);
    }
}

void TotalsChart::setLimits() {
    const auto [fastest, slowest] = std::ranges::minmax(m_dots, {}, &Dot::time);
    const double span = std::max(slowest.time - fastest.time, LeastTotalsSpan);
    // Names stand to the right of their dots.
    canvas().setLimits(
        {-0.4, static_cast<double>(m_penalties.size()) - 0.1},
        {fastest.time - span * TotalsHeadroom, fastest.time + span * (1 + TotalsHeadroom)});
}

QPointF TotalsChart::placeOf(const Dot& dot) const {
    return canvas().toPixel(static_cast<double>(dot.column), dot.time);
}

const TotalsChart::Dot* TotalsChart::dotAt(const QPointF& position) const {
    const Dot* nearest = nullptr;
    double least = TotalDotReach;
    for (const Dot& dot : m_dots) {
        const double distance = QLineF(placeOf(dot), position).length();
        if (distance <= least) {
            least = distance;
            nearest = &dot;
        }
    }
    return nearest;
}

std::optional<QPointF> TotalsChart::dotOf(std::size_t run) const {
    const auto dot = std::ranges::find(m_dots, run, &Dot::run);
    return dot == m_dots.end() ? std::nullopt : std::optional(placeOf(*dot));
}

void TotalsChart::paintNames(QCPPainter& painter) const {
    if (QRectF(canvas().axisRect()->rect()).isEmpty())
        return;
    painter.setFont(theme::captionFont(canvas()));
    painter.setClipRect(canvas().axisRect()->rect().adjusted(0, 0, theme::LargeSpacing, 0));
    for (std::size_t column = 0; column < m_penalties.size(); ++column)
        paintNamesOf(painter, column);
}

void TotalsChart::paintNamesOf(QCPPainter& painter, std::size_t column) const {
    std::vector<const Dot*> dots;
    for (const Dot& dot : m_dots)
        if (dot.column == column && isSelected(dot.run))
            dots.push_back(&dot);
    std::ranges::stable_sort(dots, {}, &Dot::time);
    std::vector<double> heights;
    for (const Dot* dot : dots)
        heights.push_back(placeOf(*dot).y());

    const QFontMetrics metrics(painter.font());
    const QRectF plot = canvas().axisRect()->rect();
    const double line = metrics.height();
    heights = spreadLabels(std::move(heights), line, plot.top(), plot.bottom());
    const double pitch = plot.width() / canvas().xAxis->range().size();
    const int width =
        static_cast<int>(std::max(pitch - NameDistance - SelectedTotalDotSize, ShortestName));
    for (std::size_t i = 0; i < dots.size(); ++i) {
        const QPointF dot = placeOf(*dots[i]);
        if (!plot.contains(dot))
            continue;
        const QRectF place(dot.x() + NameDistance, heights[i] - line / 2, width, line);
        if (std::abs(heights[i] - dot.y()) > line / 3) {
            painter.setPen(QPen(colourOf(dots[i]->run), 1));
            painter.drawLine(dot, QPointF(place.left() - 2, heights[i]));
        }
        painter.setPen(QPen(palette().color(QPalette::WindowText)));
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(race().name(dots[i]->run), Qt::ElideRight, width));
    }
}

QString TotalsChart::readOutOf(std::size_t run) const {
    const auto ranked = std::ranges::find(m_ranking, run, &RankedRun::run);
    const sectionmaindata& timing = race().run(run).sectioninfo;
    return readOutText(
        race().label(run),
        {readOutRow({tr("Time"), shownHundredths(timing.totaltime)}),
         readOutRow({tr("Penalties"), QString::number(timing.totalpen)}),
         readOutRow({tr("Result"), shownHundredths(ranked->total)}),
         readOutRow({tr("Place"), tr("%1 of %2").arg(ranked->rank).arg(m_ranking.size())})});
}

void TotalsChart::hoverAt(const QPointF& position) {
    if (const Dot* dot = dotAt(position))
        readOut().showAt(position, readOutOf(dot->run));
    else
        leaveCursor();
}

/// From the first of the ranking to the last.
std::vector<QPointF> TotalsChart::stops() const {
    std::vector<QPointF> stops;
    for (const RankedRun& ranked : m_ranking) {
        const auto dot = std::ranges::find(m_dots, ranked.run, &Dot::run);
        stops.emplace_back(static_cast<double>(dot->column), dot->time);
    }
    return stops;
}

void TotalsChart::clickAt(const QPointF& position) {
    if (const Dot* dot = dotAt(position))
        emit runActivated(dot->run);
}

QString TotalsChart::csvText() const {
    QString text = csvLine(
        {tr("Place"), tr("Run"), tr("Time"), tr("Penalties"), tr("Result"), tr("Selected")});
    for (const RankedRun& ranked : m_ranking) {
        const auto dot = std::ranges::find(m_dots, ranked.run, &Dot::run);
        if (!canvas().xAxis->range().contains(static_cast<double>(dot->column)) ||
            !canvas().yAxis->range().contains(dot->time))
            continue;
        const sectionmaindata& timing = race().run(ranked.run).sectioninfo;
        text += csvLine({QString::number(ranked.rank), race().label(ranked.run),
                         csvNumber(timing.totaltime), QString::number(timing.totalpen),
                         csvNumber(ranked.total), isSelected(ranked.run) ? "1" : "0"});
    }
    return text;
}

} // namespace kavela::desktop
