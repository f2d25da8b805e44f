#include "cli/program.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A text of the language of long texts ends in letters that stand in no other.
constexpr const char* Said = "xax";

TEST(CommandLineLanguage, IsThatOfTheOption) {
    const Program program;
    const Ending english = program.call({"gym", "5", "100"});
    ASSERT_EQ(english.status, 0) << english.errors;
    EXPECT_THAT(english.output, HasSubstr("One-repetition maximum"));
    const Ending pseudo = program.call({"--language", "pseudo", "gym", "5", "100"});
    EXPECT_EQ(pseudo.status, 0) << pseudo.errors;
    EXPECT_THAT(pseudo.output, Not(HasSubstr("One-repetition maximum")));
    EXPECT_THAT(pseudo.output, HasSubstr(",")) << "decimals of the language";
    EXPECT_THAT(program.call({"--language=pseudo", "gym", "--help"}).output, HasSubstr(Said));
    EXPECT_THAT(program.call({"--language=pseudo", "no_such_file"}).errors, HasSubstr(Said));
}

TEST(CommandLineLanguage, ChangesNothingThatProgramsRead) {
    const Program program;
    const Ending english = program.call({"gym", "5", "100", "--json"});
    const Ending pseudo = program.call({"--language", "pseudo", "gym", "5", "100", "--json"});
    EXPECT_THAT(english.output, StartsWith("{"));
    EXPECT_EQ(pseudo.output, english.output);
}

TEST(CommandLineLanguage, ThatDoesNotExistIsAWrongCall) {
    const Ending ending = Program().call({"--language", "tlh", "gym", "5", "100"});
    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    EXPECT_THAT(ending.errors, HasSubstr("\"tlh\""));
}

} // namespace
} // namespace kavela::test
