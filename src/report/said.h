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

} // namespace kavela::report
