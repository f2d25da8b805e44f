#pragma once

#include "results/team_records.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace kavela::desktop {

/// A new athlete of a team: surname in capitals and given name, birth year, boats.
class TeamAthleteDialog : public QDialog {
    Q_OBJECT

public:
    /// `check` gives the name as the team takes it, or throws RefusedEntry.
    using Check = std::function<std::string(const QString& name)>;

    TeamAthleteDialog(Check check, const std::string& category, QWidget* parent);

    /// The athlete, after the dialog was accepted.
    [[nodiscard]] const myTeamStruct& athlete() const { return m_athlete; }

    void accept() override;

private:
    Check m_check;
    QLineEdit* m_surname;
    QLineEdit* m_givenName;
    QLineEdit* m_birthYear;
    std::vector<QCheckBox*> m_categories;
    QLabel* m_fault;
    myTeamStruct m_athlete;
};

} // namespace kavela::desktop
