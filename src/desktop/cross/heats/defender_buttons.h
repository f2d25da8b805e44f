#pragma once

#include "desktop/cross/heats/boat_looks.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class QHBoxLayout;
class QToolButton;

namespace kavela::desktop {

/// Who is attacked: a button for each boat of the heat, and for those beyond it that a file names,
/// to be taken out.
class DefenderButtons : public QWidget {
    Q_OBJECT

public:
    explicit DefenderButtons(QWidget* parent = nullptr);

    /// The boats that can be attacked by one of them; ahead of setNames().
    void setBoats(std::vector<BoatLook> boats, std::string attacker);
    /// Who is attacked, in the order in which they were named.
    void setNames(const QStringList& names);
    [[nodiscard]] const QStringList& names() const { return m_names; }

signals:
    void clicked(); ///< the coach named a boat, or took one back

private:
    void addButton();
    void take(const QString& name, bool isOn);

    QHBoxLayout* m_row;
    std::vector<QToolButton*> m_buttons;
    std::vector<BoatLook> m_boats;
    std::string m_attacker;
    QStringList m_names;
};

} // namespace kavela::desktop
