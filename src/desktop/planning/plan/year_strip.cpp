#include "desktop/planning/plan/year_strip.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/planning/plan/week_texts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

using namespace std::chrono;

enum RowIndex { MonthRow, MacroRow, MesoRow, LoadRow, NumberRow, EventRow, TestRow };
/// In heights of a line of small text.
constexpr std::array RowHeights{1.3, 1.4, 1.4, 4.6, 1.3, 1.3, 1.2};
constexpr double LowLoad = 2.2; ///< height of the loads where the window is low
constexpr double StripTitleWidth = 86;
constexpr double NarrowestWeek = 7;
constexpr double FullLoad = 100;

QColor tinted(const QColor& colour, float opacity) {
    QColor tint = colour;
    tint.setAlphaF(opacity);
    return tint;
}

} // namespace

YearStrip::YearStrip(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Year"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

YearStrip::Week YearStrip::shownOf(const microsplanning_v5& week) {
    Week shown;
    shown.number = week.number;
    shown.day = dayOfMidnight(week.monday);
    shown.isOnMonday = mondayOf(week).has_value();
    shown.load = std::clamp(week.percentaje, 0.0, 1000.0);
    shown.macrocycle = QString::fromStdString(week.macrocycle);
    shown.mesocycle = QString::fromStdString(week.mesocycle);
    shown.event = QString::fromStdString(week.event);
    shown.tests = testLetters(week);
    shown.tip = weekTip(week);
    shown.isUnwell = week.health != 0;
    return shown;
}

void YearStrip::setWeeks(const std::vector<microsplanning_v5>& weeks) {
    m_weeks.clear();
    for (const microsplanning_v5& week : weeks)
        m_weeks.push_back(shownOf(week));
    updateGeometry();
    update();
}

void YearStrip::setToday(std::optional<sys_days> today) {
    m_today = today;
    update();
}

void YearStrip::setBlock(const WeekBlock& block) {
    m_block = block;
    update();
}

double YearStrip::titleWidth() const {
    return growthOf(*this) * StripTitleWidth;
}

YearStrip::Row YearStrip::row(int index) const {
    const double line = QFontMetricsF(theme::captionFont(*this)).height();
    const auto heightOf = [&](int each) {
        const bool isLowRow = m_isLow && each == LoadRow;
        return std::round((isLowRow ? LowLoad : RowHeights.at(static_cast<std::size_t>(each))) *
                          line);
    };
    Row row;
    for (int i = 0; i < index; ++i)
        row.top += heightOf(i);
    row.height = heightOf(index);
    return row;
}

void YearStrip::setLow(bool isLow) {
    if (isLow == m_isLow)
        return;
    m_isLow = isLow;
    updateGeometry();
    update();
}

QSize YearStrip::sizeHint() const {
    const Row last = row(TestRow);
    return {800, static_cast<int>(last.top + last.height) + theme::SmallSpacing};
}

QSize YearStrip::minimumSizeHint() const {
    return {static_cast<int>(titleWidth() + NarrowestWeek * static_cast<double>(m_weeks.size())),
            sizeHint().height()};
}

QRectF YearStrip::columnOf(std::size_t week) const {
    return cell(week, week, {0, static_cast<double>(height())});
}

QRectF YearStrip::cell(std::size_t first, std::size_t last, const Row& row) const {
    const double each =
        (width() - titleWidth()) / static_cast<double>(std::max<std::size_t>(m_weeks.size(), 1));
    const double left = titleWidth() + each * static_cast<double>(first);
    return {left, row.top, each * static_cast<double>(last - first + 1), row.height};
}

std::optional<std::size_t> YearStrip::weekAt(double x) const {
    if (m_weeks.empty() || x < titleWidth() || x >= width())
        return std::nullopt;
    const double each = (width() - titleWidth()) / static_cast<double>(m_weeks.size());
    return std::min(static_cast<std::size_t>((x - titleWidth()) / each), m_weeks.size() - 1);
}

void YearStrip::choose(std::size_t week, bool extend) {
    const WeekBlock block{extend ? m_block.anchor : week, week};
    if (block == m_block)
        return;
    setBlock(block);
    emit chosen(block);
}

void YearStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(theme::captionFont(*this));
    if (m_weeks.empty())
        return;
    paintChosen(painter);
    paintTitles(painter);
    paintMonths(painter);
    paintBand(
        painter, row(MacroRow), [](const Week& week) { return week.macrocycle; }, true);
    paintBand(
        painter, row(MesoRow), [](const Week& week) { return week.mesocycle; }, false);
    paintLoads(painter);
    paintNumbers(painter);
    paintEvents(painter);
    paintTests(painter);
}

