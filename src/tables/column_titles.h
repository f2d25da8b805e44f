#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What the titles of result lists say, in the languages of the races that coaches go to.
namespace kavela {

enum class ColumnRole {
    Position,
    Bib,
    Name, ///< of the crew, whole
    Surname,
    GivenName,
    Category,
    Phase,
    Time,    ///< of a run or a part of it, without penalties
    Penalty, ///< seconds
    Total,   ///< time with penalties
    Status,
};

/// What a title says, whatever its case, accents, digits and marks; nothing for other titles.
[[nodiscard]] std::optional<ColumnRole> roleOf(std::string_view title);

/// Whether a title says that its numbers are times of runs.
[[nodiscard]] bool saysTimes(std::string_view title);

/// A title as it is compared: small letters without accents and marks, digits included.
[[nodiscard]] std::string titleKey(std::string_view title);

} // namespace kavela
