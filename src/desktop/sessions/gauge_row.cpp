#include "desktop/sessions/gauge_row.h"

#include "desktop/sessions/gauge.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QHBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

using Range = std::optional<std::pair<double, double>>;

void widen(Range& range, std::optional<double> value) {
    if (value)
        range = {std::min(range ? range->first : *value, *value),
                 std::max(range ? range->second : *value, *value)};
}

template <class Values, class Get>
Range rangeOf(const Values& values, const Get& get) {
    Range range;
    for (const auto& value : values)
        widen(range, std::optional<double>(get(value)));
    return range;
}

} // namespace

GaugeRow::GaugeRow(Workspace& workspace, QWidget* parent)
    : QWidget(parent), m_workspace(workspace) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    m_rate = add("strokeRateGauge", tr("Stroke rate"), tr("1/min"), 0);
    m_speed = add("speedGauge", tr("Speed"), tr("m/s"), 2);
    m_force = add("forceGauge", tr("Force"), tr("N"), 0);
    m_impulse = add("impulseGauge", tr("Impulse"), tr("N·s"), 1);
    m_power = add("powerGauge", tr("Power"), tr("W"), 0);
    m_heart = add("heartGauge", tr("Heart rate"), tr("1/min"), 0);
    connect(&workspace, &Workspace::preferenceChanged, this, &GaugeRow::followPreferences);
    followPreferences();
}

Gauge* GaugeRow::add(const char* objectName, const QString& name, const QString& unit,
                     int decimals) {
    auto* gauge = new Gauge(name, unit, decimals);
    gauge->setObjectName(objectName);
    layout()->addWidget(gauge);
    m_all.push_back(gauge);
    return gauge;
}

void GaugeRow::followPreferences() {
    m_rate->setVisible(m_workspace.preferences().boolean("gaugeStrokerate"));
    m_impulse->setVisible(m_workspace.preferences().boolean("gaugeImpulse"));
}

void GaugeRow::setLarge(bool isLarge) {
    for (Gauge* const gauge : m_all)
        gauge->setLarge(isLarge);
}

void GaugeRow::show(const EditedSession& session, const SessionFigures& figures) {
    const auto& strokes = figures.strokes;
    m_rate->setRange(rangeOf(strokes, [](const auto& stroke) { return stroke.rate; }));
    m_force->setRange(rangeOf(strokes, [](const auto& stroke) { return stroke.force; }));
    m_impulse->setRange(rangeOf(strokes, [](const auto& stroke) { return stroke.impulse; }));
    Range power = rangeOf(strokes, [](const auto& stroke) { return stroke.power; });
    for (const powermeterData& sample : session.powerMeter)
        widen(power, sample.power);
    m_power->setRange(power);
    m_speed->setRange(rangeOf(figures.track, [](const TrackPlace& point) {
        return point.speed > 0 ? std::optional(point.speed) : std::nullopt;
    }));
    m_heart->setRange(rangeOf(figures.heart, [](const auto& reading) { return reading.second; }));
}

void GaugeRow::showMoment(const EditedSession& session, const SessionFigures& figures,
                          double moment) {
    const auto place = strokeAt(figures, moment);
    const StrokeFigures* const stroke = place ? &figures.strokes[*place] : nullptr;
    const auto valueOf = [&](std::optional<double> StrokeFigures::*member) {
        return stroke ? stroke->*member : std::nullopt;
    };
    m_rate->setValue(stroke ? std::optional(stroke->rate) : std::nullopt);
    QString hand;
    if (stroke)
        hand =
            session.session.strokesData[stroke->entry].stroke.hand == 0 ? tr("left") : tr("right");
    m_rate->setNote(hand);
    m_force->setValue(valueOf(&StrokeFigures::force));
    m_impulse->setValue(valueOf(&StrokeFigures::impulse));
    m_power->setValue(valueOf(&StrokeFigures::power));
    m_speed->setValue(speedAt(figures.track, moment));
    m_heart->setValue(heartRateAt(figures, moment));
}

} // namespace kavela::desktop
