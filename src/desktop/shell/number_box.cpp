#include "desktop/shell/number_box.h"

#include "desktop/shell/refused_entry.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace kavela::desktop {

namespace {

/// What is typed of a text in a box: without what stands before and behind the number.
template <class Box>
QString typedPart(const Box& box, const QString& text) {
    QStringView typed = text;
    if (!box.prefix().isEmpty() && typed.startsWith(box.prefix()))
        typed = typed.mid(box.prefix().size());
    if (!box.suffix().isEmpty() && typed.endsWith(box.suffix()))
        typed = typed.chopped(box.suffix().size());
    return typed.trimmed().toString();
}

template <class Box>
bool isSpecial(const Box& box, const QString& text) {
    return !box.specialValueText().isEmpty() && text == box.specialValueText();
}

/// No key is swallowed: "1e5" without its letter would be another number.
template <class Box, class Read>
QValidator::State stateOf(const Box& box, const QString& text, const Read& read) {
    try {
        if (!isSpecial(box, text))
            (void)read(text);
        return QValidator::Acceptable;
    } catch (const RefusedEntry&) {
        return QValidator::Intermediate;
    }
}

/// Says why the text of the box cannot be taken; false when it can.
template <class Box, class Read>
bool refuses(Box& box, const QString& text, const Read& read) {
    try {
        if (!isSpecial(box, text))
            (void)read(text);
        acceptEntry(box);
        return false;
    } catch (const RefusedEntry& refusal) {
        refuseEntry(box, refusal.reason(), [&box] { box.setValue(box.value()); });
        return true;
    }
}

template <class Box, class Value>
void showUnlessTyped(Box& box, const QLineEdit& edit, Value value) {
    const bool isTyped = box.hasFocus() && edit.isModified();
    if (isTyped && value == box.value())
        return;
    box.setValue(value);
    acceptEntry(box);
}

} // namespace

bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// A number that is half typed is none yet.
NumberBox::NumberBox(QWidget* parent) : QDoubleSpinBox(parent) {
    setKeyboardTracking(false);
}

double NumberBox::read(const QString& text) const {
    const NumberRange range{minimum(), maximum(), {}};
    const QString typed = typedPart(*this, text);
    return m_isTime && typed.contains(':') ? typedSeconds(typed, range) : typedReal(typed, range);
}

void NumberBox::showValue(double value) {
    showUnlessTyped(*this, *lineEdit(), value);
}

double NumberBox::valueFromText(const QString& text) const {
    // What is beyond the decimals of the box is not shown, so it is no part of the value either.
    return isSpecial(*this, text) ? minimum()
                                  : QString::number(read(text), 'f', decimals()).toDouble();
}

QString NumberBox::textFromValue(double value) const {
    return shownNumber(value, decimals());
}

QValidator::State NumberBox::validate(QString& text, int& /*position*/) const {
    return stateOf(*this, text, [this](const QString& typed) { return read(typed); });
}

/// The base class would put the number from before in the place of a text that it cannot read.
void NumberBox::focusOutEvent(QFocusEvent* event) {
    if (refuses(*this, text(), [this](const QString& typed) { return read(typed); }))
        lineEdit()->event(event);
    else
        QDoubleSpinBox::focusOutEvent(event);
}

void NumberBox::takeTyped() {
    if (refuses(*this, text(), [this](const QString& typed) { return read(typed); }))
        return;
    interpretText();
    emit editingFinished();
}

void NumberBox::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event) ||
        !refuses(*this, text(), [this](const QString& typed) { return read(typed); }))
        QDoubleSpinBox::keyPressEvent(event);
}

WholeBox::WholeBox(QWidget* parent) : QSpinBox(parent) {
    setKeyboardTracking(false);
}

int WholeBox::read(const QString& text) const {
    return static_cast<int>(
        typedWhole(typedPart(*this, text),
                   {static_cast<double>(minimum()), static_cast<double>(maximum()), {}}));
}

void WholeBox::showValue(int value) {
    showUnlessTyped(*this, *lineEdit(), value);
}

int WholeBox::valueFromText(const QString& text) const {
    return isSpecial(*this, text) ? minimum() : read(text);
}

QString WholeBox::textFromValue(int value) const {
    return QString::number(value);
}

QValidator::State WholeBox::validate(QString& text, int& /*position*/) const {
    return stateOf(*this, text, [this](const QString& typed) { return read(typed); });
}

void WholeBox::focusOutEvent(QFocusEvent* event) {
    if (refuses(*this, text(), [this](const QString& typed) { return read(typed); }))
        lineEdit()->event(event);
    else
        QSpinBox::focusOutEvent(event);
}

void WholeBox::takeTyped() {
    if (refuses(*this, text(), [this](const QString& typed) { return read(typed); }))
        return;
    interpretText();
    emit editingFinished();
}

void WholeBox::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event) ||
        !refuses(*this, text(), [this](const QString& typed) { return read(typed); }))
        QSpinBox::keyPressEvent(event);
}

} // namespace kavela::desktop
