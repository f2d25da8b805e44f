#pragma once

#include "results/selection_edit.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace kavela::desktop {

/// An athlete of a selection: name, club, birth year with the age group it allows, preselection and
/// bonuses.
class AthleteDialog : public QDialog {
    Q_OBJECT

public:
    /// So many preselection groups and kinds of bonus the selection has; one more of each is
    /// offered.
    AthleteDialog(const NewAthlete& athlete, std::size_t groups, std::size_t bonuses,
                  QWidget* parent);

    [[nodiscard]] NewAthlete athlete() const;

private:
    void showAgeGroups();

    std::size_t m_groupCount;
    std::size_t m_bonusCount;
    QLineEdit* m_name;
    QLineEdit* m_club;
    QSpinBox* m_year;
    QComboBox* m_ageGroup;
    std::vector<QCheckBox*> m_groups;
    std::vector<QLineEdit*> m_bonuses;
};

} // namespace kavela::desktop
