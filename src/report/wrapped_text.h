#pragma once

#include "report/page_builder.h"
#include "report/typeface.h"

#include <string_view>
#include <vector>

/// Text of several lines on paper.
namespace kavela::report {

/// Breaks a text of a file into printable lines of a width: at its own line ends, at blanks, and
/// within words that are too long for a line. Blank lines are left out; a text of unbearable length
/// ends with an ellipsis.
[[nodiscard]] std::vector<QString> wrappedLines(std::string_view text, const Typeface& typeface,
                                                const TextStyle& style, qreal width);

/// The height that a line of a style takes in running text.
[[nodiscard]] inline qreal lineHeight(const TextStyle& style) {
    return 1.38 * style.points * Point;
}

/// Puts lines over the whole width, on as many pages as they need. `mark` stands in front of the
/// first, the others are set under it.
void putLines(PageBuilder& pages, const std::vector<QString>& lines, const TextStyle& style,
              const Typeface& typeface, const QString& mark = {}, qreal indent = 0);

} // namespace kavela::report
