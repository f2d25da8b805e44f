#include "desktop/charts/gap_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_markers.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double LeastGapSpan = 0.5; ///< seconds: a race decided by less is no mountain range
constexpr double GapHeadroom = 0.06; ///< of the span
constexpr double Margin = 0.06;      ///< of a section: room for the markers at both ends
constexpr double GapLineWidth = 2.2;
constexpr double MarkerSize = 6;

QString gapText(double seconds) {
    const QString text = shownHundredths(std::abs(seconds));
    if (text == shownHundredths(0))
        return text;
    return (seconds > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) + text;
}

} // namespace

GapChart::GapChart(QWidget* parent) : Chart(parent), m_sections(showSections(canvas())) {
    canvas().yAxis->setRangeReversed(true);
    canvas().yAxis->setTicker(QSharedPointer<GapTicker>::create());
    new PaintedLayer(canvas(), "overlay", [this](QCPPainter& painter) { paintCursor(painter); });
}

QString GapChart::emptyReason() const {
    if (race().size() == 0)
        return noRunsReason();
    if (selectedRuns().empty())
        return tr("Select runs in the table to see where time is won and lost.");
    const std::vector<double> times =
        referenceTimes(race().set(), reference(), penaltiesIncluded());
    if (times.empty())
        return tr("No run covers the whole course. Choose the median or a run as the reference.");
    if (times.front() == 0)
        return tr("The reference has no time in the first section. Choose another one.");
    return {};
}

QString GapChart::title() const {
    switch (reference().kind) {
    case CourseReferenceKind::BestRun:
        return tr("Gap to the best run: %1")
            .arg(race().label(bestRun(race().set(), penaltiesIncluded()).value_or(0)));
    case CourseReferenceKind::Median:
        return tr("Gap to the median of each section");
    case CourseReferenceKind::Ideal:
        return tr("Gap to the ideal run: the best of each section");
    case CourseReferenceKind::Run:
        return tr("Gap to %1").arg(race().label(reference().run));
    case CourseReferenceKind::Times:
        return tr("Gap to %1").arg(QString::fromStdString(reference().name).simplified());
    }
    return {};
}

