#include "films/film_scene.h"

#include "films/digits.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::films {

namespace {

constexpr Shade Panel{40, 134, 122};
constexpr Shade Figures{235, 128, 128};
constexpr Shade Lit{138, 50, 196}; ///< orange: darker than the water and the line

constexpr Frames LitFor = 40;
constexpr int CaptionX = 8;
constexpr int CaptionY = FilmHeight - 24;

YuvPicture captionPicture(const QString& text) {
    QImage probe(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter measuring(&probe);
    setFilmFont(measuring, 12, false);
    const int wanted = measuring.fontMetrics().horizontalAdvance(text) + 16;
    const int width = std::min(wanted, FilmWidth - 2 * CaptionX) / 2 * 2;
    QImage image(width, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    setFilmFont(painter, 12, false);
    painter.setPen(QColor(0x26, 0x32, 0x38));
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return yuvPictureOf(image);
}

/// A dark plate with its corners cut off.
void drawPlate(YuvPicture& picture, Box inner, int margin) {
    const Box outer{inner.x - margin, inner.y - margin, inner.width + 2 * margin,
                    inner.height + 2 * margin};
    picture.fill({outer.x + 2, outer.y, outer.width - 4, outer.height}, Panel);
    picture.fill({outer.x, outer.y + 2, outer.width, outer.height - 4}, Panel);
}

} // namespace

FilmScene::FilmScene(std::shared_ptr<const CourseStrip> strip, RunOnFilm run,
                     const FilmedBoat& boat)
    : m_strip(std::move(strip)),
      m_run(std::move(run)),
      m_way(m_strip->course(), m_run),
      m_look(boat.look),
      m_caption(captionPicture(boat.caption)) {
    followBoat();
}

/// The camera rests while the boat goes through the middle of the picture; when the boat comes near
/// the edge, the camera is turned after it. It moves by two columns a frame, so that every picture
/// is exactly a part of the one before: that keeps films small.
void FilmScene::followBoat() {
    constexpr int ColumnsAFrame = 2;
    constexpr double Near = 0.68; ///< of the picture's width, in the direction of the water
    constexpr double Far = 0.3;
    const auto strip = [this](Frames frame) { return m_strip->place(m_way.at(frame).bow).x(); };
    const int last = m_strip->width() - FilmWidth - 2;
    const auto within = [last](double left) {
        return std::clamp(static_cast<int>(left) / ColumnsAFrame * ColumnsAFrame, 0, last);
    };
    const bool flowsRight = m_strip->flow() > 0;
    int left = within(strip(0) - FilmWidth * (flowsRight ? Far : 1 - Far));
    bool isTurning = false;
    for (Frames frame = 0; frame < m_run.length; ++frame) {
        const double part = (strip(frame) - left) / FilmWidth;
        const double along = flowsRight ? part : 1 - part;
        isTurning = along > (isTurning ? Far : Near);
        if (isTurning)
            left = std::clamp(left + (flowsRight ? ColumnsAFrame : -ColumnsAFrame), 0, last);
        m_left.push_back(left);
    }
}

std::int64_t FilmScene::clockAt(Frames frame) const {
    constexpr std::int64_t HundredthsPerFrame = 100 / sample::FramesPerSecond;
    const Frames stopped = m_run.finish ? std::min(frame, *m_run.finish) : frame;
    return std::max<Frames>(stopped - m_run.start, 0) * HundredthsPerFrame;
}

QPointF FilmScene::onPicture(QPointF onCourse, Frames frame) const {
    return m_strip->place(onCourse) - QPointF(m_left[static_cast<std::size_t>(frame)], 0);
}

void FilmScene::draw(Frames frame, YuvPicture& picture) const {
    m_strip->show(m_left[static_cast<std::size_t>(frame)], picture);
    drawLitLines(frame, picture);
    drawBoat(frame, picture);
    drawPoles(frame, picture);
    picture.copy(m_caption, CaptionX, CaptionY);
    drawPlate(picture, ClockRow.box(), 8);
    drawNumber(picture, ClockRow, clockAt(frame), Figures);
    drawPlate(picture, FrameRow.box(), 6);
    drawNumber(picture, FrameRow, frame, Figures);
}

void FilmScene::drawLitLines(Frames frame, YuvPicture& picture) const {
    const auto light = [&](const CourseLine& line, std::optional<Frames> mark) {
        if (!mark || frame < *mark || frame >= *mark + LitFor)
            return;
        const QPointF from = onPicture({line.x, line.top}, frame);
        const QPointF to = onPicture({line.x, line.bottom}, frame);
        const auto top = static_cast<int>(std::min(from.y(), to.y()));
        const auto height = static_cast<int>(std::abs(to.y() - from.y()));
        picture.fill({static_cast<int>(from.x()) - 2, top, 4, height}, Lit);
    };
    light(course().start, m_run.start);
    for (std::size_t k = 0; k < course().splits.size(); ++k)
        light(course().splits[k], m_run.marks[k]);
}

/// The upper pole is 0, the lower 1; -1 for a gate without a touch.
int FilmScene::touchedPole(std::size_t gate) const {
    constexpr std::int64_t Touch = 2;
    if (gate >= m_run.gates.size() || m_run.pens[gate] != Touch)
        return -1;
    const double middle = course().gates[gate].centre.y();
    return m_way.at(m_run.gates[gate]).bow.y() < middle ? 0 : 1;
}

/// How far the touched pole of a gate hangs downstream, in pixels: a damped pendulum from the
/// moment when the boat comes under it.
double FilmScene::swing(std::size_t gate, Frames frame) const {
    constexpr double Farthest = 13;
    constexpr double Period = 55; // frames
    constexpr double Fading = 60;
    const auto since = static_cast<double>(frame - m_run.gates[gate]);
    if (since < 0 || since > 6 * Fading)
        return 0;
    const double direction = course().gates[gate].isUpstream ? -1 : 1;
    return direction * Farthest * std::exp(-since / Fading) *
           std::sin(2 * std::numbers::pi * since / Period);
}

void FilmScene::drawPoles(Frames frame, YuvPicture& picture) const {
    for (std::size_t i = 0; i < course().gates.size(); ++i) {
        const GatePlace& gate = course().gates[i];
        const QPointF middle = onPicture(gate.centre, frame);
        constexpr double Margin = 24;
        if (middle.x() < -Margin || middle.x() > FilmWidth + Margin)
            continue;
        const int touched = touchedPole(i);
        for (const int pole : {0, 1}) {
            const QPointF hung = pole == 0 ? gate.upperPole() : gate.lowerPole();
            const QPointF at = onPicture(hung, frame);
            const double away = pole == touched ? swing(i, frame) * m_strip->flow() : 0;
            const Sprite sprite = away != 0 ? poleSprite(at + QPointF(away, 0), gate.isUpstream)
                                            : m_poles.at(static_cast<int>(at.x()),
                                                         static_cast<int>(at.y()), gate.isUpstream);
            picture.blend(sprite.image, sprite.x, sprite.y);
        }
    }
}

void FilmScene::drawBoat(Frames frame, YuvPicture& picture) const {
    constexpr double FramesPerPairOfStrokes = 72;
    const BoatPlace place = m_way.at(frame);
    const double stroke = static_cast<double>(std::max(frame, m_run.start - 60) - m_run.start) /
                          FramesPerPairOfStrokes;
    const Sprite sprite =
        boatSprite(m_look, onPicture(place.bow, frame), place.heading * m_strip->flow(), stroke);
    picture.blend(sprite.image, sprite.x, sprite.y);
}

} // namespace kavela::films
