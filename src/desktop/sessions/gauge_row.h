#pragma once

#include "desktop/charts/sensor_series.h"
#include "desktop/sessions/session_charts.h"

#include <QWidget>

namespace kavela::desktop {

class Gauge;
class Workspace;

/// The gauges of a session at the cursor. They read the curves of the charts, so that both tell the
/// same. Those of stroke rate and impulse are shown as the preferences say.
class GaugeRow : public QWidget {
    Q_OBJECT

public:
    explicit GaugeRow(Workspace& workspace, QWidget* parent = nullptr);

    void show(const EditedSession& session, const SessionFigures& figures);
    using QWidget::show;
    void showMoment(const EditedSession& session, const SessionFigures& figures, double moment);
    void setLarge(bool isLarge);

private:
    /// A gauge and the curve that it reads: the first one of its chart.
    struct Reading {
        SessionMeasure measure;
        Gauge* gauge;
        SensorSeries curve{};
    };

    Gauge* add(const char* objectName, SessionMeasure measure, const QString& unit, int decimals);
    void followPreferences();

    Workspace& m_workspace;
    std::vector<Reading> m_readings;
    Gauge* m_rate;
    Gauge* m_impulse;
};

} // namespace kavela::desktop
