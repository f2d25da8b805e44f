#pragma once

#include "desktop/shell/entry_dialog.h"
#include "results/selection_edit.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace kavela::desktop {

class WholeBox;

/// An athlete of a selection: name, club, birth year with the age group it allows, preselection and
/// bonuses.
class AthleteDialog : public EntryDialog {
    Q_OBJECT

public:
    /// So many preselection groups and kinds of bonus the selection has; one more of each is
    /// offered.
    AthleteDialog(const NewAthlete& athlete, std::size_t groups, std::size_t bonuses,
                  QWidget* parent);

    [[nodiscard]] NewAthlete athlete() const;
    void accept() override;

private:
    void showAgeGroups();

    std::size_t m_groupCount;
    std::size_t m_bonusCount;
    QLineEdit* m_name;
    QLineEdit* m_club;
    WholeBox* m_year;
    QComboBox* m_ageGroup;
    std::vector<QCheckBox*> m_groups;
    std::vector<QLineEdit*> m_bonuses;
};

} // namespace kavela::desktop
