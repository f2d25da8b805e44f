#include "common/delimited_text.h"

#include <gmock/gmock.h>

namespace kavela::test {

using testing::ElementsAre;

TEST(DelimitedText, CutsALineIntoFields) {
    struct Row {
        const char* line;
        char separator;
        std::vector<std::string_view> bare;
        std::vector<std::string_view> asWritten;
    };
    for (const Row& row :
         {Row{"a; b ;c", ';', {"a", "b", "c"}, {"a", " b ", "c"}}, Row{"", ';', {""}, {""}},
          Row{";;", ';', {"", "", ""}, {"", "", ""}},
          Row{"\"a;b\";c", ';', {"a;b", "c"}, {"\"a", "b\"", "c"}},
          Row{" \"a\"\"b;\" ;c", ';', {"a\"\"b;", "c"}, {" \"a\"\"b", "\" ", "c"}},
          Row{"5\" pole;c", ';', {"5\" pole", "c"}, {"5\" pole", "c"}},
          Row{"\"never closed;c", ';', {"\"never closed;c"}, {"\"never closed", "c"}},
          Row{"a\t\t\"b\tc\"", '\t', {"a", "", "b\tc"}, {"a", "", "\"b", "c\""}}}) {
        std::vector<std::string_view> fields;
        splitFields(row.line, row.separator, fields);
        EXPECT_EQ(fields, row.bare) << row.line;
        splitFields(row.line, row.separator, fields, FieldForm::AsWritten);
        EXPECT_EQ(fields, row.asWritten) << row.line;
    }
    EXPECT_EQ(withSingleQuotes("a\"\"b\"\""), "a\"b\"");
}

TEST(DelimitedText, TellsWhichLineAndWhatItLacks) {
    DelimitedReader reader("name\ttime\r\n\r\n \t\nA, B\t12,5\nC");
    ASSERT_TRUE(reader.next());
    EXPECT_THAT(reader.fields(), ElementsAre("name", "time"));
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.number(), 4);
    EXPECT_THAT(reader.fields(), ElementsAre("A, B", "12,5"));
    EXPECT_EQ(reader.lack(2, "two"), "");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.number(), 5);
    EXPECT_EQ(reader.lack(2, "two"), "1 field where two are needed");
    EXPECT_EQ(reader.field(1), "");
    EXPECT_FALSE(reader.next());
}

} // namespace kavela::test
