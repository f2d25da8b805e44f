#pragma once

#include "boatmotion/session_table.h"

#include <QWidget>

#include <memory>

class QLabel;
class QVBoxLayout;

namespace kavela::desktop {

class SensorChart;
struct SensorSeries;

/// The measures of a session that have a chart.
enum class SessionMeasure {
    StrokeRate,
    Force,
    Impulse,
    Power,
    Speed,
    HeartRate,
    Phases,
    Roll,
    Pitch
};

/// The charts of a session over the time on the water, one below the other with one time axis, view
/// and cursor. A left drag selects a stretch. Their moments are seconds from the beginning of the
/// session; those of this class are on the clock of the boat.
class SessionCharts : public QWidget {
    Q_OBJECT

public:
    explicit SessionCharts(QWidget* parent = nullptr);

    void show(const EditedSession& session, const SessionFigures& figures);
    using QWidget::show;
    /// Values as a share of the greatest one of each series, in percent.
    void setNormalized(bool isNormalized);

    /// Which of them are shown. Those without a value are named in one line below the others.
    void setMeasures(std::vector<SessionMeasure> measures);
    [[nodiscard]] const std::vector<SessionMeasure>& measures() const { return m_measures; }
    [[nodiscard]] static QString nameOf(SessionMeasure measure);
    [[nodiscard]] SensorChart& chart(SessionMeasure measure) const;

    /// The stretch that is shaded.
    void showSelection(std::optional<MomentRange> range);
    void showStretch(MomentRange range);
    void fit();

public slots:
    void showCursorAt(double moment);

signals:
    void hovered(double moment);
    void hoverEnded();
    void momentChosen(double moment);
    void stretchSelected(double from, double to);

private:
    struct Lane {
        SessionMeasure measure;
        SensorChart* chart;
        bool hasValues = false;
    };

    void addLane(SessionMeasure measure);
    void showLanes();
    void fillLanes();
    void tellEmpty();
    [[nodiscard]] bool isShown(SessionMeasure measure) const;
    void showMarks();
    [[nodiscard]] std::vector<SensorSeries> seriesOf(SessionMeasure measure) const;

    std::vector<Lane> m_lanes;
    std::vector<SessionMeasure> m_measures;
    QVBoxLayout* m_column;
    QLabel* m_empty; ///< the charts without a value, and why
    EditedSession m_session;
    SessionFigures m_figures;
    std::optional<MomentRange> m_selection;
    bool m_isNormalized = false;
};

} // namespace kavela::desktop
