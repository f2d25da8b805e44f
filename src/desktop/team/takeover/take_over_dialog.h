#pragma once

#include "desktop/team/takeover/take_over.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QCheckBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace kavela::desktop {

/// What a file has for the athletes of the team, to be ticked line by line before anything is
/// written; and who stays out, with the reason.
class TakeOverDialog : public QDialog {
    Q_OBJECT

public:
    /// Results of a split file.
    TakeOverDialog(const myTeamToSaveStruct& team, FoundRace race, QWidget* parent);
    /// Results of an official list, which says neither category nor phase nor day; `present` is
    /// the moment to start from, `category` the one to propose.
    TakeOverDialog(const myTeamToSaveStruct& team, ResultsList list, const std::string& category,
                   ReferenceDate present, QWidget* parent);

    /// What was chosen.
    [[nodiscard]] const std::vector<PlannedResult>& planned() const { return m_plan.planned; }
    [[nodiscard]] RaceName name() const;
    [[nodiscard]] std::size_t tickedCount() const;

private:
    TakeOverDialog(const myTeamToSaveStruct& team, QWidget* parent);
    void makeRace(QFormLayout& form, const FoundRace& race);
    void makeListFacts(QFormLayout& form, const std::string& category, ReferenceDate present);
    void finish(QFormLayout* form);
    void plan();
    void showPlan();
    void fillRow(int row, const PlannedResult& planned);
    void fillRow(int row, const NotTaken& boat);
    void showCount();
    void tickAll(bool isTicked);

    const myTeamToSaveStruct& m_team;
    std::function<FoundRace()> m_read;
    TakeOverPlan m_plan;
    QComboBox* m_event = nullptr;
    QLineEdit* m_location = nullptr;
    QSpinBox* m_year = nullptr;
    QComboBox* m_category = nullptr;
    QComboBox* m_phase = nullptr;
    QDateEdit* m_date = nullptr;
    QCheckBox* m_isFinal = nullptr;
    QTableWidget* m_lines = nullptr;
    QLabel* m_note = nullptr;
    QPushButton* m_take = nullptr;
    bool m_isFilling = false;
};

} // namespace kavela::desktop
