#include "desktop/shell/forms/field_form.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QEvent>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

QString withoutKey(QString label) {
    return label.remove('&');
}

bool isTypedIn(const QAbstractSpinBox& box) {
    const auto* const line = box.findChild<QLineEdit*>();
    return box.hasFocus() && line && line->isModified();
}

} // namespace

FieldForm::FieldForm(Arrangement arrangement, QWidget* parent) : QWidget(parent) {
    if (arrangement == Arrangement::Below) {
        m_below = new QFormLayout(this);
        m_below->setContentsMargins(0, 0, 0, 0);
        m_below->setSpacing(theme::Spacing);
    } else {
        m_beside = new QHBoxLayout(this);
        m_beside->setContentsMargins(0, 0, 0, 0);
        m_beside->setSpacing(theme::Spacing);
    }
}

std::size_t FieldForm::add(const FieldFacts& facts, Field field) {
    QWidget& widget = *field.widget;
    widget.setObjectName(facts.name);
    widget.setToolTip(facts.tip);
    if (facts.widest > 0)
        widget.setMaximumWidth(grown(*this, facts.widest));
    if (widget.accessibleName().isEmpty())
        widget.setAccessibleName(withoutKey(facts.label));
    field.what = facts.what.isEmpty() ? withoutKey(facts.label).toLower() : facts.what;
    place(facts, widget);
    m_fields.push_back(std::move(field));
    return m_fields.size() - 1;
}

void FieldForm::place(const FieldFacts& facts, QWidget& widget) {
    const bool saysItself = facts.label.isEmpty() || qobject_cast<QCheckBox*>(&widget);
    if (m_below && saysItself)
        return m_below->addRow(&widget);
    if (m_below)
        return m_below->addRow(facts.label, &widget);
    if (m_beside->count() > 0)
        m_beside->addSpacing(theme::Spacing);
    if (!saysItself) {
        auto* const label = new QLabel(facts.label);
        label->setBuddy(&widget);
        m_beside->addWidget(label);
    }
    m_beside->addWidget(&widget, facts.stretch);
}

void FieldForm::addSection(const QString& title) {
    auto* const label = new QLabel(title);
    label->setFont(theme::titleFont(*this));
    addRow({}, label);
}

void FieldForm::addRow(const QString& label, QWidget* part) {
    if (m_beside)
        m_beside->addWidget(part, 1);
    else if (label.isEmpty())
        m_below->addRow(part);
    else
        m_below->addRow(label, part);
}

std::size_t FieldForm::addLine(const FieldFacts& facts, const QStringList& proposals) {
    auto* const line = new QLineEdit;
    line->setPlaceholderText(facts.placeholder);
    if (!proposals.isEmpty()) {
        auto* const completer = new QCompleter(proposals, line);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        line->setCompleter(completer);
    }
    Field field{line};
    field.show = [line](const QVariant& value) {
        if (line->text() != value.toString()) // which keeps the cursor where nothing changed
            line->setText(value.toString());
    };
    field.read = [line] { return line->text(); };
    field.isTyped = [line] { return line->isModified(); };
    field.mark = [line](bool isTyped) { line->setModified(isTyped); };
    const std::size_t at = add(facts, std::move(field));
    connect(line, &QLineEdit::editingFinished, this, [this, at] { takeField(at); });
    return at;
}

/// Enter begins another line of it, and Ctrl+Enter takes it.
std::size_t FieldForm::addLongText(const FieldFacts& facts, int lines) {
    auto* const edit = new QPlainTextEdit;
    edit->setPlaceholderText(facts.placeholder);
    edit->setTabChangesFocus(true);
    edit->setFixedHeight(lines * fontMetrics().lineSpacing() + 2 * theme::Spacing);
    edit->installEventFilter(this);
    Field field{edit};
    field.show = [edit](const QVariant& value) {
        if (edit->toPlainText() != value.toString())
            edit->setPlainText(value.toString());
    };
    field.read = [edit] { return edit->toPlainText(); };
    field.isTyped = [edit] { return edit->document()->isModified(); };
    field.mark = [edit](bool isTyped) { edit->document()->setModified(isTyped); };
    return add(facts, std::move(field));
}

