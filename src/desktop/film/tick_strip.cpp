#include "desktop/film/tick_strip.h"

#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace kavela::desktop {

namespace {

constexpr int StripHeight = 12;
constexpr int TickReach = 6; // pixels beside a mark that still hit it

} // namespace

TickStrip::TickStrip(const TimeLine& line, QWidget* parent) : QWidget(parent), m_line(line) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Other marks"));
    setToolTip(tr("A click shows the frame of a mark"));
}

QSize TickStrip::sizeHint() const {
    return {400, StripHeight};
}

void TickStrip::setMarks(std::vector<LineMark> marks, std::optional<std::size_t> selected) {
    m_marks = std::move(marks);
    m_selected = selected;
    update();
}

int TickStrip::placeOf(const LineMark& mark) const {
    return m_line.placeOf(mark.stamp.seconds());
}

void TickStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    for (const LineMark& mark : m_marks) {
        const bool isSelected = mark.number == m_selected;
        const int half = isSelected ? 3 : 1;
        painter.setBrush(isSelected ? theme::Accent : theme::quietText(palette()));
        painter.drawRect(placeOf(mark) - half, 1, 2 * half, StripHeight - 2);
    }
}

void TickStrip::mousePressEvent(QMouseEvent* event) {
    const LineMark* nearest = nullptr;
    int least = TickReach + 1;
    for (const LineMark& mark : m_marks) {
        const int distance = std::abs(placeOf(mark) - event->pos().x());
        if (distance < least) {
            least = distance;
            nearest = &mark;
        }
    }
    if (nearest)
        emit markClicked(nearest->number);
}

} // namespace kavela::desktop
