#include "desktop/cross/heats/defender_buttons.h"

#include "desktop/cross/heats/attack_form.h"
#include "desktop/shell/qt_text.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

DefenderButtons::DefenderButtons(QWidget* parent) : QWidget(parent), m_row(new QHBoxLayout(this)) {
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(2);
}

void DefenderButtons::setBoats(std::vector<BoatLook> boats, std::string attacker) {
    m_boats = std::move(boats);
    m_attacker = std::move(attacker);
}

void DefenderButtons::setNames(const QStringList& names) {
    m_names = names;
    std::vector<BoatLook> looks = m_boats;
    for (const QString& each : names) {
        const std::string name = each.toStdString();
        if (std::ranges::count(looks, name, &BoatLook::name) == 0)
            looks.push_back(lookOf(m_boats, name, palette()));
    }
    while (m_buttons.size() < looks.size())
        addButton();
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        QToolButton& shown = *m_buttons[i];
        shown.setVisible(i < looks.size());
        if (i >= looks.size())
            continue;
        const QString name = qtText(looks[i].name);
        const bool isOn = names.contains(name);
        shown.setProperty("boat", name);
        shown.setText(isOn ? QStringLiteral("✓ ") + looks[i].cue : looks[i].cue);
        shown.setToolTip(AttackForm::tr("%1 defends").arg(name));
        shown.setAccessibleName(shown.toolTip());
        shown.setChecked(isOn);
        shown.setEnabled(isOn || looks[i].name != m_attacker);
    }
}

/// A click leaves the keys to the film.
void DefenderButtons::addButton() {
    auto* const made = new QToolButton;
    made->setObjectName(QStringLiteral("defender%1").arg(m_buttons.size() + 1));
    made->setCheckable(true);
    made->setFocusPolicy(Qt::TabFocus);
    m_row->addWidget(made);
    m_buttons.push_back(made);
    connect(made, &QToolButton::clicked, this,
            [this, made](bool isOn) { take(made->property("boat").toString(), isOn); });
}

void DefenderButtons::take(const QString& name, bool isOn) {
    m_names.removeAll(name);
    if (isOn)
        m_names.append(name);
    emit clicked();
}

} // namespace kavela::desktop
