#include "desktop/course/course_canvas.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

using PartKind = CoursePart::Kind;

constexpr double HandReach = 9;    ///< pixels
constexpr double LeastDrag = 6;    ///< pixels: less is a click
constexpr double BendOfHand = 1.5; ///< pixels by which a hand trembles
constexpr double SmallMove = 1;    ///< pixels of an arrow key, as it is shown
constexpr double LargeMove = 10;
constexpr double KeyTurn = 5; ///< degrees
constexpr coursepoint001 HalfSplitLine{0, 0.12};
constexpr double HalfLine = 0.2;

PartKind kindOf(CourseTool tool) {
    switch (tool) {
    case CourseTool::SplitLine:
        return PartKind::SplitLine;
    case CourseTool::Bank:
        return PartKind::Bank;
    case CourseTool::Line:
        return PartKind::Line;
    case CourseTool::Text:
        return PartKind::Text;
    case CourseTool::Hold:
    case CourseTool::Gate:
        return PartKind::Gate;
    }
    return PartKind::Gate;
}

std::optional<CourseDraft> withCourseLine(CourseDraft draft, CourseTool tool,
                                          std::vector<coursepoint001> points) {
    if (points.size() < 2)
        return {};
    if (tool == CourseTool::Bank)
        draft.design.banks.push_back(std::move(points));
    else
        draft.design.lines.push_back({{}, std::move(points)});
    return draft;
}

} // namespace

CourseCanvas::CourseCanvas(QWidget* parent)
    : QWidget(parent), m_painting({}, CourseDraft().heightOfWidth, {}), m_lens(*this, [this] {
          return m_painting.pictureIn(QRectF(rect()).adjusted(1, 1, -1, -1));
      }) {
    setObjectName("courseCanvas");
    setFocusPolicy(Qt::StrongFocus); // first: what is told of a part without it stays
    setAccessibleName(tr("Drawing of the course"));
    setMinimumSize(320, 220);
}

void CourseCanvas::show(const CourseDraft& draft) {
    m_drag.reset();
    const bool isAsHigh = draft.heightOfWidth == m_painting.heightOfWidth();
    m_draft = draft;
    m_painting =
        isAsHigh ? m_painting.with(m_draft.design, m_draft.words())
                 : report::CoursePainting(m_draft.design, m_draft.heightOfWidth, m_draft.words());
    if (m_selected && !hasPart(m_draft.design, *m_selected))
        m_selected.reset();
    if (!isAsHigh)
        m_lens.showAll();
    update();
    emit selectionChanged();
}

void CourseCanvas::setTool(CourseTool tool) {
    cancelDrag();
    m_tool = tool;
    showCursor();
}

void CourseCanvas::showCursor() {
    setCursor(
        m_lens.cursor().value_or(m_tool == CourseTool::Hold ? Qt::ArrowCursor : Qt::CrossCursor));
}

void CourseCanvas::select(std::optional<CoursePart> part) {
    m_selected = part && hasPart(m_draft.design, *part) ? part : std::nullopt;
    update();
    emit selectionChanged();
}

bool CourseCanvas::selectNext(int step) {
    const std::vector<CoursePart> parts = partsOf(m_draft.design);
    std::ptrdiff_t place = step > 0 ? -1 : std::ssize(parts);
    if (m_selected) {
        const CoursePart whole{m_selected->kind, m_selected->index};
        place = std::ranges::find(parts, whole) - parts.begin();
    }
    place += step;
    const bool isThere = place >= 0 && place < std::ssize(parts);
    select(isThere ? std::optional(parts[static_cast<std::size_t>(place)]) : std::nullopt);
    reveal();
    return isThere;
}

void CourseCanvas::selectNextPoint(int step) {
    if (!m_selected)
        return;
    const CoursePart whole{m_selected->kind, m_selected->index};
    // The whole is one more place in the ring.
    const auto count = std::ssize(pointsOf(m_draft.design, whole));
    const auto place = m_selected->point ? static_cast<std::ptrdiff_t>(*m_selected->point) : count;
    const auto next = (place + step + count + 1) % (count + 1);
    select(
        CoursePart{whole.kind, whole.index,
                   next == count ? std::nullopt : std::optional(static_cast<std::size_t>(next))});
    reveal();
}

/// Keys reach parts that lie out of sight: what they select or move comes into the middle then.
void CourseCanvas::reveal() {
    if (!m_selected || zoom().showsAll())
        return;
    const std::vector<coursepoint001> points =
        pointsOf(m_draft.design, {m_selected->kind, m_selected->index});
    const auto isSeen = [this](const coursepoint001& point) {
        return QRectF(rect()).contains(placeOf(point));
    };
    if (points.empty() || (m_selected->point ? isSeen(points[*m_selected->point])
                                             : std::ranges::any_of(points, isSeen)))
        return;
    const QPointF at = placeOf(m_selected->point ? points[*m_selected->point] : points.front());
    m_lens.center(at);
}

QPointF CourseCanvas::placeOf(const coursepoint001& point) const {
    return report::CoursePainting::placeOf(point, picture());
}

