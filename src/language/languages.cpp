#include "language/languages.h"

#include "language/catalogue_data.h"
#include "language/static_catalogue.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>

namespace kavela {

namespace {

constexpr std::array KnownLanguages{
    Language{"es", "Español", PluralRule::OneAndMany, ','},
    Language{"fr", "Français", PluralRule::UpToOneAndMany, ','},
    Language{"de", "Deutsch", PluralRule::OneAndMany, ','},
    Language{"cs", "Čeština", PluralRule::OneFewAndMany, ','},
    Language{PseudoLanguage, "[Pseudo]", PluralRule::OneAndMany, ','},
};

const CatalogueData* dataOf(std::string_view code) {
    const auto data = builtInData();
    const auto found = std::ranges::find(data, code, &CatalogueData::code);
    return found == data.end() ? nullptr : &*found;
}

bool isOffered(std::string_view code) {
    const CatalogueData* const data = dataOf(code);
    return code == English || (data && data->isComplete);
}

/// "de" of "de_AT.UTF-8@euro". The locale of programs, "C", speaks English.
std::string languageOfLocale(std::string_view locale) {
    const std::string_view language = locale.substr(0, locale.find_first_of("_.@"));
    return language == "C" || language == "POSIX" ? std::string(English) : std::string(language);
}

std::string environmentText(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

} // namespace

std::size_t pluralForm(PluralRule rule, std::int64_t count) {
    const bool isOne = count == 1 || count == -1;
    switch (rule) {
    case PluralRule::OneAndMany:
        return isOne ? 0 : 1;
    case PluralRule::UpToOneAndMany:
        return isOne || count == 0 ? 0 : 1;
    case PluralRule::OneFewAndMany:
        return isOne ? 0 : (count >= 2 && count <= 4) || (count <= -2 && count >= -4) ? 1 : 2;
    }
    return 0;
}

std::span<const Language> languages() {
    return KnownLanguages;
}

std::vector<Language> offeredLanguages() {
    std::vector<Language> offered;
    std::ranges::copy_if(KnownLanguages, std::back_inserter(offered),
                         [](const Language& language) { return isOffered(language.code); });
    return offered;
}

bool isLanguage(std::string_view code) {
    return code == English || dataOf(code);
}

LanguageWishes languageWishes() {
    return {environmentText("KAVELA_LANGUAGE"), environmentText("LANGUAGE"),
            environmentText("LC_ALL"), environmentText("LC_MESSAGES"), environmentText("LANG")};
}

std::string languageFor(const LanguageWishes& wishes) {
    if (isLanguage(wishes.kavela))
        return wishes.kavela;
    const std::array inOrder{&wishes.all, &wishes.messages, &wishes.lang};
    const auto set = std::ranges::find_if(inOrder, [](const auto* text) { return !text->empty(); });
    const std::string ofLocale =
        set == inOrder.end() ? std::string(English) : languageOfLocale(**set);
    // The list counts for people only: a program that sets the locale "C" wants what it knows.
    if (set != inOrder.end() && **set != "C" && **set != "POSIX") {
        for (std::string_view rest = wishes.list; !rest.empty();) {
            const std::size_t colon = std::min(rest.find(':'), rest.size());
            const std::string wished = languageOfLocale(rest.substr(0, colon));
            if (isOffered(wished))
                return wished;
            rest.remove_prefix(std::min(colon + 1, rest.size()));
        }
    }
    return isOffered(ofLocale) ? ofLocale : std::string(English);
}

const TextCatalogue* builtInCatalogue(std::string_view code) {
    static const std::vector<StaticCatalogue> Catalogues = [] {
        std::vector<StaticCatalogue> made;
        for (const Language& language : KnownLanguages)
            if (const CatalogueData* const data = dataOf(language.code))
                made.emplace_back(language, *data);
        return made;
    }();
    const auto found = std::ranges::find(Catalogues, code, &StaticCatalogue::code);
    return found == Catalogues.end() ? nullptr : &*found;
}

} // namespace kavela
