#include "films/boat_picture.h"

#include "films/boat_way.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <numbers>

namespace kavela::films {

namespace {

constexpr double HalfBeam = 7;
constexpr int BoatBox = 92; ///< the boat with its paddles fits in, however it lies
constexpr int PoleBox = 16;
constexpr QPointF Middle(PoleBox / 2, PoleBox / 2);

constexpr QColor Outline(0x2a, 0x36, 0x3d);
constexpr QColor Skin(0xe8, 0xb8, 0x94);
constexpr QColor Vest(0x3a, 0x4a, 0x55);
constexpr QColor Helmet(0xfd, 0xfd, 0xfb);
constexpr QColor Paddle(0x4d, 0x3a, 0x28);
constexpr QColor Green(0x27, 0x9a, 0x4d);
constexpr QColor Red(0xd9, 0x2d, 0x2d);

constexpr std::array Decks{QColor(0xf2, 0xa9, 0x1c), QColor(0xe4, 0x5b, 0x3a),
                           QColor(0x3f, 0x8f, 0xd2), QColor(0x8a, 0x5f, 0xc4),
                           QColor(0xe8, 0x6f, 0xa6), QColor(0xf4, 0xd0, 0x3a)};

/// An empty image whose middle is near a place.
Sprite spriteAround(QPointF centre, int size) {
    const auto evenCorner = [size](double at) {
        return 2 * static_cast<int>(std::floor((at - size / 2.0) / 2));
    };
    Sprite sprite{QImage(size, size, QImage::Format_ARGB32_Premultiplied), evenCorner(centre.x()),
                  evenCorner(centre.y())};
    sprite.image.fill(Qt::transparent);
    return sprite;
}

/// A hull with its bow at the origin and its stern to the left: slender, widest behind the middle.
/// Without `rim` pixels at its edge.
QPolygonF hull(double rim) {
    const double beam = HalfBeam - rim;
    const QPointF bow(-4 * rim, 0);
    const QPointF stern(-BoatLength + 4 * rim, 0);
    QPainterPath path(bow);
    path.cubicTo(-BoatLength * 0.25, -beam * 0.55, -BoatLength * 0.34, -beam, -BoatLength * 0.55,
                 -beam);
    path.cubicTo(-BoatLength * 0.75, -beam, -BoatLength * 0.88, -beam * 0.5, stern.x(), 0);
    path.cubicTo(-BoatLength * 0.88, beam * 0.5, -BoatLength * 0.75, beam, -BoatLength * 0.55,
                 beam);
    path.cubicTo(-BoatLength * 0.34, beam, -BoatLength * 0.25, beam * 0.55, bow.x(), 0);
    return path.toFillPolygon();
}

void paintHull(QPainter& painter, const QColor& deck) {
    // Filling twice is much faster than drawing an outline.
    static const QPolygonF Whole = hull(0);
    static const QPolygonF Deck = hull(1.1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Outline);
    painter.drawPolygon(Whole);
    painter.setBrush(deck);
    painter.drawPolygon(Deck);
}

/// Corners enough for what is a few pixels wide; curves would have to be cut into corners anew for
/// every picture.
void fillOval(QPainter& painter, QPointF centre, double halfLength, double halfWidth) {
    constexpr std::size_t Corners = 16;
    static const std::array<QPointF, Corners> Unit = [] {
        std::array<QPointF, Corners> unit;
        for (std::size_t i = 0; i < Corners; ++i) {
            const double turn = 2 * std::numbers::pi * static_cast<double>(i) / Corners;
            unit[i] = {std::cos(turn), std::sin(turn)};
        }
        return unit;
    }();
    std::array<QPointF, Corners> oval;
    for (std::size_t i = 0; i < Corners; ++i)
        oval[i] = centre + QPointF(halfLength * Unit[i].x(), halfWidth * Unit[i].y());
    painter.drawConvexPolygon(oval.data(), Corners);
}

/// The blades lie across the boat and swing; `side` is 0 for both, -1 to port, 1 to starboard.
void paintPaddle(QPainter& painter, double seat, double swing, int side) {
    constexpr double Reach = 20;
    constexpr double Sweep = 9;
    const QPointF port(seat + 3 + Sweep * swing, -Reach);
    const QPointF starboard(seat + 3 + Sweep * (side == 0 ? -swing : swing), Reach);
    const QPointF grip(seat + 3, 0);
    painter.setPen(QPen(Paddle, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(side > 0 ? grip - QPointF(0, 5) : port,
                     side < 0 ? grip + QPointF(0, 5) : starboard);
    painter.setPen(QPen(Paddle, 4, Qt::SolidLine, Qt::RoundCap));
    if (side <= 0)
        painter.drawLine(port, port + QPointF(0, 5));
    if (side >= 0)
        painter.drawLine(starboard, starboard - QPointF(0, 5));
}

void paintAthlete(QPainter& painter, double seat) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Skin);
    fillOval(painter, QPointF(seat + 2, -6.5), 2.4, 2.4);
    fillOval(painter, QPointF(seat + 2, 6.5), 2.4, 2.4);
    painter.setBrush(Vest);
    fillOval(painter, QPointF(seat - 1, 0), 4, 7);
    painter.setBrush(Outline);
    fillOval(painter, QPointF(seat, 0), 4.3, 4.3);
    painter.setBrush(Helmet);
    fillOval(painter, QPointF(seat, 0), 3.3, 3.3);
}

void paintCrew(QPainter& painter, const BoatLook& look, double stroke) {
    const double swing = std::sin(2 * std::numbers::pi * stroke);
    for (int athlete = 0; athlete < look.athletes; ++athlete) {
        const double seat = look.athletes == 1 ? -BoatLength * 0.53
                            : athlete == 0     ? -BoatLength * 0.38
                                               : -BoatLength * 0.66;
        const bool isRight = look.paddlesRight == (athlete == 0);
        paintPaddle(painter, seat, swing, look.hasDoubleBlade ? 0 : isRight ? 1 : -1);
        paintAthlete(painter, seat);
    }
}

} // namespace

BoatLook boatLook(const std::string& category, const std::string& hand, const std::string& crew) {
    std::size_t sum = 0;
    for (const char c : crew)
        sum = sum * 31 + static_cast<unsigned char>(c);
    return {.athletes = category.find('2') == std::string::npos ? 1 : 2,
            .hasDoubleBlade = category.starts_with('K'),
            .paddlesRight = hand != "Left",
            .deck = Decks[sum % Decks.size()]};
}

Sprite boatSprite(const BoatLook& look, QPointF bow, QPointF heading, double stroke) {
    Sprite sprite = spriteAround(bow - heading * (BoatLength / 2), BoatBox);
    QPainter painter(&sprite.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bow - QPointF(sprite.x, sprite.y));
    painter.rotate(std::atan2(heading.y(), heading.x()) * 180 / std::numbers::pi);
    paintHull(painter, look.deck);
    paintCrew(painter, look, stroke);
    return sprite;
}

Sprite poleSprite(QPointF centre, bool isUpstream) {
    Sprite sprite = spriteAround(centre, PoleBox);
    QPainter painter(&sprite.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre - QPointF(sprite.x, sprite.y));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(0, 0), 5.2, 5.2);
    painter.setBrush(isUpstream ? Red : Green);
    painter.drawEllipse(QPointF(0, 0), 4.2, 4.2);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(0, 0), 1.6, 1.6);
    return sprite;
}

PoleImages::PoleImages() {
    for (const bool isUpstream : {false, true})
        for (const int offset : {0, 1, 2, 3})
            m_images[index(offset % 2, offset / 2, isUpstream)] =
                poleSprite(Middle + QPointF(offset % 2, offset / 2), isUpstream).image;
}

Sprite PoleImages::at(int x, int y, bool isUpstream) const {
    const int oddX = x & 1;
    const int oddY = y & 1;
    return {m_images[index(oddX, oddY, isUpstream)], x - oddX - PoleBox / 2,
            y - oddY - PoleBox / 2};
}

} // namespace kavela::films
