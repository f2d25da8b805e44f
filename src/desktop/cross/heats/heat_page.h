#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/heats/boat_looks.h"

#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QTableWidget;
class QVBoxLayout;

namespace kavela::desktop {

class AttackForm;
class OrderBoard;
class PlaceGrid;

/// The elimination heats on film: the order of the boats at each gate, attacks and defences.
/// Numbers name the boats in the order in which they pass the gate in front, and the marking key
/// takes that order. Marks are the orders of the heat as the file has them, then its attacks, each
/// with its start and its end.
class HeatPage : public CrossPage {
    Q_OBJECT

public:
    explicit HeatPage(const CrossDesk& desk);

    void refresh() override;
    void showFrame() override;
    void commit() override;

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
    [[nodiscard]] std::optional<std::size_t> heat() const { return m_heat; }
    void selectHeat(std::size_t heat);
    /// The gate in front; nothing while the cross course has none.
    [[nodiscard]] std::optional<std::int64_t> gate() const;

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
    /// A moment of the heat: the order or the attack, and of an attack its start or its end.
    struct HeatMark {
        bool isOrder = true;
        std::size_t record = 0;
        std::size_t entry = 0;

        friend bool operator==(const HeatMark&, const HeatMark&) = default;
    };
    /// What a number names.
    enum class Naming { Nothing, Order, Attacker, Defenders };
    using Names = std::vector<std::string>;

    void makeHeats(QVBoxLayout& column);
    void makeOrders(QVBoxLayout& column);
    void makeOrderButtons(QVBoxLayout& column);
    void makeAttacks(QVBoxLayout& column);

    [[nodiscard]] const rounddata030* current() const;
    [[nodiscard]] const crossinfodata030& course() const;
    void editHeat(const QString& what, const std::function<void(rounddata030&)>& change);
    void change(const QString& what, const std::function<void(crossdata030&)>& change);
    void checkState();
    void follow(const crossdata030& before);
    void followGate(const std::vector<std::int64_t>& before);
    void followMark(const rounddata030& before);
    void openHeat(std::optional<std::size_t> heat);
    void showHeats();
    void tellFilm();

    [[nodiscard]] std::vector<HeatMark> heatMarks() const;
    [[nodiscard]] std::optional<CMTime> momentOf(const HeatMark& mark) const;
    [[nodiscard]] bool exists(const HeatMark& mark) const;
    void select(const std::optional<HeatMark>& mark);
    void goTo(const HeatMark& mark);

    void chooseColumn(std::size_t column);
    [[nodiscard]] std::optional<std::size_t> strayOrder() const;
    [[nodiscard]] std::optional<std::size_t> orderInFront() const;
    [[nodiscard]] Names offeredOrder() const;
    [[nodiscard]] Names shownOrder() const;
    [[nodiscard]] rounddata030 preview() const;
    [[nodiscard]] QString orderFault() const;
    void draft(Names order, Naming naming);
    void nameForOrder(const std::string& name);
    void takeOrder(const CMTime& moment);
    void takeOrderComment();
    void showOrders();
    void showBoard(const rounddata030& preview);
    void fitGrid();
    void showOrderButtons();

    [[nodiscard]] const actiondata030* attack() const;
    void changeAttack(const QString& what, const std::function<void(actiondata030&)>& change,
                      std::size_t entry = 0);
    void nameForAttack(const std::string& name);
    void setAttackMoment(std::size_t entry, const CMTime& moment);
    void removeAttackMoment(std::size_t entry);
    void removeAttack();
    void showAttacks();
    void dressAttack(int row);
    void offerTexts();

    std::optional<std::size_t> m_heat;
    std::size_t m_gate = 0; ///< place on the course
    std::optional<HeatMark> m_selected;
    std::optional<Names> m_draft; ///< of the gate in front, not taken yet
    Naming m_naming = Naming::Nothing;
    QString m_film;
    std::vector<BoatLook> m_looks;
    std::shared_ptr<const crossdata030> m_seen; ///< the content that is shown
    bool m_isEditing = false;                   ///< the page itself changes the content now

    QTableWidget* m_heats;
    std::vector<QPushButton*> m_heatButtons; ///< that need a heat
    QLabel* m_empty;
    QLabel* m_faults;
    QWidget* m_body;
    QLabel* m_title;
    OrderBoard* m_board;
    PlaceGrid* m_grid;
    QScrollArea* m_gridArea;
    QPushButton* m_take;
    QPushButton* m_keep;
    QPushButton* m_reset;
    QLineEdit* m_comment;
    QTableWidget* m_attacks;
    AttackForm* m_form;
};

} // namespace kavela::desktop
