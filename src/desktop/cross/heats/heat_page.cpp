#include "desktop/cross/heats/heat_page.h"

#include "desktop/cross/heats/heat_attacks.h"
#include "desktop/cross/heats/heat_dialog.h"
#include "desktop/cross/heats/heat_list.h"
#include "desktop/cross/heats/heat_orders.h"
#include "desktop/film/film_deck.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/annotations/cross_heats.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

using Names = HeatDesk::Names;

QLabel* quietLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

/// Everybody who paddles in the trials and heats of a file.
Names everybody(const crossdata030& cross) {
    Names names;
    const auto add = [&](const std::string& name) {
        if (!name.empty() && std::ranges::count(names, name) == 0)
            names.push_back(name);
    };
    for (const ttdata030& trial : cross.timetrials)
        add(trial.athlete);
    for (const rounddata030& heat : cross.eliphase)
        std::ranges::for_each(heat.athletes, add);
    return names;
}

/// Names go by way of others that nobody has, so that two boats can swap theirs.
void renameAll(rounddata030& heat, const Names& names) {
    for (std::size_t boat = 0; boat < names.size(); ++boat)
        if (heat.athletes.at(boat) != names[boat])
            renameBoat(heat, boat, '\n' + std::to_string(boat));
    for (std::size_t boat = 0; boat < names.size(); ++boat)
        if (heat.athletes.at(boat) != names[boat])
            renameBoat(heat, boat, names[boat]);
}

} // namespace

HeatPage::HeatPage(const CrossDesk& desk)
    : CrossPage(desk),
      m_front(desk, *this),
      m_list(new HeatList),
      m_empty(quietLabel("noHeats")),
      m_body(new QWidget),
      m_faults(quietLabel("heatFaults")),
      m_orders(new HeatOrders(m_front)),
      m_attacks(new HeatAttacks(m_front)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::SmallSpacing);
    makeParts(*column);
    connectParts();
    refresh();
}

QSize HeatPage::minimumSizeHint() const {
    const QMargins sides = contentsMargins() + layout()->contentsMargins();
    const int wide = m_body->minimumSizeHint().width() + sides.left() + sides.right();
    return CrossPage::minimumSizeHint().expandedTo({wide, 0});
}

void HeatPage::makeParts(QVBoxLayout& column) {
    column.addWidget(m_list, 1);
    column.addWidget(m_list->buttons());
    column.addWidget(m_empty, 1);
    column.addWidget(m_body, 3);
    auto* body = new QVBoxLayout(m_body);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(theme::SmallSpacing);
    body->addWidget(m_faults);
    body->addWidget(m_orders);
    body->addWidget(m_attacks, 1);
    m_empty->setAlignment(Qt::AlignTop);
    m_empty->setText(tr("No heats yet. Add a heat with its boats and choose its film; then go to "
                        "each gate and press the numbers of the boats as they pass."));
}

void HeatPage::connectParts() {
    connect(m_list, &HeatList::chosen, this, &HeatPage::selectHeat);
    connect(m_list, &HeatList::additionWanted, this, &HeatPage::addHeat);
    connect(m_list, &HeatList::namesWanted, this, &HeatPage::renameBoats);
    connect(m_list, &HeatList::filmWanted, this, &HeatPage::filmWanted);
    connect(m_list, &HeatList::removalWanted, this, &HeatPage::removeHeat);
    connect(m_orders, &HeatOrders::takingWanted, this,
            [this] { whenMeant([this](const CMTime& moment) { mark(moment); }); });
    connect(m_orders, &HeatOrders::columnChosen, this, &HeatPage::goToColumn);
    connect(m_attacks, &HeatAttacks::additionWanted, this, [this] { addAttack(); });
    connect(m_attacks, &HeatAttacks::startWanted, this, [this] {
        whenMeant([this](const CMTime& moment) { m_attacks->setMoment(0, moment); });
    });
    connect(m_attacks, &HeatAttacks::endWanted, this, [this] { endAttack(); });
    connect(&m_front, &HeatDesk::told, this, &HeatPage::told);
    connect(&m_front, &HeatDesk::flashed, this, &HeatPage::flashed);
    connect(&m_front, &HeatDesk::selected, this, [this] {
        m_orders->refresh();
        m_attacks->refresh();
        emit marksChanged();
    });
}

