#include "desktop/cross/heats/heat_orders.h"

#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_buttons.h"
#include "desktop/cross/heats/order_board.h"
#include "desktop/cross/heats/place_grid.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "splittaking/annotations/cross_heats.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <stdexcept>

namespace kavela::desktop {

HeatOrders::HeatOrders(HeatDesk& desk, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_title(new QLabel),
      m_board(new OrderBoard),
      m_grid(new PlaceGrid),
      m_gridArea(new QScrollArea),
      m_take(heatButton("takeOrder", tr("Take at this frame"),
                        tr("Takes the order shown at the frame shown"))),
      m_keep(heatButton("keepOrder", {}, {})),
      m_reset(heatButton("resetOrder", tr("Start over"), tr("Back to the order as it was"))),
      m_comment(new QLineEdit) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    makeOrders(*column);
    makeButtons(*column);
}

/// The order in front on the left, all orders beside it, place by place in one line.
void HeatOrders::makeOrders(QVBoxLayout& column) {
    m_title->setObjectName("orderTitle");
    m_title->setTextFormat(Qt::PlainText);
    m_title->setFixedHeight(grown(*this, PlaceGrid::HeaderHeight));
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    auto* left = new QVBoxLayout;
    left->setSpacing(0);
    left->addWidget(m_title);
    left->addWidget(m_board);
    left->addStretch();
    m_gridArea->setWidget(m_grid);
    m_gridArea->setWidgetResizable(true);
    m_gridArea->setFrameShape(QFrame::NoFrame);
    m_gridArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_gridArea->setFocusPolicy(Qt::NoFocus);
    m_gridArea->setMinimumWidth(m_grid->usualWidth()); // whatever the course: windows keep theirs
    auto* row = new QHBoxLayout;
    row->addLayout(left, 1);
    row->addWidget(m_gridArea, 1);
    column.addLayout(row);
    connect(m_board, &OrderBoard::edited, this,
            [this](const HeatDesk::Names& order) { draft(order, HeatFront::Naming::Nothing); });
    connect(m_grid, &PlaceGrid::columnClicked, this, [this](std::size_t place) {
        if (place >= m_grid->columns().size())
            return;
        const ShownOrder order = m_grid->columns()[place]; // the grid is made anew meanwhile
        emit columnChosen(order);
    });
}

void HeatOrders::makeButtons(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    m_comment->setObjectName("orderComment");
    m_comment->setPlaceholderText(tr("Comment on this order"));
    for (QPushButton* const each : {m_take, m_keep, m_reset})
        row->addWidget(each);
    row->addWidget(m_comment, 1);
    column.addLayout(row);
    connect(m_take, &QPushButton::clicked, this, &HeatOrders::takingWanted);
    connect(m_keep, &QPushButton::clicked, this, [this] {
        const auto record = m_desk.orderInFront();
        take(record ? m_desk.heat()->generals[*record].time : CMTime{});
    });
    connect(m_reset, &QPushButton::clicked, this,
            [this] { draft(std::nullopt, HeatFront::Naming::Nothing); });
    connect(m_comment, &QLineEdit::editingFinished, this, &HeatOrders::takeComment);
    connect(m_comment, &QLineEdit::returnPressed, m_comment, &QWidget::clearFocus);
}

/// The heat as it would be with the order that is not taken yet.
rounddata030 HeatOrders::preview() const {
    rounddata030 heat = *m_desk.heat();
    const auto gate = m_desk.gate();
    if (!gate || m_desk.strayOrder() || (!m_desk.front().draft && m_desk.orderInFront()))
        return heat;
    try {
        setOrder(heat, m_desk.course(), *gate, m_desk.shownOrder(), {});
    } catch (const std::invalid_argument&) {
        return *m_desk.heat(); // with a name that is not of the heat, which taking it would refuse
    }
    return heat;
}

/// Why no order can be taken now; empty when one can.
QString HeatOrders::fault() const {
    if (!m_desk.heat())
        return tr("Add a heat first.");
    if (!m_desk.gate())
        return tr("The cross course has no gates yet.");
    if (m_desk.strayOrder())
        return tr("This order does not count for the course. Choose a gate of the course first.");
    if (m_desk.shownOrder().empty())
        return tr("No boat is named yet.");
    return {};
}

void HeatOrders::draft(std::optional<HeatDesk::Names> order, HeatFront::Naming naming) {
    m_desk.draft(std::move(order), naming);
    refresh();
}

void HeatOrders::name(const std::string& boat) {
    if (!m_desk.gate() || m_desk.strayOrder()) {
        emit m_desk.told(fault());
        return;
    }
    const HeatFront& front = m_desk.front();
    HeatDesk::Names order =
        front.naming == HeatFront::Naming::Order && front.draft ? *front.draft : HeatDesk::Names();
    if (std::erase(order, boat) == 0)
        order.push_back(boat);
    if (order.empty())
        draft(std::nullopt, HeatFront::Naming::Nothing);
    else
        draft(std::move(order), HeatFront::Naming::Order);
}

/// What is taken is selected, so that it can be moved; the gate after it comes to the front when
/// this one had no order before.
void HeatOrders::take(const CMTime& moment) {
    if (const QString why = fault(); !why.isEmpty()) {
        emit m_desk.told(why);
        return;
    }
    const std::int64_t at = *m_desk.gate();
    const HeatDesk::Names order = m_desk.shownOrder();
    const auto before = m_desk.orderInFront();
    const auto looks = m_desk.looks();
    QStringList cues;
    for (const std::string& boat : order)
        cues.append(lookOf(looks, boat, m_desk.palette()).cue);
    bool isTakenNow = false;
    m_desk.editHeat(tr("order at gate %1").arg(at), [&](rounddata030& heat, HeatFront& front) {
        if (before && heat.generals[*before].order == order)
            moveOrder(heat, *before, moment);
        else
            setOrder(heat, m_desk.course(), at, order, moment);
        isTakenNow = true;
        front.dropDraft();
        front.selected = HeatMark{true, *orderAt(heat, at), 0};
        if (!before && front.gate + 1 < m_desk.course().gates.size())
            ++front.gate;
    });
    if (isTakenNow)
        emit m_desk.flashed(tr("Gate %1:  %2").arg(at).arg(cues.join("  ")));
}

void HeatOrders::takeComment() {
    const auto record = m_desk.orderInFront();
    const std::string text = m_comment->text().trimmed().toStdString();
    m_comment->setModified(false);
    if (record && m_desk.heat()->generals[*record].comments != text)
        m_desk.editHeat(tr("comment on an order"), [&](rounddata030& heat, HeatFront&) {
            heat.generals.at(*record).comments = text;
        });
}

void HeatOrders::commit() {
    if (m_comment->hasFocus() && m_comment->isModified())
        takeComment();
}

void HeatOrders::refresh() {
    if (!m_desk.heat())
        return;
    const rounddata030 shown = preview();
    std::vector<ShownOrder> columns =
        shownOrders(m_desk.front().draft ? shown : *m_desk.heat(), m_desk.course());
    const auto stray = m_desk.strayOrder();
    const auto front = std::ranges::find_if(columns, [&](const ShownOrder& column) {
        return stray ? column.record == stray
                     : column.isOnCourse && !column.isReplaced && column.gate == m_desk.gate();
    });
    const auto place = static_cast<std::size_t>(front - columns.begin());
    const bool isFound = front != columns.end();
    m_grid->show(std::move(columns), m_desk.looks(), isFound ? std::optional(place) : std::nullopt);
    fitGrid();
    if (isFound)
        m_gridArea->ensureVisible(m_grid->placeOf(place, 0).center().toPoint().x(), 0);
    showBoard(shown);
    showFrame();
}

/// Courses of the usual length stand whole beside the order in front, longer ones scroll.
void HeatOrders::fitGrid() {
    const QSize size = m_grid->minimumSizeHint();
    const bool isLong = size.width() > m_grid->usualWidth();
    m_gridArea->setFixedHeight(
        size.height() + (isLong ? m_gridArea->horizontalScrollBar()->sizeHint().height() : 0));
}

void HeatOrders::showBoard(const rounddata030& preview) {
    OrderBoard::Order board;
    const HeatDesk::Names names = m_desk.shownOrder();
    const auto stray = m_desk.strayOrder();
    const auto looks = m_desk.looks();
    std::vector<ShownBoat> changes;
    for (const ShownOrder& order : shownOrders(preview, m_desk.course()))
        if (!stray && order.isOnCourse && !order.isReplaced && order.gate == m_desk.gate())
            changes = order.boats;
    for (std::size_t row = 0; row < names.size(); ++row) {
        board.seen.push_back({lookOf(looks, names[row], m_desk.palette()), 0});
        if (row < changes.size() && changes[row].name == names[row])
            board.seen.back().change = changes[row].change;
    }
    for (const BoatLook& look : looks)
        if (std::ranges::count(names, look.name) == 0)
            board.unseen.push_back({look, 0});
    board.isOffered = !m_desk.orderInFront() && !m_desk.front().draft;
    board.isFixed = stray || !m_desk.gate();
    m_board->show(std::move(board));
}

/// Whatever is left of the title tells how far the order is.
void HeatOrders::showFrame() {
    if (!m_desk.heat())
        return;
    const auto& orders = m_desk.heat()->generals;
    const auto record = m_desk.orderInFront();
    const bool hasFrame = m_desk.desk().hasFilm();
    const bool isDraft = m_desk.front().draft.has_value();
    const std::int64_t at = m_desk.strayOrder() ? orders[*record].gate : m_desk.gate().value_or(0);
    const QString state = isDraft  ? tr("not taken yet")
                          : record ? tr("taken at %1").arg(momentText(orders[*record].time))
                                   : tr("offered");
    m_title->setText(m_desk.gate() || record ? tr("Gate %1 · %2").arg(at).arg(state)
                                             : tr("The cross course has no gates yet"));
    m_take->setEnabled(hasFrame && fault().isEmpty());
    m_keep->setText(record ? tr("Keep its moment") : tr("Take without a moment"));
    m_keep->setToolTip(record ? tr("Corrects the order and leaves its moment as it is")
                              : tr("Takes the order shown where there is no film"));
    m_keep->setVisible(record ? isDraft : !hasFrame);
    m_keep->setEnabled(fault().isEmpty());
    m_reset->setVisible(isDraft);
    m_comment->setEnabled(record.has_value());
    if (!m_comment->hasFocus() || !m_comment->isModified())
        m_comment->setText(record ? qtText(orders[*record].comments) : QString());
}

} // namespace kavela::desktop
