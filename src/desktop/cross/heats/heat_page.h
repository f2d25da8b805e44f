#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/heats/heat_desk.h"

class QLabel;
class QVBoxLayout;

namespace kavela::desktop {

class HeatAttacks;
class HeatList;
class HeatOrders;
struct ShownOrder;

/// The elimination heats on film: the order of the boats at each gate, attacks and defences.
/// Numbers name the boats in the order in which they pass the gate in front, and the marking key
/// takes that order. Marks are the orders of the heat as the file has them, then its attacks, each
/// with its start and its end.
class HeatPage : public CrossPage {
    Q_OBJECT

public:
    explicit HeatPage(const CrossDesk& desk);
    ~HeatPage() override;

    void refresh() override;
    void showFrame() override;
    void commit() override;

    /// As wide as the parts of a heat, also as long as there is none.
    [[nodiscard]] QSize minimumSizeHint() const override;

    [[nodiscard]] QString film() const override;
    [[nodiscard]] std::vector<LineMark> marks() const override;
    [[nodiscard]] std::optional<std::size_t> selectedMark() const override;
    void selectMark(std::size_t mark) override;
    void setFilm(const QString& name) override;

    /// Takes the order shown for the gate in front. A gate that had none gives way to the next one.
    void mark(const CMTime& moment) override;
    void moveMark(const CMTime& moment) override;
    void removeMark() override;
    void stepRow(int step) override;
    bool stepGate(int step) override;
    /// Names the boat of that number on the start list as the next one at the gate; a second press
    /// takes it back. Right after addAttack() the attacker, then the defenders.
    void pressNumber(int number) override;

    /// The heat in front, by its place in the file; nothing without one.
    [[nodiscard]] std::optional<std::size_t> heat() const { return m_front.front().heat; }
    void selectHeat(std::size_t heat);
    /// The gate in front; nothing while the cross course has none.
    [[nodiscard]] std::optional<std::int64_t> gate() const { return m_front.gate(); }

    /// Adds a heat of the boats that the coach chooses.
    void addHeat();
    void removeHeat();
    /// Gives the boats of the heat other names.
    void renameBoats();

    /// Adds an attack at the frame shown, between the boats that are likely to meet; without a film
    /// it has no moment.
    void addAttack();
    void addAttack(const std::optional<CMTime>& moment);
    /// Ends the selected attack at the frame shown.
    void endAttack();
    void endAttack(const CMTime& moment);

signals:
    /// The coach wants to choose the film of the heat in front: setFilm() takes it.
    void filmWanted();

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeParts(QVBoxLayout& column);
    void connectParts();
    void showHeats();
    void tellFilm();
    void goToColumn(const ShownOrder& order);

    HeatDesk m_front;
    QString m_film;

    HeatList* m_list;
    QLabel* m_empty;
    QWidget* m_body;
    QLabel* m_faults;
    HeatOrders* m_orders;
    HeatAttacks* m_attacks;
};

} // namespace kavela::desktop
