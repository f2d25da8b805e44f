#include "desktop/cross/heats/order_board.h"

#include "desktop/cross/heats/place_grid.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int RowHeight = PlaceGrid::RowHeight;
constexpr int ButtonSize = 22;
constexpr int NameLeft = 82;   ///< behind place, key and badge
constexpr int LineHeight = 32; ///< what stands in one line with the boats of the grid
constexpr double FadedOpacity = 0.5;

QToolButton* rowButton(QWidget* parent, const QString& name, const QString& sign,
                       const QString& tip) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(sign);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

OrderBoard::OrderBoard(QWidget* parent) : QWidget(parent) {
    setObjectName("orderBoard");
    setAccessibleName(tr("Order at the gate in front"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

OrderBoard::~OrderBoard() = default;

QSize OrderBoard::sizeHint() const {
    constexpr int Width = 300;
    return {grown(*this, Width), rowHeight() * std::max(4, static_cast<int>(rows()))};
}

QSize OrderBoard::minimumSizeHint() const {
    constexpr int Width = 240;
    return {grown(*this, Width), sizeHint().height()};
}

int OrderBoard::rowHeight() const {
    return grown(*this, RowHeight);
}

OrderBoard::Buttons OrderBoard::makeButtons(std::size_t row) {
    const QString number = QString::number(row + 1);
    const Buttons buttons{rowButton(this, "up" + number, QStringLiteral("▲"), tr("A place up")),
                          rowButton(this, "down" + number, QStringLiteral("▼"), tr("A place down")),
                          rowButton(this, "seen" + number, {}, {})};
    connect(buttons.up, &QToolButton::clicked, this, [this, row] { move(row, row - 1); });
    connect(buttons.down, &QToolButton::clicked, this, [this, row] { move(row, row + 1); });
    connect(buttons.seen, &QToolButton::clicked, this, [this, row] { toggle(row); });
    return buttons;
}

void OrderBoard::show(Order order) {
    m_order = std::move(order);
    while (m_buttons.size() < rows())
        m_buttons.push_back(makeButtons(m_buttons.size()));
    placeButtons();
    updateGeometry();
    update();
}

void OrderBoard::placeButtons() {
    const int size = grown(*this, ButtonSize);
    const int lineHeight = grown(*this, LineHeight);
    for (std::size_t row = 0; row < m_buttons.size(); ++row) {
        const Buttons& buttons = m_buttons[row];
        const bool isSeen = row < m_order.seen.size();
        const int top = static_cast<int>(row) * rowHeight() + (lineHeight - size) / 2;
        int left = width() - 3 * size;
        for (QToolButton* const button : {buttons.up, buttons.down, buttons.seen}) {
            button->setGeometry(left, top, size, size);
            button->setVisible(row < rows() && !m_order.isFixed);
            left += size;
        }
        buttons.up->setEnabled(isSeen && row > 0);
        buttons.down->setEnabled(isSeen && row + 1 < m_order.seen.size());
        buttons.seen->setText(isSeen ? QStringLiteral("✕") : QStringLiteral("＋"));
        buttons.seen->setToolTip(isSeen ? tr("Not seen at this gate") : tr("Seen, as the last"));
        buttons.seen->setAccessibleName(buttons.seen->toolTip());
    }
}

void OrderBoard::resizeEvent(QResizeEvent*) {
    placeButtons();
}

void OrderBoard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t row = 0; row < rows(); ++row)
        paintRow(painter, row);
}

void OrderBoard::paintRow(QPainter& painter, std::size_t row) const {
    const bool isSeen = row < m_order.seen.size();
    const Row& boat = isSeen ? m_order.seen[row] : m_order.unseen[row - m_order.seen.size()];
    const double growth = growthOf(*this);
    const auto part = [&](double left, double top, double width, double height) {
        return QRectF(left * growth, rowHeight() * static_cast<double>(row) + top * growth,
                      width * growth, height * growth);
    };
    const QRectF place(0, rowHeight() * static_cast<double>(row), width(), rowHeight());
    if (row == m_dragged) {
        painter.setPen(QPen(theme::Accent, 1));
        painter.setBrush(theme::surface(palette()));
        painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), 5, 5);
    }
    painter.setFont(theme::titleFont(*this));
    painter.setPen(isSeen ? palette().color(QPalette::WindowText) : theme::quietText(palette()));
    painter.drawText(part(0, 0, 18, LineHeight), Qt::AlignCenter,
                     isSeen ? QString::number(row + 1) : QStringLiteral("–"));
    painter.setFont(theme::captionFont(*this));
    paintKey(painter, part(20, 7, 17, 18), boat.look.number);
    painter.setOpacity(isSeen && !m_order.isOffered ? 1 : FadedOpacity);
    paintBoat(painter, part(41, 5, 36, 22), boat.look);
    painter.setOpacity(1);
    const int right = m_order.isFixed ? 4 : 3 * grown(*this, ButtonSize) + 4;
    paintWords(painter, place.adjusted(NameLeft * growth, 0, -right, 0), boat, isSeen);
}

