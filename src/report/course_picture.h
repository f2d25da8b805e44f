#pragma once

#include "splitdata/course_design.h"
#include "splitdata/records.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

class QPainter;

/// Courses as they were drawn, painted onto pages, pictures and windows.
namespace kavela::report {

/// The longest side of a picture of a course, in pixels.
inline constexpr int LargestCourseSide = 1600;

/// What a race says of its course beside the drawing.
struct CourseWords {
    std::vector<std::int64_t> upGates;
    std::vector<QString> splitTitles;
};
[[nodiscard]] CourseWords courseWordsOf(const infodata031& info);

/// A gate that something is told of: its patch is filled, and a word stands beside it.
struct CourseGateMark {
    QColor fill;
    QColor ink; ///< of the number on it
    QString word;
};

struct CourseLook {
    /// Of a gate by its number; none where nothing is told of it.
    std::function<std::optional<CourseGateMark>(std::int64_t gate)> mark = {};
    bool hasLines = true;      ///< lines of runs
    bool hasBackground = true; ///< what lies below the drawing, otherwise nothing is painted there
};

/// The picture of the course as large as it fits into a place, in its middle. Throws nothing; a
/// background that cannot be read is white.
class CoursePainting {
public:
    CoursePainting(coursedesign001 design, double heightOfWidth, CourseWords words);

    /// Another drawing over the same picture, which is read again only where it is another one.
    [[nodiscard]] CoursePainting with(coursedesign001 design, CourseWords words) const;

    /// Where the picture lies in a place.
    [[nodiscard]] QRectF pictureIn(const QRectF& place) const;
    /// Paints the picture over exactly this place, nothing outside.
    void paint(QPainter& painter, const QRectF& picture, const CourseLook& look = {}) const;

    [[nodiscard]] const coursedesign001& design() const { return m_design; }
    [[nodiscard]] double heightOfWidth() const { return m_heightOfWidth; }
    [[nodiscard]] static QPointF placeOf(const coursepoint001& point, const QRectF& picture);
    [[nodiscard]] static coursepoint001 pointAt(const QPointF& place, const QRectF& picture);

private:
    coursedesign001 m_design;
    double m_heightOfWidth;
    CourseWords m_words;
    QImage m_background;
};

/// The picture of a drawing, ready to be kept in a split file: a PNG with the drawing in it, with
/// less pixels where that is needed for `MostCourseBytes`. Throws CourseError where no size will
/// do.
[[nodiscard]] Blob coursePicture(const CoursePainting& course);

/// A picture of any kind as what lies below a drawing: it stays as it is where it is small, and is
/// otherwise made smaller. Throws CourseError, with what is wrong, for what is no picture or larger
/// than `MostPhotoBytes`.
struct CourseGround {
    Blob picture;
    double heightOfWidth = 1;
};
inline constexpr std::size_t MostPhotoBytes = 40'000'000;
[[nodiscard]] CourseGround courseGround(std::span<const unsigned char> picture);

/// The course of a race, where its picture holds a drawing with gates.
[[nodiscard]] std::optional<CoursePainting> drawnCourse(const infodata031& info);

} // namespace kavela::report
