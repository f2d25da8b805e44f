#pragma once

#include "desktop/charts/chart_plot.h"
#include "desktop/charts/series_label.h"

#include <vector>

namespace kavela::desktop {

/// Moves labels apart that would cover each other, each as little from its wanted place as the
/// others and the edges allow. Centres in pixels, ascending.
[[nodiscard]] std::vector<double> spreadLabels(std::vector<double> wanted, double distance,
                                               double top, double bottom);

/// The legend of a chart: the names to the right of the plot, each at the height where its line
/// ends. Part of the plot, so that a saved picture has it too.
class SeriesLabels : public QCPLayerable {
public:
    explicit SeriesLabels(ChartPlot& plot);

    /// Shows these, in room that is taken from the plot.
    void setLabels(std::vector<SeriesLabel> labels);
    [[nodiscard]] const std::vector<SeriesLabel>& labels() const { return m_labels; }

    /// The series whose label is at a place of the widget.
    [[nodiscard]] std::optional<int> idAt(const QPointF& position) const;
    /// The middle of a label, as drawn last.
    [[nodiscard]] std::optional<QPointF> placeOf(int id) const;

    /// The label that the keys act on.
    void moveFocus(int steps);
    [[nodiscard]] std::optional<int> focusedId() const { return m_focus; }

private:
    struct Place {
        std::size_t label;
        QRectF rect;
    };

    void applyDefaultAntialiasingHint(QCPPainter* painter) const override;
    void draw(QCPPainter* painter) override;
    void takeRoom();
    void place();
    [[nodiscard]] double wantedHeight(const SeriesLabel& label) const;
    [[nodiscard]] const QCPAxis& axisOf(const SeriesLabel& label) const;
    [[nodiscard]] double left() const;
    void drawLabel(QCPPainter& painter, const SeriesLabel& label, const QRectF& rect) const;
    void drawLeader(QCPPainter& painter, const SeriesLabel& label, const QRectF& rect) const;

    ChartPlot& m_plot;
    std::vector<SeriesLabel> m_labels;
    std::vector<Place> m_places; ///< from top to bottom
    std::optional<int> m_focus;
    int m_nameWidth = 0;
    int m_shownNameWidth = 0; ///< less where the plot is narrow
    int m_valueWidth = 0;
};

} // namespace kavela::desktop
