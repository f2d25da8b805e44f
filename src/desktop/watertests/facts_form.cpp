#include "desktop/watertests/facts_form.h"

#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"

#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace kavela::desktop {

FactsForm::FactsForm(QWidget* parent)
    : QWidget(parent),
      m_kind(new QLabel),
      m_athlete(new QComboBox),
      m_date(new QDateEdit),
      m_location(new QLineEdit) {
    m_kind->setFont(theme::titleFont(*this));
    m_athlete->setObjectName("athlete");
    m_athlete->setEditable(true);
    m_athlete->setInsertPolicy(QComboBox::NoInsert);
    m_athlete->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_athlete->lineEdit()->setPlaceholderText(tr("Name of the athlete"));
    m_date->setObjectName("date");
    m_date->setDisplayFormat("yyyy-MM-dd");
    m_date->setDateRange(QDate(1900, 1, 1), QDate(2100, 12, 31));
    m_date->setSpecialValueText(tr("–")); // the first day of all: no day is known
    m_date->setCalendarPopup(true);
    m_date->setKeyboardTracking(false);
    m_location->setObjectName("location");
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(theme::Spacing);
    grid->addWidget(m_kind, 0, 0, 1, 6);
    int column = 0;
    for (const auto& [title, field] : {std::pair<QString, QWidget*>{tr("&Athlete"), m_athlete},
                                       {tr("&Date"), m_date},
                                       {tr("&Location"), m_location}}) {
        auto* label = new QLabel(title);
        label->setBuddy(field);
        grid->addWidget(label, 1, column++);
        grid->addWidget(field, 1, column++);
    }
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(5, 2);
    connect(m_athlete->lineEdit(), &QLineEdit::editingFinished, this, &FactsForm::enterAthlete);
    connect(m_athlete, &QComboBox::activated, this, &FactsForm::enterAthlete);
    connect(m_location, &QLineEdit::editingFinished, this, &FactsForm::enterLocation);
    connect(m_date, &QDateEdit::dateChanged, this, [this](const QDate& day) {
        emit dateEntered(typedDay(day.toString("yyyy-MM-dd"), m_shownDate));
    });
}

void FactsForm::enterAthlete() {
    const QString typed = m_athlete->currentText();
    if (const QString name = typed.simplified(); typed != m_shownAthlete && name != m_shownAthlete)
        emit athleteEntered(name);
}

void FactsForm::enterLocation() {
    const QString typed = m_location->text();
    if (const QString place = typed.simplified();
        typed != m_shownLocation && place != m_shownLocation)
        emit locationEntered(place);
}

void FactsForm::show(const ListedTest& test, const QStringList& athletes) {
    m_kind->setText(kindText(test.kind()));
    m_shownAthlete = test.athlete();
    m_shownLocation = test.location();
    const QSignalBlocker quietAthlete(m_athlete);
    const QSignalBlocker quietDate(m_date);
    QStringList present;
    for (int i = 0; i < m_athlete->count(); ++i)
        present.append(m_athlete->itemText(i));
    if (present != athletes) {
        m_athlete->clear();
        m_athlete->addItems(athletes);
    }
    m_athlete->setCurrentIndex(m_athlete->findText(test.athlete()));
    if (m_athlete->currentText() != test.athlete())
        m_athlete->setEditText(test.athlete());
    const QDate day = QDate::fromString(test.day(), "yyyy-MM-dd");
    m_shownDate = day.isValid() ? test.date() : ReferenceDate();
    m_date->setDate(day.isValid() ? day : m_date->minimumDate());
    if (m_location->text() != test.location())
        m_location->setText(test.location());
}

void FactsForm::focusAthlete() {
    m_athlete->setFocus();
    m_athlete->lineEdit()->selectAll();
}

} // namespace kavela::desktop
