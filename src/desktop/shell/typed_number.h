#pragma once

#include <QString>

#include <cstdint>
#include <stdexcept>

/// What is typed into the fields of the windows: with a decimal point or comma, times as 1:22.75
/// too. Every field reads its numbers here.
namespace kavela::desktop {

/// Something that was typed cannot be taken; says what is expected.
class RefusedEntry : public std::runtime_error {
public:
    explicit RefusedEntry(const QString& reason) : std::runtime_error(reason.toStdString()) {}
    [[nodiscard]] QString reason() const { return QString::fromUtf8(what()); }
};

/// The numbers that a field takes, both ends included, and the sentence that says so, such as
/// "A penalty is a whole number of seconds, 0 to 999".
struct NumberRange {
    double least = 0;
    double most = 0;
    QString expected; ///< without a point at its end; empty for "Expected is a number from … to …"
};

/// The number in a text that is not empty. Each throws RefusedEntry.
[[nodiscard]] double typedReal(const QString& text, const NumberRange& range);
[[nodiscard]] std::int64_t typedWhole(const QString& text, const NumberRange& range);
/// Seconds: "82.75" or "1:22,75".
[[nodiscard]] double typedSeconds(const QString& text, const NumberRange& range);

/// The same with 0 for an empty text, which stands for "not entered" in most fields.
[[nodiscard]] double typedRealOrNone(const QString& text, const NumberRange& range);
[[nodiscard]] std::int64_t typedWholeOrNone(const QString& text, const NumberRange& range);
[[nodiscard]] double typedSecondsOrNone(const QString& text, const NumberRange& range);

/// Refuses a text: "`expected`; “text” is none.", with examples as the system writes numbers.
[[noreturn]] void refuseTyped(const QString& expected, const QString& text);

} // namespace kavela::desktop
