#include "desktop/charts/gate_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_markers.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double BarWidth = 0.64; ///< of a gate
constexpr double MarkSize = 9;
constexpr double MarkDistance = 13; ///< pixels from one mark to the next above it
constexpr std::int64_t MissedSeconds = 50;

/// The tick labels are painted by hand, for their colours; the axis only keeps their room.
int numberRoom(const QFont& font) {
    return 2 * QFontMetrics(font).height() + theme::Spacing;
}

/// How many gates share one number, so that the numbers stay apart.
std::size_t numberStep(double pixelsOfGate, const QFont& font) {
    const double width = QFontMetrics(font).horizontalAdvance("00") + theme::SmallSpacing;
    for (std::size_t decade = 1; decade < 1'000'000; decade *= 10)
        for (const std::size_t step : {decade, 2 * decade, 5 * decade})
            if (pixelsOfGate * static_cast<double>(step) >= width)
                return step;
    return 1'000'000;
}

} // namespace

GateChart::GateChart(QWidget* parent) : Chart(parent) {
    const auto ticker = QSharedPointer<QCPAxisTickerFixed>::create();
    ticker->setTickStep(1);
    ticker->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
    canvas().yAxis->setTicker(ticker);
    canvas().xAxis->setTickLabels(false);
    canvas().xAxis->grid()->setVisible(false);
    new PaintedLayer(canvas(), "axes", [this](QCPPainter& painter) { paintGateNumbers(painter); });
    new PaintedLayer(canvas(), "legend", [this](QCPPainter& painter) { paintMarks(painter); });
}

QString GateChart::emptyReason() const {
    if (race().size() == 0)
        return noRunsReason();
    if (coursePenalties(race().set()).countedRuns == 0)
        return tr("No run has its penalties by gate. Enter them for each gate to see where they "
                  "happen.");
    return {};
}

