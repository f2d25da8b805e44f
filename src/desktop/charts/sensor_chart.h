#pragma once

#include "desktop/charts/sensor_series.h"

#include <QPixmap>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <set>
#include <utility>

class QPainter;

namespace kavela::desktop {

class SensorDrawing;
struct SensorScene;

/// A chart of long rows of samples against time. A repaint costs what the chart is wide, not what
/// the rows are long.
///
/// The wheel zooms at the cursor, over the value axis that axis alone; a left drag selects a range
/// and zooms into it; a middle drag pans; a drag with Shift asks to move the series in time; double
/// click fits. "+", "-", "0" and the arrow keys do the same. A click on a name hides its series, a
/// double click shows it alone. The value axis follows what is seen until it is zoomed.
///
/// Charts of a window share view and cursor by viewChanged → setView, hoveredAt → showCursorAt and
/// hoverEnded → hideCursor; each tells a change once, so that they may be connected in a ring.
class SensorChart : public QWidget {
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
    void fit();
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
    [[nodiscard]] QString csv() const;

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
    /// A menu of the chart's own is wanted, at a place of the screen.
    void menuRequested(const QPoint& at);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    enum class Drag { None, Press, Select, Pan, Shift };

    void invalidate();
    void prepare() const;
    [[nodiscard]] SensorScene scene() const;
    void zoomAt(double factor, double time);
    void zoomValuesAt(double factor, double pixel);
    void showInside(double from, double to);
    void moveCursorTo(double time);
    void moveBy(double share, bool movesView);
    void endDrag(const QPointF& at);
    void toggleName(const QString& name);
    void isolateName(const QString& name);
    void paintCursor(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
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

    Drag m_drag = Drag::None;
    QPointF m_press;
    QPointF m_last; ///< where the drag has come to
    std::optional<double> m_cursor;

    std::unique_ptr<SensorDrawing> m_drawing;
    QPixmap m_picture; ///< without cursor and selection
    bool m_isStale = true;
    mutable bool m_needsLayout = true;
};

} // namespace kavela::desktop