void HeatPage::refresh() {
    m_front.follow();
    showHeats();
    m_orders->refresh();
    m_attacks->refresh();
    tellFilm();
    emit marksChanged();
}

void HeatPage::showHeats() {
    const rounddata030* const front = m_front.heat();
    m_list->setHeats(m_desk.document, front ? heat() : std::nullopt);
    m_empty->setVisible(!front);
    m_body->setVisible(front);
    QStringList faults;
    if (front)
        for (const std::string& fault : faultsOf(*front, m_front.course()))
            faults.append(QStringLiteral("⚠ ") + qtText(fault));
    m_faults->setText(faults.join('\n'));
    m_faults->setVisible(!faults.isEmpty());
}

void HeatPage::tellFilm() {
    const QString now = film();
    if (now == std::exchange(m_film, now))
        return;
    emit filmChanged();
}

void HeatPage::changeEvent(QEvent* event) {
    CrossPage::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh(); // with the colours of boats for the other ground
}

void HeatPage::showFrame() {
    m_orders->showFrame();
}

void HeatPage::commit() {
    m_orders->commit();
    m_attacks->commit();
}

QString HeatPage::film() const {
    return m_front.heat() ? qtText(m_front.heat()->videoname) : QString();
}

std::vector<LineMark> HeatPage::marks() const {
    std::vector<LineMark> marks;
    for (const HeatMark& mark : m_front.marks()) {
        const QString attack = tr("A%1").arg(mark.record + 1);
        const QString label = mark.isOrder
                                  ? QString::number(m_front.heat()->generals[mark.record].gate)
                              : mark.entry == 0 ? attack
                                                : attack + QStringLiteral("›");
        marks.push_back({*m_front.momentOf(mark), label, marks.size()});
    }
    return marks;
}

std::optional<std::size_t> HeatPage::selectedMark() const {
    const auto marks = m_front.marks();
    const auto& selected = m_front.front().selected;
    const auto found = selected ? std::ranges::find(marks, *selected) : marks.end();
    if (found == marks.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - marks.begin());
}

void HeatPage::selectMark(std::size_t mark) {
    commit(); // for the mark that it was typed for
    const auto marks = m_front.marks();
    if (mark < marks.size())
        m_front.select(marks[mark]);
}

void HeatPage::mark(const CMTime& moment) {
    m_orders->take(moment);
}

void HeatPage::moveMark(const CMTime& moment) {
    const auto selected = m_front.front().selected;
    if (!selected || !m_front.heat()) {
        emit told(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    if (!selected->isOrder) {
        m_attacks->setMoment(selected->entry, moment);
        return;
    }
    m_front.editHeat(tr("order moved"), [&](rounddata030& heat, HeatFront&) {
        moveOrder(heat, selected->record, moment);
    });
}

void HeatPage::removeMark() {
    const auto selected = m_front.front().selected;
    if (!selected || !m_front.heat())
        return;
    if (!selected->isOrder) {
        m_attacks->removeMoment(selected->entry);
        return;
    }
    m_front.editHeat(tr("order removed"), [&](rounddata030& heat, HeatFront& front) {
        removeOrder(heat, selected->record);
        front.selected.reset();
    });
}

void HeatPage::stepRow(int step) {
    const auto row = static_cast<std::ptrdiff_t>(heat().value_or(0)) + step;
    if (heat() && row >= 0)
        selectHeat(static_cast<std::size_t>(row));
}

bool HeatPage::stepGate(int step) {
    const auto& gates = m_front.course().gates;
    if (!m_front.heat() || gates.empty())
        return true;
    commit();
    const auto last = static_cast<std::ptrdiff_t>(gates.size()) - 1;
    const auto place = static_cast<std::ptrdiff_t>(m_front.front().gate) + step;
    m_front.setGate(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place, 0, last)));
    m_front.draft(std::nullopt, HeatFront::Naming::Nothing);
    const auto record = orderAt(*m_front.heat(), *gate());
    m_front.select(record ? std::optional(HeatMark{true, *record, 0}) : std::nullopt);
    return true;
}

