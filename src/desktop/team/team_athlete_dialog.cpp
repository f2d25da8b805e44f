#include "desktop/team/team_athlete_dialog.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"
#include "splitdata/athlete_keys.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace kavela::desktop {

TeamAthleteDialog::TeamAthleteDialog(Check check, const std::string& category, QWidget* parent)
    : QDialog(parent),
      m_check(std::move(check)),
      m_surname(new QLineEdit),
      m_givenName(new QLineEdit),
      m_birthYear(new QLineEdit),
      m_fault(new QLabel) {
    setWindowTitle(tr("New athlete"));
    m_surname->setObjectName("surname");
    m_surname->setMinimumWidth(grown(*this, 260));
    m_surname->setPlaceholderText(tr("Written in capitals in the team"));
    m_givenName->setObjectName("givenName");
    m_birthYear->setObjectName("birthYear");
    m_birthYear->setPlaceholderText(tr("Such as 1998"));
    m_fault->setObjectName("fault");
    m_fault->setWordWrap(true);
    m_fault->hide();
    auto* boats = new QGridLayout;
    int place = 0;
    for (const char* label : team::Categories) {
        auto* box = new QCheckBox(label);
        box->setObjectName(label);
        box->setChecked(category == label);
        boats->addWidget(box, place / 2, place % 2);
        m_categories.push_back(box);
        ++place;
    }
    auto* form = new QFormLayout(this);
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Surname"), m_surname);
    form->addRow(tr("&Given name"), m_givenName);
    form->addRow(tr("&Born in"), m_birthYear);
    form->addRow(tr("Boats"), boats);
    form->addRow(m_fault);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &TeamAthleteDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void TeamAthleteDialog::accept() {
    myTeamStruct athlete;
    try {
        const std::string surname = inCapitals(m_surname->text().simplified().toStdString());
        athlete.name = m_check(QString::fromStdString(surname) + ' ' + m_givenName->text());
        athlete.birthYear = typedBirthYear(m_birthYear->text());
    } catch (const RefusedEntry& refusal) {
        m_fault->setText(QString::fromStdString(refusal.what()));
        m_fault->show();
        return;
    }
    for (const QCheckBox* box : m_categories)
        if (box->isChecked())
            athlete.cats.push_back({box->text().toStdString(), {}, {}});
    m_athlete = std::move(athlete);
    QDialog::accept();
}

} // namespace kavela::desktop