/// The key that names a boat, as on a keyboard.
void OrderBoard::paintKey(QPainter& painter, const QRectF& place, int number) const {
    painter.setPen(theme::hairline(palette()));
    painter.setBrush(theme::surface(palette()));
    painter.drawRoundedRect(place, 3, 3);
    painter.setPen(theme::quietText(palette()));
    painter.drawText(place, Qt::AlignCenter, number > 0 ? QString::number(number) : QString());
}

/// The name, and below it how the boat got there.
void OrderBoard::paintWords(QPainter& painter, const QRectF& place, const Row& boat,
                            bool isSeen) const {
    const QColor quiet = theme::quietText(palette());
    const double growth = growthOf(*this);
    const QRectF upper(place.left(), place.top() + 6 * growth, place.width(), 20 * growth);
    painter.setFont(font());
    painter.setPen(isSeen ? palette().color(QPalette::WindowText) : quiet);
    const QString name = QString::fromStdString(boat.look.name);
    painter.drawText(
        upper, Qt::AlignLeft | Qt::AlignVCenter,
        fontMetrics().elidedText(name, Qt::ElideRight, static_cast<int>(upper.width())));
    painter.setFont(theme::captionFont(*this));
    painter.setPen(isSeen ? changeColour(boat.change, palette()) : quiet);
    painter.drawText(upper.translated(0, 16 * growth), Qt::AlignLeft | Qt::AlignVCenter,
                     boat.look.number == 0 ? tr("not of this heat")
                     : !isSeen             ? tr("not seen")
                     : boat.change > 0     ? tr("%1 won").arg(changeText(boat.change))
                     : boat.change < 0     ? tr("%1 lost").arg(changeText(boat.change))
                                           : QString());
}

std::optional<std::size_t> OrderBoard::rowAt(double y) const {
    if (y < 0 || y >= rowHeight() * static_cast<double>(rows()))
        return std::nullopt;
    return static_cast<std::size_t>(y / rowHeight());
}

void OrderBoard::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_order.isFixed)
        m_dragged = rowAt(event->position().y());
    update();
}

void OrderBoard::mouseMoveEvent(QMouseEvent* event) {
    const auto row = rowAt(event->position().y());
    if (!m_dragged || !row || *row == *m_dragged)
        return;
    const std::size_t from = *m_dragged;
    m_dragged = row;
    move(from, *row);
}

void OrderBoard::mouseReleaseEvent(QMouseEvent*) {
    m_dragged.reset();
    update();
}

/// A boat that is dragged among those not seen is one of them, and the other way round.
void OrderBoard::move(std::size_t from, std::size_t to) {
    if (from >= rows() || to >= rows())
        return;
    std::vector<Row> all = m_order.seen;
    all.insert(all.end(), m_order.unseen.begin(), m_order.unseen.end());
    std::size_t seen = m_order.seen.size();
    if (from < seen && to >= seen)
        --seen;
    else if (from >= seen && to < seen)
        ++seen;
    Row moved = std::move(all[from]);
    all.erase(all.begin() + static_cast<std::ptrdiff_t>(from));
    all.insert(all.begin() + static_cast<std::ptrdiff_t>(to), std::move(moved));
    const auto border = all.begin() + static_cast<std::ptrdiff_t>(seen);
    m_order.seen.assign(all.begin(), border);
    m_order.unseen.assign(border, all.end());
    tell();
}

void OrderBoard::toggle(std::size_t row) {
    if (row >= rows())
        return;
    const std::size_t seen = m_order.seen.size();
    auto& from = row < seen ? m_order.seen : m_order.unseen;
    auto& to = row < seen ? m_order.unseen : m_order.seen;
    const auto boat = from.begin() + static_cast<std::ptrdiff_t>(row < seen ? row : row - seen);
    to.push_back(*boat);
    from.erase(boat);
    tell();
}

void OrderBoard::tell() {
    std::vector<std::string> order;
    for (const Row& row : m_order.seen)
        order.push_back(row.look.name);
    show(m_order);
    emit edited(order);
}

} // namespace kavela::desktop