void YearStrip::paintTitles(QPainter& painter) const {
    const std::array titles{tr("Month"), tr("Macrocycle"), tr("Mesocycle"), tr("Load"),
                            tr("Week"),  tr("Event"),      tr("Tests")};
    painter.setPen(theme::quietText(palette()));
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const Row at = row(static_cast<int>(i));
        painter.drawText(QRectF(0, at.top, titleWidth() - theme::Spacing, at.height),
                         Qt::AlignLeft | Qt::AlignVCenter, titles[i]);
    }
}

void YearStrip::paintMonths(QPainter& painter) const {
    const Row at = row(MonthRow);
    std::optional<month> before;
    for (std::size_t i = 0; i < m_weeks.size(); ++i) {
        if (!m_weeks[i].day)
            continue;
        // A week counts to the month in which most of it lies.
        const month now = year_month_day(*m_weeks[i].day + days(3)).month();
        if (now == before)
            continue;
        before = now;
        const QRectF place = cell(i, i, at);
        painter.setPen(theme::hairline(palette()));
        painter.drawLine(place.topLeft(), QPointF(place.left(), row(NumberRow).top));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(place.adjusted(theme::SmallSpacing, 0, 200, 0),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         QLocale::c().standaloneMonthName(static_cast<int>(unsigned(now)),
                                                          QLocale::ShortFormat));
    }
}

/// Weeks of the same name in a row are one field; each name keeps its colour through the season.
void YearStrip::paintBand(QPainter& painter, const Row& at, const Text& text, bool isStrong) const {
    QStringList names;
    for (std::size_t i = 0; i < m_weeks.size();) {
        const QString name = text(m_weeks[i]);
        std::size_t last = i;
        while (last + 1 < m_weeks.size() && text(m_weeks[last + 1]) == name)
            ++last;
        const QRectF place = cell(i, last, at).adjusted(0.5, 1, -0.5, -1);
        i = last + 1;
        if (name.isEmpty())
            continue;
        if (!names.contains(name))
            names.append(name);
        const auto slot = static_cast<std::size_t>(names.indexOf(name)) + (isStrong ? 3 : 0);
        const QColor colour = seriesStyle(slot % MostSeries, palette()).colour;
        painter.setPen(Qt::NoPen);
        painter.setBrush(tinted(colour, isStrong ? 0.38F : 0.22F));
        painter.drawRoundedRect(place, 3, 3);
        painter.setPen(palette().color(QPalette::WindowText));
        const QRectF inner = place.adjusted(theme::SmallSpacing, 0, -theme::SmallSpacing, 0);
        painter.drawText(
            inner, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetricsF(painter.font()).elidedText(name, Qt::ElideRight, inner.width()));
    }
}

void YearStrip::paintLoads(QPainter& painter) const {
    const Row at = row(LoadRow);
    double most = FullLoad;
    for (const Week& week : m_weeks)
        most = std::max(most, week.load);
    const auto heightOf = [&](double load) { return load / most * (at.height - 4); };
    const double bottom = at.top + at.height;
    const double line = QFontMetricsF(painter.font()).height() + 2;
    for (const double load : {FullLoad / 2, FullLoad}) {
        const double y = bottom - heightOf(load);
        painter.setPen(theme::hairline(palette()));
        painter.drawLine(QPointF(titleWidth(), y), QPointF(width(), y));
        painter.setPen(theme::quietText(palette()));
        painter.drawText(QRectF(0, y - line / 2, titleWidth() - 4, line),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(load) + " %");
    }
    for (std::size_t i = 0; i < m_weeks.size(); ++i) {
        const QRectF place = cell(i, i, at);
        const double tall = heightOf(m_weeks[i].load);
        const double gap = std::min(2.0, place.width() * 0.15);
        QColor colour = theme::Accent;
        if (theme::isDark(palette()))
            colour = colour.lighter(135);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_block.holds(i) ? colour : tinted(colour, 0.6F));
        painter.drawRect(QRectF(place.left() + gap, bottom - tall, place.width() - 2 * gap, tall));
    }
}

