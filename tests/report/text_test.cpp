#include "report/searchable_text.h"
#include "report/typeface.h"

#include <gmock/gmock.h>

#include <QString>

namespace kavela::test {

TEST(SearchableText, NamesTheCharactersThatPeopleType) {
    const auto document = [](const std::string& list) {
        return "stream <2F54> [<2F54>] begincmap\n<0000> <FFFF>\n<2F54> <2F56> [" + list +
               "]\nendcmap [<2F54>]";
    };
    struct Row {
        const char* name;
        const char* before;
        const char* after;
    };
    for (const Row& row : {Row{"a blank", "<0009> <0041>", "<0020> <0041>"},
                           Row{"radicals", "<2F54> <2ED8>", "<6C34> <9752>"},
                           Row{"Arabic forms", "<FE8D> <FEE3>", "<0627> <0645>"},
                           Row{"a form of two letters", "<FEFB>", "<FEFB>"},
                           Row{"letters", "<00E9> <0416> <6C34>", "<00E9> <0416> <6C34>"},
                           Row{"no code", "<12> <XYZW> <", "<12> <XYZW> <"}}) {
        std::string pdf = document(row.before);
        report::makeTextSearchable(pdf);
        EXPECT_EQ(pdf, document(row.after)) << row.name;
    }
    std::string cut = "begincmap [<2F54>";
    report::makeTextSearchable(cut);
    EXPECT_EQ(cut, "begincmap [<2F54>") << "a map without an end is none";
}

TEST(ReportTextOf, IsOnePrintableLineOfBearableLength) {
    EXPECT_EQ(report::reportText("  Ann\n\tLee \x1b[1m"), "Ann Lee [1m");
    EXPECT_EQ(report::reportText("\xff").size(), 1);
    EXPECT_LE(report::reportText(std::string(5000, 'x')).size(), 201);
    std::string boats;
    for (int i = 0; i < 300; ++i)
        boats += "\U0001F6A3";
    const QString cut = report::reportText(boats);
    EXPECT_FALSE(cut[cut.size() - 2].isHighSurrogate()) << "no character is cut in two";
}

} // namespace kavela::test
