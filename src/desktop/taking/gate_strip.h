#pragma once

#include "desktop/taking/cell_rows.h"

#include <QWidget>

#include <cstdint>
#include <vector>

namespace kavela::desktop {

/// The gates of the course in a row, upstream gates set apart, with the penalties of the run. One
/// gate is current: it takes the next penalty.
class GateStrip : public QWidget {
    Q_OBJECT

public:
    explicit GateStrip(QWidget* parent = nullptr);

    void setCourse(int gates, const std::vector<std::int64_t>& upGates);
    void setPenalties(const std::vector<std::int64_t>& penalties);
    /// Counted from 1; brought onto the course.
    void setCurrent(int gate);
    [[nodiscard]] int current() const { return m_current; }
    [[nodiscard]] int gates() const { return m_gates; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void gateClicked(int gate);
    void currentChanged(int gate);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    void fitRows();
    [[nodiscard]] QRectF placeOf(int gate) const;
    [[nodiscard]] int gateAt(QPointF place) const;
    [[nodiscard]] bool isUpstream(int gate) const;
    [[nodiscard]] std::int64_t penaltyAt(int gate) const;
    void paintGate(QPainter& painter, int gate) const;

    int m_gates = 0;
    int m_current = 1;
    std::vector<std::int64_t> m_upGates;
    std::vector<std::int64_t> m_penalties;
    CellRows m_rows;
};

} // namespace kavela::desktop
