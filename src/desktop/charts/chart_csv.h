#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The data of a chart as semicolon-separated text.
namespace kavela::desktop {

/// A line; fields that hold the separator, a quote or a line break are quoted.
[[nodiscard]] QString csvLine(const QStringList& fields);

/// A number as plain decimal text without the rounding noise of a difference; empty for none.
[[nodiscard]] QString csvNumber(std::optional<double> value);

/// The same text with tabs between its fields, as spreadsheets paste it. A field has neither quotes
/// nor tabs and line breaks of its own any more.
[[nodiscard]] QString tabSeparated(const QString& csv);

} // namespace kavela::desktop
