#include "report/course_picture.h"

#include "common/text.h"
#include "report/typeface.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace kavela::report {

namespace {

// Colours of gates are those that hang over the water; up and down differ by form as well.
constexpr QColor DownGreen(0x1f, 0x8a, 0x4c);
constexpr QColor UpRed(0xc2, 0x2f, 0x2f);
constexpr QColor BankBrown(0x6f, 0x5b, 0x3e);
constexpr QColor LineBlue(0x1e, 0x5b, 0x7b);
constexpr QColor SplitInk(0x3a, 0x3a, 0x3a);
constexpr QColor Halo(0xff, 0xff, 0xff, 0xd0);
/// All sizes of the drawing are shares of the width of its picture.
constexpr qreal Unit = 1.0 / 400;
constexpr int LeastCourseSide = 400;
constexpr qreal SmallerStep = 0.75;
constexpr qsizetype LargestKeptGround = 500'000; ///< bytes
constexpr int GroundQuality = 80;
constexpr double FlattestGround = 0.05; ///< height of width
constexpr int LargestPhotoSide = 30'000;

QByteArray qtBytes(const Blob& blob) {
    return {reinterpret_cast<const char*>(blob.bytes.data()),
            static_cast<qsizetype>(blob.bytes.size())};
}

Blob blobOfBytes(const QByteArray& bytes) {
    return Blob{std::vector<unsigned char>(bytes.begin(), bytes.end())};
}

/// Not larger than any picture of a course, whatever its header says: only what is shown is made.
QImage readPicture(const QByteArray& bytes, int largestSide) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true); // a phone's photograph
    const QSize size = reader.size();
    if (std::max(size.width(), size.height()) > LargestPhotoSide)
        return {};
    if (std::max(size.width(), size.height()) > largestSide)
        reader.setScaledSize(size.scaled(largestSide, largestSide, Qt::KeepAspectRatio));
    return reader.read();
}

/// Paints one drawing over one place.
class CourseBrush {
public:
    CourseBrush(QPainter& painter, const QRectF& picture, const CourseWords& words)
        : m_painter(painter), m_picture(picture), m_unit(picture.width() * Unit), m_words(words) {}

