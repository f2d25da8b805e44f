#include "cli/spoken_language.h"

#include "cli/console.h"
#include "language/languages.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace kavela::cli {

namespace {

constexpr std::string_view LanguageOption = "--language";

/// The language named in front of the command.
std::optional<std::string> namedLanguage(const std::vector<std::string>& arguments) {
    for (std::size_t i = 0; i < arguments.size() && arguments[i].starts_with('-'); ++i) {
        if (arguments[i] == LanguageOption && i + 1 < arguments.size())
            return arguments[i + 1];
        if (arguments[i].starts_with(std::string(LanguageOption) + '='))
            return arguments[i].substr(LanguageOption.size() + 1);
    }
    return std::nullopt;
}

std::string knownLanguages() {
    std::string known(English);
    for (const Language& language : languages())
        if (language.code != PseudoLanguage)
            known += ", " + std::string(language.code);
    return known;
}

bool isForPrograms(const std::vector<std::string>& arguments) {
    const auto names = [&](std::string_view option) {
        return std::ranges::any_of(arguments, [option](const std::string& argument) {
            return argument == option || argument.starts_with(std::string(option) + '=');
        });
    };
    return names("--json") || (names("--csv") && !names("--pdf"));
}

} // namespace

bool speakAsCalled(const std::vector<std::string>& arguments) {
    if (const auto named = namedLanguage(arguments)) {
        if (!isLanguage(*named)) {
            logLine("There is no language \"" + *named + "\", only " + knownLanguages() + ".");
            return false;
        }
        // Programs that this one becomes speak it too.
        ::setenv("KAVELA_LANGUAGE", named->c_str(), 1);
    }
    if (!isForPrograms(arguments))
        installCatalogue(builtInCatalogue(languageFor(languageWishes())));
    return true;
}

} // namespace kavela::cli
