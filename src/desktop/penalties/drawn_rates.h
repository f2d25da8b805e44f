#pragma once

#include "report/drawn_course.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <map>
#include <optional>

namespace kavela {
struct CourseOfRates;
}

namespace kavela::desktop {

/// The course as it was drawn, with the rate of touches at each of its gates: darker where it is
/// touched more, and in percent beside it. A gate is chosen by a click, or by the arrows and Enter.
class DrawnRates : public QWidget {
    Q_OBJECT

public:
    explicit DrawnRates(QWidget* parent = nullptr);

    /// Null where no course was drawn.
    void show(report::SharedCourse drawn, const CourseOfRates& rates);
    using QWidget::show;

    /// Where the number of a drawn gate stands in the widget; none where it is not drawn.
    [[nodiscard]] std::optional<QPointF> placeOf(std::int64_t gate) const;
    /// What is told of a gate: "Gate 7: 12 %, 3 of 25 touched"; empty where nothing is known.
    [[nodiscard]] QString tellOf(std::int64_t gate) const;

    [[nodiscard]] QSize sizeHint() const override { return {560, 240}; }

signals:
    void gateActivated(qint64 gate);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Rate {
        double percent = 0;
        double share = 0;
        QString told;
    };

    [[nodiscard]] QRectF picture() const;
    [[nodiscard]] std::optional<std::int64_t> gateAt(const QPointF& place) const;
    void step(int by);

    report::SharedCourse m_drawn;
    std::map<std::int64_t, Rate> m_rates;
    std::optional<std::int64_t> m_current;
};

} // namespace kavela::desktop