template <class Box>
std::size_t FieldForm::addBox(const FieldFacts& facts, const NumberFacts& number, Box* box) {
    using Value = decltype(box->value());
    box->setRange(static_cast<Value>(number.least), static_cast<Value>(number.most));
    box->setSingleStep(static_cast<Value>(number.step));
    box->setPrefix(number.before.isEmpty() ? QString() : number.before + ' ');
    box->setSuffix(number.unit.isEmpty() ? QString() : ' ' + number.unit);
    box->setSpecialValueText(number.none);
    Field field{box};
    field.show = [box, number](const QVariant& value) {
        const auto shown = value.value<Value>();
        if (number.showsBeyond)
            box->setRange(std::min(static_cast<Value>(number.least), shown),
                          std::max(static_cast<Value>(number.most), shown));
        box->setValue(shown);
    };
    field.read = [box] { return box->value(); };
    field.isTyped = [box] { return isTypedIn(*box); };
    field.finish = [box] {
        box->takeTyped();
        return !isRefused(*box);
    };
    const std::size_t at = add(facts, std::move(field));
    connect(box, &Box::valueChanged, this, [this, at] { takeField(at); });
    return at;
}

std::size_t FieldForm::addWhole(const FieldFacts& facts, const NumberFacts& number) {
    return addBox(facts, number, new WholeBox);
}

std::size_t FieldForm::addNumber(const FieldFacts& facts, const NumberFacts& number) {
    auto* const box = new NumberBox;
    box->setDecimals(number.decimals);
    box->setIsTime(number.isTime);
    return addBox(facts, number, box);
}

/// A date is taken when all of it was typed.
FieldForm::Field FieldForm::fieldOfDates(QDateTimeEdit* edit, const QString& format) {
    edit->setDisplayFormat(format);
    edit->setDateRange(QDate(1900, 1, 1), QDate(2100, 12, 31));
    edit->setCalendarPopup(true);
    edit->setKeyboardTracking(false);
    Field field{edit};
    field.isTyped = [edit] { return isTypedIn(*edit); };
    field.finish = [edit] {
        edit->interpretText();
        return true;
    };
    return field;
}

/// The first day of all stands for none.
std::size_t FieldForm::addDate(const FieldFacts& facts) {
    auto* const edit = new QDateEdit;
    Field field = fieldOfDates(edit, "yyyy-MM-dd");
    edit->setSpecialValueText(QStringLiteral("–"));
    field.show = [edit](const QVariant& value) {
        edit->setDate(value.isValid() ? value.toDate() : edit->minimumDate());
    };
    field.read = [edit] {
        return edit->date() == edit->minimumDate() ? QVariant() : QVariant(edit->date());
    };
    const std::size_t at = add(facts, std::move(field));
    connect(edit, &QDateEdit::dateChanged, this, [this, at] { takeField(at); });
    return at;
}

std::size_t FieldForm::addMoment(const FieldFacts& facts) {
    auto* const edit = new QDateTimeEdit;
    Field field = fieldOfDates(edit, "yyyy-MM-dd HH:mm:ss");
    field.show = [edit](const QVariant& value) { edit->setDateTime(value.toDateTime()); };
    field.read = [edit] { return edit->dateTime(); };
    const std::size_t at = add(facts, std::move(field));
    connect(edit, &QDateTimeEdit::dateTimeChanged, this, [this, at] { takeField(at); });
    return at;
}

std::size_t FieldForm::addCheck(const FieldFacts& facts) {
    auto* const box = new QCheckBox(facts.label);
    Field field{box};
    field.show = [box](const QVariant& value) { box->setChecked(value.toBool()); };
    field.read = [box] { return box->isChecked(); };
    field.isTyped = [] { return false; };
    const std::size_t at = add(facts, std::move(field));
    connect(box, &QCheckBox::toggled, this, [this, at] { takeField(at); });
    return at;
}

std::size_t FieldForm::addChoice(const FieldFacts& facts, const QStringList& texts) {
    auto* const choice = new QComboBox;
    choice->addItems(texts);
    Field field{choice};
    field.show = [choice](const QVariant& value) {
        choice->setCurrentIndex(value.isValid() ? value.toInt() : -1);
    };
    field.read = [choice] { return choice->currentIndex(); };
    field.isTyped = [] { return false; };
    const std::size_t at = add(facts, std::move(field));
    connect(choice, &QComboBox::currentIndexChanged, this, [this, at] { takeField(at); });
    return at;
}

std::size_t FieldForm::addEditableChoice(const FieldFacts& facts) {
    auto* const choice = new QComboBox;
    choice->setEditable(true);
    choice->setInsertPolicy(QComboBox::NoInsert);
    choice->completer()->setCompletionMode(QCompleter::PopupCompletion);
    QLineEdit* const line = choice->lineEdit();
    line->setPlaceholderText(facts.placeholder);
    Field field{choice};
    field.show = [choice](const QVariant& value) {
        const QString text = value.toString();
        choice->setCurrentIndex(choice->findText(text));
        if (choice->currentText() != text)
            choice->setEditText(text);
    };
    field.read = [choice] { return choice->currentText(); };
    field.isTyped = [line] { return line->isModified(); };
    field.mark = [line](bool isTyped) { line->setModified(isTyped); };
    const std::size_t at = add(facts, std::move(field));
    connect(line, &QLineEdit::editingFinished, this, [this, at] { takeField(at); });
    connect(choice, &QComboBox::activated, this, [this, at] { takeField(at); });
    return at;
}