coursepoint001 CourseCanvas::pointAt(const QPointF& place) const {
    return report::CoursePainting::pointAt(place, picture());
}

double CourseCanvas::widthsOf(double pixels) const {
    return pixels / std::max(picture().width(), 1.0);
}

void CourseCanvas::wheelEvent(QWheelEvent* event) {
    event->setAccepted(m_lens.turnWheel(*event));
}

void CourseCanvas::mousePressEvent(QMouseEvent* event) {
    // What is being drawn is drawn to its end first.
    if (!m_drag && m_lens.press(*event)) {
        showCursor();
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    const coursepoint001 at = pointAt(event->position());
    if (!picture().contains(event->position())) {
        select({});
        return;
    }
    if (m_tool == CourseTool::Text)
        emit textWanted(at);
    else
        beginDrag(at);
}

void CourseCanvas::beginDrag(const coursepoint001& at) {
    if (m_tool == CourseTool::Hold) {
        select(partNear(m_draft.design, at, widthsOf(HandReach)));
        if (!m_selected)
            return;
    }
    m_drag = Drag{at, at, {at}, m_draft};
}

void CourseCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (m_lens.move(*event))
        return;
    if (!m_drag)
        return;
    m_drag->to = pointAt(event->position());
    if (m_drag->way.size() < MostCoursePoints)
        m_drag->way.push_back(m_drag->to);
    follow(*m_drag);
    if (m_drag->after)
        m_painting = m_painting.with(m_drag->after->design, m_drag->after->words());
    update();
}

/// A hand that only trembles clicks.
void CourseCanvas::follow(Drag& drag) const {
    const double away = std::hypot(drag.to.x - drag.from.x, drag.to.y - drag.from.y);
    if (drag.after || away >= widthsOf(LeastDrag))
        drag.after = m_tool == CourseTool::Hold ? afterHold(drag) : afterTool(drag);
}

std::optional<CourseDraft> CourseCanvas::afterHold(const Drag& drag) const {
    CourseDraft after = drag.before;
    after.design = m_selected->point ? pulledPart(std::move(after.design), *m_selected, drag.to)
                                     : movedPart(std::move(after.design), *m_selected,
                                                 drag.to.x - drag.from.x, drag.to.y - drag.from.y);
    return after;
}

/// Where the press was is the middle of a gate, and the hand drags its right pole round. A split
/// line is drawn from bank to bank.
CourseSpan CourseCanvas::spanOf(const Drag& drag, const coursepoint001& usual) const {
    const coursepoint001 way{drag.to.x - drag.from.x, drag.to.y - drag.from.y};
    const double length = std::hypot(way.x, way.y);
    if (length < widthsOf(LeastDrag))
        return {drag.from, usual};
    if (m_tool == CourseTool::SplitLine)
        return {{drag.from.x + way.x / 2, drag.from.y + way.y / 2}, {way.x / 2, way.y / 2}};
    const double half = std::hypot(usual.x, usual.y);
    return {drag.from, {way.x / length * half, way.y / length * half}};
}

std::optional<CourseDraft> CourseCanvas::afterTool(const Drag& drag) const {
    switch (m_tool) {
    case CourseTool::Gate:
        return withNextGate(drag.before, spanOf(drag, usualHalfGate(drag.before)));
    case CourseTool::SplitLine:
        return withNextSplitLine(drag.before, spanOf(drag, HalfSplitLine));
    case CourseTool::Bank:
    case CourseTool::Line:
        return withCourseLine(drag.before, m_tool, smoothed(drag.way, widthsOf(BendOfHand)));
    case CourseTool::Hold:
    case CourseTool::Text:
        return {};
    }
    return {};
}

void CourseCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (m_lens.release()) {
        showCursor();
        return;
    }
    if (event->button() != Qt::LeftButton || !m_drag)
        return;
    const Drag drag = *m_drag;
    m_drag.reset();
    if (m_tool == CourseTool::Hold) {
        if (drag.after)
            emit edited(stepName(), *drag.after, false);
        return;
    }
    // A click alone makes a gate or a split line, and no line.
    const bool isClick = !drag.after;
    if (isClick && (m_tool == CourseTool::Bank || m_tool == CourseTool::Line))
        emit told(tr("Hold the button down and draw along the water."));
    else
        finish(isClick ? afterTool(drag) : drag.after);
}

QString CourseCanvas::stepName() const {
    return m_selected ? qtText(courseNameOf(m_draft.design, {m_selected->kind, m_selected->index}))
                      : tr("course");
}

void CourseCanvas::finish(const std::optional<CourseDraft>& after) {
    if (!after) {
        sayNoMore();
        return;
    }
    const CourseDraft drawn = *after;
    selectNewest(drawn);
    emit edited(qtText(courseNameOf(drawn.design, *m_selected)), drawn, false);
}

void CourseCanvas::sayNoMore() {
    emit told(
        m_tool == CourseTool::Gate
            ? tr("All %1 gates of the race are drawn. Race and course says how many there are.")
                  .arg(m_draft.gates)
            : tr("All %1 splits of the race are drawn. Race and course says how many there "
                 "are.")
                  .arg(m_draft.splits));
}

