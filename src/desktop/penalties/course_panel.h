#pragma once

#include "desktop/penalties/course_picture.h"
#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/background_work.h"

#include <QString>
#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;

namespace kavela::desktop {

class DrawnRates;
class IntervalChart;

/// The course of a race with the rate of touches at each of its gates, over the drawing of the
/// course where the file holds one.
class CoursePanel : public QWidget {
    Q_OBJECT

public:
    explicit CoursePanel(QWidget* parent = nullptr);

    /// The course that is shown stays, where it is among the figures.
    void show(const SharedFigures& figures);
    using QWidget::show;
    void showNext(int step);

    [[nodiscard]] IntervalChart& chart() const { return *m_chart; }
    [[nodiscard]] DrawnRates& drawn() const { return *m_drawn; }

signals:
    /// A gate was clicked, of a file.
    void gateActivated(std::uint32_t file, qint64 gate);

private:
    void showCourse();
    void showChart();
    /// Reads the drawing beside the window.
    void askForPicture();
    [[nodiscard]] const CourseOfRates* course() const;
    [[nodiscard]] std::optional<Reason> whyOf(std::optional<std::size_t> mark) const;

    SharedFigures m_figures;
    QLabel* m_title;
    QComboBox* m_courses;
    QLabel* m_remark;
    IntervalChart* m_chart;
    DrawnRates* m_drawn; ///< below it, where the course was drawn
    CoursePicture m_picture;
    QString m_pictureOf;                             ///< path of its file
    std::shared_ptr<const FactStore> m_pictureFacts; ///< as that was read then
    int m_asked = 0;                                 ///< number of the latest picture
    BackgroundWork m_work;
};

} // namespace kavela::desktop
