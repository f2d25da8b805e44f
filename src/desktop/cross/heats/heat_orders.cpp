#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/heats/order_board.h"
#include "desktop/cross/heats/place_grid.h"
#include "desktop/film/film_deck.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/annotations/cross_heats.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

/// The order of the boats at the gate in front.
namespace kavela::desktop {

namespace {

using Names = std::vector<std::string>;

OrderBoard::Row rowOf(const std::string& name, const std::vector<BoatLook>& looks,
                      const QPalette& palette) {
    return {lookOf(looks, name, palette), 0};
}

} // namespace

std::optional<std::int64_t> HeatPage::gate() const {
    const auto& gates = course().gates;
    return m_gate < gates.size() ? std::optional(gates[m_gate]) : std::nullopt;
}

/// The selected order when it has no gate of its own on the course.
std::optional<std::size_t> HeatPage::strayOrder() const {
    if (!m_selected || !m_selected->isOrder || !current())
        return std::nullopt;
    const std::int64_t at = current()->generals.at(m_selected->record).gate;
    const bool isOnCourse = std::ranges::count(course().gates, at) > 0;
    if (isOnCourse && orderAt(*current(), at) == m_selected->record)
        return std::nullopt;
    return m_selected->record;
}

std::optional<std::size_t> HeatPage::orderInFront() const {
    if (const auto stray = strayOrder())
        return stray;
    return current() && gate() ? orderAt(*current(), *gate()) : std::nullopt;
}

/// The likely order without what does not fit the heat.
Names HeatPage::offeredOrder() const {
    Names offered;
    if (!current() || !gate())
        return offered;
    for (const std::string& name : likelyOrder(*current(), course(), *gate()))
        if (std::ranges::count(current()->athletes, name) > 0 &&
            std::ranges::count(offered, name) == 0)
            offered.push_back(name);
    return offered;
}

Names HeatPage::shownOrder() const {
    if (m_draft)
        return *m_draft;
    const auto record = orderInFront();
    return record ? current()->generals[*record].order : offeredOrder();
}

/// The heat as it would be with the order that is not taken yet.
rounddata030 HeatPage::preview() const {
    rounddata030 heat = *current();
    if (!gate() || strayOrder() || (!m_draft && orderInFront()))
        return heat;
    try {
        setOrder(heat, course(), *gate(), shownOrder(), {});
    } catch (const std::invalid_argument&) {
        return *current(); // with a name that is not of the heat, which taking it would refuse
    }
    return heat;
}

void HeatPage::draft(Names order, Naming naming) {
    m_naming = naming;
    m_draft = std::move(order);
    showOrders();
}

/// Why no order can be taken now; empty when one can.
QString HeatPage::orderFault() const {
    if (!current())
        return tr("Add a heat first.");
    if (!gate())
        return tr("The cross course has no gates yet.");
    if (strayOrder())
        return tr("This order does not count for the course. Choose a gate of the course first.");
    if (shownOrder().empty())
        return tr("No boat is named yet.");
    return {};
}

void HeatPage::pressNumber(int number) {
    m_desk.deck.finishPresses(); // an attack may be about to begin, whose boats are named
    if (!current())
        return;
    const auto boat = static_cast<std::size_t>(number - 1);
    if (number < 1 || boat >= current()->athletes.size()) {
        emit told(tr("This heat has %1 boats.").arg(current()->athletes.size()));
        return;
    }
    const std::string name = current()->athletes[boat];
    if (m_naming == Naming::Attacker || m_naming == Naming::Defenders)
        nameForAttack(name);
    else
        nameForOrder(name);
}

/// The first press starts an order of its own: what was offered or taken makes way.
void HeatPage::nameForOrder(const std::string& name) {
    if (!gate() || strayOrder()) {
        emit told(orderFault());
        return;
    }
    Names order = m_naming == Naming::Order && m_draft ? *m_draft : Names();
    if (std::erase(order, name) == 0)
        order.push_back(name);
    if (order.empty()) {
        m_draft.reset();
        m_naming = Naming::Nothing;
        showOrders();
    } else {
        draft(order, Naming::Order);
    }
}

void HeatPage::mark(const CMTime& moment) {
    takeOrder(moment);
}

/// What is taken is selected, so that it can be moved; the gate after it comes to the front when
/// this one had no order before.
void HeatPage::takeOrder(const CMTime& moment) {
    if (const QString fault = orderFault(); !fault.isEmpty()) {
        emit told(fault);
        return;
    }
    const std::int64_t at = *gate();
    const Names order = shownOrder();
    const auto before = orderInFront();
    QStringList cues;
    for (const std::string& name : order)
        cues.append(lookOf(m_looks, name, palette()).cue);
    bool isTakenNow = false;
    editHeat(tr("order at gate %1").arg(at), [&](rounddata030& heat) {
        if (before && heat.generals[*before].order == order)
            moveOrder(heat, *before, moment);
        else
            setOrder(heat, course(), at, order, moment);
        isTakenNow = true;
        m_draft.reset();
        m_naming = Naming::Nothing;
        m_selected = HeatMark{true, *orderAt(heat, at), 0};
        if (!before && m_gate + 1 < course().gates.size())
            ++m_gate;
    });
    if (isTakenNow)
        emit flashed(tr("Gate %1:  %2").arg(at).arg(cues.join("  ")));
}

bool HeatPage::stepGate(int step) {
    const auto& gates = course().gates;
    if (!current() || gates.empty())
        return true;
    commit();
    const auto last = static_cast<std::ptrdiff_t>(gates.size()) - 1;
    m_gate = static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(m_gate) + step, 0, last));
    m_draft.reset();
    const auto record = orderAt(*current(), *gate());
    select(record ? std::optional(HeatMark{true, *record, 0}) : std::nullopt);
    return true;
}

