#include "desktop/planning/intervals/interval_form.h"

#include "desktop/planning/intervals/interval_texts.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "planning/training_categories.h"

#include <QCompleter>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

using Session = favInvervalSessions_v2;

constexpr int NumberWidth = 110;
constexpr int DescriptionLines = 6;

/// Texts keep their own words; the categories are only offered.
void offerCategories(QLineEdit& edit) {
    QStringList categories;
    for (std::size_t i = 0; i < TrainingCategories.size(); ++i)
        categories.append(QString::fromStdString(trainingCategory(i)));
    auto* const completer = new QCompleter(categories, &edit);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    edit.setCompleter(completer);
}

} // namespace

IntervalForm::IntervalForm(QWidget* parent)
    : QWidget(parent), m_description(new QPlainTextEdit), m_summary(new QLabel) {
    auto* const form = new QFormLayout;
    form->setVerticalSpacing(theme::Spacing);
    addText(*form, "title", tr("&Title"), &Session::title);
    addText(*form, "target", tr("T&arget"), &Session::target);
    offerCategories(*m_fields.back().edit);
    addText(*form, "rhythm", tr("Rh&ythm"), &Session::rhythm);
    addCount(*form, "sets", tr("S&ets"), &Session::sets);
    addCount(*form, "reps", tr("Re&petitions"), &Session::reps);
    addDuration(*form, "worktime", tr("&Work"), &Session::worktime);
    addDuration(*form, "workrest", tr("&Rest between repetitions"), &Session::workrest);
    addDuration(*form, "setrest", tr("Rest &between sets"), &Session::setrest);
    form->addRow(QString(), m_summary);
    addText(*form, "brake", tr("&Kind of rest"), &Session::brake);
    addAmount(*form, "volume", tr("&Volume"), &Session::volume);
    addAmount(*form, "intensity", tr("&Intensity"), &Session::intensity);
    form->addRow(tr("&Description"), m_description);
    m_summary->setObjectName("duration");
    m_summary->setWordWrap(true);
    m_summary->setForegroundRole(QPalette::PlaceholderText);
    m_description->setObjectName("description");
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight(DescriptionLines * fontMetrics().lineSpacing());
    m_description->installEventFilter(this);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addLayout(form);
    whole->addStretch(1);
    show(nullptr);
}

QLineEdit* IntervalForm::add(QFormLayout& form, const char* name, const QString& label,
                             std::function<QString(const Session&)> shown,
                             std::function<Change(const QString&)> typed) {
    auto* const edit = new QLineEdit;
    edit->setObjectName(name);
    form.addRow(label, edit);
    const std::size_t index = m_fields.size();
    m_fields.push_back({edit, std::move(shown), std::move(typed)});
    connect(edit, &QLineEdit::editingFinished, this, [this, index] { take(m_fields[index]); });
    return edit;
}

void IntervalForm::addText(QFormLayout& form, const char* name, const QString& label,
                           std::string Session::*text) {
    add(
        form, name, label,
        [text](const Session& session) { return QString::fromStdString(session.*text); },
        [text](const QString& typed) -> Change {
            return [text, entry = typed.trimmed().toStdString()](Session& session) {
                session.*text = entry;
            };
        });
}

void IntervalForm::addDuration(QFormLayout& form, const char* name, const QString& label,
                               double Session::*seconds) {
    QLineEdit* const edit = add(
        form, name, label,
        [seconds](const Session& session) { return durationText(session.*seconds); },
        [seconds](const QString& typed) -> Change {
            return [seconds, entry = typedDuration(typed)](Session& session) {
                session.*seconds = entry;
            };
        });
    edit->setToolTip(tr("Minutes and seconds such as 1:30, or seconds"));
    edit->setMaximumWidth(NumberWidth);
}

void IntervalForm::addCount(QFormLayout& form, const char* name, const QString& label,
                            std::int64_t Session::*count) {
    add(
        form, name, label,
        [count](const Session& session) { return QString::number(session.*count); },
        [count](const QString& typed) -> Change {
            return [count, entry = typedCount(typed)](Session& session) { session.*count = entry; };
        })
        ->setMaximumWidth(NumberWidth);
}

void IntervalForm::addAmount(QFormLayout& form, const char* name, const QString& label,
                             double Session::*amount) {
    add(
        form, name, label,
        [amount](const Session& session) { return shownNumber(session.*amount); },
        [amount](const QString& typed) -> Change {
            return
                [amount, entry = typedAmount(typed)](Session& session) { session.*amount = entry; };
        })
        ->setMaximumWidth(NumberWidth);
}

void IntervalForm::show(const Session* session) {
    m_hasSession = session != nullptr;
    m_session = session ? *session : Session();
    setEnabled(m_hasSession);
    for (const Field& field : m_fields) {
        const QString text = m_hasSession ? field.shown(m_session) : QString();
        if (field.edit->text() != text) // which keeps the cursor where nothing changed
            field.edit->setText(text);
    }
    const QString description = QString::fromStdString(m_session.description);
    if (m_description->toPlainText() != description)
        m_description->setPlainText(description);
    m_summary->setText(m_hasSession ? durationSummary(m_session) : QString());
}

void IntervalForm::editTitle() {
    m_fields.front().edit->setFocus();
    m_fields.front().edit->selectAll();
}

void IntervalForm::take(const Field& field) {
    if (!m_hasSession || field.edit->text() == field.shown(m_session))
        return;
    try {
        emit changed(field.typed(field.edit->text()));
        acceptEntry(*field.edit);
        field.edit->setText(field.shown(m_session));
    } catch (const RefusedEntry& refusal) {
        refuseEntry(*field.edit, refusal.reason(),
                    [this, &field] { field.edit->setText(field.shown(m_session)); });
    }
}

void IntervalForm::takeDescription() {
    const std::string typed = m_description->toPlainText().toStdString();
    if (m_hasSession && typed != m_session.description)
        emit changed([typed](Session& session) { session.description = typed; });
}

bool IntervalForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_description && event->type() == QEvent::FocusOut)
        takeDescription();
    return QWidget::eventFilter(watched, event);
}

} // namespace kavela::desktop
