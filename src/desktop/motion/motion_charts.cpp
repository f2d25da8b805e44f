#include "desktop/motion/motion_charts.h"

#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/motion/motion_recordings.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int LeastHeight = 104; ///< of a chart, in pixels
constexpr std::size_t PinSlot = 5;

} // namespace

MotionCharts::MotionCharts(MotionRecordings& recordings, QWidget* parent)
    : QScrollArea(parent), m_recordings(recordings) {
    auto* page = new QWidget;
    m_column = new QVBoxLayout(page);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(1);
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    for (const CurveKind kind : {CurveKind::Forward, CurveKind::Turning, CurveKind::Roll,
                                 CurveKind::Speed, CurveKind::Heart, CurveKind::Watch})
        m_wanted[place(kind)] = true;
    for (std::size_t i = 0; i < CurveKinds; ++i) {
        m_charts[i] = makeChart(static_cast<CurveKind>(i));
        m_column->addWidget(m_charts[i], 1);
    }
    connect(&m_recordings, &MotionRecordings::listChanged, this, &MotionCharts::refresh);
    connect(&m_recordings, &MotionRecordings::ticksChanged, this, &MotionCharts::refresh);
    connect(&m_recordings, &MotionRecordings::shiftsChanged, this, &MotionCharts::refresh);
    connect(&m_recordings, &MotionRecordings::analysisChanged, this, &MotionCharts::refresh);
}

SensorChart* MotionCharts::makeChart(CurveKind kind) {
    auto* chart = new SensorChart;
    chart->setTitle(QStringLiteral("%1 (%2)").arg(titleOf(kind), unitOf(kind)));
    chart->setMinimumHeight(grown(*chart, LeastHeight));
    chart->hide();
    connectChart(*chart);
    return chart;
}

void MotionCharts::connectChart(SensorChart& chart) {
    connect(&chart, &SensorChart::viewChanged, this, &MotionCharts::setView);
    connect(&chart, &SensorChart::hoveredAt, this, [this, &chart](double time) {
        if (chart.underMouse() || (chart.hasFocus() && !widget()->underMouse()))
            m_active = &chart;
        setCursor(time);
    });
    connect(&chart, &SensorChart::hoverEnded, this, [this] { setCursor(std::nullopt); });
    connect(&chart, &SensorChart::clickedAt, this, [this](double time) { setPin(time); });
    connect(&chart, &SensorChart::shiftDragged, this, &MotionCharts::shiftDragged);
    connect(&chart, &SensorChart::shiftDragEnded, this, &MotionCharts::shiftDragEnded);
    connect(&chart.interaction(), &PlotInteraction::saved, this, &MotionCharts::saved);
    connect(&chart.interaction(), &PlotInteraction::savingFailed, this,
            &MotionCharts::savingFailed);
}

bool MotionCharts::isWanted(CurveKind kind) const {
    return m_wanted[place(kind)];
}

void MotionCharts::setWanted(CurveKind kind, bool isWanted) {
    if (m_wanted[place(kind)] == isWanted)
        return;
    m_wanted[place(kind)] = isWanted;
    refresh();
}

bool MotionCharts::hasData(CurveKind kind) const {
    return std::ranges::any_of(m_recordings.all(), [&](const auto& recording) {
        return recording->data.shows && !recording->curve(kind).isEmpty();
    });
}

std::vector<CurveKind> MotionCharts::shownKinds() const {
    std::vector<CurveKind> kinds;
    for (std::size_t i = 0; i < CurveKinds; ++i)
        if (const auto kind = static_cast<CurveKind>(i); m_wanted[i] && hasData(kind))
            kinds.push_back(kind);
    return kinds;
}

SensorChart* MotionCharts::activeChart() const {
    const auto kinds = shownKinds();
    for (const CurveKind kind : kinds)
        if (chart(kind) == m_active)
            return m_active;
    return kinds.empty() ? nullptr : chart(kinds.front());
}

void MotionCharts::refresh() {
    followLimits();
    for (std::size_t i = 0; i < CurveKinds; ++i)
        fillChart(static_cast<CurveKind>(i));
    showMarks();
    showCharts();
}

