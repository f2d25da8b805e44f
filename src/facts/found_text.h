#pragma once

#include "common/delimited_text.h"
#include "common/why.h"
#include "facts/query.h"

#include <array>
#include <string>
#include <string_view>

/// The rows of an answer as other programs and windows want them.
namespace kavela {

/// What tells where a row is to be seen, in the order of its columns.
inline constexpr std::array<std::string_view, 5> FoundPlaceTitles{"file", "run", "split", "film",
                                                                  "at"};

struct FoundPlaceTexts {
    std::string file;
    std::string run;
    std::string split;
    std::string film;
    std::string at;

    [[nodiscard]] std::array<std::string, 5> all() const { return {file, run, split, film, at}; }
};

[[nodiscard]] FoundPlaceTexts foundPlaceTexts(const QueryAnswer& answer, std::size_t row);

/// Whether what stands in a column is a number to reckon with, and no word or day.
[[nodiscard]] bool isNumber(const FoundColumn& column);

/// A column that a place has too would stand twice in one row.
[[nodiscard]] bool isOfPlace(const FoundColumn& column);

/// The answer for spreadsheets: each row with the place where it is to be seen, semicolons, a line
/// of titles, numbers with all their digits.
[[nodiscard]] std::string findCsv(const QueryAnswer& answer);

/// The file, run and frame to be opened for a row. The moment is left out where it is not known or
/// lies in another film than the run's first.
[[nodiscard]] Place shownPlace(const QueryAnswer& answer, std::size_t row);

} // namespace kavela
