#pragma once

#include <QRectF>

#include <algorithm>

namespace kavela::desktop {

/// How cells stand beside each other: in one row as wide as their place, and in several where one
/// would leave each cell too little to be read.
class CellRows {
public:
    /// Pixels that a cell takes at most, and needs, in the usual font.
    CellRows(qreal widest, int narrowest) : m_widest(widest), m_narrowest(narrowest) {}

    /// True when that changes the number of rows. `growth` is that of the font.
    bool fit(int cells, int width, double growth) {
        const int before = m_rows;
        const int mostInRow = std::max(static_cast<int>(width / (m_narrowest * growth)), 1);
        m_growth = growth;
        m_cells = std::max(cells, 1);
        m_rows = std::clamp((m_cells + mostInRow - 1) / mostInRow, 1, MostRows);
        return m_rows != before;
    }

    [[nodiscard]] int count() const { return m_rows; }

    /// The place of a cell, counted from 0, within a place of that size.
    [[nodiscard]] QRectF placeOf(int cell, const QSizeF& size) const {
        const int inRow = (m_cells + m_rows - 1) / m_rows;
        const qreal step = std::min(m_widest * m_growth, size.width() / inRow);
        const qreal high = size.height() / m_rows;
        return QRectF(step * (cell % inRow), high * (cell / inRow), step, high)
            .adjusted(1, 1, -1, -1);
    }

private:
    static constexpr int MostRows = 3;

    qreal m_widest;
    int m_narrowest;
    double m_growth = 1;
    int m_cells = 1;
    int m_rows = 1;
};

} // namespace kavela::desktop
