#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/shell/qt_text.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/text_table.h"
#include "splittaking/annotations/cross_heats.h"
#include "splittaking/annotations/remembered_texts.h"

#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

/// Attacks and defences of the heat in front.
namespace kavela::desktop {

namespace {

using Names = std::vector<std::string>;

QStringList rowOf(const actiondata030& attack) {
    const auto moment = [&](std::size_t entry) {
        return entry < attack.time.size() ? momentText(attack.time[entry]) : QStringLiteral("–");
    };
    return {moment(0),
            moment(1),
            QString::fromStdString(attack.attacker),
            joined(attack.defenders),
            attack.success ? HeatPage::tr("✓ passed") : HeatPage::tr("✗ held"),
            QString::fromStdString(attack.side),
            QString::fromStdString(attack.place),
            QString::fromStdString(attack.comments)};
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

const actiondata030* HeatPage::attack() const {
    if (!current() || !m_selected || m_selected->isOrder ||
        m_selected->record >= current()->actions.size())
        return nullptr;
    return &current()->actions[m_selected->record];
}

/// `entry` is the moment that is selected afterwards.
void HeatPage::changeAttack(const QString& what, const std::function<void(actiondata030&)>& change,
                            std::size_t entry) {
    if (!attack())
        return;
    editHeat(what, [&](rounddata030& heat) {
        actiondata030 changed = heat.actions.at(m_selected->record);
        change(changed);
        m_selected = HeatMark{false, replaceAttack(heat, m_selected->record, changed), entry};
    });
    showAttacks(); // also what was refused is shown as it is
}

/// Between the second boat and the first: the likeliest attack.
void HeatPage::addAttack() {
    if (!current())
        emit refused(tr("Add a heat first."));
    else if (current()->athletes.empty())
        emit refused(tr("This heat has no boats yet."));
    else if (m_desk.hasFilm())
        whenMeant([this](const CMTime& moment) { addAttack(moment); });
    else
        addAttack(std::nullopt); // who saw the race without a film knows who attacked whom
}

void HeatPage::addAttack(const std::optional<CMTime>& moment) {
    if (!current() || current()->athletes.empty())
        return;
    commit();
    const Names likely = offeredOrder();
    const Names& order = likely.empty() ? current()->athletes : likely;
    actiondata030 made;
    if (moment)
        made.time = {*moment};
    made.attacker = order[std::min<std::size_t>(1, order.size() - 1)];
    if (order.size() > 1)
        made.defenders = {order.front()};
    if (gate())
        made.place = tr("Gate %1").arg(*gate()).toStdString();
    editHeat(tr("attack"), [&](rounddata030& heat) {
        m_selected = HeatMark{false, kavela::addAction(heat, made), 0};
        m_draft.reset();
        m_naming = Naming::Attacker;
    });
    emit flashed(tr("Attack: number of the attacker, then of the defenders"));
    if (!moment)
        emit told(tr("An attack without a moment, since there is no film: press the number of the "
                     "attacker, then those of the defenders."));
}

/// The attacker first, then defenders, a second press taking one back.
void HeatPage::nameForAttack(const std::string& name) {
    if (!attack()) {
        m_naming = Naming::Nothing;
        return;
    }
    const bool isAttacker = m_naming == Naming::Attacker;
    changeAttack(isAttacker ? tr("attacker") : tr("defenders"), [&](actiondata030& changed) {
        if (isAttacker) {
            changed.attacker = name;
            changed.defenders.clear();
        } else if (std::erase(changed.defenders, name) == 0) {
            changed.defenders.push_back(name);
        }
    });
    m_naming = Naming::Defenders;
}

void HeatPage::setAttackMoment(std::size_t entry, const CMTime& moment) {
    changeAttack(
        tr("moment of an attack"),
        [&](actiondata030& changed) { setPadded(changed.time, entry, moment); }, entry);
}

void HeatPage::endAttack() {
    if (!attack())
        emit refused(tr("Select the attack that ends here."));
    else
        whenMeant([this](const CMTime& moment) { endAttack(moment); });
}

void HeatPage::endAttack(const CMTime& moment) {
    if (attack())
        setAttackMoment(1, moment);
    else
        emit told(tr("Select the attack that ends here."));
}

void HeatPage::removeAttackMoment(std::size_t entry) {
    changeAttack(tr("end of an attack removed"),
                 [&](actiondata030& changed) { eraseEntry(changed.time, entry); });
}

void HeatPage::removeAttack() {
    if (!attack())
        return;
    const std::size_t removed = m_selected->record;
    m_selected.reset();
    m_naming = Naming::Nothing;
    editHeat(tr("attack removed"),
             [&](rounddata030& heat) { kavela::removeAction(heat, removed); });
}

void HeatPage::showAttacks() {
    std::vector<QStringList> rows;
    if (current())
        for (const actiondata030& each : current()->actions)
            rows.push_back(rowOf(each));
    fillTable(*m_attacks, rows);
    const QSignalBlocker blocked(m_attacks);
    for (int row = 0; row < m_attacks->rowCount(); ++row)
        dressAttack(row);
    m_attacks->setCurrentCell(attack() ? static_cast<int>(m_selected->record) : -1, 0);
    offerTexts();
    m_form->show(attack(), m_looks);
}

/// Badges for the boats, a colour for the outcome, and the whole names as tips.
void HeatPage::dressAttack(int row) {
    const actiondata030& shown = current()->actions.at(static_cast<std::size_t>(row));
    const auto badge = [&](const std::string& name) {
        return badgeOf(lookOf(m_looks, name, palette()), *this);
    };
    const bool hasOneDefender = shown.defenders.size() == 1;
    m_attacks->item(row, 2)->setIcon(badge(shown.attacker));
    m_attacks->item(row, 3)->setIcon(hasOneDefender ? badge(shown.defenders.front()) : QIcon());
    m_attacks->item(row, 4)->setForeground(changeColour(shown.success ? 1 : 0, palette()));
    for (int column = 0; column < m_attacks->columnCount(); ++column)
        m_attacks->item(row, column)->setToolTip(m_attacks->item(row, column)->text());
    if (hasOneDefender)
        return;
    QStringList cues;
    for (const std::string& name : shown.defenders)
        cues.append(lookOf(m_looks, name, palette()).cue);
    m_attacks->item(row, 3)->setText(cues.join(", "));
}

/// What the heats of this file used, then the words of the sport.
void HeatPage::offerTexts() {
    Names sides;
    Names places;
    for (const rounddata030& heat : m_desk.cross().eliphase)
        for (const actiondata030& each : heat.actions) {
            sides.push_back(each.side);
            places.push_back(each.place);
        }
    Names offered{tr("Start ramp").toStdString()};
    for (const std::int64_t at : course().gates)
        offered.push_back(tr("Gate %1").arg(at).toStdString());
    for (const QString& place :
         {tr("Roll"), tr("Eddy"), tr("Drop"), tr("Wave"), tr("Flat water"), tr("Finish")})
        offered.push_back(place.toStdString());
    const Names usualSides{tr("Left").toStdString(), tr("Right").toStdString(),
                           tr("Inside").toStdString(), tr("Outside").toStdString()};
    m_form->offer(withRemembered(withRemembered({}, sides), usualSides),
                  withRemembered(withRemembered({}, places), offered));
}

} // namespace kavela::desktop
