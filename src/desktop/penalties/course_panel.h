#pragma once

#include "desktop/penalties/penalty_figures.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace kavela::desktop {

class IntervalChart;

/// The course of a race with the rate of touches at each of its gates.
class CoursePanel : public QWidget {
    Q_OBJECT

public:
    explicit CoursePanel(QWidget* parent = nullptr);

    /// The course that is shown stays, where it is among the figures.
    void show(const SharedFigures& figures);
    using QWidget::show;
    void showNext(int step);

    [[nodiscard]] IntervalChart& chart() const { return *m_chart; }

signals:
    /// A gate was clicked, of a file.
    void gateActivated(std::uint32_t file, qint64 gate);

private:
    void showCourse();
    [[nodiscard]] const CourseOfRates* course() const;
    [[nodiscard]] std::optional<Reason> whyOf(std::optional<std::size_t> mark) const;

    SharedFigures m_figures;
    QLabel* m_title;
    QComboBox* m_courses;
    IntervalChart* m_chart;
};

} // namespace kavela::desktop
