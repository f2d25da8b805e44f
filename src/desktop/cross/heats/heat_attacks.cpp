#include "desktop/cross/heats/heat_attacks.h"

#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_buttons.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/film_table.h"
#include "splitdata/film_marks.h"
#include "splittaking/annotations/cross_heats.h"
#include "splittaking/annotations/remembered_texts.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int LeastAttacksHeight = 84; ///< pixels

/// Of its start, which is entry 0, or its end.
Column<AttackRow> attackMomentColumn(const QString& title, std::size_t entry) {
    return numberColumn<AttackRow>(
        title,
        [entry](const AttackRow& row) {
            const auto& moments = row.attack.time;
            const bool isThere = entry < moments.size() && isTaken(moments[entry]);
            return isThere ? std::optional(moments[entry].seconds()) : std::nullopt;
        },
        shownHundredths);
}

Column<AttackRow> attackTextColumn(const QString& title, std::string actiondata030::*text) {
    return textColumn<AttackRow>(title,
                                 [text](const AttackRow& row) { return qtText(row.attack.*text); });
}

/// What does not fit its column is told by its tip, and the names of several defenders by that and
/// by what is copied.
ColumnModel<AttackRow>::Columns attackColumns(const HeatDesk& desk) {
    const auto attacker = [](const AttackRow& row) {
        return Cell{.text = qtText(row.attack.attacker), .badge = row.attacker};
    };
    const auto defenders = [](const AttackRow& row) {
        return Cell{
            .text = row.defenders, .typed = joined(row.attack.defenders), .badge = row.defender};
    };
    const auto outcome = [&desk](const AttackRow& row) {
        const bool hasPassed = row.attack.success;
        return Cell{.text = hasPassed ? HeatAttacks::tr("✓ passed") : HeatAttacks::tr("✗ held"),
                    .colour = changeColour(hasPassed ? 1 : 0, desk.palette())};
    };
    ColumnModel<AttackRow>::Columns columns{
        attackMomentColumn(HeatAttacks::tr("Start"), 0),
        attackMomentColumn(HeatAttacks::tr("End"), 1),
        {.title = HeatAttacks::tr("Attacker"), .show = attacker},
        {.title = HeatAttacks::tr("On"), .show = defenders},
        {.title = HeatAttacks::tr("Outcome"), .show = outcome},
        attackTextColumn(HeatAttacks::tr("Side"), &actiondata030::side),
        attackTextColumn(HeatAttacks::tr("Place"), &actiondata030::place),
        attackTextColumn(HeatAttacks::tr("Comment"), &actiondata030::comments)};
    for (Column<AttackRow>& column : columns)
        column.show = [show = column.show](const AttackRow& row) {
            Cell cell = show(row);
            cell.tip = cell.typed.value_or(cell.text);
            return cell;
        };
    return columns;
}

/// The attack in its new form, where its first moment belongs. One that names strangers from a file
/// stays where it is as long as its names stay. Returns its place.
std::size_t replaceAttack(rounddata030& heat, std::size_t place, const actiondata030& attack) {
    const actiondata030& before = entryOf(heat.actions, place, "attack");
    const bool hasSameNames =
        before.attacker == attack.attacker && before.defenders == attack.defenders;
    try {
        return changeAction(heat, place, attack);
    } catch (const std::invalid_argument&) {
        if (!hasSameNames)
            throw;
        heat.actions[place] = attack;
        return place;
    }
}

} // namespace

