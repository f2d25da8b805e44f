#include "desktop/planning/plan/week_grid.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/planning/plan/week_texts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace kavela::desktop {

namespace {

using namespace std::chrono;

constexpr std::size_t Days = 7;
constexpr int TitleWidth = 86;
constexpr int Gap = theme::SmallSpacing;
constexpr int StripeWidth = 4;
constexpr int LeastCards = 1; ///< that every cell has room for

/// The rows from top to bottom: parts of the day in their order, then those of any time.
constexpr std::array RowParts{DayPart::Morning, DayPart::Afternoon, DayPart::Evening,
                              DayPart::AnyTime};

QString titleOf(DayPart part) {
    switch (part) {
    case DayPart::Morning:
        return WeekGrid::tr("Morning");
    case DayPart::Afternoon:
        return WeekGrid::tr("Afternoon");
    case DayPart::Evening:
        return WeekGrid::tr("Evening");
    case DayPart::AnyTime:
        break;
    }
    return WeekGrid::tr("Any time");
}

std::size_t rowOf(DayPart part) {
    return static_cast<std::size_t>(std::ranges::find(RowParts, part) - RowParts.begin());
}

} // namespace

WeekGrid::WeekGrid(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Week"));
}

void WeekGrid::setWeek(const microsplanning_v5* week) {
    m_cards.clear();
    m_elsewhere.clear();
    m_hasWeek = week;
    m_hasAnyTime = false;
    m_firstDay = week ? dayOfMidnight(week->monday) : std::nullopt;
    const WeekSessions sorted = week ? sessionsByDay(*week) : WeekSessions{};
    const auto add = [&](std::size_t session, std::optional<DayCell> cell) {
        const sessioninmicro_v5& shown = week->sessions[session];
        const QString place = QString::fromStdString(shown.trainingplace);
        const QString time = timeTextOf(shown);
        const QString when = time.isEmpty() || place.isEmpty() ? time + place : time + "  " + place;
        QStringList tip{kavela::desktop::titleOf(shown), when, descriptionOf(shown),
                        valuesTextOf(shown), sessionFaults(shown)};
        tip.removeAll(QString());
        m_cards.push_back({session,
                           cell,
                           kavela::desktop::titleOf(shown),
                           when,
                           valuesTextOf(shown),
                           tip.join('\n'),
                           !sessionFaults(shown).isEmpty(),
                           {}});
    };
    for (std::size_t day = 0; day < Days; ++day)
        for (const DayPart part : RowParts)
            for (const std::size_t session : sorted.at(day, part)) {
                add(session, DayCell{day, part});
                m_hasAnyTime = m_hasAnyTime || part == DayPart::AnyTime;
            }
    for (const std::size_t session : sorted.elsewhere) {
        m_elsewhere.push_back(m_cards.size());
        add(session, std::nullopt);
    }
    if (m_session && !cardOf(*m_session))
        m_session.reset();
    layOut();
}

void WeekGrid::setToday(std::optional<sys_days> today) {
    m_today = today;
    update();
}

int WeekGrid::cardHeight() const {
    return fontMetrics().height() + 2 * QFontMetrics(theme::captionFont(*this)).height() + 2 * Gap;
}

int WeekGrid::titleWidth() const {
    return grown(*this, TitleWidth);
}

int WeekGrid::columnLeft(std::size_t day) const {
    return titleWidth() + static_cast<int>((width() - titleWidth()) * day / Days);
}

std::vector<DayPart> WeekGrid::shownParts() const {
    std::vector<DayPart> parts(RowParts.begin(), RowParts.end());
    if (!m_hasAnyTime)
        parts.pop_back();
    return parts;
}

int WeekGrid::countAt(DayPart part) const {
    std::array<int, Days> counts{};
    for (const Card& card : m_cards)
        if (card.cell && card.cell->part == part)
            ++counts.at(card.cell->day);
    return std::max(LeastCards, *std::ranges::max_element(counts));
}

