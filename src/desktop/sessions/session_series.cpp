#include "desktop/sessions/session_series.h"

#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <functional>

namespace kavela::desktop {

namespace {

struct SessionSeries {
    Q_DECLARE_TR_FUNCTIONS(SessionSeries)
};

/// Collects a curve.
class Curve {
public:
    explicit Curve(double begin) : m_begin(begin) {}

    void add(double moment, std::optional<double> value) {
        if (!value)
            return;
        m_times->push_back(moment - m_begin);
        m_values->push_back(*value);
    }
    void add(const StrokeFigures& stroke, std::optional<double> value) {
        add(stroke.time, value);
        if (value)
            m_ends->push_back(stroke.until - m_begin);
    }

    [[nodiscard]] SensorSeries series(const QString& name, const QString& unit,
                                      std::size_t slot) const {
        SensorSeries series{
            .name = name, .unit = unit, .times = m_times, .values = m_values, .slot = slot};
        if (!m_ends->empty())
            series.ends = m_ends;
        return series;
    }

private:
    double m_begin;
    std::shared_ptr<std::vector<double>> m_times = std::make_shared<std::vector<double>>();
    std::shared_ptr<std::vector<double>> m_values = std::make_shared<std::vector<double>>();
    std::shared_ptr<std::vector<double>> m_ends = std::make_shared<std::vector<double>>();
};

using ValueOfStroke =
    std::function<std::optional<double>(const StrokeFigures&, const smartStraight_v3&)>;

SensorSeries strokeCurve(const EditedSession& session, const SessionFigures& figures,
                         const QString& name, const QString& unit, std::size_t slot,
                         const ValueOfStroke& valueOf) {
    Curve curve(figures.moments.from);
    for (const StrokeFigures& stroke : figures.strokes)
        curve.add(stroke, valueOf(stroke, session.session.strokesData[stroke.entry].stroke));
    return curve.series(name, unit, slot);
}

SensorSeries member(const EditedSession& session, const SessionFigures& figures,
                    const QString& name, const QString& unit, std::size_t slot,
                    std::optional<double> StrokeFigures::*value) {
    return strokeCurve(session, figures, name, unit, slot,
                       [value](const StrokeFigures& stroke, const auto&) { return stroke.*value; });
}

std::vector<SensorSeries> powers(const EditedSession& session, const SessionFigures& figures) {
    std::vector<SensorSeries> series{member(session, figures, SessionSeries::tr("Power"),
                                            SessionSeries::tr("W"), 3, &StrokeFigures::power)};
    if (session.powerMeter.empty())
        return series;
    Curve meter(figures.moments.from);
    for (const powermeterData& sample : session.powerMeter)
        meter.add(sample.dateDouble, sample.power);
    series.push_back(meter.series(SessionSeries::tr("Power meter"), SessionSeries::tr("W"), 5));
    return series;
}

/// What of a stroke is known only with the bow.
ValueOfStroke withBow(const EditedSession& session, double smartStraight_v3::*value,
                      double factor = 1) {
    return [isKnown = session.isBowKnown, value,
            factor](const StrokeFigures&, const smartStraight_v3& stroke) -> std::optional<double> {
        if (!isKnown)
            return std::nullopt;
        return stroke.*value * factor;
    };
}

std::vector<SensorSeries> phases(const EditedSession& session, const SessionFigures& figures) {
    return {strokeCurve(session, figures, SessionSeries::tr("Water phase"), SessionSeries::tr("s"),
                        0, withBow(session, &smartStraight_v3::waterPhase)),
            strokeCurve(session, figures, SessionSeries::tr("Aerial phase"), SessionSeries::tr("s"),
                        1, withBow(session, &smartStraight_v3::aerealPhase))};
}

SensorSeries speed(const SessionFigures& figures) {
    Curve curve(figures.moments.from);
    for (const TrackPlace& point : figures.track)
        curve.add(point.time, point.speed > 0 ? std::optional(point.speed) : std::nullopt);
    return curve.series(SessionSeries::tr("Speed"), SessionSeries::tr("m/s"), 2);
}

SensorSeries heart(const SessionFigures& figures) {
    Curve curve(figures.moments.from);
    for (const auto& [moment, rate] : figures.heart)
        curve.add(moment, rate);
    return curve.series(SessionSeries::tr("Heart rate"), SessionSeries::tr("1/min"), 5);
}

SensorSeries pitch(const EditedSession& session, const SessionFigures& figures) {
    Curve curve(figures.moments.from);
    for (const TurnFigures& turn : figures.turns)
        if (session.isBowKnown)
            curve.add(turn.time,
                      session.session.strokesData[turn.entry].rotation.avePitch * DegreesPerRadian);
    return curve.series(SessionSeries::tr("Pitch in turns"), SessionSeries::tr("°"), 4);
}

} // namespace

std::vector<SensorSeries> seriesFor(SessionMeasure measure, const EditedSession& session,
                                    const SessionFigures& figures) {
    switch (measure) {
    case SessionMeasure::StrokeRate:
        return {strokeCurve(session, figures, SessionSeries::tr("Stroke rate"),
                            SessionSeries::tr("1/min"), 0,
                            [](const StrokeFigures& stroke, const auto&) { return stroke.rate; })};
    case SessionMeasure::Force:
        return {member(session, figures, SessionSeries::tr("Force"), SessionSeries::tr("N"), 1,
                       &StrokeFigures::force)};
    case SessionMeasure::Impulse:
        return {member(session, figures, SessionSeries::tr("Impulse"), SessionSeries::tr("N·s"), 4,
                       &StrokeFigures::impulse)};
    case SessionMeasure::Power:
        return powers(session, figures);
    case SessionMeasure::Speed:
        return {speed(figures)};
    case SessionMeasure::HeartRate:
        return {heart(figures)};
    case SessionMeasure::Phases:
        return phases(session, figures);
    case SessionMeasure::Roll:
        return {strokeCurve(session, figures, SessionSeries::tr("Roll of the stroke"),
                            SessionSeries::tr("°"), 3,
                            withBow(session, &smartStraight_v3::roll, DegreesPerRadian))};
    case SessionMeasure::Pitch:
        return {pitch(session, figures)};
    }
    return {};
}

std::vector<SensorSeries> normalized(std::vector<SensorSeries> series) {
    for (SensorSeries& curve : series) {
        double greatest = 0;
        for (const double value : *curve.values)
            greatest = std::max(greatest, std::abs(value));
        auto values = std::make_shared<std::vector<double>>(*curve.values);
        for (double& value : *values)
            value = greatest > 0 ? value / greatest * 100 : 0;
        curve.values = std::move(values);
        curve.unit = "%";
    }
    return series;
}

} // namespace kavela::desktop
