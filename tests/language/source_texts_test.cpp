#include "language/tool/source_texts.h"

#include "language/tool/pseudo_language.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using namespace catalogue;

std::vector<std::string> spelled(std::string_view source, bool isCommandLine = false) {
    std::vector<std::string> found;
    for (const SourceText& text : textsIn(source, isCommandLine))
        found.push_back(text.spelling);
    return found;
}

TEST(SourceTexts, AreTheLiteralsOfWhatSaysThem) {
    EXPECT_THAT(spelled(R"(a = say("{} of {}", count("no"), all);)"),
                testing::ElementsAre("{} of {}"));
    EXPECT_THAT(spelled(R"(say("long " // why
                               "text \"quoted\"");)"),
                testing::ElementsAre(R"(long text \"quoted\")"));
    EXPECT_THAT(spelled(R"(translated(isOne ? "one" : "other"))"),
                testing::ElementsAre("one", "other"));
    EXPECT_THAT(spelled(R"(Rule{"loss", "Time lost.", "own − other", ""})"),
                testing::ElementsAre("Time lost.", "own − other"));
    EXPECT_THAT(spelled(R"(std::array{Label{"touch", "Touch"}})"), testing::ElementsAre("Touch"));
    EXPECT_THAT(
        spelled("char a = '\"'; /* say(\"no\") */ hearsay(\"no\"); n = 1'000; say(\"yes\")"),
        testing::ElementsAre("yes"));
}

TEST(SourceTexts, AreOnlyTakenWhereTheyAreSaidAsTheyStand) {
    EXPECT_THAT(spelled(R"(logLine("Cannot read " + name); logLine("Done.");)"),
                testing::ElementsAre("Done."));
    EXPECT_THAT(spelled(R"(why->input("own", 1); why->input(name + "s", 2);)"),
                testing::ElementsAre("own"));
    const char* const option = R"(c.option("--by", [](auto& t) { f(t, "x"); }, "How to group");)";
    EXPECT_THAT(spelled(option, true), testing::ElementsAre("How to group"));
    EXPECT_THAT(spelled(option, false), testing::IsEmpty());
}

TEST(SourceTexts, TellsThoseThatAreCounted) {
    const auto texts = textsIn(R"(counted(n, "run", "runs") + say("runs"))", false);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].spelling, "{} runs");
    EXPECT_TRUE(texts[0].isCounted);
    EXPECT_FALSE(texts[1].isCounted);
}

TEST(PseudoText, IsTwiceAsLongAndKeepsWhatIsNoWord) {
    EXPECT_THAT(pseudoText("&Open %1 of {0:.2f} <b>now</b>"),
                testing::AllOf(testing::StartsWith("&Opěn %1 öf {0:.2f} <b>nöw</b>"),
                               testing::SizeIs(testing::Ge(40U))));
    EXPECT_THAT(pseudoText("Name: "), testing::EndsWith(" "));
    EXPECT_EQ(pseudoText(""), "");
}

} // namespace
} // namespace kavela::test
