#include "common/json_fault.h"

#include <gmock/gmock.h>

namespace kavela::test {

TEST(JsonFault, StandsWhereTheTextStopsBeingJson) {
    struct Row {
        std::string_view text;
        std::size_t byte; ///< 0 for a text without a fault
        std::string_view what;
    };
    constexpr std::string_view Early = "the text ends too early (the file may be cut off)";
    for (const Row& row :
         {Row{"{\"a\":[1,-2.5e+3,true,null,\"\\u00e9\\n\u00e9\"],\"b\":{}}", 0, ""},
          Row{" [ ] ", 0, ""}, Row{"[1e-400]", 0, ""}, Row{"", 1, Early}, Row{"{\"a\":", 6, Early},
          Row{"[1,2", 5, Early}, Row{"[\"abc", 6, Early}, Row{"[1 2]", 4, "a comma or ] is due"},
          Row{"{\"a\":01}", 7, "a comma or } is due"}, Row{"{\"a\" 1}", 6, "a colon is due"},
          Row{"{\"a\":1,}", 8, "a key is due"}, Row{"[1,]", 4, "a value is due"},
          Row{"[tru]", 2, "a value is due"}, Row{"[5.]", 4, "a digit is due"},
          Row{"{\"a\":1e400}", 6, "a number is out of range"},
          Row{"[\"\\x\"]", 4, "a text holds a malformed escape"},
          Row{"[\"\n\"]", 3, "a text holds a control character"},
          Row{"[\"\xff\"]", 3, "a byte is no UTF-8 text"},
          Row{"{}{}", 3, "something stands behind the document"}}) {
        const auto fault = findJsonFault(row.text);
        ASSERT_EQ(fault.has_value(), row.byte > 0) << row.text;
        if (fault) {
            EXPECT_EQ(fault->byte, row.byte) << row.text;
            EXPECT_EQ(fault->what, row.what) << row.text;
        }
    }
    EXPECT_EQ(findJsonFault(std::string(2'000'000, '['))->byte, 2'000'001U);
}

} // namespace kavela::test
