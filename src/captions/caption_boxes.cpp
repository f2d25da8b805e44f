#include "captions/caption_boxes.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela {

namespace {

const QColor CaptionGround(0, 0, 0, 150);
const QColor CaptionText(255, 255, 255);
/// Says that what is seen is not what was: it must not be overlooked.
const QColor TempoGround(255, 214, 64, 230);
const QColor TempoText(20, 20, 20);
const QColor PenaltyGround(176, 24, 32, 215);

struct BoxLook {
    QColor ground = CaptionGround;
    QColor text = CaptionText;
    double scale = 1; ///< of the letters
    bool isBold = false;
};

BoxLook lookOf(CaptionKind kind) {
    switch (kind) {
    case CaptionKind::RunClock:
        return {.scale = 1.2, .isBold = true};
    case CaptionKind::Split:
        return {.isBold = true};
    case CaptionKind::Waits:
    case CaptionKind::Stretch:
        return {.ground = TempoGround, .text = TempoText, .isBold = true};
    case CaptionKind::Penalty:
        return {.ground = PenaltyGround, .isBold = true};
    case CaptionKind::Section:
        return {.scale = 0.9};
    default:
        return {};
    }
}

int evenUp(double length) {
    return static_cast<int>(std::ceil(length / 2)) * 2;
}

QFont captionFont(const CaptionBox& box, const BoxLook& look) {
    QFont font;
    font.setPixelSize(std::max(static_cast<int>(std::lround(box.pixels * look.scale)), 6));
    font.setBold(look.isBold);
    return font;
}

/// Digits of some typefaces differ in width; a clock that trembles cannot be read.
int clockWidth(const QFontMetrics& metrics, const QString& text) {
    QString widest = text;
    for (QChar& letter : widest)
        if (letter.isDigit())
            letter = u'0';
    return metrics.horizontalAdvance(widest);
}

QImage emptyImage(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

struct GapScale {
    double least = 0;
    double most = 0;
};

GapScale scaleOf(const CaptionScene& scene) {
    constexpr double Smallest = 0.5; // seconds: hundredths are not to look like worlds
    GapScale scale{0, Smallest};
    for (const GapLine& line : scene.gaps)
        for (const GapPoint& point : line.points()) {
            if (point.common > scene.to)
                continue;
            scale.least = std::min(scale.least, point.gap);
            scale.most = std::max(scale.most, point.gap);
        }
    return scale;
}

/// Draws within the strip of the chart.
class GapChartPainter {
public:
    GapChartPainter(QPainter& painter, const CaptionScene& scene, const GapChartLook& look)
        : m_painter(painter),
          m_scene(scene),
          m_size(look.size),
          m_now(scene.from + (scene.to - scene.from) * look.column / std::max(look.size.width, 1)),
          m_scale(scaleOf(scene)) {
        QFont font;
        font.setPixelSize(std::max(m_size.height / 4, 8));
        m_painter.setFont(font);
    }

    void drawGround() {
        m_painter.fillRect(0, 0, m_size.width, m_size.height, CaptionGround);
        m_painter.setPen(QPen(QColor(255, 255, 255, 110), thickness() / 2));
        m_painter.drawLine(QPointF(0, y(0)), QPointF(m_size.width, y(0)));
    }

    void drawLine(const GapLine& line, const QColor& colour) {
        const auto points = line.upTo(m_now);
        QPen pen(colour, thickness());
        pen.setStyle(Qt::DashLine);
        m_painter.setPen(pen);
        for (std::size_t i = 1; i < points.size(); ++i)
            m_painter.drawLine(at(points[i - 1]), at(points[i]));
        const std::size_t known = line.knownAt(m_now);
        m_painter.setBrush(colour);
        m_painter.setPen(Qt::NoPen);
        for (std::size_t i = 0; i < known; ++i)
            m_painter.drawEllipse(at(points[i]), thickness() * 1.6, thickness() * 1.6);
        if (known > 1)
            drawGap(points[known - 1], colour);
    }

private:
    [[nodiscard]] double thickness() const { return std::max(m_size.height / 30.0, 1.5); }
    [[nodiscard]] double y(double gap) const {
        const double margin = m_size.height * 0.2;
        const double share = (gap - m_scale.least) / (m_scale.most - m_scale.least);
        return margin + share * (m_size.height - 2 * margin);
    }
    [[nodiscard]] QPointF at(const GapPoint& point) const {
        const double share = (point.common - m_scene.from) / (m_scene.to - m_scene.from);
        return {share * m_size.width, y(point.gap)};
    }

    /// The number stands beside its dot, where there is room above or below the line.
    void drawGap(const GapPoint& point, const QColor& colour) {
        const QString text = QString::fromStdString(gapText(point.gap));
        const QFontMetrics metrics(m_painter.font());
        const QPointF place = at(point);
        const double left = std::clamp(place.x() - metrics.horizontalAdvance(text) / 2.0, 2.0,
                                       double(m_size.width - metrics.horizontalAdvance(text) - 2));
        const double space = thickness() * 2.5;
        const bool isAbove = place.y() - space - metrics.ascent() > 0;
        m_painter.setPen(colour);
        m_painter.drawText(
            QPointF(left, isAbove ? place.y() - space : place.y() + space + metrics.ascent()),
            text);
    }

    QPainter& m_painter;
    const CaptionScene& m_scene;
    VideoSize m_size;
    double m_now;
    GapScale m_scale;
};

} // namespace

QColor colourOfFilm(std::size_t film) {
    static const std::array<QColor, 4> colours{QColor(255, 255, 255), QColor(255, 170, 60),
                                               QColor(90, 210, 255), QColor(140, 235, 120)};
    return colours[film % colours.size()];
}

QImage captionBoxImage(const CaptionBox& box) {
    const BoxLook look = lookOf(box.kind);
    const QFont font = captionFont(box, look);
    const QFontMetrics metrics(font);
    const int margin = std::max(box.pixels / 4, 2);
    const bool hasBar = box.kind == CaptionKind::Names;
    const int bar = hasBar ? std::max(box.pixels / 6, 2) * 2 : 0;
    const QString text =
        metrics.elidedText(QString::fromStdString(box.text).simplified(), Qt::ElideRight,
                           std::max(box.widest - 2 * margin - bar, 1));
    const bool isClock = box.kind == CaptionKind::RunClock;
    const int textWidth = isClock ? clockWidth(metrics, text) : metrics.horizontalAdvance(text);
    QImage image =
        emptyImage(evenUp(textWidth + 2 * margin + bar), evenUp(metrics.height() + margin));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(image.rect(), margin / 2.0, margin / 2.0);
    painter.fillPath(shape, look.ground);
    if (hasBar)
        painter.fillRect(margin / 2, margin, bar / 2, image.height() - 2 * margin,
                         colourOfFilm(box.film));
    painter.setFont(font);
    // Where both films fill one place, the colour tells whose time it is.
    const bool isTime = isClock || box.kind == CaptionKind::Split;
    painter.setPen(isTime ? colourOfFilm(box.film) : look.text);
    painter.drawText(QRect(margin + bar, 0, textWidth + margin / 2, image.height()),
                     static_cast<int>(Qt::AlignVCenter) |
                         static_cast<int>(isClock ? Qt::AlignRight : Qt::AlignLeft),
                     text);
    return image;
}

QImage gapChartImage(const CaptionScene& scene, const GapChartLook& look) {
    QImage image = emptyImage(look.size.width, look.size.height);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    GapChartPainter chart(painter, scene, look);
    chart.drawGround();
    for (std::size_t i = 0; i < scene.gaps.size(); ++i)
        chart.drawLine(scene.gaps[i], colourOfFilm(i + 1));
    return image;
}

std::shared_ptr<const Overlay> overlayOf(const QImage& image) {
    return std::make_shared<const Overlay>(VideoSize{image.width(), image.height()},
                                           image.constBits(), image.bytesPerLine());
}

} // namespace kavela
