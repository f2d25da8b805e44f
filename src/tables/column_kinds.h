#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What the columns of a list hold.
namespace kavela {

/// From the narrowest on: each number is a time too, and everything is a text.
enum class ListColumnKind {
    Whole,   ///< "12", "12."
    Decimal, ///< "92.45", "92,45"
    Time,    ///< seconds: "92.45", "1:32.45", with penalty "92.45 (2)" or "92.45 +2"
    Status,  ///< DNS, DNF, DSQ and the like
    Date,    ///< "2026-05-03", "3.5.2026", "3/5/2026", the day before the month
    Text,
};

/// "whole", "decimal", "time", "status", "date" or "text".
[[nodiscard]] std::string_view kindName(ListColumnKind kind);
[[nodiscard]] std::optional<ListColumnKind> columnKindNamed(std::string_view name);

/// Whether a kind has numbers to reckon with. Days are ordered, but not reckoned with.
[[nodiscard]] bool isReckoned(ListColumnKind kind);

/// What a cell holds, read as one of a kind.
struct CellValue {
    std::optional<double> number;        ///< times in seconds, dates in days since 1970-01-01
    std::optional<std::int64_t> penalty; ///< seconds, of a time that has it behind itself
    bool isStatus = false;               ///< DNF beside times: no number, and no fault
    std::string reason;                  ///< why the cell is refused; empty when it is not
};

/// Whether a cell stands for nothing: it is empty or a dash.
[[nodiscard]] bool isNoValue(std::string_view text);

/// Whether a cell says that there is no result: DNS, DNF, DSQ and the like in any case.
[[nodiscard]] bool isStatusWord(std::string_view text);

/// A cell's text as one of a column of a kind. Cells that stand for nothing have no number.
[[nodiscard]] CellValue valueAs(ListColumnKind kind, std::string_view text);

/// The kind that takes most of the cells, the narrowest of several; text where none takes two
/// thirds of them. Cells that stand for nothing do not count, words such as DNF only where there is
/// nothing else.
[[nodiscard]] ListColumnKind guessedKind(std::span<const std::string> texts);

/// "2026-05-03" for a number of days since 1970-01-01.
[[nodiscard]] std::string dayNumberText(double days);

/// Whether a time in seconds is one of a run: 0 was not timed, and lists write 999.9 and 999.99 for
/// no result.
[[nodiscard]] bool isRunTime(double seconds);

} // namespace kavela
