#pragma once

#include "boatmotion/session_table.h"

#include <QWidget>

namespace kavela::desktop {

/// What the left and the right side do, as bars from the middle.
class BalanceView : public QWidget {
    Q_OBJECT

public:
    explicit BalanceView(QWidget* parent = nullptr);

    /// Bars, or why there are none where the sides of the strokes are not known.
    void show(const std::array<SideFigures, 2>& sides, bool isSideKnown);
    using QWidget::show;

    /// "right +11 %", "even", or a dash.
    [[nodiscard]] static QString differenceText(std::optional<double> left,
                                                std::optional<double> right);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QString name;
        std::optional<double> left;
        std::optional<double> right;
        int decimals;
    };
    [[nodiscard]] std::vector<Row> rows() const;
    void paintRow(QPainter& painter, const QRectF& area, const Row& row) const;

    std::array<SideFigures, 2> m_sides;
    bool m_isSideKnown = true;
};

} // namespace kavela::desktop
