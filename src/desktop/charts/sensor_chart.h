#pragma once

#include "desktop/charts/interactive_chart.h"
#include "desktop/charts/sensor_series.h"

#include <QPixmap>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <set>
#include <utility>

class QPainter;

namespace kavela::desktop {

class PlotInteraction;
class SensorDrawing;
struct SensorScene;

/// A chart of long rows of samples against time. A repaint costs what the chart is wide, not what
/// the rows are long.
///
/// It moves as every chart does, see PlotInteraction; a drag with Shift asks to move the series in
/// time. The value axis follows what is seen until it is zoomed.
///
/// Charts of a window share view and cursor by viewChanged → setView, hoveredAt → showCursorAt and
/// hoverEnded → hideCursor; each tells a change once, so that they may be connected in a ring.
class SensorChart : public QWidget, public InteractiveChart {
    Q_OBJECT

public:
    explicit SensorChart(QWidget* parent = nullptr);
    ~SensorChart() override;

    void setTitle(const QString& title);
    [[nodiscard]] QString title() const { return m_title; }
    /// Shows other series; the view and the hidden names stay. The first series that are shown set
    /// the view where none was set.
    void setSeries(std::vector<SensorSeries> series);
    [[nodiscard]] const std::vector<SensorSeries>& series() const { return m_series; }
    void setMarks(std::vector<SensorMark> marks);
    [[nodiscard]] const std::vector<SensorMark>& marks() const { return m_marks; }
    /// What is said where there is no series.
    void setEmptyText(const QString& text);

    /// The seconds that are seen. A view that is not finite or empty is ignored.
    void setView(double from, double to);
    [[nodiscard]] std::pair<double, double> view() const { return {m_from, m_to}; }
    /// What fits: the extent of the series unless it is set, as for charts with a common axis.
    void setLimits(double from, double to);
    [[nodiscard]] std::pair<double, double> limits() const;
    void fit() override;
    /// Zooms around the middle of the view, or around the cursor where there is one; a factor below
    /// 1 shows less.
    void zoom(double factor);

    /// How moments are written, at the ticks and the cursor; minutes and seconds otherwise.
    void setTimeText(std::function<QString(double)> text);
    /// Charts above others need no time axis of their own.
    void setTimeAxisVisible(bool isVisible);
    /// Whether a left drag zooms into its range; in any case it is reported.
    void setDragZooms(bool doesZoom) { m_dragZooms = doesZoom; }

    void hideSeries(const QString& name, bool isHidden);
    [[nodiscard]] bool isHidden(const QString& name) const { return m_hidden.contains(name); }

    /// The place of a moment across the widget, and the moment of a place, in pixels.
    [[nodiscard]] double pixelAt(double time) const;
    [[nodiscard]] double timeAt(double pixel) const;
    [[nodiscard]] std::optional<double> cursor() const { return m_cursor; }

    /// The visible range of the visible series: a picture as ".png" or ".svg", the samples as
    /// ".csv" with a line for each moment. Throws FileError, also for any other extension.
    void save(const std::filesystem::path& path);
    [[nodiscard]] QString csv() override;
    [[nodiscard]] PlotInteraction& interaction() const { return *m_interaction; }

    [[nodiscard]] bool hasContent() const override { return !m_series.empty(); }
    [[nodiscard]] QString pictureTitle() const override { return m_title; }
    /// The title without its unit.
    [[nodiscard]] QString fileName() const override { return m_title.section(" (", 0, 0); }
    [[nodiscard]] QSize pictureSize() const override { return size().expandedTo({960, 320}); }
    void paintPicture(QPaintDevice& device, const QSize& size) override;

    [[nodiscard]] QRectF plotArea() const override;
    [[nodiscard]] ChartSides sidesAt(const QPointF& position) const override;
    void zoom(double factor, const QPointF& at, ChartSides sides) override;
    void pan(const QPointF& by, ChartSides sides) override;
    [[nodiscard]] QRectF selectionOf(const QPointF& from, const QPointF& to) const override;
    [[nodiscard]] QString selectionText(const QRectF& area) const override;
    void select(const QRectF& area) override;

    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    void moveCursor(int steps) override;
    void leaveCursor() override;
    [[nodiscard]] std::optional<QPointF> cursorPlace() const override;

    // The ids are places among the series.
    [[nodiscard]] std::optional<int> nameAt(const QPointF& position) const override;
    void toggleSeries(int id) override;
    void isolateSeries(int id) override;
    void showAllSeries() override;
    [[nodiscard]] bool hidesSeries() const override { return !m_hidden.empty(); }
    [[nodiscard]] std::optional<int> focusedName() const override;
    void moveNameFocus(int steps) override;

    [[nodiscard]] bool takesDrag(Qt::KeyboardModifiers keys) const override;
    void dragSeries(const QPointF& from, const QPointF& to) override;
    void endSeriesDrag() override;

    [[nodiscard]] QSize sizeHint() const override { return {640, 160}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {240, 72}; }

public slots:
    /// Shows the cursor of another chart; a moment that is not finite takes it away.
    void showCursorAt(double time);
    void hideCursor();

signals:
    void viewChanged(double from, double to);
    /// The cursor stands at this moment.
    void hoveredAt(double time);
    void hoverEnded();
    void clickedAt(double time);
    void rangeSelected(double from, double to);
    /// A drag with Shift has moved on by so many seconds.
    void shiftDragged(double seconds);
    void shiftDragEnded();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void invalidate();
    void prepare() const;
    [[nodiscard]] SensorScene scene() const;
    void zoomAt(double factor, double time);
    void zoomValuesAt(double factor, double pixel);
    void showInside(double from, double to);
    void paintCursor(QPainter& painter) const;
    [[nodiscard]] QString timeText(double time) const;

    QString m_title;
    QString m_emptyText;
    std::vector<SensorSeries> m_series;
    std::vector<SensorMark> m_marks;
    std::set<QString> m_hidden;
    double m_from = 0;
    double m_to = 0; ///< not after m_from: no view yet
    std::optional<std::pair<double, double>> m_limits;
    std::optional<std::pair<double, double>> m_values; ///< of the value axis, when zoomed
    std::function<QString(double)> m_timeText;
    bool m_dragZooms = true;
    bool m_hasTimeAxis = true;

    std::optional<double> m_cursor;
    std::optional<int> m_focused; ///< the name that the keys act on

    std::unique_ptr<PlotInteraction> m_interaction;
    std::unique_ptr<SensorDrawing> m_drawing;
    QPixmap m_picture; ///< without cursor and selection
    bool m_isStale = true;
    mutable bool m_needsLayout = true;
};

} // namespace kavela::desktop
