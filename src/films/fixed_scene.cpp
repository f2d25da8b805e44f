#include "films/fixed_scene.h"

#include "films/boat_way.h"
#include "films/digits.h"

namespace kavela::films {

namespace {

constexpr Shade FixedPanel{40, 134, 122};
constexpr Shade FixedFigures{235, 128, 128};
constexpr double FramesPerStrokes = 50;

/// Two lines and no gate.
CourseLayout sprintLayout() {
    CourseLayout course;
    course.start.title = QStringLiteral("Start");
    course.length = FixedScene::FinishColumn - FixedScene::StartColumn;
    course.splits.push_back({.title = QStringLiteral("Finish"), .x = course.length});
    return course;
}

} // namespace

FixedScene::FixedScene(std::vector<sample::SprintPassage> passages)
    : m_passages(std::move(passages)),
      m_strip(std::make_shared<CourseStrip>(sprintLayout(), Bank::Right)),
      m_left(static_cast<int>(m_strip->place({0, MidStream}).x() - StartColumn)) {
    for (const sample::SprintPassage& passage : m_passages)
        m_looks.push_back(boatLook(passage.boat.category, passage.boat.hand, passage.boat.crew()));
}

QPointF FixedScene::bowAt(std::size_t passage, Frames frame) const {
    const sample::SprintPassage& boat = m_passages[passage];
    const double speed =
        (FinishColumn - StartColumn) / static_cast<double>(boat.finish - boat.start);
    return {StartColumn + speed * (static_cast<double>(frame - boat.start) + 0.5),
            MidStream + boat.lane * (WaterBottom - WaterTop)};
}

void FixedScene::draw(Frames frame, YuvPicture& picture) const {
    m_strip->show(m_left, picture);
    for (std::size_t i = 0; i < m_passages.size(); ++i) {
        const QPointF bow = bowAt(i, frame);
        if (bow.x() < -BoatLength || bow.x() > FilmWidth + 2 * BoatLength)
            continue;
        const double stroke =
            static_cast<double>(frame - m_passages[i].start + 1000) / FramesPerStrokes;
        const Sprite sprite = boatSprite(m_looks[i], bow, {1, 0}, stroke);
        picture.blend(sprite.image, sprite.x, sprite.y);
    }
    const Box row = FrameRow.box();
    picture.fill({row.x - 6, row.y - 6, row.width + 13, row.height + 12}, FixedPanel);
    drawNumber(picture, FrameRow, frame, FixedFigures);
}

} // namespace kavela::films