void GapChart::fill() {
    const RaceSet& set = race().set();
    const std::vector<double> against = referenceTimes(set, reference(), penaltiesIncluded());
    m_lines.clear();
    for (const SelectedRun& selected : selectedRuns()) {
        const auto times = comparedTimes(set, race().run(selected.run), penaltiesIncluded());
        m_lines.push_back({selected, courseGaps(times, against)});
    }
    canvas().setCaptions(title(),
                         (penaltiesIncluded() ? tr("Accumulated seconds, penalties included")
                                              : tr("Accumulated seconds, without penalties")) +
                             leftOutNote());
    canvas().xAxis->grid()->setPen(Qt::NoPen);
    canvas().yAxis->grid()->setZeroLinePen(QPen(palette().color(QPalette::WindowText), 2));
    canvas().yAxis->setLabel(tr("\u2190 slower      faster \u2192"));
    QStringList titles;
    for (std::size_t i = 0; i < timedSections(set); ++i)
        titles << race().sectionTitle(i);
    m_sections->setTitles(titles);
    for (const Line* line : shownLines())
        addLine(*line);
    showLabels();
    setLimits();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

std::vector<const GapChart::Line*> GapChart::shownLines() const {
    std::vector<const Line*> shown;
    for (const Line& line : m_lines)
        if (isShown(seriesId(line.selected.run)))
            shown.push_back(&line);
    return shown;
}

void GapChart::addLine(const Line& line) {
    const SeriesStyle& style = line.selected.style;
    QCPGraph* graph = canvas().addGraph();
    graph->setName(race().label(line.selected.run));
    graph->setPen(QPen(style.colour, GapLineWidth, style.line, Qt::RoundCap, Qt::RoundJoin));
    graph->setScatterStyle(markerOf(style, MarkerSize));
    graph->addData(0, 0);
    for (std::size_t i = 0; i < line.gaps.size(); ++i)
        graph->addData(static_cast<double>(i + 1), line.gaps[i].accumulated);
}

void GapChart::showLabels() {
    std::vector<SeriesLabel> labels;
    for (const Line& line : m_lines) {
        SeriesLabel label = labelOf(line.selected);
        const double last = line.gaps.empty() ? 0 : line.gaps.back().accumulated;
        label.value = line.gaps.empty() ? tr("not timed") : gapText(last);
        label.end = QPointF(static_cast<double>(line.gaps.size()), last);
        labels.push_back(label);
    }
    seriesLabels().setLabels(std::move(labels));
}

void GapChart::setLimits() {
    double fastest = 0;
    double slowest = 0;
    for (const Line* line : shownLines())
        for (const SectionGap& gap : line->gaps) {
            fastest = std::min(fastest, gap.accumulated);
            slowest = std::max(slowest, gap.accumulated);
        }
    const double span = std::max(slowest - fastest, LeastGapSpan);
    const double sections = static_cast<double>(timedSections(race().set()));
    canvas().setLimits({-Margin, sections + Margin},
                       {fastest - span * GapHeadroom, fastest + span * (1 + GapHeadroom)});
}

QString GapChart::readOutOf(std::size_t split) const {
    std::vector<const Line*> lines = shownLines();
    std::erase_if(lines, [&](const Line* line) { return line->gaps.size() < split; });
    std::ranges::stable_sort(lines, {},
                             [&](const Line* line) { return line->gaps[split - 1].accumulated; });
    const QString section = race().sectionTitle(split - 1);
    QStringList rows{readOutRow({QString(), QString(), tr("Gap"), tr("in %1").arg(section)})};
    for (const Line* line : lines) {
        const SectionGap& gap = line->gaps[split - 1];
        rows << readOutRow(
            {race().label(line->selected.run), gapText(gap.accumulated), gapText(gap.difference)},
            line->selected.style.colour);
    }
    return readOutText(tr("After %1").arg(section), rows);
}

void GapChart::showCursor(std::size_t split, const QPointF& at) {
    m_cursor = split;
    readOut().showAt(at, readOutOf(split));
    canvas().layer("overlay")->replot();
}

void GapChart::hoverAt(const QPointF& position) {
    const QRectF plot = canvas().axisRect()->rect();
    const auto sections = static_cast<double>(timedSections(race().set()));
    if (!plot.contains(position) || sections < 1) {
        leaveCursor();
        return;
    }
    const double split = std::round(canvas().xAxis->pixelToCoord(position.x()));
    showCursor(static_cast<std::size_t>(std::clamp(split, 1.0, sections)), position);
}

void GapChart::moveCursor(int steps) {
    const auto sections = static_cast<int>(timedSections(race().set()));
    if (sections == 0)
        return;
    const int split = std::clamp(static_cast<int>(m_cursor) + steps, 1, sections);
    canvas().bringIntoView(split);
    const QPointF place = canvas().toPixel(split, canvas().yAxis->range().lower);
    showCursor(static_cast<std::size_t>(split), place);
}

std::optional<QPointF> GapChart::cursorPlace() const {
    const QPointF place(canvas().xAxis->coordToPixel(static_cast<double>(m_cursor)),
                        plotArea().center().y());
    return m_cursor > 0 && plotArea().contains(place) ? std::optional(place) : std::nullopt;
}

void GapChart::leaveCursor() {
    Chart::leaveCursor();
    if (m_cursor == 0)
        return;
    m_cursor = 0;
    canvas().layer("overlay")->replot();
}

void GapChart::paintCursor(QCPPainter& painter) const {
    if (m_cursor == 0)
        return;
    const QRectF plot = canvas().axisRect()->rect();
    const double x = canvas().xAxis->coordToPixel(static_cast<double>(m_cursor));
    if (x < plot.left() || x > plot.right())
        return;
    painter.setPen(QPen(theme::quietText(palette()), 1));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
}

void GapChart::clickAt(const QPointF& position) {
    const auto* graph = canvas().plottableAt<QCPGraph>(position);
    if (graph == nullptr)
        return;
    const std::vector<const Line*> shown = shownLines();
    for (int i = 0; i < canvas().graphCount(); ++i)
        if (canvas().graph(i) == graph)
            emit runActivated(shown[static_cast<std::size_t>(i)]->selected.run);
}

QString GapChart::csvText() const {
    const std::vector<const Line*> lines = shownLines();
    QStringList header{tr("Section"), tr("Title")};
    for (const Line* line : lines) {
        const QString name = race().label(line->selected.run);
        header << tr("%1: gap").arg(name) << tr("%1: in the section").arg(name);
    }
    QString text = csvLine(header);
    const QCPRange shown = canvas().xAxis->range();
    for (std::size_t i = 0; i < timedSections(race().set()); ++i) {
        if (static_cast<double>(i) >= shown.upper || static_cast<double>(i + 1) <= shown.lower)
            continue;
        QStringList fields{QString::number(i + 1), race().sectionTitle(i)};
        for (const Line* line : lines) {
            const bool isKnown = i < line->gaps.size();
            fields << (isKnown ? csvNumber(line->gaps[i].accumulated) : QString())
                   << (isKnown ? csvNumber(line->gaps[i].difference) : QString());
        }
        text += csvLine(fields);
    }
    return text;
}

} // namespace kavela::desktop
