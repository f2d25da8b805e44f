#pragma once

#include "boatmotion/session_table.h"

#include <QWidget>

namespace kavela::desktop {

class Gauge;
class Workspace;

/// The gauges of a session at the cursor. Those of stroke rate and impulse are shown as the
/// preferences say.
class GaugeRow : public QWidget {
    Q_OBJECT

public:
    explicit GaugeRow(Workspace& workspace, QWidget* parent = nullptr);

    void show(const EditedSession& session, const SessionFigures& figures);
    using QWidget::show;
    void showMoment(const EditedSession& session, const SessionFigures& figures, double moment);
    void setLarge(bool isLarge);

private:
    Gauge* add(const char* objectName, const QString& name, const QString& unit, int decimals);
    void followPreferences();

    Workspace& m_workspace;
    std::vector<Gauge*> m_all;
    Gauge* m_rate;
    Gauge* m_force;
    Gauge* m_impulse;
    Gauge* m_power;
    Gauge* m_speed;
    Gauge* m_heart;
};

} // namespace kavela::desktop
