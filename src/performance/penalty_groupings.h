#pragma once

#include "performance/penalty_passages.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// By what passages are put together to rows of a table.
namespace kavela {

enum class RateBy { Gate, Type, Tenth, Section, Crew, Category, Phase, File, Month, Hand };

/// The words for them, in their order: "gate".
inline constexpr std::array<std::string_view, 10> RateByNames{
    "gate", "type", "tenth", "section", "crew", "category", "phase", "file", "month", "hand"};

[[nodiscard]] std::optional<RateBy> rateByOf(std::string_view name);
[[nodiscard]] std::string_view nameOf(RateBy by);

/// The passages that belong to one row.
struct PassageRow {
    std::string key;                    ///< as it was first written; "7" or "FILE:7" for a place
    std::string label;                  ///< for people
    std::uint32_t file = 0;             ///< of the first passage
    std::optional<std::int64_t> number; ///< of the gate, the section or the tenth
    std::vector<GatePassage> passages;
    std::size_t touches = 0;
    std::size_t missed = 0;
};

/// Puts passages into rows. A gate or section is one of its file, since the same number in another
/// file is another place on another course; its key is the number alone while there is one file,
/// and "FILE:NUMBER" when there are more. A gate in no section, a run without a hand and so on
/// belong to the row of the empty key. Every gate of a course has a row, also one that nobody came
/// to. Gates stand by file and number, other rows in the order in which they first come up.
[[nodiscard]] std::vector<PassageRow> passageRows(const FactStore& facts,
                                                  const CountedPassages& counted, RateBy by);

/// A number on the course of a file as text: "7", or "FILE:7" where there are several files.
[[nodiscard]] std::string courseKey(const FactStore& facts, std::uint32_t file,
                                    std::uint64_t number);

/// The names of the files for people: without folder and extension, but the whole path where two
/// files would be called the same.
[[nodiscard]] std::vector<std::string> fileLabels(const FactStore& facts);

} // namespace kavela
