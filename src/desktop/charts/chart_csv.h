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

} // namespace kavela::desktop
