#pragma once

#include "desktop/cross/heats/boat_looks.h"
#include "desktop/cross/heats/shown_orders.h"

#include <QWidget>

namespace kavela::desktop {

/// Gates across, places down: each boat where it passed, with a line from gate to gate that shows
/// who went past whom, and the places won and lost in numbers.
class PlaceGrid : public QWidget {
    Q_OBJECT

public:
    explicit PlaceGrid(QWidget* parent = nullptr);

    /// Height of the gate numbers and of a place, in pixels of the usual font.
    static constexpr int HeaderHeight = 26;
    static constexpr int RowHeight = 40;
    /// Width that a course of seven gates needs, in pixels.
    [[nodiscard]] int usualWidth() const { return narrowestWidth(7); }

    /// The columns from left to right. `front` is the one of the gate in front, none without a
    /// value.
    void show(std::vector<ShownOrder> columns, std::vector<BoatLook> boats,
              std::optional<std::size_t> front);

    [[nodiscard]] const std::vector<ShownOrder>& columns() const { return m_columns; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Where a boat stands: both counted from 0.
    [[nodiscard]] QRectF placeOf(std::size_t column, std::size_t place) const;

signals:
    void columnClicked(std::size_t column);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] int narrowestWidth(int columns) const;
    [[nodiscard]] std::optional<std::size_t> columnAt(QPointF place) const;
    [[nodiscard]] std::size_t rows() const;
    [[nodiscard]] QString tipOf(const ShownOrder& order) const;
    void paintHeader(QPainter& painter, std::size_t column) const;
    void paintLines(QPainter& painter) const;
    void paintLine(QPainter& painter, std::size_t from, std::size_t to) const;
    void paintColumn(QPainter& painter, std::size_t column) const;

    std::vector<ShownOrder> m_columns;
    std::vector<BoatLook> m_boats;
    std::optional<std::size_t> m_front;
};

} // namespace kavela::desktop
