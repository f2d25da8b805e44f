#pragma once

#include "analysis/colouring.h"
#include "desktop/charts/chart_frame.h"
#include "desktop/charts/section_ticker.h"
#include "performance/loss_charts.h"

#include <QStringList>

#include <optional>
#include <vector>

class QCPPainter;

namespace kavela::desktop {

class LossState;
class RowTicker;

/// Who lost how much where: the runs of a group by the sections, in percent of the reference's
/// time, each with its number on the tint of the analyzer. A click on a cell shows that run and
/// section, one on a name makes that run the reference.
class HeatMapChart : public ChartFrame {
    Q_OBJECT

public:
    explicit HeatMapChart(QWidget* parent = nullptr);

    void show(const LossState& state);
    void markSection(std::size_t section);
    using QWidget::show;

    /// A run and a section, counted from 1.
    struct Place {
        std::size_t run = 0;
        std::size_t section = 0;

        friend bool operator==(const Place&, const Place&) = default;
    };

    [[nodiscard]] const LossHeatMap& map() const { return m_map; }
    /// "+9.6"; a dash where nothing is known.
    [[nodiscard]] QString textOf(std::size_t row, std::size_t section) const;
    /// What it is painted in; no colour where nothing is known.
    [[nodiscard]] std::optional<QColor> tintOf(std::size_t row, std::size_t section) const;
    /// What stands at a place of the plot; of no place what the keys have led to, else what is
    /// marked.
    [[nodiscard]] std::optional<Place> placeAt(const QPoint& position) const;
    /// Where a cell stands in the plot, its section counted from 0.
    [[nodiscard]] QRectF rectOf(std::size_t row, std::size_t section) const;

    void toggleSeries(int id) override;
    void isolateSeries(int id) override;
    void moveCursor(int steps) override;
    void leaveCursor() override;
    [[nodiscard]] std::optional<QPointF> cursorPlace() const override;
    [[nodiscard]] std::optional<int> nameAt(const QPointF& position) const override;
    [[nodiscard]] std::optional<int> focusedName() const override;
    void moveNameFocus(int steps) override;

signals:
    /// A cell was clicked, or Enter pressed on it; the section is counted from 1.
    void cellActivated(std::size_t run, std::size_t section);
    /// A name was clicked, or Space pressed in its row.
    void referenceRequested(std::size_t run);

private:
    struct Cursor {
        std::size_t row = 0;
        std::size_t section = 0; ///< from 0
    };

    [[nodiscard]] QString emptyReason() const override { return m_empty; }
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;

    void paintCells(QCPPainter& painter) const;
    void paintCell(QCPPainter& painter, std::size_t row, std::size_t section) const;
    void setCursor(std::optional<Cursor> cursor);
    void moveTo(std::ptrdiff_t row, std::ptrdiff_t section);
    [[nodiscard]] std::optional<Cursor> cellAt(const QPointF& position) const;
    /// Where the keys begin.
    [[nodiscard]] Cursor marked() const;
    [[nodiscard]] QString readOutOf(const Cursor& cursor) const;

    LossHeatMap m_map;
    std::vector<Band> m_bands;
    QStringList m_names;
    QString m_empty;
    QString m_title;
    QString m_subtitle;
    ColourScale m_scale = ColourScale::GreenRed;
    std::size_t m_run = 0;
    std::size_t m_section = 0;
    std::optional<std::size_t> m_reference; ///< run of the store
    std::optional<Cursor> m_cursor;
    QSharedPointer<SectionTicker> m_sections;
    QSharedPointer<RowTicker> m_rows;
};

} // namespace kavela::desktop