    void bank(const std::vector<coursepoint001>& points) const {
        stroke(points, QPen(BankBrown, 2 * m_unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    void line(const courseline001& line) const {
        stroke(line.points,
               QPen(LineBlue, 1.2 * m_unit, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
        if (!line.points.empty())
            word(at(line.points.front()) + QPointF(3 * m_unit, 0), reportText(line.name), LineBlue);
    }

    void splitLine(const coursesplitline001& line) const {
        const QPointF a = at(line.a);
        const QPointF b = at(line.b);
        m_painter.setPen(QPen(SplitInk, m_unit, Qt::DotLine));
        m_painter.drawLine(a, b);
        const auto index = static_cast<std::size_t>(line.split - 1);
        QString title = index < m_words.splitTitles.size() ? m_words.splitTitles[index] : QString();
        if (title.isEmpty())
            title = QStringLiteral("Split %1").arg(line.split);
        word((a.y() < b.y() ? a : b) + QPointF(2 * m_unit, 0), title, SplitInk);
    }

    void text(const coursetext001& text) const { word(at(text.at), reportText(text.text), Ink); }

    void gate(const coursegate001& gate, const std::optional<CourseGateMark>& mark) const {
        const bool isUp = std::ranges::find(m_words.upGates, gate.number) != m_words.upGates.end();
        const QColor colour = isUp ? UpRed : DownGreen;
        const QPointF left = at(gate.left);
        const QPointF right = at(gate.right);
        m_painter.setPen(QPen(Halo, 3 * m_unit));
        m_painter.drawLine(left, right);
        m_painter.setPen(QPen(colour, 1.2 * m_unit));
        m_painter.drawLine(left, right);
        for (const QPointF& pole : {left, right})
            paintPole(pole, colour, isUp);
        paintNumber((left + right) / 2, gate.number, colour, mark);
        if (mark && !mark->word.isEmpty())
            word((left + right) / 2 + QPointF(7 * m_unit, 0), mark->word, Ink);
    }

private:
    [[nodiscard]] QPointF at(const coursepoint001& point) const {
        return CoursePainting::placeOf(point, m_picture);
    }

    void stroke(const std::vector<coursepoint001>& points, const QPen& pen) const {
        QPolygonF polygon;
        for (const coursepoint001& point : points)
            polygon << at(point);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(pen);
        m_painter.drawPolyline(polygon);
    }

    /// Round for a downstream gate, a square for an upstream one: red and green are one colour to
    /// some.
    void paintPole(const QPointF& pole, const QColor& colour, bool isUp) const {
        m_painter.setPen(QPen(Qt::white, 0.5 * m_unit));
        m_painter.setBrush(colour);
        const QRectF place(pole.x() - 2 * m_unit, pole.y() - 2 * m_unit, 4 * m_unit, 4 * m_unit);
        isUp ? m_painter.drawRect(place) : m_painter.drawEllipse(place);
    }

    void paintNumber(const QPointF& middle, std::int64_t number, const QColor& colour,
                     const std::optional<CourseGateMark>& mark) const {
        const QRectF patch(middle.x() - 5 * m_unit, middle.y() - 4 * m_unit, 10 * m_unit,
                           8 * m_unit);
        m_painter.setPen(QPen(colour, 0.6 * m_unit));
        m_painter.setBrush(mark ? mark->fill : QColor(Qt::white));
        m_painter.drawRoundedRect(patch, 2 * m_unit, 2 * m_unit);
        m_painter.setFont(font(6, true));
        m_painter.setPen(mark ? mark->ink : Ink);
        m_painter.drawText(patch, Qt::AlignCenter, QString::number(number));
    }

    /// With a pale edge, so that it can be read over a photo. The place is the middle of its left
    /// edge.
    void word(const QPointF& place, const QString& text, const QColor& colour) const {
        if (text.isEmpty())
            return;
        const QFont wordFont = font(6.5, false);
        QPainterPath path;
        path.addText(place + QPointF(0, 2.3 * m_unit), wordFont, text);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(Halo, 1.6 * m_unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPath(path);
        m_painter.fillPath(path, colour);
    }

    [[nodiscard]] QFont font(qreal units, bool isBold) const {
        QFont font = m_painter.font();
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(units * m_unit))));
        font.setBold(isBold);
        return font;
    }

    QPainter& m_painter;
    QRectF m_picture;
    qreal m_unit;
    const CourseWords& m_words;
};

QImage imageOf(const CoursePainting& course, int largestSide) {
    const double height = course.heightOfWidth();
    const double width = height > 1 ? largestSide / height : largestSide;
    QImage image(std::max(1, static_cast<int>(std::lround(width))),
                 std::max(1, static_cast<int>(std::lround(width * height))), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    course.paint(painter, QRectF(image.rect()));
    return image;
}

QByteArray bytesOf(const QImage& image, const char* format, int quality = -1) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes;
}

std::span<const unsigned char> spanOf(const QByteArray& bytes) {
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
            static_cast<std::size_t>(bytes.size())};
}

} // namespace

CourseWords courseWordsOf(const infodata031& info) {
    CourseWords words{info.upGates, {}};
    for (const std::string& title : info.splitTitles)
        words.splitTitles.push_back(reportText(title));
    return words;
}

CoursePainting::CoursePainting(coursedesign001 design, double heightOfWidth, CourseWords words)
    : m_design(std::move(design)),
      m_heightOfWidth(heightOfWidth),
      m_words(std::move(words)),
      m_background(m_design.background.bytes.empty()
                       ? QImage()
                       : readPicture(qtBytes(m_design.background), LargestCourseSide)) {}

CoursePainting CoursePainting::with(coursedesign001 design, CourseWords words) const {
    if (!(design.background == m_design.background))
        return {std::move(design), m_heightOfWidth, std::move(words)};
    CoursePainting other = *this;
    other.m_design = std::move(design);
    other.m_words = std::move(words);
    return other;
}

QRectF CoursePainting::pictureIn(const QRectF& place) const {
    QRectF picture(QPointF(), QSizeF(1, m_heightOfWidth).scaled(place.size(), Qt::KeepAspectRatio));
    picture.moveCenter(place.center());
    return picture;
}

QPointF CoursePainting::placeOf(const coursepoint001& point, const QRectF& picture) {
    return picture.topLeft() + QPointF(point.x, point.y) * picture.width();
}

coursepoint001 CoursePainting::pointAt(const QPointF& place, const QRectF& picture) {
    const QPointF away = (place - picture.topLeft()) / std::max(picture.width(), 1.0);
    return {away.x(), away.y()};
}

void CoursePainting::paint(QPainter& painter, const QRectF& picture, const CourseLook& look) const {
    painter.save();
    painter.setClipRect(picture, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    if (look.hasBackground) {
        painter.fillRect(picture, Qt::white);
        painter.drawImage(picture, m_background);
    }
    const CourseBrush brush(painter, picture, m_words);
    for (const auto& bank : m_design.banks)
        brush.bank(bank);
    for (const coursesplitline001& line : m_design.splitlines)
        brush.splitLine(line);
    for (const courseline001& line : m_design.lines)
        if (look.hasLines)
            brush.line(line);
    for (const coursegate001& gate : m_design.gates)
        brush.gate(gate, look.mark ? look.mark(gate.number) : std::nullopt);
    for (const coursetext001& text : m_design.texts)
        brush.text(text);
    painter.restore();
}

Blob coursePicture(const CoursePainting& course) {
    for (qreal side = LargestCourseSide;; side *= SmallerStep) {
        const QByteArray png = bytesOf(imageOf(course, static_cast<int>(side)), "PNG");
        try {
            return withCourse(spanOf(png), course.design());
        } catch (const CourseError&) {
            if (side * SmallerStep < LeastCourseSide)
                throw; // the drawing is what is too large, or wrong
        }
    }
}

CourseGround courseGround(std::span<const unsigned char> picture) {
    if (picture.size() > MostPhotoBytes)
        throw CourseError(
            say("The picture has {} MB. Up to 40 MB can be read; save it smaller first.",
                picture.size() / 1'000'000));
    const QByteArray bytes(reinterpret_cast<const char*>(picture.data()),
                           static_cast<qsizetype>(picture.size()));
    const QImage image = readPicture(bytes, LargestCourseSide);
    if (image.isNull())
        throw CourseError(say("This is no picture that can be read. Take a PNG or JPEG file."));
    const double height = static_cast<double>(image.height()) / image.width();
    if (height < FlattestGround || height > FarthestFromCourse)
        throw CourseError(say("The picture is far too long for a course."));
    if (bytes.size() <= LargestKeptGround)
        return {blobOfBytes(bytes), height};
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white); // a plan without a ground of its own would turn black
    QPainter(&opaque).drawImage(0, 0, image);
    return {blobOfBytes(bytesOf(opaque, "JPG", GroundQuality)), height};
}

std::optional<CoursePainting> drawnCourse(const infodata031& info) {
    std::optional<StoredCourse> stored = courseIn(info.coursedesign);
    if (!stored || stored->design.gates.empty())
        return {};
    return CoursePainting(std::move(stored->design), stored->heightOfWidth, courseWordsOf(info));
}

} // namespace kavela::report
