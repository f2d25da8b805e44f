#pragma once

#include "desktop/cross/heats/heat_desk.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

#include <optional>
#include <utility>

namespace kavela::desktop {

class AttackForm;
class ColumnTable;

/// An attack as its list shows it.
struct AttackRow {
    actiondata030 attack;
    QIcon attacker;    ///< badges of the boats
    QIcon defender;    ///< of the only one
    QString defenders; ///< the name of the only one, or the initials of several
};

/// The attacks and defences of the heat in front: their list, the one that is selected in words,
/// and what adds, names, times and removes them.
class HeatAttacks : public QWidget {
    Q_OBJECT

public:
    explicit HeatAttacks(HeatDesk& desk, QWidget* parent = nullptr);

    void refresh();
    /// Takes what is being typed.
    void commit();

    /// Adds an attack between the boats that are likely to meet, and waits for the numbers of those
    /// that did. The heat has boats.
    void add(const std::optional<CMTime>& moment);
    /// Names a boat of the selected attack: the attacker first, then defenders, a second time
    /// taking one back.
    void name(const std::string& boat);
    /// Of the selected attack: 0 is its start, 1 its end.
    void setMoment(std::size_t entry, const CMTime& moment);
    /// Without its start the whole attack goes.
    void removeMoment(std::size_t entry);

signals:
    void additionWanted(); ///< these at the frame shown
    void startWanted();
    void endWanted();

private:
    void makeTable();
    void connectForm();
    void change(const QString& what, const std::function<void(actiondata030&)>& change,
                std::size_t entry = 0);
    void remove();
    /// The number of its heat, and its own there.
    using Place = std::optional<std::pair<std::size_t, std::size_t>>;
    [[nodiscard]] Place placeInFront() const;
    [[nodiscard]] AttackRow rowOf(const actiondata030& attack) const;
    void offerTexts();

    HeatDesk& m_desk;
    ColumnModel<AttackRow> m_rows;
    ColumnTable* m_table;
    AttackForm* m_form;
    Place m_shown; ///< in the form
};

} // namespace kavela::desktop