/// Rows are as high as the fullest cell asks for, and share what is left of the window.
void WeekGrid::layOut() {
    const int step = cardHeight() + Gap;
    const std::vector<DayPart> parts = shownParts();
    const auto strays = static_cast<int>((m_elsewhere.size() + Days - 1) / Days);
    m_natural = fontMetrics().height() + 2 * Gap + strays * (step + Gap);
    const int head = fontMetrics().height() + 2 * Gap;
    for (const DayPart part : parts)
        m_natural += countAt(part) * step + Gap;
    const int spare = std::max(0, height() - m_natural - 1) / static_cast<int>(parts.size());
    int top = head;
    for (std::size_t row = 0; row < RowParts.size(); ++row) {
        m_rowTops[row] = top;
        std::array<int, Days> counts{};
        for (Card& card : m_cards) {
            if (!card.cell || rowOf(card.cell->part) != row)
                continue;
            const std::size_t day = card.cell->day;
            card.place = QRect(columnLeft(day) + Gap, top + Gap + counts.at(day)++ * step,
                               columnLeft(day + 1) - columnLeft(day) - 2 * Gap, cardHeight());
        }
        if (row < parts.size())
            top += countAt(RowParts.at(row)) * step + Gap + spare;
    }
    m_rowTops[RowParts.size()] = top;
    const int wide = (width() - titleWidth()) / static_cast<int>(Days);
    for (std::size_t i = 0; i < m_elsewhere.size(); ++i)
        m_cards[m_elsewhere[i]].place =
            QRect(titleWidth() + static_cast<int>(i % Days) * wide + Gap,
                  top + Gap + static_cast<int>(i / Days) * step, wide - 2 * Gap, cardHeight());
    updateGeometry();
    update();
}

void WeekGrid::resizeEvent(QResizeEvent*) {
    layOut();
}

QSize WeekGrid::sizeHint() const {
    return {titleWidth() + 7 * grown(*this, 110), m_natural + 1};
}

QSize WeekGrid::minimumSizeHint() const {
    return {titleWidth() + 7 * grown(*this, 60), m_natural + 1};
}

std::optional<QRect> WeekGrid::cardOf(std::size_t session) const {
    const auto card = std::ranges::find(m_cards, session, &Card::session);
    return card == m_cards.end() ? std::nullopt : std::optional(card->place);
}

QRect WeekGrid::placeOf(const DayCell& cell) const {
    const std::size_t row = rowOf(cell.part);
    const int left = columnLeft(cell.day);
    return {left, m_rowTops.at(row), columnLeft(cell.day + 1) - left,
            m_rowTops.at(row + 1) - m_rowTops.at(row)};
}

const WeekGrid::Card* WeekGrid::cardAt(const QPoint& position) const {
    const auto card = std::ranges::find_if(
        m_cards, [&](const Card& each) { return each.place.contains(position); });
    return card == m_cards.end() ? nullptr : &*card;
}

std::optional<DayCell> WeekGrid::cellAt(const QPoint& position) const {
    for (std::size_t day = 0; day < Days; ++day)
        for (const DayPart part : shownParts())
            if (const DayCell cell{day, part}; placeOf(cell).contains(position))
                return cell;
    return std::nullopt;
}

std::vector<std::size_t> WeekGrid::sessionsAt(const DayCell& cell) const {
    std::vector<std::size_t> sessions;
    for (const Card& card : m_cards)
        if (card.cell == cell)
            sessions.push_back(card.session);
    return sessions;
}

void WeekGrid::choose(const DayCell& cell, std::optional<std::size_t> session) {
    m_cell = cell;
    m_session = session;
    update();
    emit chosen();
}

void WeekGrid::chooseSession(std::size_t session) {
    const auto card = std::ranges::find(m_cards, session, &Card::session);
    if (card != m_cards.end())
        choose(card->cell.value_or(m_cell), session);
}

void WeekGrid::chooseCell(const DayCell& cell) {
    const std::vector<std::size_t> sessions = sessionsAt(cell);
    choose(cell, sessions.empty() ? std::nullopt : std::optional(sessions.front()));
}

