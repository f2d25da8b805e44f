#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kavela {

/// A piece of a query.
struct QueryToken {
    enum class Kind { Word, Quoted, Comparison, Comma };

    Kind kind = Kind::Word;
    std::string text; ///< without quotes
    std::size_t place = 0;
    std::size_t length = 0;
};

/// The pieces of a query. Throws QueryError for a quote that is not closed and for a "!" alone.
[[nodiscard]] std::vector<QueryToken> queryTokens(std::string_view text);

/// Of some words those that are written nearly like one, at most three, the nearest first.
[[nodiscard]] std::vector<std::string> nearestWords(std::string_view word,
                                                    const std::vector<std::string>& words);

} // namespace kavela
