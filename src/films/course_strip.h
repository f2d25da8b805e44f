#pragma once

#include "films/course_layout.h"
#include "films/yuv_picture.h"

class QImage;
class QPainter;

namespace kavela::films {

/// From which bank a camera looks at the course.
enum class Bank {
    Right, ///< the water flows to the right
    Left   ///< it flows to the left
};

/// The whole course as one long picture, of which a film shows a part: banks, water, lines and
/// gate numbers; the poles hang above the boats and are not in it. Needs a QGuiApplication while it
/// is made; then it may be read from any thread.
class CourseStrip {
public:
    CourseStrip(CourseLayout course, Bank bank);

    [[nodiscard]] const CourseLayout& course() const { return m_course; }
    [[nodiscard]] int width() const { return m_width; }
    /// 1 where the water flows to the right, otherwise -1.
    [[nodiscard]] double flow() const { return m_bank == Bank::Right ? 1 : -1; }

    /// Where a place of the course is on the strip.
    [[nodiscard]] QPointF place(QPointF onCourse) const;

    /// Shows the strip from an even column on: from 0 to width() minus the film's width.
    void show(int left, YuvPicture& picture) const;

private:
    [[nodiscard]] QImage paint() const;
    void paintWater(QPainter& painter) const;
    void paintLine(QPainter& painter, const CourseLine& line) const;
    void paintNumber(QPainter& painter, const GatePlace& gate) const;

    CourseLayout m_course;
    Bank m_bank;
    int m_width;
    YuvPicture m_picture;
};

/// The font of all text in the films.
void setFilmFont(QPainter& painter, int pixels, bool isBold);

} // namespace kavela::films
