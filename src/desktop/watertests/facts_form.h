#pragma once

#include "desktop/watertests/listed_test.h"

#include <QWidget>

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

namespace kavela::desktop {

/// Who did a test, when and where.
class FactsForm : public QWidget {
    Q_OBJECT

public:
    explicit FactsForm(QWidget* parent = nullptr);

    /// `athletes` are proposed while a name is typed.
    void show(const ListedTest& test, const QStringList& athletes);
    /// Begins to type the name.
    void focusAthlete();

signals:
    void athleteEntered(const QString& name);
    /// The day, its time of day that of the test before.
    void dateEntered(ReferenceDate date);
    void locationEntered(const QString& location);

private:
    void enterAthlete();
    void enterLocation();

    QLabel* m_kind;
    QComboBox* m_athlete;
    QDateEdit* m_date;
    QLineEdit* m_location;
    QString m_shownAthlete;
    QString m_shownLocation;
    ReferenceDate m_shownDate;
};

} // namespace kavela::desktop
