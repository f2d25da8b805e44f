#include "common/typed_number.h"

#include <gtest/gtest.h>

namespace kavela::test {
namespace {

TEST(TypedNumber, TakesPointAndComma) {
    for (const char* text :
         {"82.75", "82,75", " 82,75\t", "+82.75", "\u00A082.750\u202F", "082,75"})
        EXPECT_EQ(typedReal(text), 82.75) << text;
    EXPECT_EQ(typedReal("-,5"), -0.5);
    EXPECT_EQ(typedReal("\u22121.5"), -1.5);
    EXPECT_EQ(typedReal("7."), 7);
    EXPECT_EQ(typedWhole(" 12 "), 12);
    EXPECT_EQ(typedWhole("-3"), -3);
}

TEST(TypedNumber, RefusesWhatCouldMeanAnotherNumber) {
    for (const char* text : {"", " ", ".", "-", "1e5", "nan", "inf", "0x10", "1.234,5", "1,234.5",
                             "1.234.567", "1 234", "1'234", "--1", "+-1", "1-", "72kg", "1:30"})
        EXPECT_EQ(typedReal(text), std::nullopt) << text;
    EXPECT_EQ(typedReal(std::string(400, '9')), std::nullopt);
    for (const char* text : {"", "2.5", "2,0", "2.", "99999999999999999999"})
        EXPECT_EQ(typedWhole(text), std::nullopt) << text;
}

TEST(TypedNumber, ReadsTimesWithMinutes) {
    EXPECT_EQ(typedSeconds("82,75"), 82.75);
    EXPECT_EQ(typedSeconds(" 1:22.75 "), 82.75);
    EXPECT_EQ(typedSeconds("1:22,75"), 82.75);
    EXPECT_EQ(typedSeconds("0:12"), 12);
    EXPECT_EQ(typedSeconds("90:00"), 5400);
    EXPECT_EQ(typedSeconds("1:00:02.5"), 3602.5);
    for (const char* text : {"", "-1", "1:60", "1:-5", "1:+5", "-1:05", "1: 5", "1.5:10", "1:", ":",
                             ":30", "1:2:3:4", "1:60:00", "1:2,3,4"})
        EXPECT_EQ(typedSeconds(text), std::nullopt) << text;
}

} // namespace
} // namespace kavela::test
