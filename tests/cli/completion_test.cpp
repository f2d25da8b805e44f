#include "cli/completion_text.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using cli::CommandOutline;
using cli::completionText;
using ::testing::HasSubstr;
using ::testing::Not;

/// Quotes, dashes and lines that a shell or `man` would take for its own.
CommandOutline sampleProgram() {
    CommandOutline show{"show", "An athlete's runs", ".hidden line", {}, {}};
    show.options.push_back(
        {{"--format", "-f"}, "", "How it's written", {"csv", "json"}, true, false, false});
    show.options.push_back({{}, "FILE", "Split file", {}, true, true, true});
    return {
        "kavela", "Help", "Footer", {{{"--new"}, "", "Another", {}, false, false, false}}, {show}};
}

} // namespace

TEST(Completion, KnowsCommandsOptionsAndTheirWords) {
    const std::string bash = completionText(sampleProgram(), "bash");
    EXPECT_THAT(bash, HasSubstr("'kavela') words='show --new'"));
    EXPECT_THAT(bash, HasSubstr("'kavela show:--format') words='csv json'"));
    EXPECT_THAT(bash, Not(HasSubstr("'kavela:--new')"))) << "a flag takes no word";
    const std::string fish = completionText(sampleProgram(), "fish");
    EXPECT_THAT(fish, HasSubstr("-l format -s f -x -a 'csv json' -d 'How it'\\''s written'"));
    EXPECT_EQ(completionText(sampleProgram(), "tcsh"), "");
}

TEST(Completion, WritesNoCommandOfTheManualIntoIt) {
    const std::string page = cli::manualText(sampleProgram(), "0.31.0");
    EXPECT_THAT(page, HasSubstr(".SS kavela show [OPTION…] FILE…\n"));
    EXPECT_THAT(page, HasSubstr("\n\\&.hidden line\n"));
    EXPECT_THAT(page, HasSubstr("\\-\\-format, \\-f csv|json"));
}

} // namespace kavela::test
