#pragma once

#include "planning/interval_timer.h"

#include <QWidget>

namespace kavela::desktop {

/// What the timer shows: the phase by its word and its colour, the seconds that are left as large
/// as the window allows, set and repetition, what comes next, and a bar of the whole session.
class TimerFace : public QWidget {
    Q_OBJECT

public:
    TimerFace(QString title, IntervalPlan plan, QWidget* parent = nullptr);

    void showMoment(double elapsed, bool isRunning);

    [[nodiscard]] QString phaseText() const;
    [[nodiscard]] QString timeText() const;
    [[nodiscard]] QString placeText() const; ///< "Set 2 of 4   Repetition 3 of 6"
    [[nodiscard]] QString nextText() const;

    [[nodiscard]] QSize sizeHint() const override { return {960, 600}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, 220}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] IntervalStep step() const { return m_plan.step(m_plan.stepAt(m_elapsed)); }
    void paintBar(QPainter& painter, const QRectF& place) const;

    QString m_title;
    IntervalPlan m_plan;
    double m_elapsed = 0;
    bool m_isRunning = false;
};

} // namespace kavela::desktop
