#include "desktop/planning/plan/session_dialog.h"

#include "desktop/planning/plan/week_texts.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"
#include "planning/training_categories.h"
#include "planning/weeks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimeEdit>
#include <QTimeZone>

#include <algorithm>

namespace kavela::desktop {

namespace {

using namespace std::chrono;

constexpr double MostOfCategory = 100000;

QDate qtDate(sys_days day) {
    const year_month_day date(day);
    return {static_cast<int>(date.year()), static_cast<int>(unsigned(date.month())),
            static_cast<int>(unsigned(date.day()))};
}

/// A local time as a point in time. In an unknown zone it is taken as UTC.
ReferenceDate momentOf(sys_days day, QTime time, const QString& zone) {
    const QTimeZone known(zone.toLatin1());
    const QDateTime moment(qtDate(day), time, known.isValid() ? known : QTimeZone::utc());
    return {static_cast<double>(moment.toSecsSinceEpoch()) - SecondsFrom1970To2001};
}

void setEntry(std::vector<std::string>& list, std::size_t index, const QString& text) {
    if (index < list.size() || !text.isEmpty()) {
        list.resize(std::max(list.size(), index + 1));
        list[index] = text.toStdString();
    }
}

QLineEdit* lineWith(const QStringList& offered) {
    auto* line = new QLineEdit;
    auto* completer = new QCompleter(offered, line);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    line->setCompleter(completer);
    return line;
}

} // namespace

SessionDialog::SessionDialog(const sessioninmicro_v5& session, sys_days firstDay,
                             const QStringList& titles, const QStringList& places, QWidget* parent)
    : EntryDialog(parent),
      m_session(session),
      m_firstDay(firstDay),
      m_day(new QComboBox),
      m_hasTime(new QCheckBox(tr("at"))),
      m_time(new QTimeEdit),
      m_zone(new QComboBox),
      m_title(lineWith(titles)),
      m_place(lineWith(places)),
      m_description(new QPlainTextEdit),
      m_faults(new FaultLabel) {
    setWindowTitle(tr("Training session"));
    makeFields();
    showSession();
    m_title->setFocus();
    m_title->selectAll();
}

void SessionDialog::makeFields() {
    for (int day = 0; day < 7; ++day)
        m_day->addItem(dayTitle(m_firstDay + days(day)));
    m_time->setDisplayFormat("HH:mm");
    m_zone->setEditable(true);
    for (const QByteArray& zone : QTimeZone::availableTimeZoneIds())
        m_zone->addItem(QString::fromLatin1(zone));
    m_zone->setMinimumContentsLength(14);
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight(4 * fontMetrics().lineSpacing() + theme::LargeSpacing);
    connect(m_hasTime, &QCheckBox::toggled, m_time, &QWidget::setEnabled);
    auto* when = new QHBoxLayout;
    when->addWidget(m_day, 1);
    when->addWidget(m_hasTime);
    when->addWidget(m_time);
    when->addWidget(m_zone, 1);
    auto* form = new QFormLayout;
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Title"), m_title);
    form->addRow(tr("When"), when);
    form->addRow(tr("&Place"), m_place);
    form->addRow(tr("&Description"), m_description);
    form->addRow(m_faults);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                              theme::LargeSpacing);
    whole->setSpacing(theme::Spacing);
    whole->addLayout(form);
    makeValues();
    whole->addWidget(buttons);
    setMinimumWidth(grown(*this, 560));
}

/// On the water to the left, in the gym to the right; what a file has beyond them below.
void SessionDialog::makeValues() {
    auto* groups = new QHBoxLayout;
    const std::size_t count = std::max(TrainingCategories.size(), m_session.data.size());
    QFormLayout* form = nullptr;
    for (std::size_t i = 0; i < count; ++i) {
        if (i == 0 || i == WaterCategories || i == TrainingCategories.size()) {
            auto* group = new QGroupBox(i == 0                 ? tr("On the water")
                                        : i == WaterCategories ? tr("In the gym")
                                                               : tr("Others"));
            form = new QFormLayout(group);
            form->setSpacing(theme::SmallSpacing);
            groups->addWidget(group);
        }
        auto* value = new NumberBox;
        const double present = i < m_session.data.size() ? m_session.data[i] : 0;
        value->setDecimals(1);
        value->setRange(std::min(0.0, present), std::max(MostOfCategory, present));
        value->setButtonSymbols(QAbstractSpinBox::NoButtons);
        value->setObjectName(QString("value%1").arg(i));
        value->setValue(present);
        form->addRow(QString::fromStdString(trainingCategory(i)), value);
        m_values.push_back(value);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(groups);
}

void SessionDialog::showSession() {
    const auto day = dayOf(m_session);
    const auto inWeek = day ? (*day - m_firstDay).count() : -1;
    m_shownDay = inWeek >= 0 && inWeek < 7 ? static_cast<int>(inWeek) : -1;
    m_day->setCurrentIndex(m_shownDay);
    m_day->setPlaceholderText(tr("not in this week"));
    const auto time = timeOf(m_session);
    m_hasTime->setChecked(time.has_value());
    m_time->setEnabled(time.has_value());
    m_time->setTime(QTime(0, 0).addSecs(
        static_cast<int>(duration_cast<seconds>(time.value_or(hours(9))).count())));
    m_shownZone = QString::fromStdString(m_session.trainingtimezones);
    m_zone->setEditText(m_shownZone);
    m_title->setText(titleOf(m_session));
    m_place->setText(QString::fromStdString(m_session.trainingplace));
    m_description->setPlainText(descriptionOf(m_session));
    m_faults->tell(sessionFaults(m_session));
}

sys_days SessionDialog::chosenDay() const {
    return m_firstDay + days(m_day->currentIndex());
}

/// Only what the coach changed is written: a session on an odd day or in a zone that is unknown
/// here keeps its moment otherwise.
void SessionDialog::putWhen(sessioninmicro_v5& session) const {
    const bool hasTime = m_hasTime->isChecked();
    const QString typed = hasTime ? m_time->time().toString("HH:mm") : QString();
    const bool isMoved = m_day->currentIndex() != m_shownDay ||
                         m_zone->currentText() != m_shownZone || typed != timeTextOf(m_session);
    if (!isMoved || m_day->currentIndex() < 0)
        return;
    const year_month_day date(chosenDay());
    session.dateinInts = {static_cast<int>(date.year()), unsigned(date.month()),
                          unsigned(date.day())};
    session.trainingtimezones = m_zone->currentText().trimmed().toStdString();
    session.trainingtimeInt.clear();
    if (hasTime)
        session.trainingtimeInt = {m_time->time().hour(), m_time->time().minute()};
    session.trainingtime = momentOf(chosenDay(), hasTime ? m_time->time() : QTime(12, 0),
                                    QString::fromStdString(session.trainingtimezones));
}

sessioninmicro_v5 SessionDialog::session() const {
    sessioninmicro_v5 session = m_session;
    putWhen(session);
    setEntry(session.titleanddes, 0, m_title->text().trimmed());
    if (m_description->toPlainText() != descriptionOf(m_session))
        setEntry(session.titleanddes, 1, m_description->toPlainText());
    session.trainingplace = m_place->text().trimmed().toStdString();
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const double before = i < session.data.size() ? session.data[i] : 0;
        const double shown = QString::number(before, 'f', 1).toDouble();
        if (m_values[i]->value() == shown)
            continue;
        session.data.resize(std::max(session.data.size(), i + 1));
        session.data[i] = m_values[i]->value();
    }
    return session;
}

} // namespace kavela::desktop
