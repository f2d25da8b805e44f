#include "desktop/cross/heats/heat_page.h"

#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_dialog.h"
#include "desktop/film/film_deck.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/text_table.h"
#include "splittaking/annotations/cross_heats.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

/// The list of heats, the heat and the mark in front, and what the keys do.
namespace kavela::desktop {

namespace {

using Names = std::vector<std::string>;

QString filmText(const TakingDocument& document, const std::string& name) {
    const QString film = QString::fromStdString(name);
    if (film.isEmpty())
        return HeatPage::tr("none");
    return QFileInfo(document.pathOf(name)).isFile() ? film
                                                     : HeatPage::tr("⚠ missing: %1").arg(film);
}

QString takenText(const rounddata030& heat, const crossinfodata030& course) {
    const auto taken = std::ranges::count_if(
        course.gates, [&](std::int64_t gate) { return orderAt(heat, gate).has_value(); });
    return HeatPage::tr("%1 of %2 gates").arg(taken).arg(course.gates.size());
}

/// What does not fit its column is told by its tip.
void tipTexts(QTableWidget& table) {
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column)
            table.item(row, column)->setToolTip(table.item(row, column)->text());
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

const rounddata030* HeatPage::current() const {
    const auto& heats = m_desk.cross().eliphase;
    return m_heat && *m_heat < heats.size() ? &heats[*m_heat] : nullptr;
}

const crossinfodata030& HeatPage::course() const {
    return m_desk.cross().crossinfo;
}

/// What the edit refuses is told, and nothing changes.
void HeatPage::change(const QString& what, const std::function<void(crossdata030&)>& change) {
    try {
        const QScopedValueRollback<bool> isEditing(m_isEditing, true);
        edit(what, change);
        m_seen = m_desk.document.value().cross;
        emit told({}); // what was told before is over
    } catch (const std::invalid_argument& refused) {
        emit told(QString::fromUtf8(refused.what()));
    }
}

void HeatPage::editHeat(const QString& what, const std::function<void(rounddata030&)>& act) {
    if (current())
        change(what, [&](crossdata030& cross) { act(cross.eliphase.at(*m_heat)); });
}

/// Brings the first gate without an order to the front.
void HeatPage::openHeat(std::optional<std::size_t> heat) {
    m_heat = heat;
    m_selected.reset();
    m_draft.reset();
    m_naming = Naming::Nothing;
    m_gate = 0;
    if (!current())
        return;
    const auto& gates = course().gates;
    const auto open = std::ranges::find_if(
        gates, [&](std::int64_t gate) { return !orderAt(*current(), gate).has_value(); });
    m_gate = open == gates.end() ? 0 : static_cast<std::size_t>(open - gates.begin());
}

void HeatPage::refresh() {
    checkState();
    showHeats();
    showOrders();
    showAttacks();
    tellFilm();
    emit marksChanged();
}

void HeatPage::showHeats() {
    const auto& heats = m_desk.cross().eliphase;
    std::vector<QStringList> rows;
    for (std::size_t heat = 0; heat < heats.size(); ++heat)
        rows.push_back({QString::number(heat + 1), joined(heats[heat].athletes),
                        filmText(m_desk.document, heats[heat].videoname),
                        takenText(heats[heat], course())});
    fillTable(*m_heats, rows);
    const QSignalBlocker blocked(m_heats);
    tipTexts(*m_heats);
    m_heats->setCurrentCell(m_heat ? static_cast<int>(*m_heat) : -1, 0);
    for (QPushButton* const each : m_heatButtons)
        each->setEnabled(current());
    m_empty->setVisible(!current());
    m_body->setVisible(current());
    QStringList faults;
    if (current())
        for (const std::string& fault : faultsOf(*current(), course()))
            faults.append(QStringLiteral("⚠ ") + QString::fromStdString(fault));
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
    showOrderButtons();
}

QString HeatPage::film() const {
    return current() ? QString::fromStdString(current()->videoname) : QString();
}

/// Marks without a moment are none.
std::vector<HeatPage::HeatMark> HeatPage::heatMarks() const {
    std::vector<HeatMark> marks;
    const auto add = [&](const HeatMark& mark) {
        if (momentOf(mark))
            marks.push_back(mark);
    };
    for (std::size_t order = 0; current() && order < current()->generals.size(); ++order)
        add({true, order, 0});
    for (std::size_t attack = 0; current() && attack < current()->actions.size(); ++attack)
        for (std::size_t entry = 0; entry < current()->actions[attack].time.size(); ++entry)
            add({false, attack, entry});
    return marks;
}

bool HeatPage::exists(const HeatMark& mark) const {
    if (!current())
        return false;
    if (mark.isOrder)
        return mark.record < current()->generals.size();
    return mark.record < current()->actions.size() &&
           (mark.entry == 0 || mark.entry < current()->actions[mark.record].time.size());
}

std::optional<CMTime> HeatPage::momentOf(const HeatMark& mark) const {
    if (!exists(mark))
        return std::nullopt;
    CMTime moment;
    if (mark.isOrder)
        moment = current()->generals[mark.record].time;
    else if (mark.entry < current()->actions[mark.record].time.size())
        moment = current()->actions[mark.record].time[mark.entry];
    return isTaken(moment) ? std::optional(moment) : std::nullopt;
}

std::vector<LineMark> HeatPage::marks() const {
    std::vector<LineMark> marks;
    for (const HeatMark& mark : heatMarks()) {
        const QString attack = tr("A%1").arg(mark.record + 1);
        const QString label = mark.isOrder ? QString::number(current()->generals[mark.record].gate)
                              : mark.entry == 0 ? attack
                                                : attack + QStringLiteral("›");
        marks.push_back({*momentOf(mark), label, marks.size()});
    }
    return marks;
}

std::optional<std::size_t> HeatPage::selectedMark() const {
    const auto marks = heatMarks();
    const auto found = m_selected ? std::ranges::find(marks, *m_selected) : marks.end();
    if (found == marks.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - marks.begin());
}

void HeatPage::selectMark(std::size_t mark) {
    const auto marks = heatMarks();
    if (mark < marks.size())
        select(marks[mark]);
}

/// An order brings its gate to the front.
void HeatPage::select(const std::optional<HeatMark>& mark) {
    m_selected = mark;
    m_naming = Naming::Nothing;
    if (mark && mark->isOrder) {
        m_draft.reset();
        const auto& gates = course().gates;
        const auto found = std::ranges::find(gates, current()->generals[mark->record].gate);
        if (found != gates.end() && gate() != *found)
            m_gate = static_cast<std::size_t>(found - gates.begin());
    }
    showOrders();
    showAttacks();
    emit marksChanged();
}

void HeatPage::goTo(const HeatMark& mark) {
    if (!exists(mark))
        return;
    select(mark);
    if (const auto moment = momentOf(mark))
        m_desk.deck.seek(*moment);
}

void HeatPage::moveMark(const CMTime& moment) {
    if (!m_selected || !current()) {
        emit told(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    const HeatMark mark = *m_selected;
    if (mark.isOrder)
        editHeat(tr("order moved"),
                 [&](rounddata030& heat) { moveOrder(heat, mark.record, moment); });
    else
        setAttackMoment(mark.entry, moment);
}

void HeatPage::removeMark() {
    if (!m_selected || !current())
        return;
    if (!m_selected->isOrder) {
        m_selected->entry == 0 ? removeAttack() : removeAttackMoment(m_selected->entry);
        return;
    }
    const std::size_t record = m_selected->record;
    m_selected.reset();
    editHeat(tr("order removed"), [&](rounddata030& heat) { removeOrder(heat, record); });
}

void HeatPage::stepRow(int step) {
    const auto heat = static_cast<std::ptrdiff_t>(m_heat.value_or(0)) + step;
    if (m_heat && heat >= 0)
        selectHeat(static_cast<std::size_t>(heat));
}

void HeatPage::selectHeat(std::size_t heat) {
    if (heat >= m_desk.cross().eliphase.size() || heat == m_heat)
        return;
    m_desk.deck.finishPresses(); // they belong to the heat in front
    commit();
    openHeat(heat);
    refresh();
}

void HeatPage::addHeat() {
    HeatDialog dialog({}, everybody(m_desk.cross()), true, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    change(tr("heat"),
           [&](crossdata030& cross) { openHeat(kavela::addHeat(cross, {}, dialog.names())); });
}

/// The heat that comes to the front is another one: nothing of this one stays selected.
void HeatPage::removeHeat() {
    if (!current())
        return;
    const std::size_t removed = *m_heat;
    edit(tr("heat removed"), [&](crossdata030& cross) { kavela::removeHeat(cross, removed); });
    emit told({});
}

void HeatPage::renameBoats() {
    if (!current())
        return;
    HeatDialog dialog(current()->athletes, everybody(m_desk.cross()), false, this);
    if (dialog.exec() == QDialog::Accepted && dialog.names() != current()->athletes)
        editHeat(tr("names of boats"),
                 [&](rounddata030& heat) { renameAll(heat, dialog.names()); });
}

void HeatPage::setFilm(const QString& name) {
    if (current() && name != film())
        editHeat(tr("film of a heat"),
                 [&](rounddata030& heat) { heat.videoname = name.toStdString(); });
}

} // namespace kavela::desktop
