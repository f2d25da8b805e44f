#include "films/course_strip.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <random>

namespace kavela::films {

namespace {

constexpr double BeforeStart = 290;
constexpr double AfterFinish = 400;

constexpr QColor Grass(0xdc, 0xe5, 0xcb);
constexpr QColor Tuft(0xcc, 0xd9, 0xb6);
constexpr QColor Shore(0xb9, 0xb8, 0xa4);
constexpr QColor Water(0xcd, 0xe7, 0xf0);
constexpr QColor Foam(0xe2, 0xf3, 0xf8);
constexpr QColor Ripple(0xb9, 0xda, 0xe7);
constexpr QColor Text(0x33, 0x41, 0x48);
constexpr QColor Upstream(0xc6, 0x28, 0x28);
constexpr QColor Downstream(0x1f, 0x7a, 0x3d);

/// The bank's edge: it winds a little.
double shoreAt(double x, double y) {
    return y + 2.6 * std::sin(x / 41 + y) + 1.6 * std::sin(x / 17 + 2 * y);
}

QPainterPath waterShape(int width) {
    constexpr int Step = 6;
    QPainterPath shape(QPointF(-Step, shoreAt(-Step, WaterTop)));
    for (int x = 0; x <= width + Step; x += Step)
        shape.lineTo(x, shoreAt(x, WaterTop));
    for (int x = width + Step; x >= -Step; x -= Step)
        shape.lineTo(x, shoreAt(x, WaterBottom));
    shape.closeSubpath();
    return shape;
}

/// The same marks on the water and the grass at every call, on every computer.
class Scatter {
public:
    /// A number from `low` up to `high`.
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(m_engine()) / 4294967296.0;
    }

private:
    std::mt19937 m_engine{11};
};

void paintTufts(QPainter& painter, int width, Scatter& scatter) {
    painter.setPen(QPen(Tuft, 2.2, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < width / 16; ++i) {
        const QPointF at(scatter.between(0, width), scatter.between(0, FilmHeight));
        painter.drawLine(at, at + QPointF(scatter.between(2, 7), 0));
    }
}

void paintRipples(QPainter& painter, int width, Scatter& scatter) {
    for (int i = 0; i < width / 15; ++i) {
        const QPointF at(scatter.between(0, width), scatter.between(WaterTop + 6, WaterBottom - 6));
        const double length = scatter.between(12, 46);
        const double bow = scatter.between(-3, 3);
        QPainterPath ripple(at);
        ripple.quadTo(at + QPointF(length / 2, bow), at + QPointF(length, 0));
        painter.setPen(
            QPen(i % 3 == 0 ? Ripple : Foam, i % 3 == 0 ? 1.2 : 2.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(ripple);
    }
}

} // namespace

void setFilmFont(QPainter& painter, int pixels, bool isBold) {
    QFont font;
    font.setFamilies({QStringLiteral("Open Sans"), QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setWeight(isBold ? QFont::Bold : QFont::DemiBold);
    painter.setFont(font);
}

CourseStrip::CourseStrip(CourseLayout course, Bank bank)
    : m_course(std::move(course)),
      m_bank(bank),
      m_width(static_cast<int>(m_course.length + BeforeStart + AfterFinish) / 2 * 2),
      m_picture(yuvPictureOf(paint())) {}

QPointF CourseStrip::place(QPointF onCourse) const {
    const double x = onCourse.x() + BeforeStart;
    if (m_bank == Bank::Right)
        return {x, onCourse.y()};
    return {m_width - x, 2 * MidStream - onCourse.y()};
}

void CourseStrip::show(int left, YuvPicture& picture) const {
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(m_picture.yLine(y) + left, picture.width(), picture.yLine(y));
    for (int y = 0; y < picture.colourHeight(); ++y) {
        std::copy_n(m_picture.uLine(y) + left / 2, picture.colourWidth(), picture.uLine(y));
        std::copy_n(m_picture.vLine(y) + left / 2, picture.colourWidth(), picture.vLine(y));
    }
}

QImage CourseStrip::paint() const {
    QImage image(m_width, FilmHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Grass);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintWater(painter);
    paintLine(painter, m_course.start);
    for (const CourseLine& line : m_course.splits)
        paintLine(painter, line);
    for (const GatePlace& gate : m_course.gates)
        paintNumber(painter, gate);
    return image;
}

void CourseStrip::paintWater(QPainter& painter) const {
    Scatter scatter;
    paintTufts(painter, m_width, scatter);
    painter.setPen(QPen(Shore, 3));
    painter.setBrush(Water);
    painter.drawPath(waterShape(m_width));
    painter.setBrush(Qt::NoBrush);
    paintRipples(painter, m_width, scatter);
}

/// The title stands on the bank above, or where the caption would hide it, in the water at the
/// lower end.
void CourseStrip::paintLine(QPainter& painter, const CourseLine& line) const {
    constexpr QSizeF Title(120, 16);
    const QPointF ends[] = {place({line.x, line.top}), place({line.x, line.bottom})};
    const double top = std::min(ends[0].y(), ends[1].y());
    const double bottom = std::max(ends[0].y(), ends[1].y());
    const double x = ends[0].x();
    QPen dashes(Qt::white, 2, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({4, 3});
    painter.setPen(dashes);
    painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    const bool reachesBelow = bottom >= WaterBottom;
    const QPointF corner = reachesBelow
                               ? QPointF(x + 14, WaterBottom - 6 - Title.height())
                               : QPointF(x - Title.width() / 2, WaterTop - 6 - Title.height());
    setFilmFont(painter, 13, true);
    painter.setPen(Text);
    painter.drawText(QRectF(corner, Title),
                     (reachesBelow ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter,
                     line.title);
}

void CourseStrip::paintNumber(QPainter& painter, const GatePlace& gate) const {
    constexpr double FromPole = 15;
    const QPointF pole = gate.bank < 0 ? gate.upperPole() : gate.lowerPole();
    const QPointF at = place(pole + QPointF(0, gate.bank * FromPole));
    const QColor colour = gate.isUpstream ? Upstream : Downstream;
    painter.setPen(QPen(colour, 1.2));
    painter.setBrush(Qt::white);
    const QRectF plate(at.x() - 10, at.y() - 7.5, 20, 15);
    painter.drawRoundedRect(plate, 3, 3);
    painter.setBrush(Qt::NoBrush);
    setFilmFont(painter, 12, true);
    painter.setPen(colour);
    painter.drawText(plate, Qt::AlignCenter, QString::number(gate.number));
}

} // namespace kavela::films
