#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// Texts for people, in their language. The English text in the source is the key of its
/// translation; a program that installs no catalogue says it as it stands. Files, JSON, headings of
/// CSV and what else other programs read never pass through here, or stand under FixedWords.
///
/// A text is found by those who translate where it is the literal of `say`, `sayCount`,
/// `translated` or KAVELA_TEXT, so it is never put together from pieces: a sentence is one text
/// with places for what changes, which a translation may bring into another order, as in "{1} von
/// {0}".
namespace kavela {

/// Marks a literal of a table that is looked up where it is shown.
#define KAVELA_TEXT(text) text

/// Where translations are looked up. Lives as long as the program says anything.
class TextCatalogue {
public:
    TextCatalogue() = default;
    TextCatalogue(const TextCatalogue&) = delete;
    TextCatalogue& operator=(const TextCatalogue&) = delete;
    virtual ~TextCatalogue() = default;

    /// The translation of a text; empty where there is none.
    [[nodiscard]] virtual std::string_view of(std::string_view text) const = 0;
    /// The form of a text for so many; empty where there is none.
    [[nodiscard]] virtual std::string_view of(std::string_view text, std::int64_t count) const = 0;
    /// What stands before the decimals of a number: '.' or ','.
    [[nodiscard]] virtual char decimalSign() const = 0;
};

/// From now on texts are said as the catalogue has them; none for English. Meant for the start of a
/// program, before there is more than one thread.
void installCatalogue(const TextCatalogue* catalogue);

/// While one lives, the thread that made it says everything in English with decimal points: around
/// what other programs read.
class FixedWords {
public:
    FixedWords();
    FixedWords(const FixedWords&) = delete;
    FixedWords& operator=(const FixedWords&) = delete;
    ~FixedWords();
};

/// The text in the language of the program. Good for as long as the catalogue and the text are.
[[nodiscard]] std::string_view translated(std::string_view text);

/// A decimal number such as "82.75" with the decimal sign of the language. Only a point between two
/// digits is one.
[[nodiscard]] std::string saidNumber(std::string number);

/// A number among the arguments of a text, written with the decimal sign of the language.
struct SaidReal {
    double value = 0;
};

/// What a text is filled with; how it is done needs no knowledge of the types.
[[nodiscard]] std::string filledText(std::string_view source, std::string_view translation,
                                     fmt::format_args arguments);

/// The text in the language of the program, filled as fmt does it. A translation whose places do
/// not fit is passed over for the text itself.
template <class... Arguments>
[[nodiscard]] std::string say(fmt::format_string<Arguments...> source, Arguments&&... arguments);

/// The same for a text of a table, which is marked by KAVELA_TEXT and whose places are known to
/// fit.
template <class... Arguments>
[[nodiscard]] std::string sayMarked(std::string_view source, const Arguments&... arguments);

/// So many of something: `one` for 1, `many` for every other number, each with {} for the number.
/// Languages with more forms have theirs as forms of `many`.
[[nodiscard]] std::string sayCount(std::int64_t count, std::string_view one, std::string_view many);

/// "1 run", "60 runs": the words without their number.
[[nodiscard]] std::string countedWords(std::int64_t count, std::string_view one,
                                       std::string_view many);

} // namespace kavela

template <>
struct fmt::formatter<kavela::SaidReal> : fmt::formatter<double> {
    auto format(const kavela::SaidReal& number, format_context& context) const
        -> format_context::iterator {
        fmt::memory_buffer text;
        fmt::basic_format_context<fmt::appender, char> plain(fmt::appender(text), context.args());
        fmt::formatter<double>::format(number.value, plain);
        const std::string said = kavela::saidNumber(fmt::to_string(text));
        return std::copy(said.begin(), said.end(), context.out());
    }
};

namespace kavela {

template <class Argument>
[[nodiscard]] decltype(auto) saidArgument(const Argument& argument) {
    if constexpr (std::is_floating_point_v<Argument>)
        return SaidReal{static_cast<double>(argument)};
    else
        return (argument);
}

template <class... Arguments>
std::string sayMarked(std::string_view source, const Arguments&... arguments) {
    // The arguments live until the call returns: what is made of a number lives as long.
    return [&](auto&&... said) {
        return filledText(source, translated(source), fmt::make_format_args(said...));
    }(saidArgument(arguments)...);
}

template <class... Arguments>
std::string say(fmt::format_string<Arguments...> source, Arguments&&... arguments) {
    const fmt::string_view text = source;
    return sayMarked(std::string_view(text.data(), text.size()), arguments...);
}

} // namespace kavela
