#pragma once

#include <QFlags>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>

#include <optional>

class QPaintDevice;

namespace kavela::desktop {

/// What of a chart is saved and copied.
class SavedChart {
public:
    virtual ~SavedChart() = default;

    [[nodiscard]] virtual QString pictureTitle() const = 0;
    [[nodiscard]] virtual QString pictureCaption() const { return {}; }
    /// Proposed for a file, without an extension.
    [[nodiscard]] virtual QString fileName() const { return pictureTitle(); }
    /// In pixels of the screen; a chart in a narrow corner of its window makes a larger picture.
    [[nodiscard]] virtual QSize pictureSize() const = 0;
    /// Draws what is seen at present, on its ground, into that size.
    virtual void paintPicture(QPaintDevice& device, const QSize& size) = 0;
    /// The visible range of the visible series as semicolon-separated text.
    [[nodiscard]] virtual QString csv() = 0;
};

/// The axes of a chart.
enum class ChartSide { Across = 1, Left = 2, Right = 4 };
using ChartSides = QFlags<ChartSide>;
inline constexpr ChartSides AllSides =
    ChartSides(ChartSide::Across) | ChartSide::Left | ChartSide::Right;

/// A chart as PlotInteraction moves it, whatever it is drawn by. Places are those of the widget
/// that the interaction watches; series go by an id of the chart's own.
class InteractiveChart : public SavedChart {
public:
    /// Whether there is anything to move and to save.
    [[nodiscard]] virtual bool hasContent() const = 0;
    /// Where the data stand.
    [[nodiscard]] virtual QRectF plotArea() const = 0;
    /// What the wheel and a drag move at a place: over the numbers of an axis, that axis alone.
    [[nodiscard]] virtual ChartSides sidesAt(const QPointF& position) const = 0;

    /// A factor below 1 shows less; what is at the place stays there.
    virtual void zoom(double factor, const QPointF& at, ChartSides sides) = 0;
    /// Moves the data by so many pixels, as far as there are any.
    virtual void pan(const QPointF& by, ChartSides sides) = 0;
    /// What a drag marks.
    [[nodiscard]] virtual QRectF selectionOf(const QPointF& from, const QPointF& to) const = 0;
    /// Stands in what is marked, such as its length.
    [[nodiscard]] virtual QString selectionText(const QRectF& /*area*/) const { return {}; }
    virtual void select(const QRectF& area) = 0;
    /// Shows everything again.
    virtual void fit() = 0;

    virtual void hoverAt(const QPointF& position) = 0;
    virtual void clickAt(const QPointF& position) = 0;
    /// Puts the cursor on one of the next places, and moves the view where it would leave it.
    virtual void moveCursor(int steps) = 0;
    virtual void leaveCursor() = 0;
    /// Where the keys zoom; nothing without a cursor in the plot.
    [[nodiscard]] virtual std::optional<QPointF> cursorPlace() const = 0;

    /// The series whose name stands at a place.
    [[nodiscard]] virtual std::optional<int> nameAt(const QPointF& position) const = 0;
    /// Hides a series or shows it again; shows it alone, or all again.
    virtual void toggleSeries(int id) = 0;
    virtual void isolateSeries(int id) = 0;
    virtual void showAllSeries() = 0;
    [[nodiscard]] virtual bool hidesSeries() const = 0;
    /// The name that the keys act on.
    [[nodiscard]] virtual std::optional<int> focusedName() const = 0;
    virtual void moveNameFocus(int steps) = 0;

    /// Whether a drag with these keys held is the chart's own: it moves series, not the view.
    [[nodiscard]] virtual bool takesDrag(Qt::KeyboardModifiers /*keys*/) const { return false; }
    virtual void dragSeries(const QPointF& /*from*/, const QPointF& /*to*/) {}
    virtual void endSeriesDrag() {}
};

} // namespace kavela::desktop
