#include "desktop/cross/heats/place_grid.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int PlaceWidth = 18; ///< of the place numbers on the left
constexpr int NarrowestColumn = 34;
constexpr int WidestColumn = 64;
constexpr int FewestRows = 4;
constexpr double BoatHeight = 22;
constexpr double BoatTop = 5; ///< of a boat in its row
constexpr double ReplacedOpacity = 0.35;

/// Where a boat stands in an order; nothing when it was not seen.
std::optional<std::size_t> rowOf(const ShownOrder& order, const std::string& name) {
    const auto found = std::ranges::find(order.boats, name, &ShownBoat::name);
    if (found == order.boats.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - order.boats.begin());
}

} // namespace

PlaceGrid::PlaceGrid(QWidget* parent) : QWidget(parent) {
    setObjectName("placeGrid");
    setAccessibleName(tr("Places at the gates"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PlaceGrid::show(std::vector<ShownOrder> columns, std::vector<BoatLook> boats,
                     std::optional<std::size_t> front) {
    m_columns = std::move(columns);
    m_boats = std::move(boats);
    m_front = front;
    updateGeometry();
    update();
}

std::size_t PlaceGrid::rows() const {
    std::size_t rows = std::max<std::size_t>(FewestRows, m_boats.size());
    for (const ShownOrder& column : m_columns)
        rows = std::max(rows, column.boats.size());
    return rows;
}

QSize PlaceGrid::sizeHint() const {
    return {grown(*this, PlaceWidth) +
                grown(*this, WidestColumn) * static_cast<int>(m_columns.size()),
            grown(*this, HeaderHeight) + grown(*this, RowHeight) * static_cast<int>(rows())};
}

QSize PlaceGrid::minimumSizeHint() const {
    return {narrowestWidth(static_cast<int>(m_columns.size())), sizeHint().height()};
}

int PlaceGrid::narrowestWidth(int columns) const {
    return grown(*this, PlaceWidth) + grown(*this, NarrowestColumn) * columns;
}

QRectF PlaceGrid::placeOf(std::size_t column, std::size_t place) const {
    const double count = std::max<double>(1, static_cast<double>(m_columns.size()));
    const int left = grown(*this, PlaceWidth);
    const int high = grown(*this, RowHeight);
    const double step = std::min<double>(grown(*this, WidestColumn), (width() - left) / count);
    return {left + step * static_cast<double>(column),
            grown(*this, HeaderHeight) + high * static_cast<double>(place), step,
            static_cast<double>(high)};
}

std::optional<std::size_t> PlaceGrid::columnAt(QPointF place) const {
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        const QRectF cell = placeOf(column, 0);
        if (place.x() >= cell.left() && place.x() < cell.right())
            return column;
    }
    return std::nullopt;
}

void PlaceGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double growth = growthOf(*this);
    painter.setFont(theme::captionFont(*this));
    painter.setPen(theme::quietText(palette()));
    for (std::size_t row = 0; !m_columns.empty() && row < rows(); ++row)
        painter.drawText(QRectF(0, placeOf(0, row).top(), PlaceWidth * growth - 4,
                                (BoatHeight + 2 * BoatTop) * growth),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(row + 1));
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        paintHeader(painter, column);
    paintLines(painter);
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        paintColumn(painter, column);
}

/// The gate number; one that is not on the course in brackets, one that does not count struck out.
void PlaceGrid::paintHeader(QPainter& painter, std::size_t column) const {
    const ShownOrder& order = m_columns[column];
    const QRectF top(placeOf(column, 0).left(), 0, placeOf(column, 0).width(),
                     grown(*this, HeaderHeight));
    if (column == m_front) {
        QColor ground = theme::Accent;
        ground.setAlphaF(0.14F);
        painter.setPen(QPen(theme::Accent, 1.5));
        painter.setBrush(ground);
        painter.drawRoundedRect(QRectF(top.left() + 1, 1, top.width() - 2, height() - 2), 6, 6);
    }
    QFont font = theme::captionFont(*this);
    font.setBold(column == m_front);
    font.setStrikeOut(order.isReplaced);
    painter.setFont(font);
    painter.setPen(order.isOnCourse && order.record ? palette().color(QPalette::WindowText)
                                                    : theme::quietText(palette()));
    const QString gate = QString::number(order.gate);
    painter.drawText(top, Qt::AlignCenter, order.isOnCourse ? gate : '(' + gate + ')');
}

/// Lines go between orders that count, over gates without one.
void PlaceGrid::paintLines(QPainter& painter) const {
    std::optional<std::size_t> before;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column].isReplaced || m_columns[column].boats.empty())
            continue;
        if (before)
            paintLine(painter, *before, column);
        before = column;
    }
}

