#pragma once

#include "desktop/charts/interactive_chart.h"

#include <QWidget>

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <vector>

class QLabel;
class QStackedLayout;

namespace kavela::desktop {

class ChartPlot;
class PlotInteraction;
class ReadOut;
class SeriesLabels;

/// What every chart drawn by the plotting library has: a plot, its labels, a read-out at the
/// cursor, and words instead when there is nothing to show. It is drawn when it is seen or asked
/// for: a change of what it shows costs nothing on a tab that is not in front.
class ChartFrame : public QWidget, public InteractiveChart {
    Q_OBJECT

public:
    explicit ChartFrame(QWidget* parent);
    ~ChartFrame() override;

    /// What the chart says instead of being empty; nothing when it has something to show.
    [[nodiscard]] QString emptyMessage();
    /// The plot as it is drawn for what is shown at present.
    [[nodiscard]] ChartPlot& plot();
    [[nodiscard]] const SeriesLabels& labels() const { return *m_labels; }
    [[nodiscard]] PlotInteraction& interaction() const { return *m_interaction; }

    /// Saves as its extension asks: a picture as ".png" or ".svg", the visible range of the visible
    /// series as ".csv". Throws FileError, also for any other extension.
    void save(const std::filesystem::path& path);

    [[nodiscard]] QString csv() override;
    void fit() override;
    void toggleSeries(int id) override;
    void isolateSeries(int id) override;
    void showAllSeries() override;

    [[nodiscard]] bool hasContent() const override;
    [[nodiscard]] QString pictureTitle() const override;
    [[nodiscard]] QString pictureCaption() const override;
    [[nodiscard]] QSize pictureSize() const override;
    void paintPicture(QPaintDevice& device, const QSize& size) override;

    [[nodiscard]] QRectF plotArea() const override;
    [[nodiscard]] ChartSides sidesAt(const QPointF& position) const override;
    void zoom(double factor, const QPointF& at, ChartSides sides) override;
    void pan(const QPointF& by, ChartSides sides) override;
    [[nodiscard]] QRectF selectionOf(const QPointF& from, const QPointF& to) const override;
    void select(const QRectF& area) override;

    void moveCursor(int steps) override;
    void leaveCursor() override;
    [[nodiscard]] std::optional<QPointF> cursorPlace() const override;

    [[nodiscard]] std::optional<int> nameAt(const QPointF& position) const override;
    [[nodiscard]] bool hidesSeries() const override { return !m_hidden.empty(); }
    [[nodiscard]] std::optional<int> focusedName() const override;
    void moveNameFocus(int steps) override;

protected:
    /// Why there is nothing to show; empty otherwise.
    [[nodiscard]] virtual QString emptyReason() const = 0;
    /// Draws everything afresh into a plot without plottables.
    virtual void fill() = 0;
    [[nodiscard]] virtual QString csvText() const = 0;
    /// Where the arrow keys lead the cursor, in the plot's coordinates; as if pointed at.
    [[nodiscard]] virtual std::vector<QPointF> stops() const { return {}; }

    /// Forgets that series were hidden.
    void showAgain(const std::function<bool(int id)>& which) { std::erase_if(m_hidden, which); }
    void hideSeries(int id) { m_hidden.insert(id); }
    [[nodiscard]] bool isShown(int id) const { return !m_hidden.contains(id); }

    void invalidate();
    [[nodiscard]] ChartPlot& canvas() { return *m_plot; }
    [[nodiscard]] const ChartPlot& canvas() const { return *m_plot; }
    [[nodiscard]] SeriesLabels& seriesLabels() { return *m_labels; }
    [[nodiscard]] ReadOut& readOut() { return *m_readOut; }

    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    std::set<int> m_hidden;
    bool m_isStale = true;
    std::optional<std::size_t> m_stop; ///< where the keys have led the cursor

    ChartPlot* m_plot;
    SeriesLabels* m_labels;
    QLabel* m_message;
    QStackedLayout* m_stack;
    ReadOut* m_readOut;
    std::unique_ptr<PlotInteraction> m_interaction;
};

} // namespace kavela::desktop