HeatAttacks::HeatAttacks(HeatDesk& desk, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_rows(attackColumns(desk)),
      m_table(filmTable(m_rows, "attacks")),
      m_form(new AttackForm) {
    auto* title = new QLabel(tr("Attacks"));
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    auto* adding =
        heatButton("addAttack", tr("Attack at this frame"),
                   tr("An attack starts here: then press the number of the attacker and those "
                      "of the defenders"));
    auto* row = new QHBoxLayout;
    row->addWidget(title, 1);
    row->addWidget(adding);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(row);
    column->addWidget(m_table, 1);
    column->addWidget(m_form);
    connect(adding, &QPushButton::clicked, this, &HeatAttacks::additionWanted);
    makeTable();
    connectForm();
}

/// The names and the comment share the room that the others leave; long texts are told by tips.
void HeatAttacks::makeTable() {
    m_table->stretch({2, 3, 7}); // attacker, defenders and comment
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setMinimumHeight(grown(*this, LeastAttacksHeight));
    m_table->setIconSize(badgeSize(*m_table));
    m_table->setToolTip(tr("A click shows the frame of an attack"));
    m_table->setAdd(tr("Attack at this frame"), [this] { emit additionWanted(); });
    connect(m_table, &ColumnTable::chosen, this, [this] {
        if (const int place = m_table->currentPlace(); place >= 0)
            m_desk.select(HeatMark{false, static_cast<std::size_t>(place), 0});
    });
    connect(m_table, &ColumnTable::clicked, this, [this](const QModelIndex& cell) {
        m_desk.goTo({false, static_cast<std::size_t>(m_table->placeAt(cell)), 0});
    });
}

void HeatAttacks::connectForm() {
    connect(m_form, &AttackForm::edited, this,
            [this](const QString& what, const std::function<void(actiondata030&)>& edit) {
                change(what, edit);
            });
    connect(m_form, &AttackForm::startWanted, this, &HeatAttacks::startWanted);
    connect(m_form, &AttackForm::endWanted, this, &HeatAttacks::endWanted);
    connect(m_form, &AttackForm::endCleared, this, [this] { removeMoment(1); });
    connect(m_form, &AttackForm::removalWanted, this, &HeatAttacks::remove);
}

/// `entry` is the moment that is selected afterwards.
void HeatAttacks::change(const QString& what, const std::function<void(actiondata030&)>& change,
                         std::size_t entry) {
    if (!m_desk.attack())
        return;
    m_desk.editHeat(what, [&](rounddata030& heat, HeatFront& front) {
        const std::size_t place = front.selected->record;
        actiondata030 changed = heat.actions.at(place);
        change(changed);
        front.selected = HeatMark{false, replaceAttack(heat, place, changed), entry};
    });
    refresh(); // also what was refused is shown as it is
}

/// Between the second boat and the first: the likeliest attack.
void HeatAttacks::add(const std::optional<CMTime>& moment) {
    const HeatDesk::Names likely = m_desk.offeredOrder();
    const HeatDesk::Names& order = likely.empty() ? m_desk.heat()->athletes : likely;
    actiondata030 made;
    if (moment)
        made.time = {*moment};
    made.attacker = order[std::min<std::size_t>(1, order.size() - 1)];
    if (order.size() > 1)
        made.defenders = {order.front()};
    if (const auto gate = m_desk.gate())
        made.place = tr("Gate %1").arg(*gate).toStdString();
    m_desk.editHeat(tr("attack"), [&](rounddata030& heat, HeatFront& front) {
        front.selected = HeatMark{false, kavela::addAction(heat, made), 0};
        front.draft.reset();
        front.naming = HeatFront::Naming::Attacker;
    });
    emit m_desk.flashed(tr("Attack: number of the attacker, then of the defenders"));
    if (!moment)
        emit m_desk.told(tr("An attack without a moment, since there is no film: press the number "
                            "of the attacker, then those of the defenders."));
}

void HeatAttacks::name(const std::string& boat) {
    commit();
    if (!m_desk.attack()) {
        m_desk.setNaming(HeatFront::Naming::Nothing);
        return;
    }
    const bool isAttacker = m_desk.front().naming == HeatFront::Naming::Attacker;
    change(isAttacker ? tr("attacker") : tr("defenders"), [&](actiondata030& changed) {
        if (isAttacker) {
            changed.attacker = boat;
            changed.defenders.clear();
        } else if (std::erase(changed.defenders, boat) == 0) {
            changed.defenders.push_back(boat);
        }
    });
    m_desk.setNaming(HeatFront::Naming::Defenders);
}

/// Which may bring another attack to its place in the list: what is typed belongs to this one.
void HeatAttacks::setMoment(std::size_t entry, const CMTime& moment) {
    commit();
    change(
        tr("moment of an attack"),
        [&](actiondata030& changed) { setPadded(changed.time, entry, moment); }, entry);
}

void HeatAttacks::removeMoment(std::size_t entry) {
    commit();
    if (entry == 0)
        remove();
    else
        change(tr("end of an attack removed"),
               [&](actiondata030& changed) { eraseEntry(changed.time, entry); });
}

void HeatAttacks::remove() {
    commit(); // so that undoing brings it back whole
    if (!m_desk.attack())
        return;
    m_desk.editHeat(tr("attack removed"), [&](rounddata030& heat, HeatFront& front) {
        kavela::removeAction(heat, front.selected->record);
        front.selected.reset();
        front.naming = HeatFront::Naming::Nothing;
    });
}

void HeatAttacks::commit() {
    m_form->commit();
}

void HeatAttacks::refresh() {
    std::vector<AttackRow> rows;
    if (m_desk.heat())
        for (const actiondata030& each : m_desk.heat()->actions)
            rows.push_back(rowOf(each));
    const int selected = m_desk.attack() ? static_cast<int>(m_desk.front().selected->record) : -1;
    {
        const QSignalBlocker blocked(m_table); // what is selected is told by the page
        m_rows.show(std::move(rows));
        if (selected != m_table->currentPlace())
            m_table->choose(selected, 0);
    }
    offerTexts();
    const auto shown = placeInFront();
    m_form->show(m_desk.attack(), m_desk.looks(), shown != std::exchange(m_shown, shown));
}

HeatAttacks::Place HeatAttacks::placeInFront() const {
    if (!m_desk.attack())
        return std::nullopt;
    return std::pair{*m_desk.front().heat, m_desk.front().selected->record};
}

AttackRow HeatAttacks::rowOf(const actiondata030& attack) const {
    const auto looks = m_desk.looks();
    const auto look = [&](const std::string& name) {
        return lookOf(looks, name, m_desk.palette());
    };
    const bool hasOneDefender = attack.defenders.size() == 1;
    QStringList defenders;
    for (const std::string& name : attack.defenders)
        defenders.append(hasOneDefender ? qtText(name) : look(name).cue);
    return {attack, badgeOf(look(attack.attacker), *this),
            hasOneDefender ? badgeOf(look(attack.defenders.front()), *this) : QIcon(),
            defenders.join(", ")};
}

/// What the heats of this file used, then the words of the sport.
void HeatAttacks::offerTexts() {
    HeatDesk::Names sides;
    HeatDesk::Names places;
    for (const rounddata030& heat : m_desk.desk().cross().eliphase)
        for (const actiondata030& each : heat.actions) {
            sides.push_back(each.side);
            places.push_back(each.place);
        }
    HeatDesk::Names offered{tr("Start ramp").toStdString()};
    for (const std::int64_t at : m_desk.course().gates)
        offered.push_back(tr("Gate %1").arg(at).toStdString());
    for (const QString& place :
         {tr("Roll"), tr("Eddy"), tr("Drop"), tr("Wave"), tr("Flat water"), tr("Finish")})
        offered.push_back(place.toStdString());
    const HeatDesk::Names usualSides{tr("Left").toStdString(), tr("Right").toStdString(),
                                     tr("Inside").toStdString(), tr("Outside").toStdString()};
    m_form->offer(withRemembered(withRemembered({}, sides), usualSides),
                  withRemembered(withRemembered({}, places), offered));
}

} // namespace kavela::desktop
