#pragma once

#include "boatmotion/session_table.h"
#include "desktop/sessions/session_charts.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QMenu;
class QSplitter;
class QToolButton;

namespace kavela::desktop {

class CourseMap;
class GaugeRow;
class Replay;
class SeriesChart;
class SessionTables;
class Workspace;

/// A session to look at: gauges, charts, map and tables with one cursor, which a replay moves.
/// Hovering over a chart shows another moment for the time being.
class SessionView : public QWidget {
    Q_OBJECT

public:
    SessionView(Workspace& workspace, Replay& replay, QWidget* parent = nullptr);
    ~SessionView() override;

    void show(const EditedSession& session);
    using QWidget::show;
    [[nodiscard]] const SessionFigures& figures() const { return *m_figures; }

    /// The stretch that was selected in the charts.
    [[nodiscard]] std::optional<MomentRange> selection() const { return m_selection; }
    void select(std::optional<MomentRange> range);
    void zoomToSelection();
    /// Moves the replay to a stroke before (negative) or behind its moment.
    void goToStroke(int steps);

    /// Gauges and map for reading from afar, with the charts that the preferences name.
    void setFullScreen(bool isFull);

    [[nodiscard]] SessionCharts& charts() const { return *m_charts; }
    [[nodiscard]] CourseMap& map() const { return *m_map; }
    [[nodiscard]] SessionTables& tables() const { return *m_tables; }
    /// Shows these charts, also in windows to come.
    void chooseMeasures(const std::vector<SessionMeasure>& measures);
    /// Offered where it is not known which side of the phone points to the bow.
    void setMountMenu(QMenu* menu);
    /// What is said about the session below its title.
    [[nodiscard]] QString remarks() const;

signals:
    void keepRequested();
    void removeRequested();
    void informationRequested();

private:
    QWidget* makeHead();
    QWidget* makeRemarks();
    QWidget* makeSelectionBar();
    QWidget* makeMapPart();
    void connectParts();
    void showMoment(double moment);
    void showTitle();
    void showRememberedMeasures();
    void showPowerMeter();
    void showSelectionText();
    void followPreferences();

    Workspace& m_workspace;
    Replay& m_replay;
    EditedSession m_session;
    std::shared_ptr<const SessionFigures> m_figures;
    std::optional<MomentRange> m_selection;
    bool m_isFullScreen = false;

    QLabel* m_title = nullptr;
    QLabel* m_remarks = nullptr;
    QWidget* m_remarkRow = nullptr;
    QToolButton* m_nameMount = nullptr;
    GaugeRow* m_gauges;
    SessionCharts* m_charts;
    SeriesChart* m_scatter;
    CourseMap* m_map;
    QComboBox* m_colouring = nullptr;
    SessionTables* m_tables;
    QWidget* m_selectionBar = nullptr;
    QLabel* m_selectionText = nullptr;
    QSplitter* m_parts = nullptr;
    std::vector<SessionMeasure> m_measuresBefore; ///< the charts outside full screen
};

} // namespace kavela::desktop
