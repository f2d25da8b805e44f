#pragma once

#include "facts/query_text.h"

#include <functional>

/// The words that may go on a query that is being typed.
namespace kavela {

/// What stands in place of `length` bytes from `place`.
struct Completion {
    std::size_t place = 0;
    std::size_t length = 0;
    std::vector<std::string> words; ///< as they are written in a query: names in quotes
};

/// The values of a column that is no measure, in the order of people.
using ValuesOf = std::function<std::vector<std::string>(What what, const QueryColumn& column)>;

/// At most so many words are offered.
inline constexpr std::size_t MostCompletions = 40;

/// The words that begin as the one before the cursor, which is told in bytes and may stand anywhere
/// in a query that need not be a whole one. Names are offered by any of their words.
[[nodiscard]] Completion completionAt(std::string_view text, std::size_t cursor,
                                      const ValuesOf& valuesOf);

/// All values of a column in some files; none of a measure, which nearly every row has its own of.
[[nodiscard]] std::vector<std::string> valuesIn(const FactStore& facts, What what,
                                                const QueryColumn& column);

/// A value as it stands in a query: in quotes where it is more than one word.
[[nodiscard]] std::string quotedValue(std::string_view value);

} // namespace kavela
