#pragma once

#include "desktop/charts/interactive_chart.h"

#include <QObject>

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;
class QNativeGestureEvent;
class QWheelEvent;
class QWidget;

namespace kavela::desktop {

class SelectionBand;

/// The mouse, the keys and the menu of every chart.
///
/// The wheel and two fingers zoom at the cursor, over the numbers of an axis that axis alone; the
/// wheel tilted or turned with Shift pans, with Ctrl it is left to what is around. A left drag
/// marks a range; a middle drag, a drag with Ctrl and one over the numbers of an axis pan; double
/// click fits. "+", "-" and "0" zoom and fit, the left and right arrow keys move the cursor (with
/// Shift by ten steps, with Ctrl the view). A click on a name hides its series, a double click
/// shows it alone; up and down choose a name, Space and Enter do the same to it.
class PlotInteraction : public QObject {
    Q_OBJECT

public:
    /// Watches the widget, which must not outlive the chart without the interaction being gone.
    PlotInteraction(QWidget& widget, InteractiveChart& chart);

    /// Where files are saved unless the user goes elsewhere.
    void setFolder(const QString& folder) { m_folder = folder; }
    /// Asks where to save the chart as "png", "svg" or "csv", which a chosen name may overrule.
    void askAndSave(const QString& kind = QStringLiteral("png"));

signals:
    void saved(const QString& path);
    /// Told in a box of its own where nobody listens.
    void savingFailed(const QString& path, const QString& reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, Press, Select, Pan, Series };

    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void doubleClick(const QMouseEvent& event);
    void click(const QPointF& at);
    void endDrag();
    /// Whether the event was used.
    [[nodiscard]] bool turnWheel(const QWheelEvent& event);
    [[nodiscard]] bool pinch(const QNativeGestureEvent& event);
    [[nodiscard]] bool pressKey(const QKeyEvent& event);
    [[nodiscard]] bool moveByKey(const QKeyEvent& event);
    [[nodiscard]] bool actOnName(int key);
    [[nodiscard]] bool escape();
    void zoomByKey(double factor);
    void showMenu(const QContextMenuEvent& event);
    void tellNotSaved(const QString& path, const std::exception_ptr& fault);

    QWidget& m_widget;
    InteractiveChart& m_chart;
    SelectionBand* m_band;
    QString m_folder;
    Drag m_drag = Drag::None;
    ChartSides m_panned;
    QPointF m_press;
    QPointF m_last; ///< where the drag has come to
    bool m_isKeyCursor = false;
};

} // namespace kavela::desktop
