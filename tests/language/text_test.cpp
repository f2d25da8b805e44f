#include "common/text.h"

#include <gmock/gmock.h>

#include <map>

namespace kavela::test {
namespace {

/// A language of a few words, with three forms of numbers and a comma, for the life of a test.
class FewWords : public TextCatalogue {
public:
    FewWords() { installCatalogue(this); }
    ~FewWords() override { installCatalogue(nullptr); }

    [[nodiscard]] std::string_view of(std::string_view text) const override {
        const auto found = Words.find(text);
        return found == Words.end() ? std::string_view() : found->second;
    }
    [[nodiscard]] std::string_view of(std::string_view text, std::int64_t count) const override {
        if (text != "{} runs")
            return {};
        return count == 1 ? "{} jízda" : count < 5 ? "{} jízdy" : "{} jízd";
    }
    [[nodiscard]] char decimalSign() const override { return ','; }

private:
    static inline const std::map<std::string_view, std::string_view> Words{
        {"{} of {:.1f}", "{1:.1f} von {0}"}, {"gate {}", "Tor {7}"}, {"Save", "Uložit"}};
};

TEST(Text, IsSaidAsItStandsWhereNoCatalogueIsInstalled) {
    EXPECT_EQ(say("{} of {:.1f}", 3, 2.5), "3 of 2.5");
    EXPECT_EQ(translated("Save"), "Save");
    EXPECT_EQ(countedWords(1, "run", "runs"), "1 run");
    EXPECT_EQ(countedWords(0, "run", "runs"), "0 runs");
    EXPECT_EQ(saidNumber("82.75"), "82.75");
}

TEST(Text, TakesTheOrderAndTheFormsOfTheLanguage) {
    const FewWords words;
    EXPECT_EQ(say("{} of {:.1f}", "Ana", 2.5), "2,5 von Ana");
    EXPECT_EQ(sayMarked(KAVELA_TEXT("{} of {:.1f}"), "Ana", 2.5), "2,5 von Ana");
    EXPECT_EQ(translated("Save"), "Uložit");
    EXPECT_EQ(countedWords(1, "run", "runs"), "1 jízda");
    EXPECT_EQ(countedWords(3, "run", "runs"), "3 jízdy");
    EXPECT_EQ(countedWords(60, "run", "runs"), "60 jízd");
}

TEST(Text, SaysTheTextItselfForATranslationWhosePlacesDoNotFit) {
    const FewWords words;
    EXPECT_EQ(say("gate {}", 12), "gate 12");
}

TEST(Text, WritesNumbersOfTheLanguageAndLeavesNamesAlone) {
    const FewWords words;
    EXPECT_EQ(say("{} lost {:+.2f} s", "heat_1.2.kvx", 0.5), "heat_1.2.kvx lost +0,50 s");
    EXPECT_EQ(say("{:>7.2f}|", 1.5), "   1,50|");
    EXPECT_EQ(saidNumber("Expected: 1.5."), "Expected: 1,5.");
}

TEST(Text, OfWhatProgramsReadStaysEnglish) {
    const FewWords words;
    {
        const FixedWords fixed;
        EXPECT_EQ(translated("Save"), "Save");
        EXPECT_EQ(say("{} of {:.1f}", 3, 2.5), "3 of 2.5");
        EXPECT_EQ(countedWords(3, "run", "runs"), "3 runs");
    }
    EXPECT_EQ(translated("Save"), "Uložit");
}

} // namespace
} // namespace kavela::test
