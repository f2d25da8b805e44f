#include "desktop/taking/split_bar.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kavela::desktop {

namespace {
constexpr int SectionHeight = 48;
constexpr int SectionRowHeight = 34; ///< of each row, where the sections stand in several
constexpr qreal WidestSection = 110;
constexpr int NarrowestSection = 44; ///< that a time fits
} // namespace

SplitBar::SplitBar(QWidget* parent) : QWidget(parent), m_rows(WidestSection, NarrowestSection) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Split times"));
}

QSize SplitBar::sizeHint() const {
    return {400,
            grown(*this, m_rows.count() == 1 ? SectionHeight : m_rows.count() * SectionRowHeight)};
}

QSize SplitBar::minimumSizeHint() const {
    return {grown(*this, NarrowestSection), sizeHint().height()};
}

void SplitBar::fitRows() {
    if (m_rows.fit(static_cast<int>(m_sections.size()), width(), growthOf(*this)))
        updateGeometry();
}

void SplitBar::resizeEvent(QResizeEvent*) {
    fitRows();
}

void SplitBar::setSections(std::vector<Section> sections) {
    m_sections = std::move(sections);
    fitRows();
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
    return m_rows.placeOf(static_cast<int>(index), size());
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
