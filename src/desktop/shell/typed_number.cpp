#include "desktop/shell/typed_number.h"

#include "common/typed_number.h"
#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("TypedNumber", text);
}

QString sentence(const NumberRange& range, const char* otherwise) {
    return range.expected.isEmpty()
               ? tr(otherwise).arg(shownNumber(range.least), shownNumber(range.most))
               : range.expected;
}

template <class Number>
Number within(const NumberRange& range, std::optional<Number> number, const QString& text,
              const char* expected) {
    const bool isTaken = number && static_cast<double>(*number) >= range.least &&
                         static_cast<double>(*number) <= range.most;
    if (!isTaken)
        refuseTyped(sentence(range, expected), text.trimmed());
    return *number;
}

} // namespace

void refuseTyped(const QString& expected, const QString& text) {
    const QString said = shownNumbers(expected);
    throw RefusedEntry(text.isEmpty() ? said + '.' : tr("%1; “%2” is none.").arg(said, text));
}

double typedReal(const QString& text, const NumberRange& range) {
    return within(range, kavela::typedReal(text.toStdString()), text,
                  QT_TRANSLATE_NOOP("TypedNumber", "Expected is a number from %1 to %2"));
}

std::int64_t typedWhole(const QString& text, const NumberRange& range) {
    return within(range, kavela::typedWhole(text.toStdString()), text,
                  QT_TRANSLATE_NOOP("TypedNumber", "Expected is a whole number from %1 to %2"));
}

double typedSeconds(const QString& text, const NumberRange& range) {
    return within(range, kavela::typedSeconds(text.toStdString()), text,
                  QT_TRANSLATE_NOOP("TypedNumber", "Expected is a time from %1 to %2 seconds"));
}

double typedRealOrNone(const QString& text, const NumberRange& range) {
    return text.trimmed().isEmpty() ? 0 : typedReal(text, range);
}

std::int64_t typedWholeOrNone(const QString& text, const NumberRange& range) {
    return text.trimmed().isEmpty() ? 0 : typedWhole(text, range);
}

double typedSecondsOrNone(const QString& text, const NumberRange& range) {
    return text.trimmed().isEmpty() ? 0 : typedSeconds(text, range);
}

} // namespace kavela::desktop
