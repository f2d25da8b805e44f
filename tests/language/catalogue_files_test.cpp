#include "language/languages.h"
#include "language/tool/source_texts.h"
#include "language/tool/ts_file.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace kavela::test {
namespace {

using namespace catalogue;

const std::filesystem::path Translations = KAVELA_TRANSLATIONS;

Catalogue catalogueOf(const Language& language) {
    return readCatalogue(Translations / ("kavela_" + std::string(language.code) + ".ts"));
}

std::vector<Language> translatedLanguages() {
    std::vector<Language> all;
    std::ranges::copy_if(languages(), std::back_inserter(all),
                         [](const Language& each) { return each.code != PseudoLanguage; });
    return all;
}

/// What a program fills in, however often and in whatever order: "%1", "%n", "{}", "{:.2f}".
std::multiset<std::string> places(const std::string& text) {
    static const std::regex Place("%L?[0-9n]+|\\{[^}]*\\}");
    std::multiset<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), Place), end; at != end; ++at) {
        std::string place = at->str();
        // A number in braces says which one it is, so that the order may change.
        if (place.starts_with('{'))
            place = std::regex_replace(place, std::regex("^\\{[0-9]+"), "{");
        found.insert(place);
    }
    return found;
}

/// Letters behind an ampersand, which the keyboard reaches; "&&" is the sign itself.
std::size_t accelerators(const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        if (text[at] != '&')
            continue;
        if (text[at + 1] == '&')
            ++at;
        else if (text[at + 1] != ' ')
            ++count;
    }
    return count;
}

/// What is wrong with a translation; empty for nothing.
std::string faultOf(const Message& message, const std::string& form) {
    std::multiset<std::string> expected = places(message.source);
    std::multiset<std::string> found = places(form);
    // The form for one thing may name it without its number.
    if (message.isCounted)
        for (auto* const set : {&expected, &found})
            for (const char* number : {"%n", "{}"})
                set->erase(number);
    if (expected != found)
        return "other places to fill";
    const bool isMarkup = message.source.find("&nbsp;") != std::string::npos ||
                          message.source.find("&amp;") != std::string::npos;
    if (!isMarkup && accelerators(message.source) != accelerators(form))
        return "a lost key behind an ampersand";
    const bool endsOpen = message.source.ends_with("…");
    return endsOpen && !form.ends_with("…") ? "a lost ellipsis" : "";
}

TEST(Catalogues, LoseNoPlaceToFillAndNoKey) {
    for (const Language& language : translatedLanguages())
        for (const Message& message : catalogueOf(language).messages)
            for (const std::string& form : message.forms)
                if (message.isFinished && !form.empty()) {
                    EXPECT_EQ(faultOf(message, form), "")
                        << language.code << ": \"" << message.source << "\" is \"" << form << '"';
                }
}

TEST(Catalogues, ThatAreOfferedHaveEveryText) {
    for (const Language& language : offeredLanguages())
        for (const Message& message : catalogueOf(language).messages) {
            const std::size_t forms = !message.isCounted                             ? 1
                                      : language.plural == PluralRule::OneFewAndMany ? 3
                                                                                     : 2;
            EXPECT_TRUE(message.isGone || message.isFinished)
                << language.code << " is unfinished: " << message.source;
            EXPECT_TRUE(message.isGone ||
                        (message.forms.size() == forms &&
                         std::ranges::none_of(message.forms, &std::string::empty)))
                << language.code << " has no translation: " << message.source;
        }
}

/// A text is spelled with escapes in its source; those that do not look alike are left to the eye.
TEST(Catalogues, ThatAreOfferedKnowEveryTextOfThePlainLibraries) {
    const std::vector<SourceText> texts = textsBelow(KAVELA_SOURCES);
    ASSERT_GT(texts.size(), 300U);
    for (const Language& language : offeredLanguages()) {
        std::set<std::string> known;
        for (const Message& message : catalogueOf(language).messages)
            if (message.context == PlainContext)
                known.insert(message.source);
        for (const SourceText& text : texts)
            EXPECT_TRUE(text.spelling.find('\\') != std::string::npos ||
                        known.contains(text.spelling))
                << language.code << " does not know: " << text.spelling
                << " (build kavela-translations)";
    }
}

std::string contentIn(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What a plain function of the windows says is only found by the name of the function.
TEST(Catalogues, AreMadeFromWhatEveryFunctionOfTheWindowsSays) {
    const std::filesystem::path sources = KAVELA_SOURCES;
    const std::string known = contentIn(sources / "language" / "CMakeLists.txt");
    const std::regex sayer(R"(QString (\w+)\(const char\* text\) \{\s*)"
                           R"(return QCoreApplication::translate\("\w+", text\))");
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources / "desktop")) {
        if (entry.path().extension() != ".cpp")
            continue;
        const std::string source = contentIn(entry.path());
        for (std::sregex_iterator at(source.begin(), source.end(), sayer), end; at != end; ++at) {
            ++count;
            const std::regex word("\\b" + (*at)[1].str() + "\\b");
            EXPECT_TRUE((*at)[1] == "tr" || std::regex_search(known, word))
                << entry.path() << " says texts by " << (*at)[1];
        }
    }
    EXPECT_GT(count, 10U);
}

TEST(Catalogues, ListOnlyLanguagesThatThereAre) {
    std::ifstream list(Translations / "complete.txt");
    ASSERT_TRUE(list.is_open());
    for (std::string line; std::getline(list, line);) {
        if (!line.empty() && line.front() != '#') {
            EXPECT_TRUE(isLanguage(line)) << line;
        }
    }
}

} // namespace
} // namespace kavela::test