/// The order that was taken there, or its gate where none was or another one is not taken yet.
void HeatPage::goToColumn(const ShownOrder& order) {
    commit();
    const auto place = m_front.placeOnCourse(order.gate);
    const rounddata030* const heat = m_front.heat();
    const bool isTakenThere = heat && order.record && *order.record < heat->generals.size() &&
                              heat->generals[*order.record].gate == order.gate;
    const bool isDraft = m_front.front().draft && place == m_front.front().gate;
    if (isTakenThere && !isDraft)
        m_front.goTo({true, *order.record, 0});
    else if (place)
        stepGate(static_cast<int>(*place) - static_cast<int>(m_front.front().gate));
}

void HeatPage::pressNumber(int number) {
    m_desk.deck.finishPresses(); // an attack may be about to begin, whose boats are named
    const rounddata030* const front = m_front.heat();
    if (!front)
        return;
    const auto boat = static_cast<std::size_t>(number - 1);
    if (number < 1 || boat >= front->athletes.size()) {
        emit told(tr("This heat has %1 boats.").arg(front->athletes.size()));
        return;
    }
    const std::string name = front->athletes[boat];
    const HeatFront::Naming naming = m_front.front().naming;
    if (naming == HeatFront::Naming::Attacker || naming == HeatFront::Naming::Defenders)
        m_attacks->name(name);
    else
        m_orders->name(name);
}

void HeatPage::selectHeat(std::size_t heat) {
    if (heat >= m_desk.cross().eliphase.size() || heat == this->heat())
        return;
    m_desk.deck.finishPresses(); // they belong to the heat in front
    commit();
    m_front.open(heat);
    refresh();
}

void HeatPage::addHeat() {
    HeatDialog dialog({}, everybody(m_desk.cross()), true, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_front.edit(tr("heat"), [&](crossdata030& cross, HeatFront& front) {
        front = openedHeat(cross, kavela::addHeat(cross, {}, dialog.names()));
    });
}

/// The heat that comes to the front is another one: nothing of this one stays selected.
void HeatPage::removeHeat() {
    if (!m_front.heat())
        return;
    const std::size_t removed = *heat();
    edit(tr("heat removed"), [&](crossdata030& cross) { kavela::removeHeat(cross, removed); });
    emit told({});
}

void HeatPage::renameBoats() {
    if (!m_front.heat())
        return;
    HeatDialog dialog(m_front.heat()->athletes, everybody(m_desk.cross()), false, this);
    if (dialog.exec() == QDialog::Accepted && dialog.names() != m_front.heat()->athletes)
        m_front.editHeat(tr("names of boats"),
                         [&](rounddata030& heat, HeatFront&) { renameAll(heat, dialog.names()); });
}

void HeatPage::setFilm(const QString& name) {
    if (m_front.heat() && name != film())
        m_front.editHeat(tr("film of a heat"), [&](rounddata030& heat, HeatFront&) {
            heat.videoname = name.toStdString();
        });
}

void HeatPage::addAttack() {
    if (!m_front.heat())
        emit refused(tr("Add a heat first."));
    else if (m_front.heat()->athletes.empty())
        emit refused(tr("This heat has no boats yet."));
    else if (m_desk.hasFilm())
        whenMeant([this](const CMTime& moment) { addAttack(moment); });
    else
        addAttack(std::nullopt); // who saw the race without a film knows who attacked whom
}

void HeatPage::addAttack(const std::optional<CMTime>& moment) {
    if (!m_front.heat() || m_front.heat()->athletes.empty())
        return;
    commit();
    m_attacks->add(moment);
}

void HeatPage::endAttack() {
    if (!m_front.attack())
        emit refused(tr("Select the attack that ends here."));
    else
        whenMeant([this](const CMTime& moment) { endAttack(moment); });
}

void HeatPage::endAttack(const CMTime& moment) {
    if (m_front.attack())
        m_attacks->setMoment(1, moment);
    else
        emit told(tr("Select the attack that ends here."));
}

} // namespace kavela::desktop
