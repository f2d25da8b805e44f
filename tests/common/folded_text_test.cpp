#include "common/folded_text.h"

#include "common/utf8.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace kavela::test {

TEST(FoldedText, ForgetsCaseAndAccents) {
    struct Row {
        const char* text;
        const char* folded;
    };
    for (const Row& row :
         {Row{"Šárka ØSTBY", "sarka ostby"}, Row{"s\u030Ca\u0301rka", "sarka"},
          Row{"Þverá Ægir STRAẞE", "thvera aegir strasse"},
          Row{"ŁĄŻ ĐẶNG İz ĲSSEL", "laz dang iz ijssel"}, Row{"ЙОЖИК Ёлка Ђока", "иожик елка ђока"},
          Row{"ΆΛΦΑΣ άλφας", "αλφασ αλφασ"}, Row{"瀬音 \U0001F6F6 Ab", "瀬音 \U0001F6F6 ab"},
          Row{"×÷ŉ", "×÷n"}, Row{"", ""}})
        EXPECT_EQ(folded(row.text), row.folded) << row.text;
}

TEST(FoldedText, GivesAMarkForEachMalformedByte) {
    for (const char* text : {"a\xFF", "a\xC0\x80", "a\xE9", "a\xED\xA0\x80", "a\xF4\x90\x80\x80"}) {
        const std::u32string characters = charactersIn(text);
        EXPECT_EQ(characters, U'a' + std::u32string(std::string_view(text).size() - 1, 0xFFFD));
    }
}

TEST(FoldedText, OrdersNumbersByValue) {
    std::vector<std::string> names{"run 10",
                                   "Run 9",
                                   "run 2",
                                   "élan",
                                   "Zoe",
                                   "Eva",
                                   "run 02",
                                   "run",
                                   "a1b2",
                                   "a1b11",
                                   "x99999999999999999999",
                                   "x100000000000000000000"};
    std::sort(names.begin(), names.end(), isNaturallyBefore);
    EXPECT_THAT(names, testing::ElementsAre("a1b2", "a1b11", "élan", "Eva", "run", "run 02",
                                            "run 2", "Run 9", "run 10", "x99999999999999999999",
                                            "x100000000000000000000", "Zoe"));
    EXPECT_FALSE(isNaturallyBefore("run 2", "run 2"));
}

} // namespace kavela::test