/// Before the draft that has it is shown, which keeps what is selected.
void CourseCanvas::selectNewest(const CourseDraft& after) {
    const PartKind kind = kindOf(m_tool);
    const std::size_t count = kind == PartKind::Gate        ? after.design.gates.size()
                              : kind == PartKind::SplitLine ? after.design.splitlines.size()
                              : kind == PartKind::Bank      ? after.design.banks.size()
                              : kind == PartKind::Line      ? after.design.lines.size()
                                                            : after.design.texts.size();
    m_selected = CoursePart{kind, count - 1};
}

void CourseCanvas::putInMiddle() {
    const coursepoint001 middle = pointAt(m_lens.seen().center()); // of what is seen
    const double half = HalfLine / zoom().factor();
    if (m_tool == CourseTool::Text)
        emit textWanted(middle);
    else if (m_tool == CourseTool::Bank || m_tool == CourseTool::Line)
        finish(withCourseLine(m_draft, m_tool,
                              {{middle.x - half, middle.y}, middle, {middle.x + half, middle.y}}));
    else if (m_tool != CourseTool::Hold)
        finish(afterTool({middle, middle, {middle}, m_draft}));
}

void CourseCanvas::removeSelected() {
    if (!m_selected)
        return;
    const CoursePart part = *m_selected;
    edit(tr("%1 removed").arg(stepName()), withoutPart(m_draft.design, part), false);
    select({}); // what has its place now is something else
}

void CourseCanvas::moveSelected(const QPointF& pixels) {
    if (m_selected)
        edit(stepName(),
             movedPart(m_draft.design, *m_selected, widthsOf(pixels.x()), widthsOf(pixels.y())),
             true);
    reveal();
}

void CourseCanvas::turnSelected(double degrees) {
    if (m_selected)
        edit(stepName(), turnedPart(m_draft.design, *m_selected, degrees), true);
}

void CourseCanvas::edit(const QString& what, coursedesign001 design, bool byKey) {
    CourseDraft after = m_draft;
    after.design = std::move(design);
    emit edited(what, after, byKey);
}

void CourseCanvas::cancelDrag() {
    if (!m_drag)
        return;
    m_drag.reset();
    m_painting = m_painting.with(m_draft.design, m_draft.words());
    update();
}

void CourseCanvas::keyPressEvent(QKeyEvent* event) {
    if (!takeKey(*event) && !m_lens.pressKey(*event))
        QWidget::keyPressEvent(event);
    showCursor();
}

void CourseCanvas::keyReleaseEvent(QKeyEvent* event) {
    if (!m_lens.releaseKey(*event))
        QWidget::keyReleaseEvent(event);
    showCursor();
}

void CourseCanvas::focusOutEvent(QFocusEvent* event) {
    m_lens.loseFocus();
    showCursor();
    QWidget::focusOutEvent(event);
}

bool CourseCanvas::takeKey(const QKeyEvent& event) {
    const bool isTurn = event.modifiers().testFlag(Qt::AltModifier);
    const double move = event.modifiers().testFlag(Qt::ShiftModifier) ? LargeMove : SmallMove;
    switch (event.key()) {
    case Qt::Key_Left:
        isTurn ? turnSelected(-KeyTurn) : moveSelected({-move, 0});
        return true;
    case Qt::Key_Right:
        isTurn ? turnSelected(KeyTurn) : moveSelected({move, 0});
        return true;
    case Qt::Key_Up:
        moveSelected({0, -move});
        return true;
    case Qt::Key_Down:
        moveSelected({0, move});
        return true;
    case Qt::Key_PageDown:
        selectNextPoint(1);
        return true;
    case Qt::Key_PageUp:
        selectNextPoint(-1);
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        removeSelected();
        return true;
    case Qt::Key_Insert:
        putInMiddle();
        return true;
    case Qt::Key_Escape:
        // First what is being done, then what is chosen, and only then the window.
        if (!m_drag && !m_selected)
            return false;
        m_drag ? cancelDrag() : select({});
        return true;
    default:
        return false;
    }
}

bool CourseCanvas::focusNextPrevChild(bool isNext) {
    return selectNext(isNext ? 1 : -1) || QWidget::focusNextPrevChild(isNext);
}

void CourseCanvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painting.paint(painter, picture());
    paintSelected(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(hasFocus() ? QPen(theme::Accent, 2) : QPen(theme::hairline(palette())));
    // Zoomed, its edges lie out of sight, and the frame tells who has the keys all the same.
    painter.drawRect(m_lens.seen());
}

/// Rings round its points, with the one point filled that keys would move.
void CourseCanvas::paintSelected(QPainter& painter) const {
    if (!m_selected)
        return;
    constexpr double Ring = 6;
    const CoursePart whole{m_selected->kind, m_selected->index};
    const std::vector<coursepoint001> points = pointsOf(m_painting.design(), whole);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isIt = m_selected->point == i;
        painter.setPen(QPen(theme::Accent, 2));
        painter.setBrush(isIt ? QBrush(theme::Accent) : QBrush(Qt::NoBrush));
        painter.drawEllipse(placeOf(points[i]), Ring, Ring);
    }
}

} // namespace kavela::desktop