/// A view of everything stays one of everything.
void MotionCharts::followLimits() {
    const auto limits = m_recordings.extent();
    const bool wasWhole = m_view == m_limits || !(m_view.second > m_view.first);
    m_limits = limits;
    for (SensorChart* chart : m_charts)
        chart->setLimits(limits.first, limits.second);
    const bool isOutside = m_view.second < limits.first || m_view.first > limits.second;
    if (wasWhole || isOutside)
        setView(limits.first, limits.second);
}

void MotionCharts::fillChart(CurveKind kind) {
    std::vector<SensorSeries> series;
    for (const auto& recording : m_recordings.all()) {
        const Curve& curve = recording->curve(kind);
        if (!recording->data.shows || curve.isEmpty() || !m_wanted[place(kind)])
            continue;
        series.push_back({.name = recording->label,
                          .unit = unitOf(kind),
                          .times = curve.times,
                          .values = curve.values,
                          .slot = recording->slot,
                          .offset = recording->shift,
                          .pyramid = curve.pyramid});
    }
    chart(kind)->setSeries(std::move(series));
}

void MotionCharts::showCharts() {
    const std::vector<CurveKind> kinds = shownKinds();
    for (std::size_t i = 0; i < CurveKinds; ++i) {
        const auto kind = static_cast<CurveKind>(i);
        const bool isShown = std::ranges::find(kinds, kind) != kinds.end();
        m_charts[i]->setVisible(isShown);
        m_charts[i]->setTimeAxisVisible(isShown && kind == kinds.back());
    }
    emit shownChanged();
}

void MotionCharts::setView(double from, double to) {
    if (!(to > from) || m_view == std::pair(from, to))
        return;
    m_view = {from, to};
    for (SensorChart* chart : m_charts)
        chart->setView(from, to);
}

void MotionCharts::fit() {
    if (SensorChart* chart = activeChart())
        chart->fit();
}

void MotionCharts::askAndSave() {
    if (SensorChart* chart = activeChart())
        chart->interaction().askAndSave();
}

void MotionCharts::zoom(double factor) {
    if (SensorChart* chart = activeChart())
        chart->zoom(factor);
}

void MotionCharts::setCursor(std::optional<double> time) {
    if (m_cursor == time)
        return;
    m_cursor = time;
    for (SensorChart* chart : m_charts) {
        if (time)
            chart->showCursorAt(*time);
        else
            chart->hideCursor();
    }
    emit cursorMoved(time);
}

void MotionCharts::setPin(std::optional<double> time) {
    m_pin = time;
    showMarks();
}

void MotionCharts::setMarked(std::optional<std::size_t> index) {
    m_marked = index;
    showMarks();
}

void MotionCharts::setMarksVisible(bool areVisible) {
    m_showsMarks = areVisible;
    showMarks();
}

std::vector<SensorMark> MotionCharts::marks() const {
    std::vector<SensorMark> marks;
    if (m_pin)
        marks.push_back({*m_pin, *m_pin, tr("here"), PinSlot, true});
    if (!m_showsMarks || !m_marked || *m_marked >= m_recordings.all().size())
        return marks;
    const MotionRecording& recording = *m_recordings.all()[*m_marked];
    if (!recording.data.shows || !recording.analysis)
        return marks;
    const double offset = recording.shift - recording.facts.first;
    for (const Turn& turn : recording.analysis->turns)
        marks.push_back({turn.start + offset, turn.end + offset,
                         QStringLiteral("%1 %2°")
                             .arg(turn.angle > 0 ? QChar(0x21B0) : QChar(0x21B1))
                             .arg(qRound(std::abs(turn.angle) * DegreesPerRadian)),
                         recording.slot});
    for (const Stroke& stroke : recording.analysis->strokes)
        marks.push_back({stroke.catchTime + offset, stroke.catchTime + offset,
                         stroke.values.hand == LeftHand    ? tr("L")
                         : stroke.values.hand == RightHand ? tr("R")
                                                           : QString(),
                         recording.slot});
    return marks;
}

/// Named in the uppermost chart alone: the others have the same.
void MotionCharts::showMarks() {
    std::vector<SensorMark> named = marks();
    std::vector<SensorMark> bare = named;
    for (SensorMark& mark : bare)
        mark.text.clear();
    const auto kinds = shownKinds();
    for (std::size_t i = 0; i < CurveKinds; ++i)
        if (m_wanted[i])
            m_charts[i]->setMarks(!kinds.empty() && place(kinds.front()) == i ? named : bare);
}

} // namespace kavela::desktop