DayCell WeekGrid::neighbour(const DayCell& cell, int days, int parts) const {
    const std::vector<DayPart> shown = shownParts();
    const auto row = static_cast<int>(std::min(rowOf(cell.part), shown.size() - 1));
    const int newRow = std::clamp(row + parts, 0, static_cast<int>(shown.size()) - 1);
    const int day = std::clamp(static_cast<int>(cell.day) + days, 0, static_cast<int>(Days) - 1);
    return {static_cast<std::size_t>(day), shown[static_cast<std::size_t>(newRow)]};
}

/// Up and down go through the cards of a cell before they leave it.
void WeekGrid::step(int days, int parts) {
    const std::vector<std::size_t> here = sessionsAt(m_cell);
    const auto at = m_session ? std::ranges::find(here, *m_session) : here.end();
    if (parts > 0 && at != here.end() && at + 1 != here.end()) {
        choose(m_cell, *(at + 1));
    } else if (parts < 0 && at != here.end() && at != here.begin()) {
        choose(m_cell, *(at - 1));
    } else {
        const DayCell next = neighbour(m_cell, days, parts);
        const std::vector<std::size_t> there = sessionsAt(next);
        if (there.empty() || next == m_cell)
            choose(next, next == m_cell ? m_session : std::nullopt);
        else
            choose(next, parts < 0 ? there.back() : there.front());
    }
}

void WeekGrid::moveBy(int days, int parts) {
    const DayCell to = neighbour(m_cell, days, parts);
    if (m_session && to != m_cell)
        emit moved(*m_session, to);
}

bool WeekGrid::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        if (const Card* const card = cardAt(help->pos()))
            QToolTip::showText(help->globalPos(), card->tip, this, card->place);
        else
            QToolTip::hideText();
        return true;
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::event(event);
}

void WeekGrid::mousePressEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    if (const Card* const card = cardAt(position)) {
        choose(card->cell.value_or(m_cell), card->session);
        if (event->button() == Qt::LeftButton)
            m_press = position;
    } else if (const auto cell = cellAt(position)) {
        choose(*cell, std::nullopt);
    }
}

void WeekGrid::mouseMoveEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    if (!m_press || !event->buttons().testFlag(Qt::LeftButton))
        return;
    if (m_drag || (position - *m_press).manhattanLength() >= QApplication::startDragDistance()) {
        m_drag = position;
        setCursor(Qt::ClosedHandCursor);
        update();
    }
}

void WeekGrid::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasDragged = m_drag.has_value();
    m_press.reset();
    m_drag.reset();
    unsetCursor();
    update();
    const auto to = cellAt(event->position().toPoint());
    const auto card =
        m_session ? std::ranges::find(m_cards, *m_session, &Card::session) : m_cards.end();
    if (wasDragged && to && card != m_cards.end() && card->cell != *to)
        emit moved(card->session, *to);
}

void WeekGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (m_hasWeek && (cardAt(event->position().toPoint()) || cellAt(event->position().toPoint())))
        emit activated();
}

void WeekGrid::keyPressEvent(QKeyEvent* event) {
    struct Arrow {
        int key;
        int days;
        int parts;
    };
    constexpr std::array Arrows{Arrow{Qt::Key_Left, -1, 0}, Arrow{Qt::Key_Right, 1, 0},
                                Arrow{Qt::Key_Up, 0, -1}, Arrow{Qt::Key_Down, 0, 1}};
    const auto arrow = std::ranges::find(Arrows, event->key(), &Arrow::key);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && m_drag) {
        m_press.reset();
        m_drag.reset();
        unsetCursor();
        update();
    } else if (m_hasWeek && isReturn) {
        emit activated();
    } else if (!m_hasWeek || arrow == Arrows.end()) {
        QWidget::keyPressEvent(event);
    } else if (event->modifiers().testFlag(Qt::AltModifier)) {
        moveBy(arrow->days, arrow->parts);
    } else {
        step(arrow->days, arrow->parts);
    }
}

void WeekGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_hasWeek)
        return;
    paintFrame(painter);
    for (const Card& card : m_cards)
        if (!m_drag || m_session != card.session)
            paintCard(painter, card, card.place);
    if (!m_drag)
        return;
    const auto dragged = std::ranges::find(m_cards, m_session.value_or(0), &Card::session);
    if (dragged == m_cards.end())
        return;
    if (const auto target = cellAt(*m_drag)) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(placeOf(*target).adjusted(2, 2, -2, -2), 4, 4);
    }
    painter.setOpacity(0.85);
    paintCard(painter, *dragged, dragged->place.translated(*m_drag - m_press.value_or(*m_drag)));
}

void WeekGrid::paintFrame(QPainter& painter) const {
    const QColor line = theme::hairline(palette());
    const int bottom = m_rowTops[RowParts.size()];
    for (std::size_t day = 0; day < Days; ++day) {
        const QRect head(columnLeft(day), 0, columnLeft(day + 1) - columnLeft(day), m_rowTops[0]);
        const bool isToday = m_today && m_firstDay && *m_firstDay + days(day) == *m_today;
        QFont font = this->font();
        font.setBold(isToday);
        painter.setFont(font);
        painter.setPen(isToday ? palette().color(QPalette::Link)
                               : palette().color(QPalette::WindowText));
        if (m_firstDay)
            painter.drawText(
                head.adjusted(Gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                dayTitle(*m_firstDay + days(day), head.width() - 2 * Gap, painter.fontMetrics()));
        if (day >= 5)
            painter.fillRect(QRect(head.left(), m_rowTops[0], head.width(), bottom - m_rowTops[0]),
                             palette().color(QPalette::AlternateBase));
        painter.setPen(line);
        painter.drawLine(head.left(), m_rowTops[0], head.left(), bottom);
    }
    painter.setFont(theme::captionFont(*this));
    for (const DayPart part : shownParts()) {
        const QRect place = placeOf({0, part});
        painter.setPen(line);
        painter.drawLine(0, place.top(), width(), place.top());
        painter.setPen(theme::quietText(palette()));
        painter.drawText(QRect(0, place.top() + Gap, titleWidth(), cardHeight()),
                         Qt::AlignLeft | Qt::AlignTop, titleOf(part));
    }
    painter.setPen(line);
    painter.drawLine(0, bottom, width(), bottom);
    if (!m_elsewhere.empty()) {
        painter.setPen(missedColour(palette()));
        painter.drawText(QRect(0, bottom + Gap, titleWidth() - Gap, cardHeight()),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                         tr("On no day of this week"));
    }
    if (!m_session && hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(placeOf(m_cell).adjusted(2, 2, -2, -2), 4, 4);
    }
}

void WeekGrid::paintCard(QPainter& painter, const Card& card, const QRect& place) const {
    const bool isChosen = m_session == card.session;
    painter.setPen(
        QPen(isChosen ? palette().color(QPalette::Highlight) : theme::hairline(palette()),
             isChosen ? 2 : 1));
    painter.setBrush(theme::surface(palette()));
    painter.drawRoundedRect(place, 4, 4);
    const QRect stripe(place.left() + 1, place.top() + 3, StripeWidth, place.height() - 6);
    painter.fillRect(stripe, card.isOdd ? missedColour(palette()) : theme::Accent);
    QRect line = place.adjusted(StripeWidth + 6, Gap, -Gap, 0);
    const auto write = [&](const QString& text, const QFont& font, const QColor& colour) {
        const QFontMetrics metrics(font);
        line.setHeight(metrics.height());
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(text, Qt::ElideRight, line.width()));
        line.translate(0, line.height());
    };
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    const QColor quiet = theme::quietText(palette());
    write((card.isOdd ? QStringLiteral("⚠ ") : QString()) +
              (card.title.isEmpty() ? tr("Session") : card.title),
          bold, palette().color(QPalette::WindowText));
    write(card.when, theme::captionFont(*this), quiet);
    write(card.values, theme::captionFont(*this), quiet);
}

} // namespace kavela::desktop
