#include "results/name_likeness.h"

#include <gtest/gtest.h>

namespace kavela::test {

TEST(NameLikeness, FindsTheOneThatIsMeant) {
    const std::vector<std::string> team{"BROOK Benjamin", "BROOK Adam", "van der LOCK Cyd",
                                        "STERN Ann Marie", "WEIR Ed"};
    struct Case {
        const char* written;
        std::size_t meant;
    };
    for (const Case& name : {Case{"B. Brook", 0}, Case{"Brok Adam", 1}, Case{"Lock C.", 2},
                             Case{"Štern Anne", 3}, Case{"E WEIR", 4}}) {
        SCOPED_TRACE(name.written);
        EXPECT_EQ(byLikeness(name.written, team).front(), name.meant);
        EXPECT_GE(nameLikeness(name.written, team[name.meant]), ProbablyTheSame);
    }
    for (const char* stranger : {"ROTH Eve", "Weiss Eduardo", "Cydney Pool", "", " - "})
        EXPECT_LT(nameLikeness(stranger, team[byLikeness(stranger, team).front()]), ProbablyTheSame)
            << stranger;
}

} // namespace kavela::test
