#pragma once

#include "common/text.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The languages that Kavela is built with, and which of them is spoken.
namespace kavela {

/// How a language tells numbers of things apart. The forms stand in the catalogues in this order.
enum class PluralRule {
    OneAndMany,     ///< 1; all others: German, Spanish, English
    UpToOneAndMany, ///< 0 and 1; all others: French
    OneFewAndMany,  ///< 1; 2 to 4; all others: Czech
};

/// The form for so many, counted from 0. The sign of a count does not matter.
[[nodiscard]] std::size_t pluralForm(PluralRule rule, std::int64_t count);

/// A language beside English, as it is built in.
struct Language {
    std::string_view code; ///< "de"
    std::string_view name; ///< in the language itself: "Deutsch"
    PluralRule plural = PluralRule::OneAndMany;
    char decimalSign = ',';
};

/// Every language there is, also those whose catalogue is not finished yet.
[[nodiscard]] std::span<const Language> languages();

/// Those whose catalogue is complete, and which are offered.
[[nodiscard]] std::vector<Language> offeredLanguages();

/// A language of texts twice as long as the English ones, by which a window shows what it clips.
inline constexpr std::string_view PseudoLanguage = "pseudo";
/// English, which has no catalogue: what the texts are written in.
inline constexpr std::string_view English = "en";

/// Whether a catalogue of that code is built in, complete or not, or it is English.
[[nodiscard]] bool isLanguage(std::string_view code);

/// What the environment says about languages.
struct LanguageWishes {
    std::string kavela = {};   ///< KAVELA_LANGUAGE: decides alone; any language that is built in
    std::string list = {};     ///< LANGUAGE: "de:fr"
    std::string all = {};      ///< LC_ALL
    std::string messages = {}; ///< LC_MESSAGES
    std::string lang = {};     ///< LANG
};

[[nodiscard]] LanguageWishes languageWishes();

/// The language that is meant: the first of those wished for that is offered, or English.
[[nodiscard]] std::string languageFor(const LanguageWishes& wishes);

/// The texts of the plain libraries in a language; none for English and for what is not built in.
/// It lives as long as the program.
[[nodiscard]] const TextCatalogue* builtInCatalogue(std::string_view code);

} // namespace kavela
