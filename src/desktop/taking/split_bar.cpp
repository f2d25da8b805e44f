#include "desktop/taking/split_bar.h"

#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kavela::desktop {

namespace {
constexpr int Height = 48;
constexpr qreal WidestSection = 110;
} // namespace

SplitBar::SplitBar(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Split times"));
}

QSize SplitBar::sizeHint() const {
    return {400, Height};
}

void SplitBar::setSections(std::vector<Section> sections) {
    m_sections = std::move(sections);
    update();
}

void SplitBar::setRunning(std::optional<std::size_t> split, const QString& time) {
    m_running = split;
    m_runningTime = time;
    update();
}

void SplitBar::setSelected(std::optional<std::size_t> split) {
    m_selected = split;
    update();
}

QString SplitBar::timeText(std::size_t split) const {
    return m_sections.at(split - 1).time;
}

QRectF SplitBar::placeOf(std::size_t index) const {
    const auto count = static_cast<qreal>(std::max<std::size_t>(m_sections.size(), 1));
    const qreal step = std::min(WidestSection, width() / count);
    return QRectF(step * static_cast<qreal>(index), 0, step, height()).adjusted(1, 1, -1, -1);
}

void SplitBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        const QRectF place = placeOf(i);
        const bool isRunning = m_running == i + 1;
        painter.setPen(m_selected == i + 1 ? QPen(theme::Accent, 2)
                                           : QPen(theme::hairline(palette())));
        painter.setBrush(theme::surface(palette()));
        painter.drawRoundedRect(place, 4, 4);
        const QRectF upper(place.left(), place.top() + 2, place.width(), place.height() / 2 - 2);
        painter.setFont(theme::captionFont(*this));
        painter.setPen(theme::quietText(palette()));
        painter.drawText(upper, Qt::AlignCenter,
                         painter.fontMetrics().elidedText(m_sections[i].title, Qt::ElideRight,
                                                          static_cast<int>(place.width()) - 4));
        QFont figures = font();
        figures.setBold(!isRunning);
        painter.setFont(figures);
        painter.setPen(isRunning ? theme::Accent : palette().color(QPalette::WindowText));
        painter.drawText(upper.translated(0, place.height() / 2 - 2), Qt::AlignCenter,
                         isRunning ? m_runningTime : m_sections[i].time);
    }
}

void SplitBar::mousePressEvent(QMouseEvent* event) {
    for (std::size_t i = 0; i < m_sections.size(); ++i)
        if (placeOf(i).contains(event->position())) {
            emit splitClicked(i + 1);
            return;
        }
}

} // namespace kavela::desktop