void PlaceGrid::paintLine(QPainter& painter, std::size_t from, std::size_t to) const {
    constexpr double Width = 3;
    const double toCentre = (BoatTop + BoatHeight / 2) * growthOf(*this);
    const auto centre = [&](std::size_t column, std::size_t row) {
        const QRectF cell = placeOf(column, row);
        return QPointF(cell.center().x(), cell.top() + toCentre);
    };
    for (const BoatLook& boat : m_boats) {
        const auto before = rowOf(m_columns[from], boat.name);
        const auto after = rowOf(m_columns[to], boat.name);
        if (!before || !after)
            continue;
        const QPointF start = centre(from, *before);
        const QPointF end = centre(to, *after);
        const double middle = (start.x() + end.x()) / 2;
        QPainterPath path(start);
        path.cubicTo({middle, start.y()}, {middle, end.y()}, end);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(boat.colour, Width, to - from > 1 ? Qt::DotLine : Qt::SolidLine));
        painter.drawPath(path);
    }
}

void PlaceGrid::paintColumn(QPainter& painter, std::size_t column) const {
    const ShownOrder& order = m_columns[column];
    const double growth = growthOf(*this);
    painter.setOpacity(order.isReplaced ? ReplacedOpacity : 1);
    painter.setFont(theme::captionFont(*this));
    if (order.boats.empty()) {
        painter.setPen(theme::quietText(palette()));
        painter.drawText(placeOf(column, 0).adjusted(0, BoatTop * growth + 2, 0, 0),
                         Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("–"));
    }
    for (std::size_t row = 0; row < order.boats.size(); ++row) {
        const ShownBoat& boat = order.boats[row];
        const QRectF cell = placeOf(column, row);
        const double side = std::max(2.0, (cell.width() - 40 * growth) / 2);
        paintBoat(painter,
                  {cell.left() + side, cell.top() + BoatTop * growth, cell.width() - 2 * side,
                   BoatHeight * growth},
                  lookOf(m_boats, boat.name, palette()));
        painter.setPen(changeColour(boat.change, palette()));
        painter.drawText(cell.adjusted(0, (BoatTop + BoatHeight) * growth - 1, 0, 0),
                         Qt::AlignHCenter | Qt::AlignTop, changeText(boat.change));
    }
    painter.setOpacity(1);
}

void PlaceGrid::mousePressEvent(QMouseEvent* event) {
    if (const auto column = columnAt(event->position()))
        emit columnClicked(*column);
}

QString PlaceGrid::tipOf(const ShownOrder& order) const {
    QStringList lines{tr("Gate %1").arg(order.gate)};
    if (!order.isOnCourse)
        lines[0] += tr(", which is not on the cross course");
    if (order.isReplaced)
        lines[0] += tr(", replaced by a later order");
    if (!order.record)
        lines.append(tr("No order yet."));
    for (std::size_t row = 0; row < order.boats.size(); ++row)
        lines.append(QStringLiteral("%1  %2  %3")
                         .arg(row + 1)
                         .arg(QString::fromStdString(order.boats[row].name),
                              changeText(order.boats[row].change)));
    return lines.join('\n');
}

bool PlaceGrid::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const auto column = columnAt(help->pos()))
        QToolTip::showText(help->globalPos(), tipOf(m_columns[*column]));
    return true;
}

} // namespace kavela::desktop
