#include "desktop/sessions/gauge_row.h"

#include "desktop/sessions/gauge.h"
#include "desktop/sessions/session_series.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QHBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

using Range = std::optional<std::pair<double, double>>;

void widen(Range& range, double value) {
    range = {std::min(range ? range->first : value, value),
             std::max(range ? range->second : value, value)};
}

Range rangeOf(const std::vector<SensorSeries>& curves) {
    Range range;
    for (const SensorSeries& curve : curves)
        for (const double value : *curve.values)
            widen(range, value);
    return range;
}

} // namespace

GaugeRow::GaugeRow(Workspace& workspace, QWidget* parent)
    : QWidget(parent), m_workspace(workspace) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    m_rate = add("strokeRateGauge", SessionMeasure::StrokeRate, tr("1/min"), 0);
    add("speedGauge", SessionMeasure::Speed, tr("m/s"), 2);
    add("forceGauge", SessionMeasure::Force, tr("N"), 0);
    m_impulse = add("impulseGauge", SessionMeasure::Impulse, tr("N·s"), 1);
    add("powerGauge", SessionMeasure::Power, tr("W"), 0);
    add("heartGauge", SessionMeasure::HeartRate, tr("1/min"), 0);
    connect(&workspace, &Workspace::preferenceChanged, this, &GaugeRow::followPreferences);
    followPreferences();
}

Gauge* GaugeRow::add(const char* objectName, SessionMeasure measure, const QString& unit,
                     int decimals) {
    auto* gauge = new Gauge(SessionCharts::nameOf(measure), unit, decimals);
    gauge->setObjectName(objectName);
    layout()->addWidget(gauge);
    m_readings.push_back({measure, gauge});
    return gauge;
}

void GaugeRow::followPreferences() {
    m_rate->setVisible(m_workspace.preferences().boolean("gaugeStrokerate"));
    m_impulse->setVisible(m_workspace.preferences().boolean("gaugeImpulse"));
}

void GaugeRow::setLarge(bool isLarge) {
    for (const Reading& reading : m_readings)
        reading.gauge->setLarge(isLarge);
}

void GaugeRow::show(const EditedSession& session, const SessionFigures& figures) {
    for (Reading& reading : m_readings) {
        std::vector<SensorSeries> curves = seriesFor(reading.measure, session, figures);
        reading.gauge->setRange(rangeOf(curves));
        reading.curve = std::move(curves.front());
    }
}

void GaugeRow::showMoment(const EditedSession& session, const SessionFigures& figures,
                          double moment) {
    for (const Reading& reading : m_readings)
        reading.gauge->setValue(reading.curve.times
                                    ? valueAt(reading.curve, moment - figures.moments.from)
                                    : std::nullopt);
    QString hand;
    if (const auto place = strokeMadeAt(figures, moment))
        hand = sideText(session.session.strokesData[figures.strokes[*place].entry].stroke.hand);
    m_rate->setNote(hand);
}

} // namespace kavela::desktop