void HeatPage::chooseColumn(std::size_t column) {
    if (column >= m_grid->columns().size())
        return;
    const ShownOrder chosen = m_grid->columns()[column];
    commit();
    const auto& gates = course().gates;
    const auto found = std::ranges::find(gates, chosen.gate);
    const bool isTakenThere = current() && chosen.record &&
                              *chosen.record < current()->generals.size() &&
                              current()->generals[*chosen.record].gate == chosen.gate;
    if (isTakenThere && (m_draft == std::nullopt || found == gates.end() ||
                         static_cast<std::size_t>(found - gates.begin()) != m_gate)) {
        goTo({true, *chosen.record, 0});
    } else if (found != gates.end()) {
        stepGate(static_cast<int>(found - gates.begin()) - static_cast<int>(m_gate));
    }
}

void HeatPage::takeOrderComment() {
    const auto record = orderInFront();
    const std::string text = m_comment->text().trimmed().toStdString();
    m_comment->setModified(false);
    if (record && current()->generals[*record].comments != text)
        editHeat(tr("comment on an order"),
                 [&](rounddata030& heat) { heat.generals.at(*record).comments = text; });
}

void HeatPage::commit() {
    if (m_comment->hasFocus() && m_comment->isModified())
        takeOrderComment();
    m_form->commit();
}

void HeatPage::showOrders() {
    m_looks = current() ? boatLooks(current()->athletes, palette()) : std::vector<BoatLook>();
    if (!current())
        return;
    const rounddata030 shown = preview();
    std::vector<ShownOrder> columns = shownOrders(*current(), course());
    if (m_draft)
        columns = shownOrders(shown, course());
    const auto stray = strayOrder();
    const auto front = std::ranges::find_if(columns, [&](const ShownOrder& column) {
        return stray ? column.record == stray
                     : column.isOnCourse && !column.isReplaced && column.gate == gate();
    });
    const auto place = static_cast<std::size_t>(front - columns.begin());
    const bool isFound = front != columns.end();
    m_grid->show(std::move(columns), m_looks, isFound ? std::optional(place) : std::nullopt);
    fitGrid();
    if (isFound)
        m_gridArea->ensureVisible(m_grid->placeOf(place, 0).center().toPoint().x(), 0);
    showBoard(shown);
    showOrderButtons();
}

/// Courses of the usual length stand whole beside the order in front, longer ones scroll.
void HeatPage::fitGrid() {
    const QSize size = m_grid->minimumSizeHint();
    const bool isLong = size.width() > PlaceGrid::UsualWidth;
    m_gridArea->setFixedHeight(
        size.height() + (isLong ? m_gridArea->horizontalScrollBar()->sizeHint().height() : 0));
}

void HeatPage::showBoard(const rounddata030& preview) {
    OrderBoard::Order board;
    const Names names = shownOrder();
    const auto stray = strayOrder();
    std::vector<ShownBoat> changes;
    for (const ShownOrder& order : shownOrders(preview, course()))
        if (!stray && order.isOnCourse && !order.isReplaced && order.gate == gate())
            changes = order.boats;
    for (std::size_t row = 0; row < names.size(); ++row) {
        board.seen.push_back(rowOf(names[row], m_looks, palette()));
        if (row < changes.size() && changes[row].name == names[row])
            board.seen.back().change = changes[row].change;
    }
    for (const BoatLook& look : m_looks)
        if (std::ranges::count(names, look.name) == 0)
            board.unseen.push_back({look, 0});
    const auto record = orderInFront();
    board.isOffered = !record && !m_draft;
    board.isFixed = stray || !gate();
    m_board->show(std::move(board));
}

/// Whatever is left of the title tells how far the order is.
void HeatPage::showOrderButtons() {
    if (!current())
        return;
    const auto record = orderInFront();
    const bool hasFrame = m_desk.hasFilm();
    const std::int64_t at = strayOrder() ? current()->generals[*record].gate : gate().value_or(0);
    const QString state = m_draft ? tr("not taken yet")
                          : record
                              ? tr("taken at %1").arg(momentText(current()->generals[*record].time))
                              : tr("offered");
    m_title->setText(gate() || record ? tr("Gate %1 · %2").arg(at).arg(state)
                                      : tr("The cross course has no gates yet"));
    m_take->setEnabled(hasFrame && orderFault().isEmpty());
    m_keep->setText(record ? tr("Keep its moment") : tr("Take without a moment"));
    m_keep->setToolTip(record ? tr("Corrects the order and leaves its moment as it is")
                              : tr("Takes the order shown where there is no film"));
    m_keep->setVisible(record ? m_draft.has_value() : !hasFrame);
    m_keep->setEnabled(orderFault().isEmpty());
    m_reset->setVisible(m_draft.has_value());
    m_comment->setEnabled(record.has_value());
    if (!m_comment->hasFocus() || !m_comment->isModified())
        m_comment->setText(record ? QString::fromStdString(current()->generals[*record].comments)
                                  : QString());
}

} // namespace kavela::desktop
