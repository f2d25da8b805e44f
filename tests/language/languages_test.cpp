#include "language/languages.h"

#include "language/static_catalogue.h"

#include <gmock/gmock.h>

#include <array>

namespace kavela::test {
namespace {

TEST(PluralForm, IsThatOfTheLanguage) {
    struct Case {
        PluralRule rule;
        std::int64_t count;
        std::size_t form;
    };
    for (const Case& each : {Case{PluralRule::OneAndMany, 0, 1},
                             {PluralRule::OneAndMany, 1, 0},
                             {PluralRule::OneAndMany, 2, 1},
                             {PluralRule::UpToOneAndMany, 0, 0},
                             {PluralRule::UpToOneAndMany, 1, 0},
                             {PluralRule::UpToOneAndMany, 2, 1},
                             {PluralRule::OneFewAndMany, 1, 0},
                             {PluralRule::OneFewAndMany, 4, 1},
                             {PluralRule::OneFewAndMany, 5, 2},
                             {PluralRule::OneFewAndMany, 0, 2},
                             {PluralRule::OneFewAndMany, 22, 2}})
        EXPECT_EQ(pluralForm(each.rule, each.count), each.form) << each.count;
}

TEST(LanguageFor, FollowsTheEnvironmentInItsOrder) {
    // The language of long texts is always there, and never offered.
    EXPECT_EQ(languageFor({.kavela = "pseudo", .all = "C"}), "pseudo");
    EXPECT_EQ(languageFor({.lang = "pseudo"}), "en");
    EXPECT_EQ(languageFor({.kavela = "tlh", .lang = "C.UTF-8"}), "en");
    EXPECT_EQ(languageFor({.list = "pseudo:de", .all = "C"}), "en");
    EXPECT_EQ(languageFor({}), "en");
    for (const Language& language : offeredLanguages()) {
        const std::string code(language.code);
        EXPECT_EQ(languageFor({.lang = code + "_XX.UTF-8"}), code);
        EXPECT_EQ(languageFor({.all = code, .lang = "en_GB.UTF-8"}), code);
        EXPECT_EQ(languageFor({.all = "en_GB.UTF-8", .lang = code}), "en");
        EXPECT_EQ(languageFor({.list = "xx:" + code, .lang = "en_GB.UTF-8"}), code);
        EXPECT_EQ(languageFor({.list = code, .all = "C"}), "en");
    }
}

TEST(StaticCatalogue, FindsTheFirstTheLastAndCountedTextsAndNoOthers) {
    static constexpr char Words[] = "Gate\0Tor\0{} runs\0{} Lauf\0{} L\303\244ufe\0";
    static constexpr std::array<std::uint32_t, 2> Starts{0, 9};
    static constexpr std::array<std::uint8_t, 2> Forms{1, 2};
    const StaticCatalogue catalogue({"de", "Deutsch", PluralRule::OneAndMany, ','},
                                    {"de", true, Words, Starts, Forms});
    EXPECT_EQ(catalogue.of("Gate"), "Tor");
    EXPECT_EQ(catalogue.of("{} runs", 1), "{} Lauf");
    EXPECT_EQ(catalogue.of("{} runs", 2), "{} Läufe");
    EXPECT_EQ(catalogue.of("{} runs"), "");
    EXPECT_EQ(catalogue.of("Gate", 1), "");
    for (const char* unknown : {"", "Ga", "Gates", "zzz"})
        EXPECT_EQ(catalogue.of(unknown), "") << unknown;
}

TEST(BuiltInCatalogue, OfLongTextsHasTheTextsOfTheLibraries) {
    const TextCatalogue* const pseudo = builtInCatalogue(PseudoLanguage);
    ASSERT_NE(pseudo, nullptr);
    const std::string text = "Too few runs to tell how much they vary.";
    EXPECT_GE(pseudo->of(text).size(), 2 * text.size());
    EXPECT_THAT(std::string(pseudo->of("{} runs", 3)), testing::StartsWith("{} "));
    EXPECT_EQ(builtInCatalogue(English), nullptr);
}

} // namespace
} // namespace kavela::test
