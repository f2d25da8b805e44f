#pragma once

#include "planning/planning_records.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace kavela::desktop {

class FaultLabel;

/// Who an athlete of a planning is: name, contact, categories, picture.
class PlannedAthleteDialog : public QDialog {
    Q_OBJECT

public:
    PlannedAthleteDialog(const athletesplanning_v6& athlete, QWidget* parent);

    /// The athlete as entered; the seasons are those given.
    [[nodiscard]] athletesplanning_v6 athlete() const;

    void accept() override;
    /// Takes a picture file; false, with the reason shown, when it is none.
    bool takePicture(const QString& path);

private:
    void showPicture();

    athletesplanning_v6 m_athlete;
    QLineEdit* m_name;
    QLineEdit* m_email;
    QLineEdit* m_phone;
    QLineEdit* m_categories;
    QLabel* m_picture;
    FaultLabel* m_fault;
};

} // namespace kavela::desktop
