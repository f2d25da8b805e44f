#pragma once

#include "common/text.h"

#include <QString>

#include <string_view>

namespace kavela::report {

/// A text of a report in the language of the program: the literal is the key of its translation.
/// Places to fill are %1, %2 and so on.
[[nodiscard]] inline QString said(std::string_view text) {
    const std::string_view words = translated(text);
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

/// Numbers with the decimal sign of the language: nothing else in the text may look like one.
[[nodiscard]] inline QString saidNumbers(const QString& numbers) {
    return QString::fromStdString(saidNumber(numbers.toStdString()));
}

} // namespace kavela::report
