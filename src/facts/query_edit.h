#pragma once

#include "facts/query_text.h"

/// Changes a query as fields beside its text do: each shows one part of it and writes that part.
/// What no field shows stays as it was written.
namespace kavela {

/// What a query asks of a column to be equal to, as it is written: Bell, "Bell Anna", left. Several
/// conditions stand behind each other. Empty for none.
[[nodiscard]] std::string askedText(const Query& query, std::string_view column);

/// The query that asks this of a column in place of what it asked; nothing for an empty text. Each
/// word is a condition of its own; what stands in quotes is one. Throws QueryError, whose place is
/// one of `text`.
[[nodiscard]] Query withAsked(const Query& query, std::string_view column, std::string_view text);

enum class Limit { Least, Most };

/// The limit of a column: 3.85, and with its sign where the limit itself does not count: <4.
[[nodiscard]] std::string limitText(const Query& query, std::string_view column, Limit limit);

/// The same as withAsked for a limit, which may be written with its sign or without.
[[nodiscard]] Query withLimit(const Query& query, std::string_view column, Limit limit,
                              std::string_view text);

/// "athlete, cat"
[[nodiscard]] std::string groupText(const Query& query);

// Each takes the words behind its own word, which an empty text takes away. What can then not be
// sorted by any more goes too. Throws QueryError.
[[nodiscard]] Query withGroups(const Query& query, std::string_view text);
[[nodiscard]] Query withBest(const Query& query, std::string_view text);
[[nodiscard]] Query withSort(const Query& query, std::string_view column, bool isDown);
[[nodiscard]] Query withFirst(const Query& query, std::string_view text);

/// The same asked of other rows, as far as they tell it.
[[nodiscard]] Query aboutRows(const Query& query, What what);

} // namespace kavela