std::size_t FieldForm::addPart(const FieldFacts& facts, QWidget* part,
                               std::function<void(const QVariant&)> show,
                               std::function<QVariant()> read) {
    Field field{part};
    field.show = std::move(show);
    field.read = std::move(read);
    field.isTyped = [] { return false; };
    return add(facts, std::move(field));
}

QWidget* FieldForm::widgetOf(const char* name) const {
    return findChild<QWidget*>(name);
}

void FieldForm::propose(const char* name, const QStringList& texts) {
    auto& choice = dynamic_cast<QComboBox&>(*widgetOf(name));
    QStringList present;
    for (int i = 0; i < choice.count(); ++i)
        present.append(choice.itemText(i));
    if (present == texts)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    const QString typed = choice.currentText();
    const bool isTyped = choice.lineEdit()->isModified();
    choice.clear();
    choice.addItems(texts);
    choice.setCurrentIndex(choice.findText(typed));
    if (choice.currentText() != typed)
        choice.setEditText(typed);
    choice.lineEdit()->setModified(isTyped);
}

void FieldForm::editField(const char* name) {
    QWidget& widget = *widgetOf(name);
    widget.setFocus();
    if (auto* const choice = qobject_cast<QComboBox*>(&widget); choice && choice->lineEdit())
        choice->lineEdit()->selectAll();
    else if (auto* const line = qobject_cast<QLineEdit*>(&widget))
        line->selectAll();
    else if (auto* const number = qobject_cast<QAbstractSpinBox*>(&widget))
        number->selectAll();
}

void FieldForm::setFieldVisible(const char* name, bool isVisible) {
    QWidget* const widget = widgetOf(name);
    if (m_below)
        return m_below->setRowVisible(widget, isVisible);
    widget->setVisible(isVisible);
    for (QLabel* const label : findChildren<QLabel*>())
        if (label->buddy() == widget)
            label->setVisible(isVisible);
}

void FieldForm::setFieldEnabled(const char* name, bool isEnabled, const QString& tip) {
    QWidget& widget = *widgetOf(name);
    widget.setEnabled(isEnabled);
    widget.setToolTip(tip);
}

void FieldForm::showField(Field& field) {
    const QScopedValueRollback showing(m_isShowing, true);
    field.show(field.value);
    field.mark(false);
    acceptEntry(*field.widget);
    field.shown = field.read();
}

void FieldForm::showValues(std::vector<QVariant> values, bool isOther) {
    m_hasRecord = !values.empty();
    ++m_shows;
    setEnabled(m_hasRecord);
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        Field& field = m_fields[i];
        field.value = m_hasRecord ? std::move(values[i]) : QVariant();
        const bool isTyped = field.isTyped() || isRefused(*field.widget);
        if (isOther || !m_hasRecord || !isTyped)
            showField(field);
    }
}

/// The field counts as read before its text is taken: that shows the record again, and may take the
/// focus from the field, which ends the typing once more.
void FieldForm::takeField(std::size_t place) {
    Field& field = m_fields[place];
    if (m_isShowing || !m_hasRecord)
        return;
    const QVariant typed = field.read();
    if (typed == field.shown)
        return isRefused(*field.widget) ? showField(field) : field.mark(false);
    const QVariant before = std::exchange(field.shown, typed);
    field.mark(false);
    try {
        const int shows = m_shows;
        if (!take(place, typed, field.what) || m_shows != shows)
            showField(field);
        acceptEntry(*field.widget);
    } catch (const RefusedEntry& refusal) {
        field.shown = before;
        field.mark(true);
        refuseEntry(*field.widget, refusal.reason(), [this, place] { showField(m_fields[place]); });
    }
}

bool FieldForm::commit() {
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i].finish())
            takeField(i);
    }
    return !showRefusedEntry(*this);
}

bool FieldForm::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    const auto* const key = isKey ? static_cast<const QKeyEvent*>(event) : nullptr;
    const bool isTaken = key && isEnter(*key) && key->modifiers().testFlag(Qt::ControlModifier);
    if (!isTaken && event->type() != QEvent::FocusOut)
        return false;
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        if (m_fields[i].widget == watched)
            takeField(i);
    return isTaken;
}

} // namespace kavela::desktop