void YearStrip::paintNumbers(QPainter& painter) const {
    const Row at = row(NumberRow);
    const double wide = QFontMetricsF(painter.font()).horizontalAdvance("00") + 4;
    const double each = cell(0, 0, at).width();
    const auto every = static_cast<std::size_t>(std::max(1.0, std::ceil(wide / each)));
    for (std::size_t i = 0; i < m_weeks.size(); ++i) {
        const Week& week = m_weeks[i];
        const QRectF place = cell(i, i, at);
        const bool isNow =
            m_today && week.day && *m_today >= *week.day && *m_today < *week.day + days(7);
        if (!week.isOnMonday) {
            painter.setPen(missedColour(palette()));
            painter.drawText(place, Qt::AlignCenter, "!");
        } else if (i % every == 0 || isNow || m_block.current == i) {
            QFont font = painter.font();
            font.setBold(isNow || m_block.current == i);
            painter.setFont(font);
            painter.setPen(isNow ? palette().color(QPalette::Link)
                                 : palette().color(QPalette::WindowText));
            painter.drawText(place.adjusted(-6, 0, 6, 0), Qt::AlignCenter,
                             QString::number(week.number));
            font.setBold(false);
            painter.setFont(font);
        }
        if (week.isUnwell) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(missedColour(palette()));
            painter.drawEllipse(QPointF(place.center().x(), place.bottom() - 1), 2, 2);
        }
    }
}

/// A flag at its week; its name has room up to the next one.
void YearStrip::paintEvents(QPainter& painter) const {
    const Row at = row(EventRow);
    for (std::size_t i = 0; i < m_weeks.size(); ++i) {
        if (m_weeks[i].event.isEmpty())
            continue;
        std::size_t next = i + 1;
        while (next < m_weeks.size() && m_weeks[next].event.isEmpty())
            ++next;
        const QRectF place = cell(i, next - 1, at);
        const double x = cell(i, i, at).center().x();
        QPainterPath flag(QPointF(x, place.top() + 2));
        flag.lineTo(x + 7, place.top() + 5);
        flag.lineTo(x, place.top() + 8);
        painter.setPen(QPen(touchColour(palette()), 1.2));
        painter.drawLine(QPointF(x, place.top() + 2), QPointF(x, place.bottom() - 2));
        painter.fillPath(flag, touchColour(palette()));
        const QRectF text(x + 10, place.top(), place.right() - x - 12, place.height());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetricsF(painter.font())
                             .elidedText(m_weeks[i].event, Qt::ElideRight, text.width()));
    }
}

void YearStrip::paintTests(QPainter& painter) const {
    const Row at = row(TestRow);
    painter.setPen(theme::quietText(palette()));
    for (std::size_t i = 0; i < m_weeks.size(); ++i)
        painter.drawText(cell(i, i, at).adjusted(-10, 0, 10, 0), Qt::AlignCenter, m_weeks[i].tests);
}

void YearStrip::paintChosen(QPainter& painter) const {
    if (m_block.last() >= m_weeks.size())
        return;
    const QRectF block = cell(m_block.first(), m_block.last(), {0, static_cast<double>(height())});
    painter.setPen(Qt::NoPen);
    painter.setBrush(tinted(palette().color(QPalette::Highlight), 0.14F));
    painter.drawRect(block);
    painter.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 2 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(columnOf(m_block.current).adjusted(0.5, 0.5, -0.5, -0.5));
}

bool YearStrip::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        if (const auto week = weekAt(help->pos().x()))
            QToolTip::showText(help->globalPos(), m_weeks[*week].tip, this);
        else
            QToolTip::hideText();
        return true;
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::event(event);
}

void YearStrip::mousePressEvent(QMouseEvent* event) {
    const auto week = weekAt(event->position().x());
    const bool keepsBlock = event->button() == Qt::RightButton && week && m_block.holds(*week);
    if (week && !keepsBlock)
        choose(*week, event->modifiers().testFlag(Qt::ShiftModifier));
}

void YearStrip::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    if (const auto week = weekAt(event->position().x()))
        choose(*week, true);
}

void YearStrip::mouseDoubleClickEvent(QMouseEvent* event) {
    if (const auto week = weekAt(event->position().x()))
        emit activated(*week);
}

void YearStrip::keyPressEvent(QKeyEvent* event) {
    if (m_weeks.empty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const std::size_t last = m_weeks.size() - 1;
    const std::size_t current = std::min(m_block.current, last);
    const bool extend = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Left:
        choose(current > 0 ? current - 1 : 0, extend);
        break;
    case Qt::Key_Right:
        choose(std::min(current + 1, last), extend);
        break;
    case Qt::Key_Home:
        choose(0, extend);
        break;
    case Qt::Key_End:
        choose(last, extend);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit activated(current);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace kavela::desktop