void GateChart::fill() {
    m_course = coursePenalties(race().set());
    canvas().setCaptions(
        tr("Penalties by gate"),
        tr("Runs with a penalty at the gate, of %1").arg(runsText(m_course.countedRuns)) +
            tr(" · \u2191 upstream gate") + leftOutNote());
    canvas().xAxis->setLabel(tr("Gate"));
    canvas().xAxis->setLabelPadding(numberRoom(canvas().xAxis->tickLabelFont()));
    canvas().yAxis->setLabel(tr("Runs"));
    addBars();
    collectMarks();
    showLabels();
    setLimits();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

void GateChart::addBars() {
    QCPBars* below = nullptr;
    const auto add = [&](int series, const QColor& colour, auto count) {
        if (!isShown(series))
            return;
        auto* bars = new QCPBars(canvas().xAxis, canvas().yAxis);
        bars->setWidth(BarWidth);
        bars->setPen(Qt::NoPen);
        bars->setBrush(colour);
        for (const GatePenalties& gate : m_course.gates)
            bars->addData(static_cast<double>(gate.gate), static_cast<double>(count(gate)));
        if (below != nullptr)
            bars->moveAbove(below);
        below = bars;
    };
    add(TouchSeries, touchColour(palette()),
        [](const GatePenalties& gate) { return gate.touches; });
    add(MissedSeries, missedColour(palette()),
        [](const GatePenalties& gate) { return gate.missed; });
}

void GateChart::collectMarks() {
    m_marks.clear();
    std::vector<int> levels(m_course.gates.size());
    for (const SelectedRun& selected : selectedRuns()) {
        const auto& penalties = race().run(selected.run).gatePenalties;
        if (penalties.size() != levels.size() || !isShown(seriesId(selected.run)))
            continue;
        for (std::size_t i = 0; i < penalties.size(); ++i)
            if (penalties[i] != 0)
                m_marks.push_back({i + 1, selected, penalties[i] == MissedSeconds, levels[i]++});
    }
}

void GateChart::showLabels() {
    const auto barLabel = [this](int series, const QString& text, const QColor& colour) {
        SeriesLabel label;
        label.id = series;
        label.name = text;
        label.style.colour = colour;
        label.isBar = true;
        label.isHidden = !isShown(series);
        return label;
    };
    std::vector<SeriesLabel> labels{
        barLabel(MissedSeries, tr("Missed gate, 50 s"), missedColour(palette())),
        barLabel(TouchSeries, tr("Touch, 2 s"), touchColour(palette()))};
    for (const SelectedRun& selected : selectedRuns()) {
        labels.push_back(labelOf(selected));
        labels.back().value = tr("%1 s").arg(race().run(selected.run).sectioninfo.totalpen);
    }
    seriesLabels().setLabels(std::move(labels));
}

double GateChart::barHeight(const GatePenalties& gate) const {
    const std::int64_t touches = isShown(TouchSeries) ? gate.touches : 0;
    const std::int64_t missed = isShown(MissedSeries) ? gate.missed : 0;
    return static_cast<double>(touches + missed);
}

void GateChart::setLimits() {
    double highest = 1;
    for (const GatePenalties& gate : m_course.gates)
        highest = std::max(highest, barHeight(gate));
    int levels = 0;
    for (const Mark& mark : m_marks)
        levels = std::max(levels, mark.level + 1);
    // The marks stand above the bars by pixels: a share of the plot is kept for them.
    const double room = 1.08 + 0.05 * std::min(levels, 10);
    const auto gates = static_cast<double>(m_course.gates.size());
    canvas().setLimits({0.4, gates + 0.6}, {0, highest * room});
}

bool GateChart::isNumbered(std::size_t index, std::size_t step) const {
    if (m_course.gates[index].isUpstream)
        return true;
    if (m_course.gates[index].gate % static_cast<std::int64_t>(step) != 0)
        return false;
    // The numbers of upstream gates come first where there is no room for all.
    const std::size_t first = index - std::min(index, step - 1);
    const std::size_t last = std::min(index + step, m_course.gates.size());
    return std::none_of(m_course.gates.begin() + static_cast<std::ptrdiff_t>(first),
                        m_course.gates.begin() + static_cast<std::ptrdiff_t>(last),
                        [](const GatePenalties& gate) { return gate.isUpstream; });
}

void GateChart::paintGateNumbers(QCPPainter& painter) const {
    const QRectF plot = canvas().axisRect()->rect();
    const QFont plain = canvas().xAxis->tickLabelFont();
    const double width = plot.width() / canvas().xAxis->range().size();
    const std::size_t step = numberStep(width, plain);
    const double height = QFontMetrics(plain).height();
    for (std::size_t i = 0; i < m_course.gates.size(); ++i) {
        const GatePenalties& gate = m_course.gates[i];
        const double x = canvas().xAxis->coordToPixel(static_cast<double>(gate.gate));
        if (x < plot.left() || x > plot.right() || !isNumbered(i, step))
            continue;
        QFont font = plain;
        font.setBold(gate.isUpstream);
        painter.setFont(font);
        painter.setPen(QPen(gate.isUpstream ? upstreamColour(palette())
                                            : palette().color(QPalette::WindowText)));
        const QRectF line(x - 30, plot.bottom() + theme::SmallSpacing, 60, height);
        painter.drawText(line, Qt::AlignCenter, QString::number(gate.gate));
        if (gate.isUpstream)
            painter.drawText(line.translated(0, height), Qt::AlignCenter, QStringLiteral("\u2191"));
    }
}

QPointF GateChart::placeOf(const Mark& mark) const {
    const double top = barHeight(m_course.gates[mark.gate - 1]);
    const QPointF place = canvas().toPixel(static_cast<double>(mark.gate), top);
    return place - QPointF(0, MarkDistance * (mark.level + 0.7));
}

void GateChart::paintMarks(QCPPainter& painter) const {
    for (const Mark& mark : m_marks) {
        const QPointF place = placeOf(mark);
        if (!QRectF(canvas().axisRect()->rect()).contains(place))
            continue;
        const QCPScatterStyle drawn = markerOf(mark.selected.style, MarkSize, mark.isMissed);
        drawn.applyTo(&painter, QPen());
        drawn.drawShape(&painter, place);
    }
}

const GateChart::Mark* GateChart::markAt(const QPointF& position) const {
    for (const Mark& mark : m_marks)
        if (QLineF(placeOf(mark), position).length() <= MarkSize)
            return &mark;
    return nullptr;
}

std::optional<QPointF> GateChart::markOf(std::size_t run, std::size_t gate) const {
    for (const Mark& mark : m_marks)
        if (mark.selected.run == run && mark.gate == gate)
            return placeOf(mark);
    return std::nullopt;
}

QString GateChart::readOutOf(std::size_t gate) const {
    const GatePenalties& counted = m_course.gates[gate - 1];
    const QString heading = counted.isUpstream ? tr("Gate %1, upstream") : tr("Gate %1");
    QStringList rows{
        readOutRow({tr("Touches"), QString::number(counted.touches)}, touchColour(palette())),
        readOutRow({tr("Missed"), QString::number(counted.missed)}, missedColour(palette()))};
    for (const Mark& mark : m_marks)
        if (mark.gate == gate)
            rows << readOutRow(
                {race().label(mark.selected.run), mark.isMissed ? tr("missed") : tr("touch")},
                mark.selected.style.colour);
    return readOutText(heading.arg(gate), rows);
}

void GateChart::hoverAt(const QPointF& position) {
    const double gate = std::round(canvas().xAxis->pixelToCoord(position.x()));
    const auto gates = static_cast<double>(m_course.gates.size());
    const QRectF plot = canvas().axisRect()->rect();
    if (position.x() < plot.left() || position.x() > plot.right() || position.y() < plot.top() ||
        gate < 1 || gate > gates)
        leaveCursor();
    else
        readOut().showAt(position, readOutOf(static_cast<std::size_t>(gate)));
}

std::vector<QPointF> GateChart::stops() const {
    std::vector<QPointF> stops;
    for (std::size_t gate = 1; gate <= m_course.gates.size(); ++gate)
        stops.emplace_back(static_cast<double>(gate), canvas().yAxis->range().center());
    return stops;
}

void GateChart::clickAt(const QPointF& position) {
    if (const Mark* mark = markAt(position))
        emit runActivated(mark->selected.run);
}

QString GateChart::csvText() const {
    QStringList header{tr("Gate"), tr("Upstream")};
    if (isShown(TouchSeries))
        header << tr("Touches");
    if (isShown(MissedSeries))
        header << tr("Missed");
    std::vector<SelectedRun> runs = selectedRuns();
    std::erase_if(runs, [&](const SelectedRun& selected) {
        return !isShown(seriesId(selected.run)) ||
               race().run(selected.run).gatePenalties.size() != m_course.gates.size();
    });
    for (const SelectedRun& selected : runs)
        header << race().label(selected.run);
    QString text = csvLine(header);
    for (const GatePenalties& gate : m_course.gates) {
        if (!canvas().xAxis->range().contains(static_cast<double>(gate.gate)))
            continue;
        QStringList fields{QString::number(gate.gate), QString::number(gate.isUpstream ? 1 : 0)};
        if (isShown(TouchSeries))
            fields << QString::number(gate.touches);
        if (isShown(MissedSeries))
            fields << QString::number(gate.missed);
        for (const SelectedRun& selected : runs)
            fields << QString::number(
                race().run(selected.run).gatePenalties[static_cast<std::size_t>(gate.gate - 1)]);
        text += csvLine(fields);
    }
    return text;
}

} // namespace kavela::desktop
